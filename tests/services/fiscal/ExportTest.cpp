// The export to the fiscal application, on real folders.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
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
#include "base/RuntimeError.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "services/Abertura.h"
#include "services/Banco.h"
#include "services/troca/ExportacaoFiscal.h"
#include "services/troca/PastaDeTroca.h"
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

constexpr const char* kStation = "0123456789ABCDEF";

class FiscalExport : public testing::Test {
 protected:
  FiscalExport() {
    services::CriarBanco(Address());
    Register(folder.Path().string(), "Loja 1");
  }
  ~FiscalExport() override { Forget(); }

  std::string Address() const { return "sqlite:" + elsewhere.File("clinica.db"); }
  void Register(const std::string& where, const std::string& computer,
                const std::string& station = kStation) {
    bank = services::AbrirBanco(Address(), clock, computer, station);
    services::RegistrarExportacaoFiscal(
        bank, where,
        [this](std::int32_t number, const std::string& text, const std::string& place) {
          told.push_back(std::to_string(number) + " " + text + " " + place);
        });
  }
  /// No connection may be carried into another process.
  void Forget() {
    servicos::EsquecerTodos();
    bank.reset();
  }
  std::vector<std::string> NamesWith(const std::string& start) const {
    std::vector<std::string> names;
    for (const std::string& name : Names(folder.Path())) {
      if (name.starts_with(start)) names.push_back(name);
    }
    return names;
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
  /// Starts a process that runs something as the workstation "Loja".
  pid_t Start(const std::function<void()>& run) {
    Forget();
    const pid_t child = fork();
    if (child == 0) {
      Register(folder.Path().string(), "Loja");
      run();
      Forget();
      _exit(0);
    }
    Register(folder.Path().string(), "Loja");
    return child;
  }
  static void AwaitEnd(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }

  support::TemporaryFolder folder, elsewhere;
  StoppedClock clock;
  std::shared_ptr<services::Banco> bank;
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
  const std::regex form(
      "CFE-ENVIO-LOJA_201-0123456789ABCDEF-20261122143005-[0-9]+-"
      "[0-9A-F]{8}-[0-9]+\\.txt");
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
  const auto write250 = [this] {
    const services::PastaDeTroca exchange(folder.Path().string(), "Loja", kStation);
    for (int i = 0; i < kEach; ++i) exchange.Gravar("CFE-ENVIO-", "|00|", clock.Now());
  };
  // Children that begin as one process were: neither thread nor process may count as the other.
  std::vector<pid_t> children;
  for (int i = 0; i < 2; ++i) {
    children.push_back(Start([&] {
      std::thread other(write250);
      write250();
      other.join();
    }));
  }
  for (const pid_t child : children) AwaitEnd(child);
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
  fs::permissions(elsewhere.Path(), fs::perms(0711));  // The database stays in sight.
  const std::string file = folder.File("um-arquivo");
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
    EXPECT_THAT(Names(folder.Path()), ElementsAre("um-arquivo")) << fault.sentence;
  }
}

