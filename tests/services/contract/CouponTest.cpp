// A coupon from the export to its sale, whatever comes in between.

#include <filesystem>
#include <fstream>
#include <random>

#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "services/Database.h"
#include "services/troca/ExportacaoFiscal.h"
#include "services/venda/ConsultaDeCupons.h"

namespace services {
namespace {

namespace fs = std::filesystem;
using servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros;

const std::string kHeader = "|00|65||1|0|||N||||||||||||||1|N|1.00.00|\r\n";
const std::string kItem = "|05|001|000012|00000001,000|00000100,000|000000000,00|000000100,00|\r\n";
const std::string kPayment = "|10|01|01|000000100,00||||||||\r\n";
const std::string kKey = "35261199000100000185590000000010000010000012";

class CouponTest : public OverDatabase {
 protected:
  void SetUp() override {
    OverDatabase::SetUp();
    RegistrarExportacaoFiscal(banco_, exchange_.Path().string(), {});
    keep_ = ArquivoDaTroca(*banco_, exchange_.Path().string());
  }

  struct Files {
    fs::path sent, answer;
    bool operator==(const Files&) const = default;
  };
  /// A try to sell; the texts of earlier ones on the same screen stand before its own.
  Files Export(int earlierTries = 0, const std::string& header = kHeader) {
    std::string items = kItem, payments = kPayment;
    for (int i = 0; i < earlierTries; ++i) items += kItem, payments += kPayment;
    const auto service = servicos::CriarServico<clsOSExportarRegistros>();
    EXPECT_EQ(0, service->ExportarDadosCFeSATParaArquivo(header, items, payments));
    EXPECT_TRUE(service->EnvioFoiGravado());
    return {service->NomeCompleDoArquivoDeEnvioComDadosCFeSAT(),
            service->NomeCompleDoArquivoDeRetornoComDadosCFeSAT()};
  }
  /// The application's part: written a minute ago, or to come by another computer's clock.
  static void Answer(const Files& files, const std::string& line,
                     std::chrono::minutes age = std::chrono::minutes(1)) {
    fs::remove(files.sent);
    std::ofstream(files.answer) << line;
    fs::last_write_time(files.answer, fs::file_time_type::clock::now() - age);
  }
  /// The module's part, once it has read the answer or given up.
  void Delete(const Files& files) const {
    for (const fs::path& file : {files.sent, files.answer}) {
      if (fs::exists(file)) {
        EXPECT_TRUE(keep_(file.string()));
      }
    }
  }
  static std::int16_t Sell(const std::string& key) {
    return NewSale({.key = key})->RegistrarPagamento();
  }
  /// The coupons and what became of each, a letter or word each, oldest first.
  std::string Coupons() {
    static const Statement all(
        "SELECT situacao, chave, coalesce(numero_da_venda, 0) FROM cupons ORDER BY numero");
    std::string told;
    session().Select(all, {}, [&](const Row& row) {
      told += row.Text(0) + (row.Text(1).empty() ? "" : " with key") +
              (row.Number(2) == 0 ? "" : " of " + row.Text(2)) + "; ";
    });
    return told;
  }

