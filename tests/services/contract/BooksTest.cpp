#include "services/Database.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Outcome.h"
#include "services/venda/Contas.h"
#include "services/venda/Creditos.h"
#include "services/venda/Lancamentos.h"
#include "services/venda/Provas.h"

namespace services {
namespace {

/// What moves a register, a customer's credit and the receivables, as every operation on them does.
class BooksTest : public OverDatabase {
 protected:
  /// The words of a refusal, the kind of a database's own, or nothing.
  std::string Do(const std::function<void(Transaction&)>& work) {
    try {
      InTransaction(session(), work);
    } catch (const Refusal& refusal) {
      return refusal.sentence;
    } catch (const DatabaseError& error) {
      return error.What() == Trouble::kConstraint ? "constraint" : error.what();
    }
    return {};
  }
  std::string State() {
    return Read(
        "SELECT (SELECT dinheiro / 10000 FROM caixas WHERE numero = 1) || ' ' ||"
        " (SELECT credito / 10000 FROM clientes WHERE codigo = 5) || ' ' ||"
        " (SELECT max(situacao) FROM contas_a_receber) || ' ' ||"
        " (SELECT count(*) FROM lancamentos_de_caixa) || ' ' ||"
        " (SELECT count(*) FROM creditos_do_cliente)");
  }
  /// 60,00 in cash with 10,00 of change, 20,00 of credit, 30,00 on trust.
  static void Sell() {
    const NewSale sale(
        {.tenders = Grid({Tender("1-Dinheiro", "60,00"), Tender("7-Crédito do cliente", "20,00"),
                          Tender("6-A crédito (Fiado)", "30,00", "28/02/2027")}),
         .change = -10_brl});
    ASSERT_EQ(0, sale->RegistrarPagamento()) << sale->DescricaoDaFalha();
  }
  /// The entry that takes back another one of the first sale.
  Lancamento Reversal(std::int64_t operation, std::int32_t of, base::Currency value) {
    return {.operacao = operation,
            .numeroDoCaixa = 1,
            .quando = clock_.now,
            .tipo = servicos::kEstorno,
            .valor = value,
            .descricao = "Estorno",
            .operador = "renata",
            .numeroDaVenda = 1,
            .estorna = of,
            .consentidoPor = "marina"};
  }
  MovimentoDeCredito Credit(std::int64_t operation, base::Currency value) const {
    return {.codigoDoCliente = 5,
            .quando = clock_.now,
            .tipo = servicos::kCreditoRevertido,
            .moeda = servicos::pagamento::kCreditoDoCliente,
            .valor = value,
            .operador = "renata",
            .operacao = operation,
            .numeroDaVenda = 1};
  }
  Baixa Closing(std::int64_t operation, std::string_view state) const {
    return {.numero = 1,
            .valor = 30_brl,
            .situacao = state,
            .quando = clock_.now,
            .operador = "renata",
            .operacao = operation};
  }
  bool IsProved(TipoDeRegistro kind, std::int64_t operation) {
    return session().Select(ProvaDe(kind), {operation}, [](const Row&) {}) > 0;
  }
};
OVER_BOTH_ENGINES(BooksTest);

TEST_P(BooksTest, WhatWouldBreakTheBooksIsRefusedWhole) {
  Sell();
  const auto refused = [&](const std::string& words,
                           const std::function<void(Transaction&)>& work) {
    EXPECT_EQ(words, Do([&](Transaction& transaction) {
                MoverCredito(session(), Credit(80, 1_brl));
                work(transaction);
              }));
    EXPECT_EQ("50 30 aberta 4 2", State());
  };
  refused(
      "Há 50,00 em dinheiro neste caixa, menos do que os 51,00 que sairiam. Informe um valor "
      "menor.",
      [&](Transaction& transaction) {
        Lancar(session(), transaction, 1, {Reversal(80, 1, -60_brl), Reversal(80, 4, 9_brl)});
      });
  refused("constraint", [&](Transaction& transaction) {
    Lancar(session(), transaction, 1, {Reversal(80, 1, -1_brl), Reversal(80, 1, 1_brl)});
  });
  refused(
      "O crédito do cliente agora é de 31,00 e não cobre os 31,01 que sairiam. Nada foi registrado;"
      " confira o crédito do cliente.",
      [&](Transaction&) { MoverCredito(session(), Credit(80, -Brl("31,01"))); });
  refused(
      "O cliente de código 77 não está cadastrado. Nada foi registrado; selecione o cliente de "
      "novo.",
      [&](Transaction&) {
        auto nobodys = Credit(80, 1_brl);
        nobodys.codigoDoCliente = 77;
        MoverCredito(session(), nobodys);
      });
  const std::string changed =
      " não está mais em aberto com este valor: já foi recebido ou mudou. Nada foi registrado; "
      "selecione o cliente de novo.";
  refused("O débito de 29,99" + changed, [&](Transaction& transaction) {
    auto other = Closing(80, servicos::kContaRecebida);
    other.valor = Brl("29,99");
    BaixarContas(session(), transaction, {other});
  });
  refused("O débito de 30,00" + changed, [&](Transaction& transaction) {
    const auto twice = Closing(80, servicos::kContaRecebida);
    BaixarContas(session(), transaction, {twice, twice});
  });
}

TEST_P(BooksTest, ASettlementEntersEachTenderAndReplacesADebt) {
  Sell();
  EXPECT_EQ("", Do([&](Transaction& transaction) {
              auto cash = Reversal(90, 0, 4_brl);
              cash.tipo = servicos::kAcerto;
              cash.numeroDaVenda = 0;
              auto pix = cash;
              pix.moeda = servicos::pagamento::kPix;
              Lancar(session(), transaction, 1, {cash, pix});
              AbrirContas(session(), {{.codigoDoCliente = 5,
                                       .apelidoDoCliente = "Dudu",
                                       .nomeDoCliente = "Eduardo",
                                       .dataDaVenda = clock_.now,
                                       .historico = "Acerto",
                                       .vencimento = clock_.now.PlusDays(30),
                                       .valor = 22_brl,
                                       .incluidaEm = clock_.now,
                                       .incluidaPor = "renata",
                                       .origem = servicos::kDeAcerto,
                                       .operacao = 90}});
              BaixarContas(session(), transaction, {Closing(90, servicos::kContaRenegociada)});
            }));
  EXPECT_EQ("54", Read("SELECT dinheiro / 10000 FROM caixas WHERE numero = 1"));
  EXPECT_EQ("22", Read("SELECT max(valor_do_documento) / 10000 FROM contas_a_receber"
                       " WHERE situacao = 'aberta' AND origem = 'acerto'"));
  EXPECT_EQ("", Do([&](Transaction&) {
              EXPECT_EQ(0, ReabrirContas(session(), 1, clock_.now, "renata")) << "not cancelled";
            }));
  EXPECT_TRUE(IsProved(TipoDeRegistro::kAcerto, 90));
  EXPECT_FALSE(IsProved(TipoDeRegistro::kMovimento, 90));
  ExpectBooksBalance();
}

}  // namespace
}  // namespace services
