#include <gmock/gmock.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>

#include "services/Database.h"
#include "services/venda/Conferencia.h"

namespace services {
namespace {

using testing::HasSubstr;

/// What a command line prints on both outputs, with its exit status in front.
std::string AnswerTo(const std::string& arguments) {
  const std::string command = std::string(CAIXA_BANCO) + " " + arguments + " 2>&1";
  FILE* const pipe = popen(command.c_str(), "r");
  std::string text;
  std::array<char, 4096> part{};
  while (fgets(part.data(), part.size(), pipe) != nullptr) text += part.data();
  return std::to_string(WEXITSTATUS(pclose(pipe))) + " " + text;
}

/// The command that creates, lists, frees and checks.
class CommandTest : public OverDatabase {
 protected:
  std::string OnDatabase(const std::string& arguments) {
    return AnswerTo("'" + address_ + "' " + arguments);
  }
};
OVER_BOTH_ENGINES(CommandTest);

TEST_P(CommandTest, ListsASaleWithItsItemsTendersAndChange) {
  const NewSale sale({.lines = Grid({ServiceLine("100,00")}),
                      .tenders = Grid({Tender("1-Dinheiro", "50,00"),
                                       Tender("6-A crédito (Fiado)", "80,00", "01/12/2026")}),
                      .change = -30_brl});
  ASSERT_EQ(0, sale->RegistrarPagamento()) << sale->DescricaoDaFalha();
  EXPECT_EQ(
      "0 Venda 1  22/11/2026 14:30:00  caixa 1  operador renata\n"
      "  Cliente: 5 - Dudu\n"
      "  Itens:\n"
      "    1,00 x Banho d'água (Rex)                           100,00\n"
      "    Valor bruto                                         100,00\n"
      "    Valor líquido                                       100,00\n"
      "  Pagamentos:\n"
      "    Dinheiro                                             50,00\n"
      "    A crédito (Fiado), vence em 01/12/2026               80,00\n"
      "    Troco                                                30,00\n\n",
      OnDatabase("vendas 1"));
  const std::string rule = RegraDoLog(*banco_);
  EXPECT_EQ(GetParam() == Engine::kSqlite, rule.starts_with("SQLite 3."));
  const std::string first = rule.empty() ? "" : rule + "\n";
  EXPECT_EQ("0 " + first + "As contas de todas as vendas fecham.\n", OnDatabase("conferir"));
  Write("UPDATE caixas SET dinheiro = 1 WHERE numero = 1");
  EXPECT_EQ("1 " + first +
                "Caixa 1: o dinheiro na gaveta é 0,00, e os lançamentos somam 20,00.\n"
                "As contas não fecham. Avise o suporte.\n",
            OnDatabase("conferir"));
}

TEST_P(CommandTest, ListsAndFreesLocks) {
  EXPECT_EQ("0 Nenhum cliente em atendimento.\n", OnDatabase("travas"));
  Write(
      "INSERT INTO travas_de_clientes (codigo_do_cliente, nome_do_computador, computador_busca,"
      " nome_do_usuario, data_e_hora) VALUES (5, 'LOJA', 'LOJA', 'caio', '2026-11-22 08:00:00')");
  EXPECT_EQ("0 5 - Dudu, com caio no computador LOJA desde 22/11/2026 08:00:00\n",
            OnDatabase("travas"));
  EXPECT_EQ("0 O cliente 5 foi liberado.\n", OnDatabase("liberar 5"));
  EXPECT_EQ("1 O cliente 5 não está em atendimento.\n", OnDatabase("liberar 5"));
  EXPECT_EQ("1 Não há venda de número 99.\n", OnDatabase("venda 99"));
}

TEST_P(CommandTest, ListsAndClosesCoupons) {
  EXPECT_EQ("0 Nenhum cupom fiscal sem venda.\n", OnDatabase("cupons"));
  Write(
      "INSERT INTO cupons (situacao, criado_em, computador, marca, numero_do_caixa, operador,"
      " codigo_do_cliente, consumidor, valor, conteudo, envio, retorno, chave, nota) VALUES"
      " ('enviado', '2026-11-22 08:00:00', 'LOJA', '', 1, 'caio', 5, '', 219000, '', '', '', '',"
      " ''),"
      " ('recusado', '2026-11-22 08:05:00', 'LOJA', '', 1, 'caio', 0, '', 219000, '', '', '', '',"
      " 'NCM inexistente')");
  const std::string open =
      "Cupom 1  22/11/2026 08:00:00  caixa 1  operador caio  computador LOJA\n"
      "  Cliente: 5 - Dudu\n"
      "  Valor dos produtos: 21,90\n"
      "  Situação: ";
  EXPECT_EQ(
      "0 " + open + "enviado ao aplicativo fiscal e ainda sem resposta, sem venda registrada\n",
      OnDatabase("cupons"));
  EXPECT_EQ("0 O cupom 1 foi encerrado.\n", OnDatabase("cupons encerrar 1 'cancelado à mão'"));
  EXPECT_EQ("1 Não há cupom em aberto de número 1.\n", OnDatabase("cupons encerrar 1 'de novo'"));
  EXPECT_EQ("0 Nenhum cupom fiscal sem venda.\n", OnDatabase("cupons"));
  EXPECT_EQ("0 " + open +
                "encerrado (cancelado à mão), sem chave\n"
                "Cupom 2  22/11/2026 08:05:00  caixa 1  operador caio  computador LOJA\n"
                "  Valor dos produtos: 21,90\n"
                "  Situação: recusado pelo aplicativo fiscal (NCM inexistente)\n",
            OnDatabase("cupons todos"));
}

TEST_P(CommandTest, FindsAKeyThatTwoSalesHave) {
  for (int i = 0; i < 2; ++i) {
    const NewSale sale({.key = std::to_string(i)});
    ASSERT_EQ(0, sale->RegistrarPagamento()) << sale->DescricaoDaFalha();
  }
  Write(
      "INSERT INTO cupons (situacao, criado_em, computador, marca, numero_do_caixa, operador,"
      " codigo_do_cliente, consumidor, valor, conteudo, envio, retorno, chave, numero_da_venda)"
      " VALUES ('vendido', '2026-11-22 08:00:00', 'LOJA', '', 1, '', 0, '', 0, '', '', '', '1',"
      " 2);"
      "UPDATE vendas SET chave_sat = '1'");
  EXPECT_TRUE(OnDatabase("conferir")
                  .ends_with("Venda 1: a chave do seu cupom está em 2 vendas.\n"
                             "Venda 1: a chave do seu cupom foi pedida para a venda 2.\n"
                             "As contas não fecham. Avise o suporte.\n"));
}

TEST_P(CommandTest, RefusesTheDemonstrationWhereThereAreData) {
  EXPECT_EQ(
      "1 O banco de dados já tem dados e não foi alterado. Crie a demonstração em um banco "
      "de dados novo.\n",
      OnDatabase("demonstracao"));
}

TEST_P(CommandTest, ChangesTheCompanyAllOrNothing) {
  EXPECT_EQ("1 Não há empresa cadastrada. Cadastre-a antes.\n", OnDatabase("empresa"));
  Write(
      "INSERT INTO empresa (codigo, nome_fantasia, formato_de_codigo_de_barras_para_balanca,"
      " codigo_do_documento_com_emissao_permitida) VALUES (1, 'Bicho Contente', '2', '0')");
  const std::string before = OnDatabase("empresa");
  EXPECT_THAT(before, testing::StartsWith("0 NomeFantasia=Bicho Contente\n"));
  const struct {
    const char* setting;
    const char* refusal;
  } refused[] = {
      {"Cor=Azul", "A empresa não tem o ajuste 'Cor'."},
      {"ImprimirNotaPromissoria=talvez", "informe Sim ou Não"},
      {"PercPromocaoDeDescontoNaVendaDeProduto=100,01", "um percentual de 0 a 100"},
      {"PercPromocaoDeDescontoNaVendaDeProduto=-1", "um percentual de 0 a 100"},
      {"PercPromocaoDeDescontoNaVendaDeProduto=", "um percentual de 0 a 100"},
      {"DataInicialDaPromocao=31/11/2026", "uma data como 22/11/2026"},
      {"DataInicialDaPromocao=01/11/2026", "formam um período"},
      {"DataInicialDaPromocao=02/11/2026 DataFinalDaPromocao=01/11/2026", "formam um período"},
      {"FormatoDeCodigoDeBarrasParaBalanca=3", "1 (preço na etiqueta) ou 2 (peso na etiqueta)"},
      {"CodigoDoDocumentoComEmissaoPermitida=12", "11 (CF-e SAT) ou 0 (nenhum)"},
      {"NomeFantasia=", "informe um texto"}};
  for (const auto& [setting, refusal] : refused) {
    const std::string answer = OnDatabase(std::string("empresa NomeFantasia=Outra ") + setting);
    EXPECT_EQ("1 ", answer.substr(0, 2)) << setting;
    EXPECT_THAT(answer, HasSubstr(refusal)) << setting;
    EXPECT_EQ(before, OnDatabase("empresa")) << setting;
  }
  EXPECT_THAT(
      OnDatabase("empresa ImprimirNotaPromissoria=sim DataInicialDaPromocao=01/11/2026"
                 " DataFinalDaPromocao=01/11/2026 PercDeDescontoLimiteDaVendaNoCaixa=12,5"
                 " CodigoDoDocumentoComEmissaoPermitida=11"),
      testing::AllOf(HasSubstr("\nDataInicialDaPromocao=01/11/2026\nDataFinalDaPromocao=01/11/2026"
                               "\nPercPromocaoDeDescontoNaVendaDeServico=0,00\n"),
                     HasSubstr("\nPercDeDescontoLimiteDaVendaNoCaixa=12,50\n"),
                     HasSubstr("\nImprimirNotaPromissoria=Sim\n"),
                     HasSubstr("\nCodigoDoDocumentoComEmissaoPermitida=11\n")));
}

TEST(CommandLineTest, WhatIsNotUnderstoodExitsWithTwo) {
  for (const char* arguments :
       {"", "sqlite:x.db", "sqlite:x.db apagar", "sqlite:x.db criar já", "sqlite:x.db liberar",
        "sqlite:x.db liberar zero", "sqlite:x.db vendas -1", "--nada", "sqlite:x.db vendas 1 2",
        "sqlite:x.db demonstracao --agora", "sqlite:x.db demonstracao --agora ontem",
        "sqlite:x.db venda", "sqlite:x.db cliente Ana", "sqlite:x.db empresa Cor",
        "sqlite:x.db cupons encerrar 1", "sqlite:x.db cupons encerrar um x",
        "sqlite:x.db cupons 1"}) {
    const std::string answer = AnswerTo(arguments);
    EXPECT_EQ("2 ", answer.substr(0, 2)) << arguments;
    EXPECT_THAT(answer, HasSubstr("Uso: caixa-banco BANCO COMANDO")) << arguments;
  }
  EXPECT_THAT(AnswerTo("--help"), testing::StartsWith("0 Uso: caixa-banco"));
  EXPECT_EQ(
      "1 O banco de dados 'x.db' não existe. Confira o caminho ou crie-o com: caixa-banco "
      "sqlite:x.db criar\n",
      AnswerTo("sqlite:x.db vendas"));
}

}  // namespace
}  // namespace services
