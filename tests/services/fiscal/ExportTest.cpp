// The export to the fiscal application, on real folders.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <regex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "base/Clock.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "services/ExportacaoFiscal.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

struct StoppedClock final : base::Clock {
  base::DateTime Now() const override { return {2026, 11, 22, 14, 30, 5}; }
  double Elapsed() const override { return 0; }
};

std::string Bytes(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void Put(const fs::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

std::set<std::string> Names(const fs::path& folder) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.insert(entry.path().filename());
  return names;
}

class FiscalExport : public testing::Test {
 protected:
  FiscalExport() { Register(folder.Path().string(), "Loja 1"); }
  ~FiscalExport() override { servicos::EsquecerTodos(); }

  void Register(const std::string& where, const std::string& computer) {
    services::RegistrarExportacaoFiscal(
        where, clock, computer,
        [this](std::int32_t number, const std::string& text, const std::string& place) {
          told.push_back(std::to_string(number) + " " + text + " " + place);
        });
  }
  static std::unique_ptr<clsOSExportarRegistros> Service() {
    return servicos::CriarServico<clsOSExportarRegistros>();
  }
  /// Exports something and tells the path of the answer.
  static fs::path AnswerOfAnExport() {
    const auto service = Service();
    EXPECT_EQ(service->ExportarDadosCFeSATParaArquivo("|00|\r\n", "", ""), 0);
    fs::remove(service->NomeCompleDoArquivoDeEnvioComDadosCFeSAT());
    return service->NomeCompleDoArquivoDeRetornoComDadosCFeSAT();
  }
  /// Runs something in a process of its own, which has ended then.
  static void InAnotherProcess(const std::function<void()>& run) {
    const pid_t child = fork();
    if (child == 0) {
      run();
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }

  support::TemporaryFolder folder;
  StoppedClock clock;
  std::vector<std::string> told;
};

TEST_F(FiscalExport, WritesHeaderItemsAndPaymentsAByteACharacter) {
  const auto service = Service();
  ASSERT_EQ(service->ExportarDadosCFeSATParaArquivo("|00|Ação €|\r\n", "|05|ü|\r\n", "|10|\r\n"),
            0);
  const fs::path sent = service->NomeCompleDoArquivoDeEnvioComDadosCFeSAT();
  EXPECT_EQ(Bytes(sent), "|00|A\xE7\xE3o \x80|\r\n|05|\xFC|\r\n|10|\r\n");
  const std::string name = sent.filename();
  EXPECT_THAT(Names(folder.Path()), ElementsAre(name));
  const std::regex form("CFE-ENVIO-LOJA_201-20261122143005-[0-9]+-[0-9A-F]{8}-[0-9]+\\.txt");
  EXPECT_TRUE(std::regex_match(name, form)) << name;
  EXPECT_EQ(service->NomeCompleDoArquivoDeRetornoComDadosCFeSAT(),
            folder.File("CFE-RETORNO-" + name.substr(10)));
}

TEST_F(FiscalExport, WritesTheInstructionUnderANameOfItsOwnAndExpectsNoAnswer) {
  const auto service = Service();
  ASSERT_EQ(service->ExportarDadosParaCancelarCFeSAT("|ADMIN|"), 0);
  const std::set<std::string> names = Names(folder.Path());
  ASSERT_EQ(names.size(), 1U);
  EXPECT_THAT(*names.begin(), testing::StartsWith("CFE-ADMIN-LOJA_201-"));
  EXPECT_EQ(Bytes(folder.File(*names.begin())), "|ADMIN|");
  EXPECT_EQ(service->NomeCompleDoArquivoDeRetornoComDadosCFeSAT(), "");
}

TEST_F(FiscalExport, AFileIsWholeFromTheMomentItBearsItsName) {
  const int watch = inotify_init1(IN_NONBLOCK);
  inotify_add_watch(watch, folder.Path().c_str(), IN_CREATE | IN_MOVED_TO);
  ASSERT_EQ(Service()->ExportarDadosCFeSATParaArquivo("|00|\r\n", "|05|\r\n", "|10|\r\n"), 0);
  alignas(inotify_event) std::array<char, 4096> buffer{};
  const ssize_t size = read(watch, buffer.data(), buffer.size());
  close(watch);
  std::vector<std::string> seen;
  for (ssize_t at = 0; at < size;) {
    const auto* const event = reinterpret_cast<const inotify_event*>(buffer.data() + at);
    const bool moved = (event->mask & IN_MOVED_TO) != 0;
    seen.push_back((moved ? "arrived " : "began ") + std::string(event->name).substr(0, 10));
    at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
  }
  EXPECT_THAT(seen, ElementsAre("began GRAVANDO-L", "arrived CFE-ENVIO-"));
}

TEST_F(FiscalExport, NoTwoExportsShareANameWhoeverMakesThem) {
  constexpr int kEach = 250;
  const auto export250 = [] {
    for (int i = 0; i < kEach; ++i) Service()->ExportarDadosCFeSATParaArquivo("|00|", "", "");
  };
  // Children that begin as one process were: neither thread nor process may count as the other.
  std::vector<pid_t> children;
  for (int i = 0; i < 2; ++i) {
    children.push_back(fork());
    if (children.back() != 0) continue;
    std::thread other(export250);
    export250();
    other.join();
    _exit(0);
  }
  for (const pid_t child : children) waitpid(child, nullptr, 0);
  const std::set<std::string> names = Names(folder.Path());
  EXPECT_EQ(names.size(), 4U * kEach);
  for (const std::string& name : names) ASSERT_THAT(name, testing::StartsWith("CFE-ENVIO-"));
}

/// While it lives, no file may grow beyond some bytes: what a full disk comes to.
struct NearlyFull {
  NearlyFull() {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit small = before;
    small.rlim_cur = 64;
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~NearlyFull() {
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, SIG_DFL);
  }
  rlimit before{};
};

/// While it lives, the folder may be looked at and not written to, not even by the administrator.
struct ReadOnly {
  explicit ReadOnly(const fs::path& path) : folder(path) {
    fs::permissions(folder, fs::perms(0555));
    constexpr uid_t kNobody = 65534;
    if (user == 0 && seteuid(kNobody) != 0) ADD_FAILURE();
  }
  ~ReadOnly() {
    if (user == 0 && seteuid(user) != 0) ADD_FAILURE();
    fs::permissions(folder, fs::perms(0755));
  }
  fs::path folder;
  uid_t user = geteuid();
};

TEST_F(FiscalExport, WhatCannotBeWrittenIsToldAndLeavesNothing) {
  struct Fault {
    std::string where, computer, text;
    int number;
    const char* sentence;
  };
  const std::string here = folder.Path().string();
  const std::string file = folder.File("arquivo");
  Put(file, "");
  const std::string text(1000, 'x');
  const Fault kFaults[] = {
      {folder.File("falta"), "L", text, 3101, "A pasta de troca com o aplicativo fiscal não foi"},
      {file, "L", text, 3102, "não é uma pasta"},
      {here, "full", text, 3104, "Não há espaço para gravar"},
      {here, "readonly", text, 3103, "Não há permissão de gravar"},
      {here, std::string(300, 'L'), text, 3105, "longo demais"},
      {here, "L", "Ração → 1 kg", 3106, "um caractere que o aplicativo fiscal não lê: '→'."},
  };
  for (const Fault& fault : kFaults) {
    told.clear();
    Register(fault.where, fault.computer);
    const auto service = Service();
    {
      std::optional<NearlyFull> full;
      std::optional<ReadOnly> readOnly;
      if (fault.number == 3104) full.emplace();
      if (fault.number == 3103) readOnly.emplace(folder.Path());
      EXPECT_EQ(service->ExportarDadosCFeSATParaArquivo("", fault.text, ""), 1) << fault.sentence;
    }
    EXPECT_EQ(service->NumeroDoErro(), fault.number);
    EXPECT_THAT(service->DescricaoDoErro(), HasSubstr(fault.sentence));
    EXPECT_THAT(service->LocalDoErro(), HasSubstr("ExportarDadosCFeSATParaArquivo"));
    EXPECT_THAT(told, ElementsAre(std::to_string(fault.number) + " " + service->DescricaoDoErro() +
                                  " " + service->LocalDoErro()));
    EXPECT_THAT(Names(folder.Path()), ElementsAre("arquivo")) << fault.sentence;
  }
}

TEST_F(FiscalExport, ALateAnswerIsSetAsideAndOthersFilesAreLeftAlone) {
  Register(folder.Path().string(), "Loja");
  // An export of this process, and one of a process that is gone and died in the next.
  const fs::path own = AnswerOfAnExport();
  InAnotherProcess([&] {
    const std::string stem = AnswerOfAnExport().filename().string().substr(12);
    Put(folder.File("CFE-RETORNO-" + stem), "gone");
    Put(folder.File("GRAVANDO-" + stem.substr(0, stem.size() - 4) + "9.tmp"), "half");
  });
  const std::string gone = *Names(folder.Path()).begin();
  Put(own, "own");
  // Another program of this workstation that lives and may wait, and other workstations.
  const std::string kLeft[] = {
      "CFE-RETORNO-LOJA-20261122143005-" + std::to_string(getppid()) + "-00000000-1.txt",
      "CFE-RETORNO-LOJA_201-20261122143005-999999999-00000000-1.txt",
      "CFE-RETORNO-LOJA_2D1-20261122143005-999999999-00000000-1.txt",
      "CFE-RETORNO-LOJA-de-outro.txt",
      "GRAVANDO-OUTRA-20261122143005-999999999-00000000-1.tmp",
  };
  for (const std::string& name : kLeft) Put(folder.File(name), name);
  // An answer of that name was set aside before.
  fs::create_directory(folder.File("respostas-atrasadas"));
  Put(folder.File("respostas-atrasadas/" + own.filename().string()), "earlier");

  const fs::path answer = AnswerOfAnExport();
  std::set<std::string> expected(std::begin(kLeft), std::end(kLeft));
  expected.insert("respostas-atrasadas");
  EXPECT_EQ(Names(folder.Path()), expected);
  EXPECT_NE(answer, own);
  const std::string aside = folder.File("respostas-atrasadas/");
  const std::string second = own.stem().string() + "-2.txt";
  EXPECT_THAT(Names(aside), UnorderedElementsAre(gone, own.filename().string(), second));
  EXPECT_EQ(Bytes(aside + gone), "gone");
  EXPECT_EQ(Bytes(aside + own.filename().string()), "earlier");
  EXPECT_EQ(Bytes(aside + second), "own");
}

}  // namespace
