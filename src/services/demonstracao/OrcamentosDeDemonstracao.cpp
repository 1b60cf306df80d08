#include "frame/servicos/Codigos.h"
#include "services/banco/Preenchimento.h"
#include "services/demonstracao/ClinicaDeDemonstracao.h"

namespace services::demonstracao {
namespace {

using enum servicos::TipoDeLancamento;

/// A line by the kind and code of its item; its price is the item's own.
struct Line {
  std::int32_t kind = 0, item = 0, quantity = 0;
};

struct Estimate {
  std::int32_t customer = 0, daysAgo = 0, validity = 0, discountPercent = 0;
  bool cancelled = false;
  std::string_view note;
  Line lines[3];
};

constexpr Estimate kEstimates[] = {
    {2, 40, 15, 0, false, "Retorno incluído.", {{kServico, 1, 1}, {kServico, 5, 1}, {}}},
    {2, 10, 30, 0, true, "O tutor preferiu outra data.", {{kServico, 18, 1}, {kServico, 1, 1}, {}}},
    {2,
     2,
     15,
     10,
     false,
     "Exames não incluídos.",
     {{kServico, 1, 1}, {kServico, 18, 1}, {kProduto, 3, 2}}},
};

struct Item {
  std::string name, unit;
  std::int64_t price = 0;
};

Item ItemOf(Session& session, const Line& line) {
  static const Statement service("SELECT nome, '', valor_de_venda FROM servicos WHERE codigo = $1");
  static const Statement product(
      "SELECT nome, unidade_de_venda, valor_de_venda FROM produtos WHERE codigo_interno = $1");
  Item item;
  session.Select(line.kind == kServico ? service : product, {line.item}, [&](const Row& row) {
    item = {row.Text(0), row.Text(1), row.Integer(2)};
  });
  return item;
}

}  // namespace

void EscreverOrcamentos(Session& session, base::DateTime agora) {
  static const Statement firstAnimal(
      "SELECT codigo, nome FROM animais WHERE codigo_do_cliente = $1 ORDER BY codigo LIMIT 1");
  constexpr std::int64_t kScale = base::Currency::kScale;
  std::vector<Params> estimates;
  std::vector<Params> items;
  for (const Estimate& estimate : kEstimates) {
    const auto number = static_cast<std::int32_t>(estimates.size()) + 1;
    std::int64_t gross = 0;
    std::int32_t at = 0;
    for (const Line& line : estimate.lines) {
      if (line.kind == 0) continue;
      const Item item = ItemOf(session, line);
      const std::int64_t total = item.price * line.quantity;
      gross += total;
      items.push_back({number, ++at, line.kind, line.item, item.name, item.unit,
                       line.quantity * kScale, item.price, total});
    }
    constexpr std::int64_t kCentavo = kScale / 100;
    const std::int64_t discount = gross * estimate.discountPercent / 100 / kCentavo * kCentavo;
    const base::DateTime when = agora.PlusDays(-estimate.daysAgo);
    Params animal;
    session.Select(firstAnimal, {estimate.customer}, [&](const Row& row) {
      animal = {row.Integer(0), row.Text(1)};
    });
    estimates.push_back({number, number, estimate.customer, animal[0], animal[1], when,
                         Param::Date(when.PlusDays(estimate.validity)), gross, discount,
                         gross - discount, estimate.note, "marina",
                         estimate.cancelled ? Param(when.PlusDays(1)) : Param(),
                         estimate.cancelled ? Param("renata") : Param()});
  }
  InsertRows(session, "orcamentos",
             "numero, operacao, codigo_do_cliente, codigo_do_animal, nome_do_animal, data_e_hora,"
             " validade, valor_bruto, desconto, valor_total, observacao, incluido_por,"
             " cancelado_em, cancelado_por",
             estimates);
  InsertRows(session, "itens_de_orcamento",
             "numero_do_orcamento, item, tipo_de_lancamento, codigo_do_item, nome_do_item,"
             " unidade, quantidade, valor_unitario, valor_total",
             items);
  ContinueKeys(session, "orcamentos", "numero");
}

}  // namespace services::demonstracao
