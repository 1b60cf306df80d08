#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Form.h"
#include "platform/Layout.h"
#include "platform/MSFlexGrid.h"
#include "sale/Aritmetica.h"
#include "sale/LinhaDeVenda.h"
#include "support/FakeDesktop.h"

namespace sale {
namespace {

using base::Currency;
using base::FormatMoney;

Currency Brl(const char* texto) {
  return base::ToCurrency(std::string(texto));
}

/// What of a line has a part in sums: the other cells are as the counter leaves them.
struct Linha {
  const char* quantidade;
  const char* unitario;
  const char* desconto;  ///< Column 10, negative.
  const char* total;
  const char* custo;
  const char* percentualDeComissao;
  const char* comissao;
};

class TelaComGrades : public platform::Form {
 public:
  TelaComGrades() : Form("frmTeste") {
    frame::ConfigurarColunas(grade, kColunasDaVenda);
    frame::ConfigurarColunas(copia, kColunasDaVenda);
  }

  void Preencher(const std::vector<Linha>& linhas) {
    grade.Rows(static_cast<std::int32_t>(linhas.size()) + 1);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(linhas.size()); ++i) {
      const Linha& linha = linhas[static_cast<std::size_t>(i)];
      grade.TextMatrix(i + 1, kNome, "Item " + std::to_string(i + 1));
      grade.TextMatrix(i + 1, kQuantidade, linha.quantidade);
      grade.TextMatrix(i + 1, kValorUnitario, linha.unitario);
      grade.TextMatrix(i + 1, kDescontoEmPercentual, "-9,99");
      grade.TextMatrix(i + 1, kDescontoEmValor, linha.desconto);
      grade.TextMatrix(i + 1, kValorTotal, linha.total);
      grade.TextMatrix(i + 1, kCusto, linha.custo);
      grade.TextMatrix(i + 1, kPercentualDeComissao, linha.percentualDeComissao);
      grade.TextMatrix(i + 1, kValorDaComissao, linha.comissao);
    }
  }

