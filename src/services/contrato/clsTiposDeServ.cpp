#include "frame/servicos/ZOVA_N_TipoDeServ.clsTiposDeServ.h"
#include "services/banco/Fields.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_TipoDeServ::clsTiposDeServ;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"Numero", kNumber, "numero"},
    {"Nome", kText, "nome"},
};

class clsTiposDeServ : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t SelecionarParaComboBox(double&) override {
    return Numerado("SelecionarParaComboBox", [this] {
      static const Statement all("SELECT " + ColumnsOf(kFields) +
                                 " FROM tipos_de_servico ORDER BY numero");
      outcome_.rows = SelectRows(sessao(), kFields, all, {}).rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsTiposDeServ(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsTiposDeServ>(banco);
}

}  // namespace services