  support::TemporaryFolder exchange_;
  std::function<bool(const std::string&)> keep_;
};
OVER_BOTH_ENGINES(CouponTest);

TEST_P(CouponTest, ServesTheSaleThatWasRefusedWhenItIsTriedAgain) {
  const Files first = Export();
  EXPECT_EQ("enviado; ", Coupons());
  Answer(first, "|OK||" + kKey + "|");
  Delete(first);
  Write("UPDATE caixas SET aberto = 0 WHERE numero = 1");
  EXPECT_EQ(2, Sell(kKey));
  EXPECT_EQ("emitido with key; ", Coupons());
  EXPECT_EQ("emitido com a chave " + kKey + ", sem venda registrada",
            ListarCupons(*banco_, false).at(0).desfecho);
  EXPECT_NE(AvisoDeCupons(*banco_).find(kKey), std::string::npos);
  Write("UPDATE caixas SET aberto = 1 WHERE numero = 1");
  fs::remove_all(exchange_.File("arquivo"));
  EXPECT_EQ(first, Export(1));
  std::string answer;
  std::getline(std::ifstream(first.answer), answer);
  EXPECT_EQ("|OK||" + kKey + "|\r", answer) << "to be read again, though nobody kept it";
  Delete(first);
  EXPECT_EQ(0, Sell(kKey));
  EXPECT_EQ("vendido with key of 1; ", Coupons());
  EXPECT_EQ("", AvisoDeCupons(*banco_));
  EXPECT_NE(first, Export()) << "the next sale of the same has a coupon of its own";
  EXPECT_EQ("vendido with key of 1; enviado; ", Coupons());
  ExpectBooksBalance();
}

TEST_P(CouponTest, KeepsAKeyAsItCame) {
  std::mt19937 draw(7);  // So mixed that no engine makes it short.
  std::string key;
  while (key.size() < 9000) key += std::to_string(draw());
  Export();
  Write("UPDATE caixas SET aberto = 0 WHERE numero = 1");
  EXPECT_EQ(2, Sell(key));
  EXPECT_EQ(key, Read("SELECT chave FROM cupons"));
  Write("UPDATE caixas SET aberto = 1 WHERE numero = 1");
  EXPECT_EQ(0, Sell(key));
  EXPECT_EQ(key, Read("SELECT chave_sat FROM vendas"));
}

TEST_P(CouponTest, IsAskedForAgainOnlyWhereTheFirstCannotCome) {
  const auto nothing = [](const Files&) {};
  const auto taken = [](const Files& files) { fs::remove(files.sent); };
  struct Case {
    const char* what;
    std::function<void(const Files&)> happens;
    int minutesLater;
    bool isSame;
    const char* coupons;
  };
  const Case kCases[] = {
      {"not taken", nothing, 1, false, "retirado; enviado; "},
      {"given up", [&](const Files& files) { Delete(files); }, 1, false, "retirado; enviado; "},
      {"taken", taken, 9, true, "enviado; "},
      {"taken long ago", taken, 10, false, "enviado; enviado; "},
      {"refused", [](const Files& files) { Answer(files, "|ERRO|NCM|"); }, 1, false,
       "recusado; enviado; "},
      {"answered late",
       [](const Files& files) { Answer(files, "|OK||123|", std::chrono::minutes(-9)); }, 60, true,
       "emitido with key; "},
      {"answered and deleted unread",
       [&](const Files& files) {
         Answer(files, "|OK||" + kKey + "|");
         Delete(files);
       },
       60, true, "emitido with key; "},
      {"answered, and another day", [](const Files& files) { Answer(files, "|OK||123|"); }, 13 * 60,
       false, "emitido with key; enviado; "},
  };
  for (const Case& each : kCases) {
    SCOPED_TRACE(each.what);
    Write("DELETE FROM cupons");
    const Files first = Export();
    each.happens(first);
    clock_.now = clock_.now.PlusSeconds(each.minutesLater * 60);
    EXPECT_EQ(each.isSame, Export(1) == first);
    EXPECT_EQ(each.coupons, Coupons());
    if (each.isSame) {
      const bool answered = std::string(each.coupons).find("key") != std::string::npos;
      EXPECT_EQ(answered, fs::exists(first.answer)) << "where it is awaited";
    }
  }
  EXPECT_EQ("A chave não tem 44 dígitos.", Read("SELECT nota FROM cupons WHERE chave = '123'"));
}

// Where the clinic sells all the same, a coupon that comes late is this sale's, not the next one's.
TEST_P(CouponTest, OfASaleWithoutItsKeyServesNoOther) {
  const Files first = Export();
  fs::remove(first.sent);
  EXPECT_EQ(0, Sell(""));
  EXPECT_EQ("enviado of 1; ", Coupons());
  Answer(first, "|OK||" + kKey + "|");
  EXPECT_NE(first, Export());
  EXPECT_EQ("emitido with key of 1; enviado; ", Coupons());
  // A sale of other products, registered without a coupon, has nothing to do with it.
  EXPECT_EQ(0, NewSale({.lines = Grid({ServiceLine("100,00")})})->RegistrarPagamento());
  EXPECT_EQ("emitido with key of 1; enviado; ", Coupons());
}

TEST_P(CouponTest, NothingLeavesThatIsNotOnRecord) {
  const Files first = Export();
  Write("CREATE UNIQUE INDEX so_um ON cupons (marca)");
  fs::remove(first.sent);
  clock_.now = clock_.now.PlusSeconds(3'600);
  const auto service = servicos::CriarServico<clsOSExportarRegistros>();
  EXPECT_EQ(1, service->ExportarDadosCFeSATParaArquivo(kHeader, kItem, kPayment));
  EXPECT_FALSE(service->EnvioFoiGravado());
  EXPECT_FALSE(service->DescricaoDoErro().empty());
  for (const auto& left : fs::directory_iterator(exchange_.Path())) {
    EXPECT_EQ("arquivo", left.path().filename());
  }
  EXPECT_EQ("enviado; ", Coupons());
}

}  // namespace
}  // namespace services
