#ifdef INTEGRADOR
#include <fcntl.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <thread>

#include "base/Text.h"
#include "fiscal/TrocaDeArquivosCFeSAT.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "roteiro/Program.h"
#include "services/Database.h"
#include "services/ExportacaoFiscal.h"
#include "services/faults/CuttingProxy.h"
#include "support/PrivatePostgres.h"
#include "tools/roteiro/HeadlessDesktop.h"

namespace services {
namespace {

/// The user of a clinic that issues coupons.
class Seller : public base::Record {
 public:
  base::Value Field(std::string_view name) const override {
    return std::string(name == "NomeDeUsuario" ? "renata" : "11");
  }
};

/// A process that is killed while it sells with a coupon, and another one that sells again: no
/// coupon is without a sale in the end, and no sale has two.
class CouponKillTest : public OverDatabase {
 protected:
  /// The export, the wait for the answer and its reading by the module, then the registration;
  /// killed at step `last` of the database and of what becomes of the files.
  int Sell(int last) {
    roteiro::Timeline timeline(roteiro::Timeline::Mode::kReal, clock_.now);
    std::ostringstream out;
    roteiro::Conversation nobody({open("/dev/null", O_RDONLY), out, nullptr}, timeline);
    nobody.Attach([](const auto&) { return std::nullopt; }, [] { return roteiro::Json(); });
    roteiro::HeadlessDesktop desktop(nobody, timeline, exchange_.Path().string());
    int step = 0;
    const auto count = [&] {
      if (step++ == last) raise(SIGKILL);
    };
    session().Observe([&](std::string_view) { count(); });
    const std::string folder = exchange_.Path().string();
    RegistrarExportacaoFiscal(banco_, folder, {});
    RetomarCupons(banco_, folder);
    const auto keep = ArquivoDaTroca(*banco_, folder);
    platform::files::InsteadOfDeleting([&](const std::string& file) {
      count();
      const bool kept = keep(file);
      count();
      return kept;
    });
    const Seller seller;
    frame::valores().DadosDoUsuario = &seller;
    frame::valores().ChaveSAT.clear();
    fiscal::TrocaDeArquivosCFeSAT exchange;
    if (!exchange.ExportarDadosCFeSATParaArquivo(
            "|00|65||1|0|||N||||||||||||||1|N|1.00.00|\r\n",
            "|05|001|000012|00000001,000|00000100,000|000000000,00|000000100,00|\r\n",
            "|10|01|01|000000100,00||||||||\r\n")) {
      return 3;
    }
    return NewSale({.key = frame::valores().ChaveSAT})->RegistrarPagamento();
  }

  /// Whatever became of the last process, the same sale goes through now, and nothing is open.
  void SellAgain(int after) {
    ASSERT_EQ(0, EndOf(Start("LOJA", [&] { return Sell(-1); }))) << "after a kill at " << after;
    EXPECT_EQ(0, Count("cupons WHERE situacao IN ('enviado', 'emitido')")) << "at " << after;
    ExpectBooksBalance();
  }
  /// Every coupon that was issued stands in a sale of its own.
  void ExpectACouponASale(roteiro_tests::Program& application) {
    application.Terminate();
    std::set<std::string> issued, sold;
    while (const auto line = application.Read()) {
      if (line->starts_with("Emitido: ")) issued.insert(line->substr(9));
    }
    static const Statement keys("SELECT chave_sat FROM vendas");
    session().Select(keys, {}, [&](const Row& row) { sold.insert(row.Text(0)); });
    EXPECT_EQ(issued, sold);
    EXPECT_EQ(Count("vendas"), static_cast<std::int64_t>(sold.size()));
  }

