#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "services/Database.h"
#include "services/DatabaseError.h"
#include "services/faults/CuttingProxy.h"
#include "support/PrivatePostgres.h"

/// libpqxx forgets the last result of a connection that breaks under it: a kilobyte each time.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:libpqxx";
}

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
  for (const char* moment : {"after begin", "before commit"}) {
    session().Observe([&](std::string_view step) {
      if (step == moment) CutConnection();
    });
    EXPECT_EQ(servicos::kErro, Sell()) << moment;
    session().Observe({});
    EXPECT_EQ(static_cast<std::int32_t>(Trouble::kConnectionLost), lastError_) << lastWords_;
    EXPECT_EQ(1, Count("vendas")) << moment;
  }
  EXPECT_EQ(0, Sell());
  ExpectBooksBalance();
}

TEST_P(ServerTest, ACommitWhoseAnswerIsLostIsLookedUpAndCounts) {
  const CuttingProxy proxy(server_->Port(), CuttingProxy::Cut::kWhenCommitted);
  OpenThrough(proxy, "LOJA");
  EXPECT_EQ(0, Sell()) << lastWords_;
  EXPECT_TRUE(proxy.HasCut());
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
  const CuttingProxy proxy(server_->Port(), CuttingProxy::Cut::kWhileCommitting);
  OpenThrough(proxy, "Recepção da clínica veterinária, balcão ao lado da porta de entrada");
  EXPECT_EQ(servicos::kErro, Sell());
  EXPECT_TRUE(proxy.HasCut());
  EXPECT_EQ(static_cast<std::int32_t>(Trouble::kConnectionLost), lastError_) << lastWords_;
  EXPECT_EQ(0, Count("pg_stat_activity WHERE wait_event = 'PgSleep'"));
  EXPECT_EQ(0, Count("vendas"));
}

TEST_P(ServerTest, AServerGoneAtTheCommitLeavesTheSaleInDoubt) {
  ASSERT_EQ(0, Sell());
  session().Observe([&](std::string_view step) {
    if (step == "before commit") server_->TakeDown();
  });
  EXPECT_EQ(servicos::kErro, Sell());
  EXPECT_EQ(static_cast<std::int32_t>(Trouble::kInDoubt), lastError_) << lastWords_;
  session().Observe({});
  server_->BringBack();
  EXPECT_EQ(0, Sell());
  EXPECT_EQ(2, Count("vendas")) << "the one in doubt had not been kept";
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
