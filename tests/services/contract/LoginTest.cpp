#include <ctime>
#include <thread>
#include <utility>

#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "services/Database.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Search.h"
#include "services/banco/Senhas.h"
#include "services/banco/SqliteSession.h"

namespace services {
namespace {

using Login = servicos::ZOVA_N_Login::clsLogin;

const std::string kWrong = "Usuário ou senha inválidos. Confira e tente de novo.";

/// Who may sign in, and how often may be guessed.
class LoginTest : public OverDatabase {
 protected:
  void User(const std::string& name, const std::string& password, bool isActive, bool isAdmin) {
    Fill("usuarios", "nome, nome_busca, senha, ativo, administrador",
         {{name, SearchForm(name), HashDaSenha(password), isActive, isAdmin}});
  }
  static std::unique_ptr<Login> Try(const std::string& name, const std::string& password,
                                    std::int16_t expected) {
    auto service = servicos::CriarServico<Login>();
    service->NomeDeUsuario(name);
    service->SenhaDoUsuario(password);
    EXPECT_EQ(expected, service->Autenticar()) << name << ' ' << service->DescricaoDoErro();
    return service;
  }
  /// What the operator reads.
  static std::string Refused(const std::string& name, const std::string& password) {
    return Try(name, password, servicos::kRecusa)->DescricaoDaFalha();
  }
  static void Fail(const std::string& name, int times) {
    for (int i = 0; i < times; ++i) EXPECT_EQ(kWrong, Refused(name, "errada"));
  }
  static std::string Wait(std::int64_t seconds) {
    return "Muitas tentativas seguidas. Aguarde " + std::to_string(seconds) +
           (seconds == 1 ? " segundo" : " segundos") + " e tente de novo.";
  }
  void Pass(std::int64_t seconds) { clock_.now = clock_.now.PlusSeconds(seconds); }
  /// From here on it is that computer's services that answer.
  void MoveTo(const std::string& computer) {
    banco_ = Another(computer);
    RegistrarServicos(banco_);
  }
};
OVER_BOTH_ENGINES(LoginTest);

TEST_P(LoginTest, AUserComesWithTheRightsOfTheSessionRecord) {
  User("José", "Segredo 1", true, true);
  const auto rows = Try("jose", "Segredo 1", 0)->ResultadoDaSelecaoEmRecordSet();
  EXPECT_EQ(base::Value("José"), rows->Field("NomeDeUsuario"));
  EXPECT_EQ(base::Value(true), rows->Field("Administrador"));
  for (const char* right :
       {"PermissaoDoModuloCaixaAlterarDescontosDeVendas", "PermissaoDoModuloCaixaRelatorios",
        "PermissaoDoModuloCaixaEfetuarVendasACreditoFiado",
        "PermissaoDoModuloCaixaEfetuarSaidasDeCaixas", "PermissaoDoModuloCaixaCancelarVendas"}) {
    EXPECT_EQ(base::Value(false), rows->Field(right)) << right;
  }
  EXPECT_EQ(base::Value(""), rows->Field("CodigoDoDocumentoComEmissaoPermitida"));
  EXPECT_EQ(std::string::npos, Read("SELECT senha FROM usuarios").find("Segredo"));
  EXPECT_EQ(0U, Read("SELECT senha FROM usuarios").find("$argon2id$"));
}

TEST_P(LoginTest, ARefusedSignInDoesNotSayWhichHalfWasWrong) {
  User("ana", "certa", true, false);
  User("eva", "certa", false, false);
  EXPECT_EQ(kWrong, Refused("ana", "CERTA"));
  EXPECT_EQ(kWrong, Refused("ana", ""));
  EXPECT_EQ(kWrong, Refused("ninguém", ""));
  EXPECT_EQ(kWrong, Refused("eva", "errada"));
  EXPECT_EQ(kWrong, Refused("' OR ''='", "x"));
  EXPECT_EQ("Este usuário está desativado. Fale com o administrador.", Refused("eva", "certa"));
}

TEST_P(LoginTest, FailuresInARowAreWaitedForWhetherTheNameExistsOrNot) {
  User("ana", "certa", true, false);
  int verified = 0;
  RegistrarServicos(banco_, [&] { ++verified; });
  for (const char* name : {"ana", "ninguém"}) Fail(name, 3);
  verified = 0;
  const auto expectWait = [](std::int64_t seconds) {
    for (const char* name : {" ÁNA ", "Ninguem"}) EXPECT_EQ(Wait(seconds), Refused(name, "certa"));
  };
  expectWait(1);
  const std::pair<int, std::int64_t> waits[] = {{4, 2},  {5, 4},  {6, 8},   {7, 16},
                                                {8, 32}, {9, 60}, {10, 60}, {9999, 60}};
  for (const auto& [failures, wait] : waits) {
    Write("UPDATE tentativas_de_login SET falhas = " + std::to_string(failures));
    expectWait(wait);
  }
  Pass(59);
  expectWait(1);
  EXPECT_EQ(0, verified) << "not even the right password is looked at";
  Pass(1);
  Fail("Ninguem", 1);
  EXPECT_EQ(1, Count("tentativas_de_login WHERE falhas = 10000"));
  Pass(-3600);
  Try("ana", "certa", 0);  // A clock that was set back an hour does not lock out for an hour.
  EXPECT_EQ(0, Count("tentativas_de_login WHERE usuario_busca = 'ana'")) << "begins anew";
}

TEST_P(LoginTest, NobodyIsShutOutAtAnotherComputer) {
  User("ana", "certa", true, false);
  Fail("ana", 3);
  MoveTo("LOJA");
  Try("ana", "certa", 0);
  MoveTo(" recepcao");
  EXPECT_EQ(Wait(1), Refused("ana", "certa")) << "the success elsewhere forgives nothing here";
}

TEST_P(LoginTest, AnotherProgramAtThisComputerGetsNoGuessesOfItsOwn) {
  User("ana", "certa", true, false);
  const auto other = Another("RECEPCAO");
  // As late as another one can come between: on SQLite the transaction keeps it off.
  const bool isSqlite = GetParam() == Engine::kSqlite;
  const std::string_view moment = isSqlite ? "before begin" : "before run";
  int left = isSqlite ? 1 : 2;
  session().Observe([&](std::string_view step) {
    if (step != moment || --left != 0) return;
    other->Sessao().RunScript(
        "INSERT INTO tentativas_de_login (computador_busca, usuario_busca, falhas, ultima)"
        " VALUES ('RECEPCAO', 'ana', 3, '2026-11-22 14:30:00')");
  });
  EXPECT_EQ(Wait(1), Refused("ana", "certa"));
  session().Observe({});
  EXPECT_EQ("3", Read("SELECT falhas FROM tentativas_de_login"));
}

TEST_P(LoginTest, WhatWasTypedDoesNotFillTheDatabase) {
  MoveTo("LOJA");
  Fail("outra", 1);
  MoveTo("RECEPCAO");
  Fail(std::string(5'000, 'x') + "ção", 1);
  EXPECT_EQ("60", Read("SELECT max(length(usuario_busca)) FROM tentativas_de_login"));
  Pass(24LL * 60 * 60);
  Fail("ana", 1);
  EXPECT_EQ(3, Count("tentativas_de_login")) << "a day old";
  Pass(1);
  Fail("ana", 1);
  EXPECT_EQ(2, Count("tentativas_de_login")) << "the other computer's is cleared away there";
  EXPECT_EQ("2", Read("SELECT falhas FROM tentativas_de_login WHERE usuario_busca = 'ana'"));
}

TEST_P(LoginTest, WithoutItsRecordNoPasswordIsLookedAt) {
  User("ana", "certa", true, false);
  Fail("eva", 3);
  const auto other = Another("LOJA");
  other->Sessao().Begin();
  if (auto* const file = dynamic_cast<SqliteSession*>(&session())) {
    file->BePatientFor(std::chrono::milliseconds(20));
  } else {
    Write("SET lock_timeout = '20ms'");
    other->Sessao().RunScript("LOCK TABLE tentativas_de_login IN EXCLUSIVE MODE");
  }
  for (const char* password : {"certa", "errada"}) {
    const auto busy = Try("ana", password, servicos::kErro);
    EXPECT_EQ(static_cast<std::int32_t>(Trouble::kBusy), busy->NumeroDoErro());
    EXPECT_EQ("ZOVA_N_Login, clsLogin, Autenticar", busy->LocalDoErro());
    EXPECT_EQ(nullptr, busy->ResultadoDaSelecaoEmRecordSet());
  }
  EXPECT_EQ(Wait(1), Refused("eva", "errada")) << "who has to wait hears it at once";
  other->Sessao().Rollback();
  Try("ana", "certa", 0);
  Write("DROP TABLE tentativas_de_login");
  EXPECT_EQ(nullptr, Try("ana", "certa", servicos::kErro)->ResultadoDaSelecaoEmRecordSet());
}

TEST_P(LoginTest, ScreensLiveWhileAPasswordIsVerified) {
  User("ana", "certa", true, false);
  struct Closing {};
  int passes = 0;
  bool closing = false;
  const auto screen = std::this_thread::get_id();
  RegistrarServicos(banco_, [&] {
    ++passes;
    EXPECT_EQ(screen, std::this_thread::get_id());
    EXPECT_EQ(1, Count("tentativas_de_login")) << "a screen may use the database meanwhile";
    if (closing) throw Closing{};
  });
  EXPECT_EQ(kWrong, Refused("ana", "errada"));
  EXPECT_GT(passes, 1);
  passes = 0;
  Try("ana", "certa", 0);
  EXPECT_GT(passes, 1);

  closing = true;
  const auto service = servicos::CriarServico<Login>();
  service->NomeDeUsuario("ana");
  service->SenhaDoUsuario("certa");
  EXPECT_THROW(service->Autenticar(), Closing);
  EXPECT_EQ("1", Read("SELECT falhas FROM tentativas_de_login")) << "leaving it is no free guess";
  closing = false;
  EXPECT_EQ(servicos::kRecusa, service->Autenticar()) << "the password was forgotten";
}

TEST(SenhasTest, AnUnknownNameCostsWhatAWrongPasswordDoes) {
  const std::string somebodys = HashDaSenha("certa");
  const std::string nobodys = HashDeNinguem();
  const auto settings = [](const std::string& hash) { return hash.substr(0, hash.find("p=1$")); };
  EXPECT_EQ(settings(somebodys), settings(nobodys));
  EXPECT_EQ(somebodys.size(), nobodys.size());
  const auto cost = [](const std::string& hash) {
    const std::clock_t start = std::clock();
    EXPECT_FALSE(SenhaConfere("errada", hash));
    return std::clock() - start;
  };
  // Processor time: a hash that the library cannot read would be refused in no time at all.
  EXPECT_GT(cost(""), cost(somebodys) / 4);
}

}  // namespace
}  // namespace services
