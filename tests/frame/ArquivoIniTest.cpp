// The settings file: what is read from it, and what a write leaves of it.

#include <gtest/gtest.h>

#include "frame/ArquivoIni.h"
#include "support/ModuleServices.h"

namespace frame {
namespace {

class ArquivoIni : public testing::Test {
 protected:
  static constexpr const char* kPath = "/modulo/Caixa.ini";

  std::string& File() { return module.desktop.files[kPath]; }

  support::Module module;
};

TEST_F(ArquivoIni, ReadsAKeyOfItsOwnSection) {
  File() =
      "[Grade]\nFontSize=9\nNumeroDoCaixa=8\n\n[CAIXA]\r\n numerodocaixa = 3 \r\nNome=\"Ana \"\n"
      "Vazio=\n[Caixa de baixo]\nOutro=1\n";
  const std::pair<const char*, const char*> keys[] = {
      {"NumeroDoCaixa", "3"},
      {"Nome", "Ana "},
      {"Vazio", ""},
      {"FontSize", "Nenhum valor lido"},
      {"Outro", "Nenhum valor lido"},
  };
  for (const auto& [key, value] : keys) {
    EXPECT_EQ(LerValorDoArquivoIni("Caixa", key), value) << key;
  }
  EXPECT_EQ(LerValorDoArquivoIni("Nada", "FontSize"), "Nenhum valor lido");
  File() = "\xEF\xBB\xBF[Caixa]\nOutro=2\n";
  EXPECT_EQ(LerValorDoArquivoIni("Caixa", "Outro"), "2") << "what some editors put in front";
  File() = "[Caixa]\nTexto=" + std::string(300, 'x');
  EXPECT_EQ(LerValorDoArquivoIni("Caixa", "Texto"), std::string(255, 'x'));
  module.desktop.files.clear();
  EXPECT_EQ(LerValorDoArquivoIni("Caixa", "NumeroDoCaixa"), "Nenhum valor lido") << "first start";
}

TEST_F(ArquivoIni, KeepsAllElseWhenItWrites) {
  EXPECT_EQ(GravarValorNoArquivoIni("Caixa", "NumeroDoCaixa", "-1"), "");
  EXPECT_EQ(File(), "[Caixa]\nNumeroDoCaixa=-1\n");

  File() = "; escrito à mão\n[caixa]\nNUMERODOCAIXA=1\nOutra=2\n\n[Grade]\nFontSize=9";
  GravarValorNoArquivoIni("Caixa", "NumeroDoCaixa", "3");
  GravarValorNoArquivoIni("Caixa", "Nova", "4");
  GravarValorNoArquivoIni("Tela", "Cor", "5");
  EXPECT_EQ(File(),
            "; escrito à mão\n[caixa]\nNumeroDoCaixa=3\nOutra=2\nNova=4\n\n[Grade]\nFontSize=9\n"
            "[Tela]\nCor=5\n");
}

TEST_F(ArquivoIni, FailsInSilenceWhenItCannotBeWritten) {
  File() = "[Caixa]\nNumeroDoCaixa=1\n";
  module.desktop.readOnly.insert(kPath);
  EXPECT_EQ(GravarValorNoArquivoIni("Caixa", "NumeroDoCaixa", "3"), "");
  EXPECT_EQ(LerValorDoArquivoIni("Caixa", "NumeroDoCaixa"), "1");
}

TEST_F(ArquivoIni, IsNotWrittenAnewWhereItCannotBeRead) {
  const std::string before = "[Caixa]\nNumeroDoCaixa=1\n[Grade]\nFontSize=9\n";
  File() = before;
  module.desktop.unreadable.insert(kPath);
  EXPECT_EQ(LerValorDoArquivoIni("Caixa", "NumeroDoCaixa"), "Nenhum valor lido");
  EXPECT_EQ(GravarValorNoArquivoIni("Caixa", "NumeroDoCaixa", "3"), "");
  EXPECT_EQ(File(), before);
}

TEST_F(ArquivoIni, LiesInTheModulesFolderWhateverTheTitle) {
  const std::string longest(251, 'x');
  const std::pair<std::string, std::string> titles[] = {
      {"Clínica São José - Caixa 2", "Clínica São José - Caixa 2"},
      {"../fora", ".._fora"},
      {"/etc/caixa", "_etc_caixa"},
      {"..", ".."},
      {std::string("Caixa\0x\n", 8), "Caixa_x_"},
      {longest, longest},
      {std::string(250, 'x') + "ção", std::string(250, 'x')},
  };
  for (const auto& [title, name] : titles) {
    valores().NomeDaAplicacao = title;
    module.desktop.files.clear();
    GravarValorNoArquivoIni("Caixa", "NumeroDoCaixa", "3");
    ASSERT_EQ(module.desktop.files.size(), 1U) << title;
    EXPECT_EQ(module.desktop.files.begin()->first, "/modulo/" + name + ".ini");
    EXPECT_EQ(LerValorDoArquivoIni("Caixa", "NumeroDoCaixa"), "3");
  }
}

}  // namespace
}  // namespace frame
