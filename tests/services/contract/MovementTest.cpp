#include <cmath>

#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "services/Database.h"
#include "services/banco/DatabaseError.h"

namespace services {
namespace {

using Register = servicos::ZOVA_N_Caixa::clsCaixa;
using Operation = std::int16_t (Register::*)();

/// Opening, closing, deposits and withdrawals.
class MovementTest : public OverDatabase {
 protected:
  std::unique_ptr<Register> New(std::int32_t number, const std::string& value) {
    auto service = servicos::CriarServico<Register>();
    service->NumeroDoCaixa(number);
    service->LocalDeAtendimentoDoCaixa("Recepção");
    service->MOEDA(1);
    service->ValorDoLancamento(std::string_view(value));
    service->Operador("renata");
    service->Situacao("F");
    service->Observacao("fundo d'água");
    return service;
  }
  /// The status, and the words of a refusal behind it.
  std::string Do(Operation operation, std::int32_t number, const std::string& value) {
    const auto service = New(number, value);
    const auto status = ((*service).*operation)();
    ExpectBooksBalance();
    EXPECT_EQ("", service->DescricaoDoErro());
    const std::string words = service->DescricaoDaFalha();
    return std::to_string(status) + (words.empty() ? "" : " " + words);
  }
  std::string Cash(std::int32_t number) {
    return Read("SELECT dinheiro FROM caixas WHERE numero = " + std::to_string(number));
  }
  std::string Entry(const std::string& columns) {
    return Read("SELECT " + columns + " FROM lancamentos_de_caixa ORDER BY numero DESC LIMIT 1");
  }
};
OVER_BOTH_ENGINES(MovementTest);

TEST_P(MovementTest, ADayAtTheRegister) {
  EXPECT_EQ("0", Do(&Register::RegistrarAbertura, 2, "100,00"));
  EXPECT_EQ("Abertura|1|1000000|F|fundo d'água",
            Entry("descricao || '|' || tipo || '|' || valor || '|' || situacao || '|' || "
                  "observacao"));
  EXPECT_EQ("0", Do(&Register::RegistrarEntrada, 2, "1.050,50"));
  EXPECT_EQ("0", Do(&Register::RegistrarSaida, 2, "150,50"));
  EXPECT_EQ("-1505000", Entry("valor"));
  EXPECT_EQ("10000000", Cash(2));
  const auto closing = New(2, "0");
  closing->ValorDoLancamento(-1000.0);
  EXPECT_EQ(0, closing->RegistrarFechamento());
  EXPECT_EQ("0", Cash(2));
  EXPECT_EQ("0", Read("SELECT aberto FROM caixas WHERE numero = 2"));
  EXPECT_EQ("0", Do(&Register::RegistrarAbertura, 2, "0,00"));
}

TEST_P(MovementTest, TheStateOfTheRegisterDecides) {
  EXPECT_EQ("51 Este caixa já está aberto. Continue o atendimento nele.",
            Do(&Register::RegistrarAbertura, 1, "0,00"));
  for (const Operation operation : {&Register::RegistrarAbertura, &Register::RegistrarFechamento,
                                    &Register::RegistrarEntrada, &Register::RegistrarSaida}) {
    const std::string value = operation == &Register::RegistrarFechamento ? "-1" : "1,00";
    if (operation != &Register::RegistrarAbertura) {
      EXPECT_EQ("52 Este caixa não está aberto. Abra-o antes de continuar.",
                Do(operation, 2, value));
    }
    EXPECT_EQ("43 Este caixa foi desativado. Selecione outro caixa.", Do(operation, 3, value));
    EXPECT_EQ("41 Este caixa não existe mais. Selecione outro caixa.", Do(operation, 9, value));
  }
  EXPECT_EQ(0, Count("lancamentos_de_caixa"));
}

TEST_P(MovementTest, NoMoreLeavesTheDrawerThanIsInIt) {
  EXPECT_EQ("0", Do(&Register::RegistrarEntrada, 1, "80,00"));
  EXPECT_EQ(
      "2 Há 80,00 em dinheiro neste caixa, menos do que os 80,01 que sairiam. Informe um "
      "valor menor.",
      Do(&Register::RegistrarSaida, 1, "80,01"));
  const auto closing = New(1, "0");
  closing->ValorDoLancamento(-80.01);
  EXPECT_EQ(servicos::kRecusa, closing->RegistrarFechamento());
  EXPECT_EQ("1", Read("SELECT aberto FROM caixas WHERE numero = 1"));
  EXPECT_EQ("0", Do(&Register::RegistrarSaida, 1, "80,00"));
}

TEST_P(MovementTest, OnlyCashFillsTheDrawer) {
  const auto service = New(1, "30,00");
  service->MOEDA(2);
  EXPECT_EQ(0, service->RegistrarEntrada());
  EXPECT_EQ("0", Cash(1));
  EXPECT_EQ(1, Count("lancamentos_de_caixa"));
}

TEST_P(MovementTest, ValuesThatCannotBeAreRefused) {
  EXPECT_EQ(
      "2 'cem' não é um valor aceito para o valor. Informe um número com vírgula nos "
      "centavos.",
      Do(&Register::RegistrarEntrada, 1, "cem"));
  EXPECT_EQ(
      "2 '10,005' não é um valor aceito para o valor, por ter fração de centavo. Informe-o com "
      "duas "
      "casas depois da vírgula.",
      Do(&Register::RegistrarSaida, 1, "10,005"));
  const std::string positive =
      "2 O valor informado deve ser maior que 0,00 (zero). Informe o valor de novo.";
  EXPECT_EQ(positive, Do(&Register::RegistrarEntrada, 1, "0,00"));
  EXPECT_EQ(positive, Do(&Register::RegistrarSaida, 1, "-5,00"));
  EXPECT_EQ(positive, Do(&Register::RegistrarAbertura, 2, "-5,00"));
  EXPECT_EQ("2", Do(&Register::RegistrarFechamento, 1, "5,00").substr(0, 1));
  const auto closing = New(1, "0");
  closing->ValorDoLancamento(std::nan(""));
  EXPECT_EQ(servicos::kRecusa, closing->RegistrarFechamento());
  closing->ValorDoLancamento(-0.005);
  EXPECT_EQ(servicos::kRecusa, closing->RegistrarFechamento());
  const auto tender = New(1, "5,00");
  tender->MOEDA(0);
  EXPECT_EQ(servicos::kRecusa, tender->RegistrarEntrada());
  EXPECT_EQ(0, Count("lancamentos_de_caixa"));
}

/// Whatever is written besides sales.
TEST_P(MovementTest, ACommitThatFailsIsToldAndLeavesNothing) {
  const SessionRecord renata("renata");
  const auto lock = [&] {
    const auto service =
        servicos::CriarServico<servicos::ZOVA_N_Administrativo::clsAdministrativo>();
    service->NomeDoComputador("LOJA");
    service->DadosDoUsuario(&renata);
    double customer = 5;
    return service->BloquearCliente(1, customer, 2);
  };
  const auto signIn = [] {
    const auto service = servicos::CriarServico<servicos::ZOVA_N_Login::clsLogin>();
    service->NomeDeUsuario("renata");
    service->SenhaDoUsuario("errada");
    return service->Autenticar();
  };
  const struct {
    const char* table;
    std::function<std::int16_t()> act;
    std::int16_t otherwise;
  } cases[] = {
      {"lancamentos_de_caixa", [&] { return New(1, "10,00")->RegistrarEntrada(); }, 0},
      {"travas_de_clientes", lock, 0},
      {"tentativas_de_login", signIn, servicos::kRecusa},
  };
  for (const auto& each : cases) {
    session().Observe([&](std::string_view step) {
      if (step != "before commit") return;
      session().Rollback();
      throw DatabaseError(Trouble::kFull, "");
    });
    EXPECT_EQ(servicos::kErro, each.act()) << each.table;
    session().Observe({});
    EXPECT_EQ(0, Count(each.table));
    EXPECT_EQ(each.otherwise, each.act()) << each.table;
    EXPECT_EQ(1, Count(each.table));
    ExpectBooksBalance();
  }
}

TEST_P(MovementTest, AmountsAtTheLimits) {
  EXPECT_EQ("0", Do(&Register::RegistrarEntrada, 1, "922.337.203.685.477,58"));
  EXPECT_EQ("2 Um valor ultrapassa o limite que o caixa registra. Confira os valores.",
            Do(&Register::RegistrarEntrada, 1, "0,01"));
  EXPECT_EQ("0", Do(&Register::RegistrarSaida, 1, "922.337.203.685.477,58"));
  EXPECT_EQ("0", Cash(1));
}

}  // namespace
}  // namespace services
