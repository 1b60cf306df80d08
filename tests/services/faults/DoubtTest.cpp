#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "services/Abertura.h"
#include "services/Database.h"
#include "services/banco/DatabaseError.h"
#include "services/faults/CuttingProxy.h"
#include "services/venda/Contas.h"
#include "services/venda/Lancamentos.h"
#include "support/TemporaryFolder.h"

namespace services {
namespace {

using Register = servicos::ZOVA_N_Caixa::clsCaixa;
using Moment = CuttingProxy::Moment;
using Deed = CuttingProxy::Deed;

/// What the operator is told of a registration whose end they did not see, and what stands.
class DoubtTest : public OverDatabase {
 protected:
  /// A status, and the words that go with it.
  struct Told {
    std::int16_t status = 0;
    std::string words;
    std::int32_t number = 0;
  };

  void SetUp() override {
    OverDatabase::SetUp();
    Listen();
  }
  void Listen() {
    banco_->AoAvisar([this](const std::string& sentence) { news_.push_back(sentence); });
  }
  /// Another computer, whose connection leads through a proxy.
  void OpenThrough(const CuttingProxy& proxy) {
    banco_ = AbrirBanco(base::Replace(address_, "port=" + std::to_string(Port()),
                                      "port=" + std::to_string(proxy.Port())),
                        clock_, "LOJA");
    RegistrarServicos(banco_);
    Listen();
    session().KeepTo({.writing = kShort, .findingOut = kShort});
  }
  /// On a busy machine it may take more than one look.
  static Told OnceKnown(const std::function<Told()>& act) {
    Told told = act();
    for (int looks = 0; told.status == servicos::kRecusa && looks < 100; ++looks) told = act();
    return told;
  }
  int Port() const { return base::ToInt32(base::Val(address_.substr(address_.find("port=") + 5))); }

  /// The answer to the next commit is lost, and it cannot be looked up until BackAgain.
  void LoseNextAnswer(bool lands) {
    static const Statement proof("SELECT 1 FROM provas");
    session().Observe([this, lands, struck = false](std::string_view step) mutable {
      if (struck || step != (lands ? "after commit" : "before commit")) return;
      struck = true;
      if (!lands) session().Rollback();
      throw InDoubt({.label = "nenhuma", .proof = {&proof, {}}}, "");
    });
  }
  void BackAgain(bool landed) {
    session().Observe({});
    Write("CREATE TABLE provas (n integer)");
    if (landed) Write("INSERT INTO provas (n) VALUES (1)");
  }
  void Forget() {
    Write("DROP TABLE provas; DELETE FROM itens_de_venda; DELETE FROM lancamentos_de_caixa");
    Write("DELETE FROM vendas");
    News();
  }

  static Told Sell(const Sale& sale = {}) {
    const NewSale service(sale);
    const auto status = service->RegistrarPagamento();
    return {status, service->DescricaoDoErro() + service->DescricaoDaFalha(),
            service->NumeroDaVenda()};
  }
  /// A deposit at register 1.
  static Told Deposit(const std::string& value) {
    const auto service = servicos::CriarServico<Register>();
    service->NumeroDoCaixa(1);
    service->ValorDoLancamento(value);
    const auto status = service->RegistrarEntrada();
    return {status, service->DescricaoDoErro() + service->DescricaoDaFalha(), 0};
  }
  /// The words of the fault when the registers cannot be listed; empty when they can.
  static std::string List() {
    const auto registers = servicos::CriarServico<servicos::ZOVA_N_Caixas::clsCaixas>();
    registers->SelecionarParaComboBox();
    return registers->DescricaoDoErro();
  }
  /// Takes customer 5, or lets them go.
  static void Lock(bool takes) {
    const SessionRecord renata("renata");
    const auto service =
        servicos::CriarServico<servicos::ZOVA_N_Administrativo::clsAdministrativo>();
    service->DadosDoUsuario(&renata);
    double code = 5;
    takes ? service->BloquearCliente(1, code, 2) : service->DesbloquearCliente(1, code, 2);
  }
  /// What was told late since the last time; sentences are joined.
  std::string News() {
    std::string all;
    for (const std::string& each : std::exchange(news_, {})) all += each;
    return all;
  }
  std::int64_t Deposits() { return Count("lancamentos_de_caixa WHERE numero_da_venda IS NULL"); }

