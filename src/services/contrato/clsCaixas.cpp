#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "services/banco/Fields.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/venda/CodigosNoSql.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Caixas::clsCaixas;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"Numero", kNumber, "numero"},
    {"LocalDeAtendimento", kText, "local_de_atendimento"},
    {"Status", kNumber,
     "CASE WHEN ativo = 0 THEN {foraDeOperacao} WHEN aberto = 1 THEN {aberto} ELSE {fechado} END"},
};

class clsCaixas : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t SelecionarParaComboBox() override {
    return Numerado("SelecionarParaComboBox", [this] {
      static const Statement all(
          ComCodigos("SELECT " + ColumnsOf(kFields) + " FROM caixas ORDER BY numero"));
      outcome_.rows = SelectRows(sessao(), kFields, all, {}).rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsCaixas(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsCaixas>(banco);
}

}  // namespace services
