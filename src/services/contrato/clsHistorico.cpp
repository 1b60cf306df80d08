#include "siblings/dados/clsHistorico.h"

#include <map>

#include "base/Numbers.h"
#include "frame/servicos/Pagamento.h"
#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/venda/CodigosNoSql.h"
#include "services/venda/VendasRegistradas.h"

namespace services {
namespace {

using Contrato = siblings::dados::clsHistorico;
using enum Field::Kind;

/// More than anybody looks through; the walk-in customer buys all day.
constexpr std::int64_t kMostSales = 2000;

/// The tenders are written into their place afterwards.
constexpr std::size_t kTendersColumn = 9;
constexpr Field kSales[] = {
    {"Numero", kNumber, "numero"},
    {"DataEHora", kMoment, "data_e_hora"},
    {"Caixa", kNumber, "numero_do_caixa"},
    {"Operador", kText, "operador"},
    {"ValorBruto", kMoney, "valor_bruto"},
    {"Descontos", kMoney, "total_de_descontos"},
    {"ValorLiquido", kMoney, "valor_liquido"},
    {"Situacao", kText, "CASE WHEN situacao = {cancelada} THEN 'Cancelada' ELSE 'Efetuada' END"},
    {"ChaveSAT", kText, "chave_sat"},
    {"Pagamentos", kText, "''"},
    {"DescontoNosItens", kMoney, kDescontoNosItens},
    {"DescontoDaVenda", kMoney, kDescontoDaVenda},
};

constexpr Field kItems[] = {
    {"Codigo", kNumber, "codigo_do_item"},       {"Nome", kText, "nome_do_item"},
    {"Animal", kText, "nome_do_animal"},         {"Profissional", kText, "nome_do_funcionario"},
    {"Quantidade", kMoney, "quantidade"},        {"Unidade", kText, "unidade"},
    {"ValorUnitario", kMoney, "valor_unitario"}, {"Desconto", kMoney, "desconto_em_valor"},
    {"ValorTotal", kMoney, "valor_total"},
};

std::string SalesOfPeriod(const std::string& columns) {
  return "SELECT " + columns +
         " FROM vendas WHERE codigo_do_cliente = $1 AND data_e_hora >= $2 AND data_e_hora < $3"
         " ORDER BY numero DESC LIMIT 2001";
}

/// How the sales of a period were paid, by their numbers: one tender by its name, several with what
/// each came to.
std::map<std::int32_t, std::string> TendersOf(Session& session, const Params& period) {
  static const Statement select(
      SelecaoDosRecebimentos("SELECT numero FROM (" + SalesOfPeriod("numero") + ") v"));
  std::map<std::int32_t, std::string> texts;
  for (const auto& [sale, list] : LerRecebimentosDasVendas(session, select, period)) {
    std::string& text = texts[sale];
    for (const VendaRegistrada::Recebimento& each : list) {
      if (!text.empty()) text += " / ";
      text += servicos::pagamento::NomeDa(each.moeda);
      if (list.size() > 1) text += " " + base::FormatMoney(each.valor);
    }
  }
  return texts;
}

class clsHistorico : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t SelecionarVendas(double codigoDoCliente, base::DateTime de,
                                base::DateTime ate) override {
    return Numerado("SelecionarVendas", [&] {
      static const Statement select(ComCodigos(SalesOfPeriod(ColumnsOf(kSales))));
      const Params period{CodeIn(codigoDoCliente).value_or(0), de.Date(), ate.Date().PlusDays(1)};
      const auto tenders = TendersOf(sessao(), period);
      const Selected sales = SelectRows(sessao(), kSales, select, period, kMostSales,
                                        [&](std::vector<base::Value>& sale) {
                                          const auto found = tenders.find(base::ToInt32(sale[0]));
                                          if (found != tenders.end()) {
                                            sale[kTendersColumn] = found->second;
                                          }
                                        });
      outcome_.rows = sales.rows;
      if (sales.more) {
        outcome_.sentence =
            "Há mais vendas no período: só as 2.000 mais recentes estão na lista. Informe um "
            "período menor.";
      }
    });
  }

  std::int16_t SelecionarItens(std::int32_t numeroDaVenda) override {
    return Numerado("SelecionarItens", [&] {
      static const Statement select(
          "SELECT " + ColumnsOf(kItems) +
          " FROM itens_de_venda WHERE numero_da_venda = $1 ORDER BY item");
      outcome_.rows = SelectRows(sessao(), kItems, select, {numeroDaVenda}).rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsHistorico(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsHistorico>(banco);
}

}  // namespace services
