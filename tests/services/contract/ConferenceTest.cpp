#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "base/Numbers.h"
#include "services/Database.h"
#include "services/venda/Conferencia.h"

namespace services {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// What is looked through when somebody asks whether the database is whole.
class ConferenceTest : public OverDatabase {
 protected:
  void SetUp() override {
    OverDatabase::SetUp();
    const NewSale sale({.lines = Grid({ProductLine("60,00"), ServiceLine("40,00")})});
    ASSERT_EQ(0, sale->RegistrarPagamento());
  }
};
OVER_BOTH_ENGINES(ConferenceTest);

TEST_P(ConferenceTest, ASaleAndItsRowsTellTheSame) {
  const struct {
    const char* damage;
    const char* mend;
    const char* told;
  } cases[] = {
      {"itens_de_venda SET quantidade = 20000 WHERE item = 1",
       "itens_de_venda SET quantidade = 10000",
       "Venda 1: os itens somam 160,00 antes dos descontos, e o valor bruto é 100,00."},
      {"itens_de_venda SET valor_total = 405000 WHERE item = 2",
       "itens_de_venda SET valor_total = 400000 WHERE item = 2", "Venda 1: um item tem o total de"},
      {"itens_de_venda SET desconto_em_valor = 10000 WHERE item = 1",
       "itens_de_venda SET desconto_em_valor = 0",
       "Venda 1: o bruto menos os descontos dos itens é 99,00, e o líquido é 100,00."},
      {"vendas SET total_de_descontos = 50000", "vendas SET total_de_descontos = 0",
       "Venda 1: os descontos são 5,00, e o bruto menos o líquido é 0,00."},
      {"itens_de_venda SET tipo_de_venda = 3 WHERE item = 2",
       "itens_de_venda SET tipo_de_venda = 1", "Venda 1: 1 itens são de um tipo que não existe."},
      {"lancamentos_de_caixa SET operacao = operacao + 1",
       "lancamentos_de_caixa SET operacao = operacao - 1",
       "Venda 1: 1 lançamentos têm outro número de operação."},
      {"lancamentos_de_caixa SET operador = 'rfnata'",
       "lancamentos_de_caixa SET operador = 'renata'",
       "Venda 1: 1 lançamentos não são do caixa, do operador ou da hora dela."},
      {"vendas SET situacao = 'C'", "vendas SET situacao = 'F'",
       "Venda 1: a situação dela não é a do seu último cancelamento."},
      {"vendas SET situacao = 'C'", "vendas SET situacao = 'F'",
       "Venda 1: os estornos somam 0,00, e deveriam somar -100,00."},
      {"lancamentos_de_caixa SET tipo = 7", "lancamentos_de_caixa SET tipo = 5",
       "Venda 1: 1 estornos não são o contrário do lançamento que estornam."},
      {"creditos_do_cliente SET numero_da_venda = 1",
       "creditos_do_cliente SET numero_da_venda = NULL",
       "Venda 1: o crédito do cliente mudou 50,00, e deveria mudar 0,00."},
  };
  for (const auto& each : cases) {
    Write(std::string("UPDATE ") + each.damage);
    EXPECT_THAT(Conferir(*banco_), Contains(HasSubstr(each.told)));
    Write(std::string("UPDATE ") + each.mend);
    EXPECT_THAT(Conferir(*banco_), IsEmpty()) << each.told;
  }
}

TEST_P(ConferenceTest, ADiscountOnTheWholeSaleIsSpreadToTheCent) {
  // 21% of 100,00, each line's share rounded.
  auto spread = [](const char* price, const char* discount, const char* total) {
    auto line = ProductLine(price);
    line[servicos::linha::kDescontoEmPercentual] = "21";
    line[servicos::linha::kDescontoEmValor] = discount;
    line[servicos::linha::kValorTotal] = total;
    return line;
  };
  const NewSale sale({.lines = Grid({spread("33,33", "7", "26,33"), spread("33,33", "7", "26,33"),
                                     spread("33,34", "7", "26,34")}),
                      .tenders = Grid({Tender("1-Dinheiro", "79,00")}),
                      .net = 79_brl});
  sale->ValorTotalDeDescontos(1_brl);
  ASSERT_EQ(0, sale->RegistrarPagamento()) << sale->DescricaoDaFalha();
  ExpectBooksBalance();
}

TEST_P(ConferenceTest, RowsThatPointToNothingAreTold) {
  if (GetParam() == Engine::kSqlite) {
    Write("PRAGMA foreign_keys = OFF; DELETE FROM clientes WHERE codigo = 5");
  } else {
    Write("SET session_replication_role = replica; DELETE FROM clientes WHERE codigo = 5");
  }
  EXPECT_THAT(
      Conferir(*banco_),
      Contains("Em vendas, 1 registros apontam em codigo_do_cliente para o que não existe em "
               "clientes."));
}

/// What can happen to a file alone.
class DamagedFileTest : public ConferenceTest {};
INSTANTIATE_TEST_SUITE_P(Only, DamagedFileTest, testing::Values(Engine::kSqlite), Name);

TEST_P(DamagedFileTest, WhatNoKeyboardWritesIsTold) {
  Write("UPDATE vendas SET observacao = CAST(x'436cec656e7465' AS text)");
  EXPECT_THAT(Conferir(*banco_),
              ElementsAre("Em vendas, 1 registros têm em observacao o que não é texto."));
}

TEST_P(DamagedFileTest, AnIndexOfNamesThatDoesNotFitIsTold) {
  Write("DROP TRIGGER clientes_ao_renomear; UPDATE clientes SET nome_busca = 'rosa maria'");
  EXPECT_THAT(Conferir(*banco_),
              ElementsAre("O índice da busca por nomes em clientes está danificado."));
}

TEST_P(DamagedFileTest, PagesThatDoNotFitAreTold) {
  const int page = base::ToInt32(
      base::Val(Read("SELECT rootpage FROM sqlite_schema WHERE name = 'itens_de_venda'")));
  const std::string file = address_.substr(address_.find(':') + 1);
  banco_.reset();
  servicos::EsquecerTodos();
  std::fstream stream(file, std::ios::in | std::ios::out | std::ios::binary);
  constexpr int kPage = 4096;
  stream.seekp((page - 1) * kPage);
  stream.put('\x7f');
  stream.close();
  Open();
  EXPECT_THAT(Conferir(*banco_), Contains(HasSubstr("está danificado")));
}

}  // namespace
}  // namespace services