TEST_F(FiscalExport, ALateAnswerIsSetAsideAndOthersFilesAreLeftAlone) {
  Register(folder.Path().string(), "Loja");
  // An export of this process, and one of a process that is gone and died in the next.
  const fs::path own = AnswerOfAnExport();
  AwaitEnd(Start([&] {
    const std::string stem = AnswerOfAnExport().filename().string().substr(12);
    Put(folder.File("CFE-RETORNO-" + stem), "gone");
    Put(folder.File("GRAVANDO-" + stem.substr(0, stem.size() - 4) + "9.tmp"), "half");
  }));
  const std::string gone = NamesWith("CFE-RETORNO-").front();
  Put(own, "own");
  // Another program of this workstation that lives and may wait.
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe(pipe.data()), 0);
  const pid_t living = Start([&] {
    Put(AnswerOfAnExport(), "living");
    char byte = 0;
    EXPECT_EQ(write(pipe[1], &byte, 1), 1);
    pause();
  });
  char byte = 0;
  ASSERT_EQ(read(pipe[0], &byte, 1), 1);
  std::set<std::string> expected;
  for (const std::string& name : NamesWith("CFE-RETORNO-")) {
    if (Bytes(folder.File(name)) == "living") expected.insert(name);
  }
  EXPECT_EQ(expected.size(), 1U);
  // Other workstations, one of the same name among them; and an earlier version's, of just now and
  // of the day before yesterday.
  const std::string old = "CFE-RETORNO-LOJA-20261120143005-999999999-00000000-1.txt";
  const std::string kLeft[] = {
      "CFE-RETORNO-LOJA-FEDCBA9876543210-20261122143005-999999999-00000000-1.txt",
      "CFE-RETORNO-LOJA-20261122143005-999999999-00000000-1.txt",
      "CFE-RETORNO-LOJA_201-0123456789ABCDEF-20261122143005-999999999-00000000-1.txt",
      "CFE-RETORNO-LOJA-de-outro.txt",
      "GRAVANDO-OUTRA-0123456789ABCDEF-20261122143005-999999999-00000000-1.tmp",
  };
  for (const std::string& name : kLeft) Put(folder.File(name), name);
  expected.insert(std::begin(kLeft), std::end(kLeft));
  Put(folder.File(old), "old");
  fs::last_write_time(folder.File(old), fs::file_time_type::clock::now() - std::chrono::hours(48));
  // An answer of that name was set aside before.
  fs::create_directory(folder.File("respostas-atrasadas"));
  Put(folder.File("respostas-atrasadas/" + own.filename().string()), "earlier");

  const fs::path answer = AnswerOfAnExport();
  kill(living, SIGKILL);
  waitpid(living, nullptr, 0);
  expected.insert({"respostas-atrasadas", "arquivo"});
  EXPECT_EQ(Names(folder.Path()), expected);
  EXPECT_NE(answer, own);
  const std::string aside = folder.File("respostas-atrasadas/");
  const std::string second = own.stem().string() + "-2.txt";
  EXPECT_THAT(Names(aside), UnorderedElementsAre(gone, old, own.filename().string(), second));
  EXPECT_EQ(Bytes(aside + gone), "gone");
  EXPECT_EQ(Bytes(aside + own.filename().string()), "earlier");
  EXPECT_EQ(Bytes(aside + second), "own");
  EXPECT_EQ(Bytes(folder.File("arquivo/CFE-ENVIO-" + gone.substr(12, gone.size() - 16) + "9.txt")),
            "half")
      << "as a file that nobody ever took";
}

TEST_F(FiscalExport, IsReadByThoseAloneWhoMayTakeIt) {
  const auto modeOf = [](const fs::path& path) {
    return static_cast<unsigned>(fs::status(path).permissions());
  };
  struct Case {
    unsigned folder, file, archive;
  };
  for (const Case& each : {Case{0700, 0600, 0700}, Case{0755, 0600, 0700}, Case{0770, 0660, 0770},
                           Case{0775, 0660, 0770}, Case{0777, 0664, 0777}}) {
    SCOPED_TRACE(each.folder);
    fs::permissions(folder.Path(), fs::perms(each.folder));
    const auto service = Service();
    ASSERT_EQ(service->ExportarDadosCFeSATParaArquivo("|00|\r\n", "", ""), 0);
    const fs::path sent = service->NomeCompleDoArquivoDeEnvioComDadosCFeSAT();
    EXPECT_EQ(modeOf(sent), each.file);
    EXPECT_TRUE(services::ArquivoDaTroca(*bank, folder.Path().string())(sent.string()));
    EXPECT_EQ(modeOf(folder.File("arquivo")), each.archive);
    fs::remove_all(folder.File("arquivo"));
  }
}

TEST_F(FiscalExport, KeepsWhatTheModuleDeletesForThirtyDays) {
  const auto keep = services::ArquivoDaTroca(*bank, folder.Path().string() + "/");
  const std::string answer = "CFE-RETORNO-X.txt";
  for (const char* bytes : {"first", "second"}) {
    Put(folder.File(answer), bytes);
    EXPECT_TRUE(keep(folder.File(answer)));
  }
  EXPECT_FALSE(keep(elsewhere.File("clinica.db"))) << "none of the exchange";
  EXPECT_EQ(Bytes(folder.File("arquivo/CFE-RETORNO-X.txt")), "first");
  EXPECT_EQ(Bytes(folder.File("arquivo/CFE-RETORNO-X-2.txt")), "second");
  fs::last_write_time(folder.File("arquivo/CFE-RETORNO-X.txt"),
                      fs::file_time_type::clock::now() - std::chrono::hours(31 * 24));
  services::RetomarCupons(bank, folder.Path().string());
  EXPECT_THAT(Names(folder.File("arquivo")), ElementsAre("CFE-RETORNO-X-2.txt"));
  // Where no archive can be made, an answer stays; what was sent must not be taken any more.
  fs::remove_all(folder.File("arquivo"));
  Put(folder.File("arquivo"), "in the way");
  Put(folder.File(answer), "third");
  EXPECT_THROW(keep(folder.File(answer)), base::RuntimeError);
  EXPECT_EQ(Bytes(folder.File(answer)), "third");
  Put(folder.File("CFE-ENVIO-X.txt"), "");
  EXPECT_FALSE(keep(folder.File("CFE-ENVIO-X.txt")));
}

}  // namespace