  support::TemporaryFolder exchange_;
};
OVER_BOTH_ENGINES(CouponKillTest);

TEST_P(CouponKillTest, AtEveryStepOfASaleWithCoupon) {
  roteiro_tests::Program application(INTEGRADOR, {exchange_.Path().string()});
  bool survived = false;
  int last = 0;
  for (; !survived && !HasFatalFailure(); ++last) {
    survived = EndOf(Start("LOJA", [&] { return Sell(last); })) == 0;
    SellAgain(last);
  }
  EXPECT_GT(last, 20);
  ExpectACouponASale(application);
}

TEST_P(CouponKillTest, AtAnyMomentWhileTheApplicationIsAtWork) {
  roteiro_tests::Program application(INTEGRADOR, {exchange_.Path().string(), "--demora-ao-tomar",
                                                  "0.02", "--demora-ao-responder", "0.05"});
  constexpr int kRounds = 20;
  for (int round = 0; round < kRounds && !HasFatalFailure(); ++round) {
    const pid_t process = Start("LOJA", [&] { return Sell(-1); });
    std::this_thread::sleep_for(std::chrono::milliseconds(10 + 11 * round));
    kill(process, SIGKILL);
    EndOf(process);
    SellAgain(round);
  }
  ExpectACouponASale(application);
}

/// A server that goes in the middle of a sale whose coupon is out.
class CouponInDoubtTest : public OverDatabase {
 protected:
  void SetUp() override {
    address_ = server_.NewDatabase();
    Prepare();
  }
  /// Both names of the coupon of a sale.
  std::string Export() {
    RegistrarExportacaoFiscal(banco_, exchange_.Path().string(), {});
    const auto service =
        servicos::CriarServico<servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros>();
    EXPECT_EQ(0, service->ExportarDadosCFeSATParaArquivo("", "|05|", ""));
    answer_ = service->NomeCompleDoArquivoDeRetornoComDadosCFeSAT();
    return service->NomeCompleDoArquivoDeEnvioComDadosCFeSAT() + answer_.string();
  }

  support::PrivatePostgres server_;
  support::TemporaryFolder exchange_;
  std::filesystem::path answer_;
};
INSTANTIATE_TEST_SUITE_P(Postgres, CouponInDoubtTest, testing::Values(Engine::kPostgres), Name);

TEST_P(CouponInDoubtTest, TheSameSaleHasTheSameCouponWhateverBecameOfTheFirstTry) {
  namespace fs = std::filesystem;
  using Moment = CuttingProxy::Moment;
  for (const auto& [moment, state] :
       {std::pair(Moment::kCommitArrives, "emitido"), std::pair(Moment::kCommitted, "vendido")}) {
    Open();
    const std::string files = Export();
    std::ofstream(answer_) << "|OK||KEY|";
    fs::last_write_time(answer_, fs::file_time_type::clock::now() - std::chrono::minutes(1));
    EXPECT_TRUE(ArquivoDaTroca(*banco_, exchange_.Path().string())(answer_.string()));
    const std::int32_t coupon = banco_->CupomEmAndamento();
    CuttingProxy proxy(server_.Port(), moment, CuttingProxy::Deed::kGone);
    banco_ = AbrirBanco(base::Replace(address_, "port=" + std::to_string(server_.Port()),
                                      "port=" + std::to_string(proxy.Port())),
                        clock_, banco_->Computador());
    RegistrarServicos(banco_);
    RegistrarExportacaoFiscal(banco_, exchange_.Path().string(), {});
    banco_->CupomEmAndamento(coupon);
    session().KeepTo(
        {.writing = std::chrono::milliseconds(800), .findingOut = std::chrono::milliseconds(800)});
    EXPECT_EQ(servicos::kErro, NewSale({.key = "KEY"})->RegistrarPagamento());
    proxy.LetIn();
    EXPECT_TRUE(session().TryToReconnect());
    EXPECT_EQ(state, Read("SELECT situacao FROM cupons WHERE chave = 'KEY'")) << "at once";
    EXPECT_EQ(files, Export());
    EXPECT_TRUE(fs::exists(answer_));
    Write("DELETE FROM cupons");
  }
}

}  // namespace
}  // namespace services
#endif
