#include "frame/servicos/Debito.h"
#include "frame/servicos/ZOVA_N_Caixa.clsDebitosVencCliente.h"
#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Caixa::clsDebitosVencCliente;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"NumeroDoLancamento", kNumber, "numero"},
    {"DataDeVencimento", kMoment, "data_de_vencimento"},
    {"ValorDoDocumento", kMoney, "valor_do_documento"},
};

class clsDebitosVencCliente : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t Selecionar(std::int16_t, std::string_view condicao) override {
    return Numerado("Selecionar", [&] {
      static const Statement overdue(
          "SELECT " + ColumnsOf(kFields) +
          " FROM contas_a_receber WHERE codigo_do_cliente = $1 AND data_de_recebimento IS NULL"
          " AND data_de_vencimento < $2 ORDER BY data_de_vencimento, numero LIMIT 200");
      const std::int32_t codigo = CodeInCondition(condicao, servicos::debito::kColunaDoCliente);
      const Params params{codigo, Param::Date(banco().Agora())};
      outcome_.rows = SelectRows(sessao(), kFields, overdue, params).rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsDebitosVencCliente(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsDebitosVencCliente>(banco);
}

}  // namespace services
