#include "siblings/dados/clsOrcamentos.h"

#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/banco/Senhas.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/venda/CodigosNoSql.h"

namespace services {
namespace {

using Contrato = siblings::dados::clsOrcamentos;
using siblings::dados::Orcamento;
using enum Field::Kind;

constexpr std::int32_t kLongestValidity = 365;

constexpr Field kEstimates[] = {
    {"Numero", kNumber, "numero"},
    {"DataEHora", kMoment, "data_e_hora"},
    {"Animal", kText, "nome_do_animal"},
    {"ValorBruto", kMoney, "valor_bruto"},
    {"Desconto", kMoney, "desconto"},
    {"ValorTotal", kMoney, "valor_total"},
    {"Validade", kMoment, "validade"},
    {"Situacao", kText,
     "CASE WHEN cancelado_em IS NOT NULL THEN 'Cancelado' WHEN validade < $2 THEN 'Vencido'"
     " ELSE 'Válido' END"},
    {"Observacao", kText, "observacao"},
    {"IncluidoPor", kText, "incluido_por"},
};

constexpr Field kItems[] = {
    {"Item", kNumber, "item"},
    {"Tipo", kText, "CASE WHEN tipo_de_lancamento = {servico} THEN 'Serviço' ELSE 'Produto' END"},
    {"Codigo", kNumber, "codigo_do_item"},
    {"Nome", kText, "nome_do_item"},
    {"Quantidade", kMoney, "quantidade"},
    {"Unidade", kText, "unidade"},
    {"ValorUnitario", kMoney, "valor_unitario"},
    {"ValorTotal", kMoney, "valor_total"},
};

/// Throws the refusal of an estimate that makes no sense.
void Check(const Orcamento& estimate) {
  const auto refuse = [](const char* sentence) { throw Refusal{.sentence = sentence}; };
  if (estimate.itens.empty()) refuse("O orçamento está sem itens. Adicione um produto ou serviço.");
  for (const Orcamento::Item& item : estimate.itens) {
    if (item.quantidade <= base::Currency() || item.valorUnitario < base::Currency()) {
      throw Refusal{.sentence = "A quantidade ou o valor do item '" + item.nome +
                                "' não é válido. Remova o item e adicione-o de novo."};
    }
  }
  if (estimate.desconto < base::Currency() || estimate.desconto > estimate.ValorBruto()) {
    refuse("O desconto é maior que a soma dos itens. Informe um desconto menor.");
  }
  if (estimate.diasDeValidade < 1 || estimate.diasDeValidade > kLongestValidity) {
    refuse("A validade deve ser de 1 a 365 dias. Informe outra validade.");
  }
}

class clsOrcamentos : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t Selecionar(double codigoDoCliente) override {
    return Numerado("Selecionar", [&] {
      static const Statement select("SELECT " + ColumnsOf(kEstimates) +
                                    " FROM orcamentos WHERE codigo_do_cliente = $1"
                                    " ORDER BY numero DESC");
      outcome_.rows =
          SelectRows(sessao(), kEstimates, select,
                     {CodeIn(codigoDoCliente).value_or(0), Param::Date(banco().Agora())})
              .rows;
    });
  }

  std::int16_t SelecionarItens(std::int32_t numero) override {
    return Numerado("SelecionarItens", [&] {
      static const Statement select(
          ComCodigos("SELECT " + ColumnsOf(kItems) +
                     " FROM itens_de_orcamento WHERE numero_do_orcamento = $1 ORDER BY item"));
      outcome_.rows = SelectRows(sessao(), kItems, select, {numero}).rows;
    });
  }

  std::int16_t Registrar(const Orcamento& orcamento) override {
    return Numerado("Registrar", [&] {
      Check(orcamento);
      InTransaction(sessao(), [&](Transaction& transaction) {
        numero_ = Write(orcamento, transaction);
        WriteItems(orcamento);
      });
    });
  }

  std::int32_t Numero() override { return numero_; }

  std::int16_t Cancelar(std::int32_t numero, std::string_view operador) override {
    return Numerado("Cancelar", [&] {
      static const Statement cancel(
          "UPDATE orcamentos SET cancelado_em = $2, cancelado_por = $3 WHERE numero = $1"
          " AND cancelado_em IS NULL");
      InTransaction(sessao(), [&](Transaction&) {
        if (sessao().Run(cancel, {numero, banco().Agora(), operador}) > 0) return;
        throw Refusal{.sentence = "O orçamento " + std::to_string(numero) +
                                  " já está cancelado. Abra a lista de novo para ver como está."};
      });
    });
  }

 private:
  std::int32_t Write(const Orcamento& estimate, Transaction& transaction) {
    static const Statement insert(
        "INSERT INTO orcamentos (operacao, codigo_do_cliente, codigo_do_animal, nome_do_animal,"
        " data_e_hora, validade, valor_bruto, desconto, valor_total, observacao, incluido_por)"
        " VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, $10, $11) RETURNING numero");
    static const Statement proof("SELECT 1 FROM orcamentos WHERE numero = $1 AND operacao = $2");
    const auto operation = NumeroUnico();
    const base::DateTime now = banco().Agora();
    const base::Currency gross = estimate.ValorBruto();
    std::int32_t number = 0;
    sessao().Select(
        insert,
        {operation, CodeIn(estimate.codigoDoCliente).value_or(0), estimate.codigoDoAnimal,
         estimate.nomeDoAnimal, now, Param::Date(now.PlusDays(estimate.diasDeValidade)), gross,
         estimate.desconto, gross - estimate.desconto, estimate.observacao, estimate.operador},
        [&](const Row& row) { number = row.Number(0); });
    transaction.ProvedBy(proof, {number, operation});
    return number;
  }

  void WriteItems(const Orcamento& estimate) {
    static const Statement insert(
        "INSERT INTO itens_de_orcamento (numero_do_orcamento, item, tipo_de_lancamento,"
        " codigo_do_item, nome_do_item, unidade, quantidade, valor_unitario, valor_total)"
        " VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9)");
    std::int32_t at = 0;
    for (const Orcamento::Item& item : estimate.itens) {
      sessao().Run(insert, {numero_, ++at, item.tipoDeLancamento, item.codigo, item.nome,
                            item.unidade, item.quantidade, item.valorUnitario, item.ValorTotal()});
    }
  }

  std::int32_t numero_ = 0;
};

}  // namespace

ServicoNovo NovoClsOrcamentos(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsOrcamentos>(banco);
}

}  // namespace services