  static constexpr std::chrono::milliseconds kShort{700};
  std::vector<std::string> news_;
};
OVER_BOTH_ENGINES(DoubtTest);

TEST_P(DoubtTest, TheSameSaleOnceMoreFindsOutAndIsNotDoubled) {
  for (const bool lands : {false, true}) {
    LoseNextAnswer(lands);
    const Told lost = Sell();
    EXPECT_EQ(servicos::kErro, lost.status);
    EXPECT_TRUE(
        lost.words.starts_with("O banco de dados não confirmou a gravação, e ainda não se "
                               "sabe se a venda de 100,00 para Dudu ficou registrada."))
        << lost.words;
    for (const Told& unknown : {Sell(), Deposit("10,00")}) {
      EXPECT_EQ(servicos::kRecusa, unknown.status);
      EXPECT_EQ(
          "Ainda não se sabe se a venda de 100,00 para Dudu, das 14:30, ficou registrada, e nada "
          "foi registrado agora. Aguarde o banco de dados voltar e tente de novo.",
          unknown.words);
    }
    BackAgain(lands);
    const Told again = Sell({.key = "another coupon"});
    EXPECT_EQ(0, again.status) << again.words;
    EXPECT_EQ(Read("SELECT numero FROM vendas"), std::to_string(again.number));
    EXPECT_EQ(1, Count("vendas"));
    EXPECT_EQ(lands ? "A venda de 100,00 para Dudu, das 14:30, já estava registrada com o número " +
                          std::to_string(again.number) +
                          ", e nada foi registrado agora. Se esta é outra igual, registre-a de "
                          "novo."
                    : "",
              News());
    EXPECT_EQ(0, Sell().status);
    EXPECT_EQ(2, Count("vendas")) << "the next one is a sale of its own";
    ExpectBooksBalance();
    Write("UPDATE caixas SET dinheiro = 0");
    Forget();
  }
}

TEST_P(DoubtTest, WhatIsInDoubtAtTheEndIsFoundOutByTheNextProgram) {
  const support::TemporaryFolder folder;
  for (const bool lands : {false, true}) {
    banco_->LembrarRegistros(folder.Path(), address_);
    LoseNextAnswer(lands);
    Sell();
    const auto beside = Another("LOJA");
    beside->LembrarRegistros(folder.Path(), address_);
    EXPECT_FALSE(beside->TemPendente()) << "of a program that is there";
    servicos::EsquecerTodos();
    banco_.reset();
    Open();
    Listen();
    banco_->LembrarRegistros(folder.Path(), address_);
    EXPECT_TRUE(banco_->TemPendente());
    EXPECT_EQ(0, Sell().status);
    EXPECT_EQ(1, Count("vendas"));
    EXPECT_EQ(lands, News().find("já estava registrada") != std::string::npos);
    banco_->CuidarDoPendente();
    banco_->LembrarRegistros(folder.Path(), address_);
    EXPECT_FALSE(banco_->TemPendente()) << "it is known";
    Write("DELETE FROM itens_de_venda; DELETE FROM lancamentos_de_caixa; DELETE FROM vendas");
  }
}

TEST_P(DoubtTest, AnotherRegistrationIsItsOwnAndTheOneBeforeIsTold) {
  for (const bool lands : {false, true}) {
    LoseNextAnswer(lands);
    Sell();
    BackAgain(lands);
    EXPECT_EQ(0, Deposit("10,00").status);
    EXPECT_EQ(lands ? 1 : 0, Count("vendas"));
    EXPECT_EQ(1, Deposits());
    const std::string number = Read("SELECT numero FROM vendas");
    EXPECT_EQ(lands ? "A venda de 100,00 para Dudu, das 14:30, ficou registrada com o número " +
                          number + ". Não a registre de novo."
                    : "A venda de 100,00 para Dudu, das 14:30, não ficou registrada. Registre-a de "
                      "novo, se ainda for o caso.",
              News());
    Forget();
  }
}

TEST_P(DoubtTest, WhatIsFoundOutByItselfAnswersTheNextRegistrationForAWhile) {
  constexpr double kWhile = 15 * 60;
  for (const double waited : {kWhile, kWhile + 1}) {
    LoseNextAnswer(true);
    Sell();
    banco_->CuidarDoPendente();
    EXPECT_EQ("", News()) << "not known yet";
    BackAgain(true);
    EXPECT_TRUE(banco_->TemPendente());
    banco_->CuidarDoPendente();
    EXPECT_FALSE(banco_->TemPendente());
    EXPECT_NE(std::string::npos, News().find("ficou registrada com o número"));
    clock_.elapsed += waited;
    EXPECT_EQ(0, Sell().status);
    EXPECT_EQ(waited > kWhile ? 2 : 1, Count("vendas"));
    Forget();
  }
}

TEST_P(DoubtTest, ACancellationInDoubtIsToldOnceItIsKnown) {
  const SessionRecord marina("marina", true);
  for (const bool lands : {false, true}) {
    ASSERT_EQ(0, Sell().status);
    const double sale = base::Val(Read("SELECT max(numero) FROM vendas"));
    LoseNextAnswer(lands);
    const auto service = servicos::CriarServico<Register>();
    service->NumeroDoCaixa(1);
    service->DadosDoUsuario(&marina);
    EXPECT_EQ(servicos::kErro, service->CancelarVenda(sale, "engano"));
    BackAgain(lands);
    News();
    banco_->CuidarDoPendente();
    EXPECT_EQ("O cancelamento da venda " + Read("SELECT max(numero) FROM vendas") +
                  ", das 14:30, " +
                  (lands ? "ficou registrado. Não o registre de novo."
                         : "não ficou registrado. Registre-o de novo, se ainda for o caso."),
              News());
    EXPECT_EQ(lands ? 1 : 0, Count("cancelamentos_de_venda"));
    ExpectBooksBalance();
    Write("DROP TABLE provas");
  }
}

/// Cuts where they come about.
class CutDoubtTest : public DoubtTest {};
INSTANTIATE_TEST_SUITE_P(Only, CutDoubtTest, testing::Values(Engine::kPostgres), Name);

TEST_P(CutDoubtTest, ACommitWithoutAnAnswerIsFoundOutOnceTheServerIsBack) {
  for (const bool sells : {true, false}) {
    const auto act = [&] { return sells ? Sell() : Deposit("10,00"); };
    int stand = 0;
    for (const auto moment : {Moment::kCommitArrives, Moment::kCommitting, Moment::kCommitted}) {
      CuttingProxy proxy(Port(), moment, Deed::kGone);
      OpenThrough(proxy);
      EXPECT_EQ(servicos::kErro, act().status);
      EXPECT_EQ(servicos::kRecusa, act().status);
      proxy.LetIn();
      const Told again = OnceKnown(act);
      EXPECT_EQ(0, again.status) << again.words;
      EXPECT_EQ(++stand, sells ? Count("vendas") : Deposits());
      const std::string what =
          sells ? "A venda de 100,00 para Dudu" : "A entrada de 10,00 no caixa 1";
      const std::string news = News();
      EXPECT_EQ(moment != Moment::kCommitArrives,
                news.starts_with(what + ", das 14:30, já estava registrada"))
          << news;
      ExpectBooksBalance();
    }
  }
}

TEST_P(CutDoubtTest, WhatClosesADebtOrPaysCreditInIsFoundByItsProof) {
  ASSERT_EQ(0, Sell({.tenders = Grid({Tender("6-Fiado", "100,00", "28/02/2027")})}).status);
  for (const bool closes : {true, false}) {
    const CuttingProxy proxy(Port(), Moment::kCommitted, Deed::kCut);
    OpenThrough(proxy);
    EXPECT_NO_THROW(InTransaction(session(), [&](Transaction& transaction) {
      if (closes) {
        BaixarContas(session(), transaction,
                     {{.numero = 1, .valor = 100_brl, .quando = clock_.now, .operacao = 91}});
      } else {
        Lancar(session(), transaction, 1,
               {{.operacao = 92,
                 .numeroDoCaixa = 1,
                 .quando = clock_.now,
                 .tipo = servicos::kCreditoAdicionado,
                 .valor = 5_brl}});
      }
    }));
    EXPECT_TRUE(proxy.HasStruck());
    EXPECT_EQ(1, Count(closes ? "contas_a_receber WHERE situacao = 'recebida'"
                              : "lancamentos_de_caixa WHERE operacao = 92"));
  }
}

TEST_P(CutDoubtTest, ACommitThatArrivesAfterTheNextTryDoublesNothing) {
  CuttingProxy proxy(Port(), Moment::kCommitArrives, Deed::kMute);
  OpenThrough(proxy);
  EXPECT_EQ(servicos::kErro, Sell().status);
  EXPECT_EQ(0, OnceKnown([] { return Sell(); }).status);
  proxy.LetIn();
  EXPECT_EQ(0, Sell({.note = "outra"}).status);
  EXPECT_EQ(2, Count("vendas"));
  ExpectBooksBalance();
}

TEST_P(CutDoubtTest, AFaultAfterARegistrationBeginsWithWhatStands) {
  const std::string reading = "Não foi possível ler o banco de dados";
  for (const bool sells : {true, false}) {
    CuttingProxy proxy(Port(), Moment::kClientBytes, Deed::kGone);
    OpenThrough(proxy);
    EXPECT_EQ(0, (sells ? Sell() : Deposit("10,00")).status);
    proxy.Arm(1);
    const std::string stands =
        sells ? "A venda 1 está registrada. " : "A entrada de 10,00 no caixa 1 está registrada. ";
    EXPECT_TRUE(List().starts_with(stands + reading));
    Lock(true);
    EXPECT_TRUE(List().starts_with(reading)) << "with the next customer";
  }
}

TEST_P(CutDoubtTest, WhoCouldNotBeFreedIsFreedWhenTheServerIsBack) {
  for (const char* how : {"timer", "use", "taken again", "end"}) {
    CuttingProxy proxy(Port(), Moment::kClientBytes, Deed::kGone);
    OpenThrough(proxy);
    Lock(true);
    EXPECT_EQ(5, banco_->ClienteEmAtendimento());
    proxy.Arm(1);
    Lock(false);
    EXPECT_EQ(0, banco_->ClienteEmAtendimento());
    banco_->CuidarDoPendente();
    EXPECT_TRUE(banco_->TemPendente());
    proxy.LetIn();
    const bool takes = how == std::string("taken again");
    for (int looks = 0; banco_->TemPendente() && looks < 100; ++looks) {
      if (takes) Lock(true);
      if (how == std::string("timer")) banco_->CuidarDoPendente();
      if (how == std::string("use")) List();
      if (how == std::string("end")) banco_->CuidarPelaUltimaVez();
    }
    EXPECT_FALSE(banco_->TemPendente()) << how;
    EXPECT_EQ(takes ? 1 : 0, Count("travas_de_clientes")) << how;
  }
}

}  // namespace
}  // namespace services
