#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <thread>

#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "services/Abertura.h"
#include "services/Database.h"
#include "services/banco/DatabaseError.h"
#include "services/faults/CuttingProxy.h"
#include "support/PrivatePostgres.h"

namespace services {
namespace {

/// A server that goes away and comes back. It is this suite's own, since it is taken down.
class ServerTest : public OverDatabase {
 protected:
  static void SetUpTestSuite() { server_ = new support::PrivatePostgres; }
  static void TearDownTestSuite() { delete server_; }
  void SetUp() override {
    address_ = server_->NewDatabase();
    Prepare();
  }

  std::int16_t List() {
    const auto registers = servicos::CriarServico<servicos::ZOVA_N_Caixas::clsCaixas>();
    const auto status = registers->SelecionarParaComboBox();
    lastError_ = registers->NumeroDoErro();
    return status;
  }
  std::int16_t Sell() {
    const NewSale sale{Sale{}};
    const auto status = sale->RegistrarPagamento();
    lastError_ = sale->NumeroDoErro();
    lastWords_ = sale->DescricaoDoErro();
    lastNumber_ = sale->NumeroDaVenda();
    return status;
  }
  /// Another computer's connection, that leads through a proxy.
  void OpenThrough(const CuttingProxy& proxy, const std::string& computer) {
    banco_ = AbrirBanco(base::Replace(address_, "port=" + std::to_string(server_->Port()),
                                      "port=" + std::to_string(proxy.Port())),
                        clock_, computer);
    RegistrarServicos(banco_);
  }
  /// Ends the connection of the cash desk from the server's side.
  void CutConnection() {
    const auto other = AbrirBanco(address_, clock_, "SUPORTE");
    static const Statement cut(
        "SELECT pg_terminate_backend(pid, 5000) FROM pg_stat_activity"
        " WHERE application_name LIKE 'caixa % RECEPCAO' AND datname = current_database()");
    EXPECT_EQ(1, other->Sessao().Select(cut, {}, [](const Row&) {}));
  }

