#include "base/Text.h"
#include "services/Database.h"
#include "services/venda/Conferencia.h"
#include "services/venda/VendasRegistradas.h"

namespace services {
namespace {

namespace linha = servicos::linha;

/// What RegistrarPagamento writes, read back.
class SaleTest : public OverDatabase {
 protected:
  std::int32_t Register(const Sale& sale) {
    const NewSale service(sale);
    const auto status = service->RegistrarPagamento();
    EXPECT_EQ(0, status) << service->DescricaoDaFalha() << service->DescricaoDoErro();
    ExpectBooksBalance();
    return service->NumeroDaVenda();
  }

  /// An open bath of 20 November, 50,00, number 41.
  void LeavePreSale() {
    Write(
        "INSERT INTO pre_vendas (numero, tipo_de_lancamento, codigo_do_cliente, data_de_lancamento,"
        " codigo_do_item, nome_do_item, quantidade, valor_unitario, valor_total, incluido_em,"
        " incluido_por) VALUES (41, 1, 5, '2026-11-20', 30, 'Banho', 10000, 500000, 500000,"
        " '2026-11-20 09:00:00', 'marina')");
  }

  std::string OfSale(const std::string& columns) {
    return Read("SELECT " + columns + " FROM vendas ORDER BY numero DESC LIMIT 1");
  }
};
OVER_BOTH_ENGINES(SaleTest);

TEST_P(SaleTest, EverySideOfASaleStands) {
  const auto number = Register(
      {.lines = Grid({ServiceLine("50,00"), ProductLine("70,00")}),
       .tenders = Grid({Tender("1-Dinheiro", "100,00"), Tender("3-Cartão de crédito", "50,00")}),
       .net = 120_brl,
       .change = -30_brl,
       .key = "CFe3526"});
  const auto sales = UltimasVendas(*banco_, 5);
  ASSERT_EQ(1U, sales.size());
  EXPECT_EQ(number, sales[0].numero);
  EXPECT_EQ("CFe3526", sales[0].chaveSat);
  EXPECT_EQ("Ração do João 50% \"mix\"", sales[0].itens.at(1).nome);
  EXPECT_EQ(50_brl, sales[0].recebimentos.at(1).valor);
  EXPECT_EQ(std::to_string((70_brl).TenThousandths()),
            Read("SELECT dinheiro FROM caixas WHERE numero = 1"));
  EXPECT_EQ("3", Read("SELECT codigo_do_funcionario FROM itens_de_venda WHERE item = 1"));
}

TEST_P(SaleTest, BothFormsOfTheDiscountsReadTheSame) {
  auto counter = ProductLine("1.234,50");
  counter[9] = "-10,00";
  counter[10] = "-123,45";
  counter[11] = "1.111,05";
  counter[6] = base::PadRight("Tati", 100) + base::PadRight("30,00", 50);
  auto copy = ProductLine("1234,5");
  copy[9] = "10";
  copy[10] = "123,45";
  copy[11] = "1111,05";
  Register({.lines = Grid({counter, copy}),
            .tenders = Grid({Tender("1-Dinheiro", "2.222,10")}),
            .net = Brl("2222,10")});
  const std::string columns =
      "desconto_em_percentual || ' ' || desconto_em_valor || ' ' || valor_total FROM "
      "itens_de_venda WHERE item = ";
  EXPECT_EQ("100000 1234500 11110500", Read("SELECT " + columns + "1"));
  EXPECT_EQ("100000 1234500 11110500", Read("SELECT " + columns + "2"));
  EXPECT_EQ("Tati", Read("SELECT nome_do_funcionario FROM itens_de_venda WHERE item = 1"));
}

TEST_P(SaleTest, CreditIsTakenFromWhatTheDatabaseHolds) {
  Register({.tenders = Grid({Tender("7-Crédito do cliente", "40,00"), Tender("8-PIX", "60,00")})});
  EXPECT_EQ(std::to_string((10_brl).TenThousandths()),
            Read("SELECT credito FROM clientes WHERE codigo = 5"));
  const NewSale service(
      {.tenders = Grid({Tender("7-Crédito do cliente", "10,01"), Tender("8-PIX", "89,99")})});
  EXPECT_EQ(servicos::kRecusa, service->RegistrarPagamento());
  EXPECT_EQ(
      "O crédito do cliente agora é de 10,00 e não cobre os 10,01 informados. Nada foi "
      "registrado; refaça o pagamento.",
      service->DescricaoDaFalha());
  EXPECT_EQ(1, Count("vendas"));
}

TEST_P(SaleTest, EveryTenderOnCreditIsAReceivable) {
  Register({.tenders = Grid({Tender("1-Dinheiro", "25,00"),
                             Tender("6-A crédito (Fiado)", "75,00", "28/02/2027")}),
            .note = "Cliente: 5-Dudu\r\nAnimal: Rex"});
  EXPECT_EQ("2027-02-28", Read("SELECT data_de_vencimento FROM contas_a_receber"));
  EXPECT_EQ("750000", Read("SELECT valor_do_documento FROM contas_a_receber"));
  EXPECT_EQ("250000", Read("SELECT percentual_recebido_a_vista FROM contas_a_receber"));
  EXPECT_EQ("Venda a crédito (fiado)\u00A0Cliente: 5-Dudu\u00A0Animal: Rex",
            Read("SELECT historico FROM contas_a_receber"));
  EXPECT_EQ("28/02/2027", UltimasVendas(*banco_, 1)[0].recebimentos[1].vencimento);
}

TEST_P(SaleTest, WhomAnotherWorkstationServesBuysThereAlone) {
  const auto held = [&](const std::string& computer, const std::string& mark) {
    Write(
        "DELETE FROM travas_de_clientes;"
        "INSERT INTO travas_de_clientes (codigo_do_cliente, nome_do_computador, computador_busca,"
        " marca, nome_do_usuario, data_e_hora) VALUES (5, '" +
        computer + "', '" + computer + "', '" + mark + "', 'caio', '2026-11-22 08:00:00')");
  };
  banco_ = Another("recepcao", "aaaa");
  RegistrarServicos(banco_);
  const NewSale sale{Sale{}};
  const auto refused = [](const std::string& where) {
    return "Este cliente está em atendimento com caio no computador " + where +
           ". A venda não foi registrada; aguarde o fim do atendimento e refaça o pagamento.";
  };
  held("LOJA", "");
  EXPECT_EQ(servicos::kRecusa, sale->RegistrarPagamento());
  EXPECT_EQ(refused("LOJA"), sale->DescricaoDaFalha());
  held("RECEPCAO", "bbbb");
  EXPECT_EQ(servicos::kRecusa, sale->RegistrarPagamento());
  EXPECT_EQ(refused("RECEPCAO (outro computador)"), sale->DescricaoDaFalha());
  EXPECT_EQ(0, Count("vendas"));
  held("RECEPCAO", "aaaa");
  EXPECT_EQ(1, Register({}));
  EXPECT_EQ("caio", Read("SELECT nome_do_usuario FROM travas_de_clientes WHERE marca = 'aaaa'"))
      << "a sale leaves the locks as it found them";
}

TEST_P(SaleTest, TheLimitOfCreditCountsWhenTheSaleIsWritten) {
  Write("UPDATE clientes SET limite_de_credito = 1000000 WHERE codigo = 5");
  const Sale sale{.tenders = Grid({Tender("8-PIX", "39,99"),
                                   Tender("6-A crédito (Fiado)", "60,01", "28/02/2027")})};
  Register(sale);
  const NewSale second(sale);
  EXPECT_EQ(servicos::kRecusa, second->RegistrarPagamento());
  EXPECT_EQ(
      "O cliente tem agora 39,99 do limite de crédito, que não cobre os 60,01 a crédito (fiado). "
      "Nada foi registrado; refaça o pagamento.",
      second->DescricaoDaFalha());
  Register({.tenders = Grid(
                {Tender("8-PIX", "60,01"), Tender("6-A crédito (Fiado)", "39,99", "28/02/2027")})});
  const SessionRecord caio("caio");
  const SessionRecord marina("marina", true);
  second->DadosDoUsuario(&caio);
  EXPECT_EQ(servicos::kRecusa, second->RegistrarPagamento());
  second->DadosDoUsuario(&marina);
  EXPECT_EQ(0, second->RegistrarPagamento()) << second->DescricaoDaFalha();
  Write("UPDATE clientes SET limite_de_credito = 0");
  Register(sale);
}

TEST_P(SaleTest, ASaleOfNothingNeedsNoTender) {
  Register({.lines = Grid({ProductLine("0,00")}), .tenders = Grid({Tender("", "")}), .net = 0_brl});
  EXPECT_EQ(0, Count("lancamentos_de_caixa"));
  EXPECT_EQ(1, Count("vendas"));
}

TEST_P(SaleTest, PreSaleLinesAreSettledOnceOnly) {
  LeavePreSale();
  Write("INSERT INTO clientes (codigo, apelido, nome, nome_busca) VALUES (6, 'Lia', 'Lia', 'lia')");
  const NewSale toSomebodyElse({.lines = Grid({PreSaleLine("100,00", 41)}), .customer = "6"});
  EXPECT_EQ(servicos::kRecusa, toSomebodyElse->RegistrarPagamento());
  const Sale sale{.lines = Grid({PreSaleLine("50,00", 41), ProductLine("50,00")})};
  const auto number = Register(sale);
  EXPECT_EQ(std::to_string(number), Read("SELECT numero_da_venda FROM pre_vendas"));
  const NewSale again(sale);
  EXPECT_EQ(servicos::kRecusa, again->RegistrarPagamento());
  EXPECT_EQ(
      "O item de pré-venda 'Banho d'água' (lançamento 41) não está mais em aberto: já foi "
      "vendido ou retirado. Limpe os campos e selecione o cliente de novo.",
      again->DescricaoDaFalha());
  EXPECT_EQ(1, Count("vendas"));
  ExpectBooksBalance();
}

TEST_P(SaleTest, AReceiptHasTheLinesOfItsSaleAlone) {
  LeavePreSale();
  Register({});
  auto weighed = ProductLine("22,95");
  weighed[7] = "0,255";
  weighed[8] = "100,00";
  weighed[10] = "-2,55";
  weighed[16] = "KG";
  const auto number = Register(
      {.lines = Grid({weighed, PreSaleLine("50,00", 41)}),
       .tenders = Grid({Tender("7-Crédito do cliente", "20,00"), Tender("8-PIX", "52,95")}),
       .net = Brl("72,95")});
  Register({});
  clock_.now = clock_.now.PlusDays(1);
  const auto service = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
  const auto select = [&](const std::string& condition) {
    EXPECT_EQ(0, service->SelecionarItensDeVenda(condition)) << service->DescricaoDoErro();
    return service->ResultadoDaSelecaoEmRecordSet();
  };
  const std::string sale = " WHERE ItensDeVendas.NumeroDaVenda = " + std::to_string(number) + ' ';
  const auto lines = select(sale);
  const std::vector<std::pair<std::string, std::vector<base::Value>>> expected{
      {"DataDoServicoEfetuadoOuProdutoReservado",
       {base::DateTime{2026, 11, 22}, base::DateTime{2026, 11, 20}}},
      {"NomeDoAnimal", {"", "Rex"}},
      {"NomeDoServicoOuProduto", {"Ração do João 50% \"mix\"", "Banho d'água"}},
      {"Quantidade", {Brl("0,255"), 1_brl}},
      {"UnidadeDeVenda", {"KG", ""}},
      {"ValorUnitario", {100_brl, 50_brl}},
      {"ValorDeDesconto", {Brl("2,55"), 0_brl}},
      {"ValorTotal", {Brl("22,95"), 50_brl}}};
  EXPECT_EQ(expected.size(), static_cast<std::size_t>(lines->FieldCount()));
  std::size_t line = 0;
  base::ForEachRow(*lines, [&] {
    for (const auto& [field, values] : expected) {
      EXPECT_TRUE(values.at(line) == lines->Fields(field))
          << field << ": " << base::ToText(lines->Fields(field));
    }
    ++line;
  });
  EXPECT_EQ(2U, line);
  EXPECT_EQ(2, select(base::Lower(sale))->RecordCount());
  for (const char* nobody : {"0", "-1", "99", "2147483647"}) {
    EXPECT_EQ(0, select(base::Replace(sale, std::to_string(number), nobody))->RecordCount());
  }
}

TEST_P(SaleTest, TheConditionOfAReceiptIsReadAndNeverRun) {
  Register({});
  const auto service = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
  const std::string form = " WHERE ItensDeVendas.NumeroDaVenda = ";
  for (const std::string& condition :
       {std::string(),
        std::string(" WHÉ"),
        form,
        form + "1,0",
        form + "1.0",
        form + "1e0",
        form + "+1",
        form + "--1",
        form + "2147483648",
        form + "99999999999999999999",
        form + "1 OR 1 = 1",
        form + "1; DELETE FROM vendas",
        form + "1 x",
        form + "'1'",
        form + "$1",
        form + "1 2",
        form + "= 1",
        std::string(" WHERE ItensDeVendas.Item = 1"),
        std::string(" WHERE 1 = 1 AND ItensDeVendas.NumeroDaVenda = 1"),
        std::string(" WHEREItensDeVendas.NumeroDaVenda = 1"),
        form + std::string("1\0", 2)}) {
    EXPECT_EQ(servicos::kErro, service->SelecionarItensDeVenda(condition)) << condition;
    EXPECT_EQ(5, service->NumeroDoErro()) << condition;
  }
  EXPECT_EQ(1, Count("vendas"));
}

TEST_P(SaleTest, RoundTripsDoNotGrowWithTheLines) {
  Register({});
  std::vector<std::vector<std::string>> many(500, ProductLine("0,20"));
  const NewSale service(
      {.lines = Grid(many),
       .tenders = Grid({Tender("1-Dinheiro", "60,00"), Tender("4-Cartão de débito", "40,00")})});
  const auto before = session().Calls();
  EXPECT_EQ(0, service->RegistrarPagamento());
  if (GetParam() == Engine::kPostgres) {
    EXPECT_LE(session().Calls() - before, 8);
  }
  EXPECT_EQ(501, Count("itens_de_venda"));
  ExpectBooksBalance();
}

TEST_P(SaleTest, LongAndOddTextsComeBackAsTheyWere) {
  const std::string odd = "{\"a\",\\n} 100% _ ' -- ção 🐶 \n\t" + std::string(20'000, 'x');
  auto line = ProductLine("100,00");
  line[linha::kNome] = odd;
  Register({.lines = Grid({line}), .note = odd});
  EXPECT_EQ(odd, Read("SELECT nome_do_item FROM itens_de_venda"));
  EXPECT_EQ(odd, OfSale("observacao"));
  EXPECT_EQ(odd, Read("SELECT observacao FROM lancamentos_de_caixa"));
  Register({.note = std::string("a\0b\xFFzo", 6)});
  EXPECT_EQ("a\uFFFDb\uFFFDzo", OfSale("observacao"));
}

TEST_P(SaleTest, AmountsAtTheLimits) {
  const std::string most = "922.337.203.685.477,58";
  Register({.lines = Grid({ProductLine(most)}),
            .tenders = Grid({Tender("1-Dinheiro", most)}),
            .net = Brl(most)});
  const NewSale service({});
  EXPECT_EQ(servicos::kRecusa, service->RegistrarPagamento()) << service->DescricaoDoErro();
  EXPECT_EQ("Um valor ultrapassa o limite que o caixa registra. Confira os valores.",
            service->DescricaoDaFalha());
  const NewSale sum({.tenders = Grid({Tender("1-Dinheiro", most), Tender("8-PIX", "1,00")})});
  EXPECT_EQ(servicos::kRecusa, sum->RegistrarPagamento());
  EXPECT_EQ(1, Count("vendas"));
  ExpectBooksBalance();
}

/// What must not be written, and why the operator is told it was not.
TEST_P(SaleTest, RefusalsWriteNothing) {
  struct Case {
    const char* why;
    Sale sale;
    const char* words;
  };
  const Grid columns({Tender("8-PIX", "100,00")});
  const Grid twice({PreSaleLine("50,00", 41), PreSaleLine("50,00", 41)});
  const Grid line({ProductLine("100,00")});
  const Case cases[] = {
      {"no lines", {.lines = Grid({std::vector<std::string>(20)})}, "não tem itens"},
      {"too few columns", {.lines = columns}, "incompleta"},
      {"quantity", {.lines = line.With(1, linha::kQuantidade, "abc")}, "'abc' em quantidade"},
      {"negative price",
       {.lines = line.With(1, linha::kValorUnitario, "-1,00")},
       "'-1,00' em valor unitário"},
      {"code too large", {.lines = line.With(1, linha::kCodigo, "99999999999")}, "em código,"},
      {"fraction of a code",
       {.lines = line.With(1, linha::kNumeroDeLancamento, "1,5")},
       "em número do lançamento"},
      {"kind of line",
       {.lines = line.With(1, linha::kColunaTipoDeLancamento, "3")},
       "em tipo de lançamento"},
      {"kind of sale", {.lines = line.With(1, linha::kColunaTipoDeVenda, "")}, "em tipo de venda"},
      {"pre-sale line twice", {.lines = twice}, "está duas vezes na venda"},
      {"unknown tender", {.tenders = Grid({Tender("9-Vale", "100,00")})}, "não é conhecida"},
      {"tender amount", {.tenders = Grid({Tender("8-PIX", "cem")})}, "'cem' não é um valor"},
      {"negative tender", {.tenders = Grid({Tender("8-PIX", "-100,00")})}, "negativo"},
      {"not all paid", {.tenders = Grid({Tender("8-PIX", "99,99")})}, "Restam 0,01 para pagar"},
      {"fraction of a cent", {.tenders = Grid({Tender("8-PIX", "100,005")})}, "'100,005' não é um"},
      {"fraction in a net", {.net = Brl("99,995")}, "(99,995) tem fração de centavo"},
      {"fraction in a credit", {.creditKept = Brl("0,001")}, "(0,001) tem fração de centavo"},
      {"fraction in a total",
       {.lines = line.With(1, linha::kValorTotal, "9,999")},
       "'9,999' em valor total"},
      {"fraction in a discount",
       {.lines = line.With(1, linha::kDescontoEmValor, "-0,005")},
       "'-0,005' em valor de desc"},
      {"no due date", {.tenders = Grid({Tender("6-Fiado", "100,00")})}, "data de vencimento"},
      {"no such day", {.tenders = Grid({Tender("6-Fiado", "100,00", "29/02/2027")})}, "vencimento"},
      {"month first", {.tenders = Grid({Tender("6-Fiado", "100,00", "12/31/2026")})}, "vencimento"},
      {"net below zero", {.tenders = Grid({Tender("8-PIX", "0,00")}), .net = -1_brl}, "líquido"},
      {"change unlike the tenders",
       {.tenders = Grid({Tender("1-Dinheiro", "150,00")}), .change = -40_brl},
       "O troco informado (40,00) não confere"},
      {"change of a real or more as 0",
       {.tenders = Grid({Tender("1-Dinheiro", "101,00")})},
       "O troco informado (0,00) não confere"},
      {"change and credit kept of the same money",
       {.tenders = Grid({Tender("1-Dinheiro", "150,00")}), .change = -50_brl, .creditKept = 20_brl},
       "Com 20,00 de crédito para o cliente, o troco é de 30,00, e não de 50,00. Nada foi "
       "registrado: refaça o pagamento e digite o troco uma só vez, depois da última forma."},
      {"a tender after the change was lowered",
       {.tenders = Grid({Tender("3-Cartão de crédito", "150,00"), Tender("8-PIX", "10,00")}),
        .change = -60_brl,
        .creditKept = 20_brl},
       "o troco é de 40,00, e não de 60,00. Nada foi registrado: refaça o pagamento sem PIX de "
       "10,00, que não é preciso, e digite o troco"},
      {"the change lowered after a tender was taken out",
       {.tenders = Grid({Tender("2-Cheque", "60,00"), Tender("8-PIX", "90,00")}),
        .change = -30_brl,
        .creditKept = 30_brl},
       "o troco é de 20,00, e não de 30,00. Nada foi registrado: refaça o pagamento e digite"},
      {"more credit kept than left",
       {.creditKept = 1_brl},
       "é maior que a sobra do pagamento (0,00). N"},
      {"credit kept below zero", {.creditKept = -1_brl}, "negativo"},
      {"customer's code", {.customer = "x"}, "código de cliente 'x' não existe"},
      {"unknown customer", {.customer = "77"}, "cliente de código 77 não está cadastrado"},
      {"unknown customer's credit",
       {.tenders = Grid({Tender("7-Crédito", "100,00")}), .customer = "77"},
       "não está cadastrado"},
      {"unknown pre-sale line", {.lines = Grid({PreSaleLine("100,00", 9)})}, "não está mais"},
      {"closed register", {.registerNumber = 2}, "não está aberto"},
      {"deactivated register", {.registerNumber = 3}, "foi desativado"},
      {"no such register", {.registerNumber = 4}, "não existe mais"},
  };
  for (const Case& each : cases) {
    const NewSale service(each.sale);
    EXPECT_EQ(servicos::kRecusa, service->RegistrarPagamento())
        << each.why << ": " << service->DescricaoDoErro();
    EXPECT_NE(std::string::npos, service->DescricaoDaFalha().find(each.words))
        << each.why << ": " << service->DescricaoDaFalha();
    EXPECT_EQ(0, service->NumeroDaVenda()) << each.why;
  }
  EXPECT_EQ(0, Count("vendas"));
  EXPECT_EQ(0, Count("lancamentos_de_caixa"));
  EXPECT_EQ(1, Register({})) << "a refused sale has used up a number";
}

TEST_P(SaleTest, TheBooksAreFoundOut) {
  Register({.tenders = Grid({Tender("1-Dinheiro", "60,00"),
                             Tender("6-A crédito (Fiado)", "40,00", "28/02/2027")})});
  Write("UPDATE lancamentos_de_caixa SET valor = valor + 100 WHERE moeda = 1");
  Write("DELETE FROM contas_a_receber");
  Write("DELETE FROM itens_de_venda");
  EXPECT_EQ((std::vector<std::string>{
                "Venda 1: os itens somam 0,00 antes dos descontos, e o valor bruto é 100,00.",
                "Venda 1: os recebimentos lançados somam 100,01, e o total recebido é 100,00.",
                "Venda 1: as contas a receber somam 0,00, e o pagamento a crédito (fiado) é 40,00.",
                "Venda 1: há 0 itens gravados, e a venda tem 1.",
                "Caixa 1: o dinheiro na gaveta é 60,00, e os lançamentos somam 60,01."}),
            Conferir(*banco_));
}

}  // namespace
}  // namespace services