  platform::MSFlexGrid grade{*this, "msfgGrade"};
  platform::MSFlexGrid copia{*this, "msfgGradeComDescontoAplicado"};
};

struct AritmeticaTest : testing::Test {
  support::FakeDesktop desktop;
  TelaComGrades tela;
};

TEST_F(AritmeticaTest, SumsComeFromTheCellsAsTheyStand) {
  struct Caso {
    const char* porque;
    std::vector<Linha> linhas;
    const char *bruto, *descontos, *custo, *comissoes, *arredondada;
  };
  const std::vector<Caso> casos = {
      {"blank grid", {{"", "", "", "", "", "", ""}}, "0", "0", "0", "0", "0"},
      {"gross of the cell's two decimals, not of the field's three",
       {{"0,13", "100,00", "0,00", "12,50", "40,00", "0,00", "0,00"}},
       "13",
       "0",
       "5,2",
       "0",
       "0"},
      {"discounts are negative, thousands have points",
       {{"1", "1.234,56", "-34,56", "1.200,00", "0,00", "0,00", "0,00"},
        {"2", "10,00", "-1,00", "19,00", "2,50", "0,00", "0,00"}},
       "1254,56",
       "-35,56",
       "5",
       "0",
       "0"},
      {"one commission sum is rounded at every line, the other not",
       {{"1", "1,00", "0,00", "1,00", "0,00", "0,40", "0,004"},
        {"1", "1,00", "0,00", "1,00", "0,00", "0,40", "0,004"}},
       "2",
       "0",
       "0",
       "0,008",
       "0"},
  };
  for (const Caso& caso : casos) {
    SCOPED_TRACE(caso.porque);
    tela.Preencher(caso.linhas);
    const SomaDasLinhas soma = SomarLinhas(tela.grade);
    EXPECT_EQ(base::ToText(soma.bruto), caso.bruto);
    EXPECT_EQ(base::ToText(soma.descontos), caso.descontos);
    EXPECT_EQ(base::ToText(soma.custo), caso.custo);
    EXPECT_EQ(base::ToText(soma.comissoes), caso.comissoes);
    EXPECT_EQ(base::ToText(soma.comissaoArredondada), caso.arredondada);
  }
}

TEST_F(AritmeticaTest, SaleDiscountAndNet) {
  struct Caso {
    const char* porque;
    const char *bruto, *descontosDosItens, *percentual;
    const char *desconto, *liquido;
  };
  const Caso casos[] = {
      {"no discount at all", "100,00", "0,00", "0,00", "0,00", "100,00"},
      {"the base adds the line discounts, the net subtracts them", "100,00", "-10,00", "10,00",
       "11,00", "79,00"},
      {"a tie of the cent goes away from zero", "0,50", "0,00", "5,00", "0,03", "0,47"},
      {"all of it", "33,33", "0,00", "100,00", "33,33", "0,00"},
  };
  for (const Caso& caso : casos) {
    SCOPED_TRACE(caso.porque);
    const Currency base = Brl(caso.bruto) - Brl(caso.descontosDosItens);
    const std::string desconto =
        ValorDoPercentual(base, base::ToDouble(std::string(caso.percentual)));
    EXPECT_EQ(desconto, caso.desconto);
    EXPECT_EQ(FormatMoney(CalcularLiquido(Brl(caso.bruto),
                                          base::ToDouble(std::string(caso.descontosDosItens)),
                                          base::ToCurrency(desconto))),
              caso.liquido);
  }
}

TEST_F(AritmeticaTest, DiscountAsAPercentage) {
  EXPECT_EQ(PercentualDoDesconto(Brl("10"), 33.33, 1), "30,00");
  EXPECT_EQ(PercentualDoDesconto(Brl("10"), 33, 1), "30,30");
  EXPECT_EQ(PercentualDoDesconto(Brl("2,50"), 2, 12.5), "10,00");
  EXPECT_THROW(PercentualDoDesconto(Brl("1"), 0, 1), base::RuntimeError);
}

TEST_F(AritmeticaTest, LineTotalAndCommission) {
  EXPECT_EQ(base::ToText(TotalDaLinha(0.125, 100, 0)), "12,5");
  EXPECT_EQ(base::ToText(TotalDaLinha(3, 0.333, 0.1)), "0,899");
  EXPECT_EQ(base::ToText(ComissaoDaLinha(Brl("12,5"), Brl("33,33"))), "4,1662");
  EXPECT_EQ(base::ToText(ComissaoDaLinha(Brl("0"), Brl("33,33"))), "0");
}

TEST_F(AritmeticaTest, ProfitIsARatioWithTwoDecimals) {
  struct Caso {
    const char *liquido, *custo, *comissoes, *valor, *percentual;
  };
  const Caso casos[] = {{"100", "50", "25", "25", "0,25"},
                        {"3", "1", "0", "2", "0,67"},
                        {"0", "10", "0", "-10", "0"},
                        {"10", "10", "0", "0", "0"},
                        {"100", "0,004", "0,002", "99,99", "1"}};
  for (const Caso& caso : casos) {
    const Lucro lucro = CalcularLucro(Brl(caso.liquido), Brl(caso.custo), Brl(caso.comissoes));
    EXPECT_EQ(base::ToText(lucro.valor), caso.valor) << caso.liquido;
    EXPECT_EQ(base::ToText(lucro.percentual), caso.percentual) << caso.liquido;
  }
}

TEST_F(AritmeticaTest, SpreadingReplacesTheLinesOwnDiscountsAndKeepsTheOriginal) {
  tela.Preencher({{"1", "100,00", "-10,00", "90,00", "40,00", "10,00", "9,00"}});
  const std::string antes = tela.grade.TextMatrix(1, kDescontoEmValor);
  const Currency comissao = DistribuirDesconto(tela.grade, Brl("100,00"), Brl("79,00"), tela.copia);
  EXPECT_EQ(tela.copia.TextMatrix(0, kNome), tela.grade.TextMatrix(0, kNome));
  EXPECT_EQ(tela.copia.TextMatrix(1, kDescontoEmPercentual), "21");
  EXPECT_EQ(tela.copia.TextMatrix(1, kDescontoEmValor), "21");
  EXPECT_EQ(tela.copia.TextMatrix(1, kValorTotal), "79");
  EXPECT_EQ(tela.copia.TextMatrix(1, kCusto), "40,00");
  EXPECT_EQ(tela.copia.TextMatrix(1, kPercentualDeComissao), "10");
  EXPECT_EQ(tela.copia.TextMatrix(1, kValorDaComissao), "7,9");
  EXPECT_EQ(base::ToText(comissao), "7,9");
  EXPECT_EQ(tela.grade.TextMatrix(1, kDescontoEmValor), antes);
}

TEST_F(AritmeticaTest, SpreadingLeavesRoundingRemainders) {
  tela.Preencher({{"1", "3,33", "0,00", "3,33", "0,00", "0,00", "0,00"},
                  {"1", "3,33", "0,00", "3,33", "0,00", "0,00", "0,00"},
                  {"1", "3,33", "0,00", "3,33", "0,00", "0,00", "0,00"}});
  DistribuirDesconto(tela.grade, Brl("9,99"), Brl("8,99"), tela.copia);
  Currency soma;
  for (std::int32_t linha = 1; linha <= 3; ++linha) {
    EXPECT_EQ(tela.copia.TextMatrix(linha, kDescontoEmPercentual), "10,01");
    EXPECT_EQ(tela.copia.TextMatrix(linha, kValorTotal), "3");
    soma += base::ToCurrency(tela.copia.TextMatrix(linha, kValorTotal));
  }
  EXPECT_EQ(base::ToText(soma), "9");
  EXPECT_THROW(DistribuirDesconto(tela.grade, Currency(), Currency(), tela.copia),
               base::RuntimeError);
}

TEST_F(AritmeticaTest, SpreadingShrinksACopyOfALongerSale) {
  tela.Preencher({{"1", "1,00", "0,00", "1,00", "0,00", "0,00", "0,00"},
                  {"1", "1,00", "0,00", "1,00", "0,00", "0,00", "0,00"}});
  DistribuirDesconto(tela.grade, Brl("2"), Brl("1"), tela.copia);
  EXPECT_EQ(tela.copia.Rows(), 3);
  tela.Preencher({{"1", "1,00", "0,00", "1,00", "0,00", "0,00", "0,00"}});
  DistribuirDesconto(tela.grade, Brl("1"), Brl("0,50"), tela.copia);
  EXPECT_EQ(tela.copia.Rows(), 2);
  EXPECT_EQ(tela.copia.TextMatrix(1, kValorTotal), "0,5");
}

}  // namespace
}  // namespace sale