  static std::int32_t Number(Trouble trouble) { return static_cast<std::int32_t>(trouble); }
  static support::PrivatePostgres* server_;
  std::int32_t lastError_ = 0;
  std::int32_t lastNumber_ = 0;
  std::string lastWords_;
};
support::PrivatePostgres* ServerTest::server_ = nullptr;
INSTANTIATE_TEST_SUITE_P(Only, ServerTest, testing::Values(Engine::kPostgres), Name);

TEST_P(ServerTest, FaultsWhileItIsAwayAndWorksOnceItIsBack) {
  ASSERT_EQ(0, Sell());
  server_->TakeDown();
  EXPECT_EQ(servicos::kErro, List());
  EXPECT_EQ(static_cast<std::int32_t>(Trouble::kReadFailed), lastError_);
  EXPECT_EQ(servicos::kErro, Sell());
  EXPECT_EQ(static_cast<std::int32_t>(Trouble::kConnectionLost), lastError_);
  server_->BringBack();
  EXPECT_EQ(0, List());
  EXPECT_EQ(0, Sell());
  EXPECT_EQ(2, Count("vendas"));
  ExpectBooksBalance();
}

TEST_P(ServerTest, ARestartBetweenTwoOperationsIsNotNoticed) {
  ASSERT_EQ(0, Sell());
  server_->TakeDown();
  server_->BringBack();
  EXPECT_EQ(0, Sell()) << lastWords_;
  CutConnection();
  EXPECT_EQ(0, List());
  EXPECT_EQ(2, Count("vendas"));
}

TEST_P(ServerTest, AConnectionThatBreaksInMidSaleLeavesNothing) {
  ASSERT_EQ(0, Sell());
  session().Observe([&](std::string_view step) {
    if (step == "before commit") CutConnection();
  });
  EXPECT_EQ(servicos::kErro, Sell());
  EXPECT_EQ(static_cast<std::int32_t>(Trouble::kConnectionLost), lastError_) << lastWords_;
  EXPECT_EQ(1, Count("vendas"));
  session().Observe([&](std::string_view step) {
    if (step == "after begin") CutConnection();
  });
  EXPECT_EQ(0, Sell()) << "nothing was asked of that connection yet";
  session().Observe({});
  EXPECT_EQ(2, Count("vendas"));
  ExpectBooksBalance();
}

TEST_P(ServerTest, ACommitWhoseAnswerIsLostIsLookedUpAndCounts) {
  const CuttingProxy proxy(server_->Port(), CuttingProxy::Moment::kCommitted,
                           CuttingProxy::Deed::kCut);
  OpenThrough(proxy, "LOJA");
  EXPECT_EQ(0, Sell()) << lastWords_;
  EXPECT_TRUE(proxy.HasStruck());
  EXPECT_EQ(1, Count("vendas"));
  EXPECT_EQ(Read("SELECT numero FROM vendas"), std::to_string(lastNumber_));
  ExpectBooksBalance();
}

TEST_P(ServerTest, ACommitThatTheServerIsStillAtIsEndedBeforeItIsSaidToHaveFailed) {
  Write(
      "CREATE FUNCTION demorar() RETURNS trigger LANGUAGE plpgsql AS"
      " 'BEGIN PERFORM pg_sleep(3600); RETURN NULL; END';"
      "CREATE CONSTRAINT TRIGGER devagar AFTER INSERT ON vendas DEFERRABLE INITIALLY DEFERRED"
      " FOR EACH ROW EXECUTE FUNCTION demorar()");
  const CuttingProxy proxy(server_->Port(), CuttingProxy::Moment::kCommitting,
                           CuttingProxy::Deed::kCut);
  OpenThrough(proxy, "Recepção da clínica veterinária, balcão ao lado da porta de entrada");
  EXPECT_EQ(servicos::kErro, Sell());
  EXPECT_TRUE(proxy.HasStruck());
  EXPECT_EQ(static_cast<std::int32_t>(Trouble::kConnectionLost), lastError_) << lastWords_;
  EXPECT_EQ(0, Count("pg_stat_activity WHERE wait_event = 'PgSleep'"));
  EXPECT_EQ(0, Count("vendas"));
}

TEST_P(ServerTest, AReadingThatGetsNoAnswerIsGivenUpWhileTheScreensLive) {
  CuttingProxy proxy(server_->Port(), CuttingProxy::Moment::kServerBytes,
                     CuttingProxy::Deed::kMute);
  OpenThrough(proxy, "LOJA");
  session().KeepTo({.reading = std::chrono::milliseconds(400)});
  int painted = 0;
  int refused = 0;
  session().WhileWaiting([&] {
    ++painted;
    refused += List() == servicos::kErro && lastError_ == Number(Trouble::kUnderWay) ? 1 : 0;
    throw std::runtime_error("what painting throws is dropped");
  });
  proxy.Arm(20);
  EXPECT_EQ(servicos::kErro, List());
  EXPECT_EQ(Number(Trouble::kReadFailed), lastError_);
  EXPECT_GT(painted, 0);
  EXPECT_EQ(painted, refused);
  EXPECT_EQ(0, List()) << "over a new connection";
}

TEST_P(ServerTest, ASilentHostLeavesTimeForTheNext) {
  const int silent = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  socklen_t length = sizeof address;
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  auto* const generic = reinterpret_cast<sockaddr*>(&address);
  ASSERT_EQ(0, bind(silent, generic, length));
  ASSERT_EQ(0, listen(silent, 8));
  ASSERT_EQ(0, getsockname(silent, generic, &length));
  const std::string port = std::to_string(ntohs(address.sin_port));
  const auto connect = [&](const std::string& hosts, const std::string& ports) {
    auto text = base::Replace(address_, "host=127.0.0.1", "host=" + hosts);
    text = base::Replace(text, std::to_string(server_->Port()), ports);
    return AbrirBanco(text + " target_session_attrs=read-write", clock_, "LOJA");
  };
  EXPECT_NE(nullptr, connect("127.0.0.1,localhost", port + "," + std::to_string(server_->Port())));
  EXPECT_THROW(connect("localhost", port), FalhaDeAbertura);
  close(silent);
}

/// A disk that is full.
class FullDiskTest : public OverDatabase {};
INSTANTIATE_TEST_SUITE_P(Only, FullDiskTest, testing::Values(Engine::kSqlite), Name);

TEST_P(FullDiskTest, ASaleThatDoesNotFitLeavesNothing) {
  Write("PRAGMA max_page_count = 1");  // SQLite takes it as: no more than there are now.
  Sale sale;
  sale.note = std::string(1'000'000, 'x');
  const NewSale tooMuch(sale);
  EXPECT_EQ(servicos::kErro, tooMuch->RegistrarPagamento());
  EXPECT_EQ(static_cast<std::int32_t>(Trouble::kFull), tooMuch->NumeroDoErro());
  EXPECT_EQ(0, Count("vendas"));
  ExpectBooksBalance();
  Write("PRAGMA max_page_count = 1000000");
  EXPECT_EQ(0, tooMuch->RegistrarPagamento()) << tooMuch->DescricaoDoErro();
}

}  // namespace
}  // namespace services
