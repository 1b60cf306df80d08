// The settings of a workstation, read by themselves and by the program.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "desktop/host/Settings.h"
#include "services/Abertura.h"

namespace {

namespace fs = std::filesystem;
using host::Settings;

class SettingsTest : public testing::Test {
 protected:
  std::string File() const { return Folder() + "/aplicacao.ini"; }
  std::string Folder() const { return folder.path().toStdString(); }
  void Write(const std::string& text) const { std::ofstream(File(), std::ios::binary) << text; }

  /// What reading comes to: the settings in a line, or the complaint.
  std::string Read() const {
    try {
      const Settings read = Settings::Read(Folder());
      const bool roll = read.papel == Settings::Papel::kBobina80;
      return read.pastaFiscal + "," + (roll ? "roll" : "sheet") + "," + read.impressora;
    } catch (const std::runtime_error& complaint) {
      return complaint.what();
    }
  }

  QTemporaryDir folder;
};

TEST_F(SettingsTest, ReadsEachKeyAndTellsTheLineThatItDoesNotUnderstand) {
  EXPECT_EQ(Read(), ",sheet,");
  const struct {
    const char* text;
    std::string read;
  } kCases[] = {
      {"", ",sheet,"},
      {"; só um comentário\n\n[Fiscal]\nPasta=\n[Impressao]\nPapel=\nImpressora=\n", ",sheet,"},
      {"\xEF\xBB\xBF[fiscal]\r\nPASTA = /mnt/troca cfe \r\n", "/mnt/troca cfe,sheet,"},
      {"[Fiscal]\nPasta=troca\n", Folder() + "/troca,sheet,"},
      {"[Impressao]\nPapel=bobina80\nImpressora=Balcão = 1\n", ",roll,Balcão = 1"},
      {"[Impressao]\nPapel=A5\n", "linha 2|Papel é A4 ou Bobina80, e não 'A5'"},
      {"[Fiscal]\nPapel=A4\n", "linha 2|'Papel' não existe na seção [fiscal]"},
      {"Pasta=x\n", "linha 1|'Pasta' não existe na seção []"},
      {"\n[Fiscal]\nPasta\n", "linha 3|falta o sinal de igual em 'Pasta'"},
  };
  for (const auto& each : kCases) {
    Write(each.text);
    const std::size_t bar = each.read.find('|');
    if (bar == std::string::npos) {
      EXPECT_EQ(Read(), each.read);
      continue;
    }
    EXPECT_THAT(Read(), testing::HasSubstr("A " + each.read.substr(0, bar) + " de '" + File() +
                                           "' não foi entendida: " + each.read.substr(bar + 1)));
  }
}

TEST_F(SettingsTest, TheFirstFileMeansTheDefaultsAndAnExistingOneIsKept) {
  Settings::CreateIfMissing(Folder());
  ASSERT_TRUE(fs::exists(File()));
  EXPECT_EQ(Read(), ",sheet,");
  Write("[Impressao]\nPapel=Bobina80\n");
  Settings::CreateIfMissing(Folder());
  EXPECT_EQ(Read(), ",roll,");
}

TEST_F(SettingsTest, AFileThatCannotBeLookedAtIsNotTakenForAbsent) {
  fs::create_symlink("aplicacao.ini", File());
  EXPECT_THAT(Read(), testing::HasSubstr("Não foi possível ler as configurações em"));
  Settings::CreateIfMissing(Folder());
  EXPECT_TRUE(fs::is_symlink(File())) << "nor is one put in its place";
}

TEST_F(SettingsTest, TheProgramMakesFileAndFolderAndStopsAtASettingThatItDoesNotUnderstand) {
  const QString database = QStringLiteral("sqlite:") + folder.filePath(QStringLiteral("c.db"));
  services::CriarBanco(database.toStdString());
  const auto run = [&] {
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), folder.path());
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(VITRINE_PROGRAM),
                  {QStringLiteral("--medir-inicio"), QStringLiteral("--pasta"), folder.path(),
                   QStringLiteral("--banco"), database});
    EXPECT_TRUE(program.waitForFinished(60'000));
    return std::pair(program.exitCode(), program.readAll().toStdString());
  };
  const auto [first, said] = run();
  EXPECT_EQ(first, 0) << said;
  EXPECT_TRUE(fs::exists(File()));
  EXPECT_TRUE(fs::is_directory(Folder() + "/cfe"));
  Write("[Impressao]\nPapel=Guardanapo\n");
  const auto [second, complaint] = run();
  EXPECT_EQ(second, 1);
  EXPECT_THAT(complaint, testing::HasSubstr("e não 'Guardanapo'"));
}

}  // namespace
