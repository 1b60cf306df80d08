#include <filesystem>
#include <fstream>

#include "base/Text.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "services/Abertura.h"
#include "services/Database.h"
#include "services/faults/CuttingProxy.h"
#include "services/troca/ExportacaoFiscal.h"
#include "support/PrivatePostgres.h"

namespace services {
namespace {

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
    std::string news;
    banco_->AoAvisar([&](const std::string& sentence) { news += sentence; });
    EXPECT_EQ(servicos::kErro, NewSale({.key = "KEY"})->RegistrarPagamento());
    EXPECT_EQ(servicos::kRecusa, NewSale({.key = "KEY"})->RegistrarPagamento());
    EXPECT_EQ("", news) << "nobody is to cancel the coupon of a sale that may stand";
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
