#include "frame/servicos/ZOVA_N_ClientAnim.clsAnimais.h"
#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_ClientAnim::clsAnimais;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"Nome", kText, "nome"},
    {"Codigo", kNumber, "codigo"},
};

class clsAnimais : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t SelecionarParaComboBoxFiltradoPorCliente(double& codigo, std::int16_t) override {
    return Numerado("SelecionarParaComboBoxFiltradoPorCliente", [&] {
      static const Statement ofCustomer("SELECT " + ColumnsOf(kFields) +
                                        " FROM animais WHERE codigo_do_cliente = $1 AND ativo = 1"
                                        " ORDER BY nome, codigo");
      outcome_.rows = SelectRows(sessao(), kFields, ofCustomer, {CodeIn(codigo).value_or(0)}).rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsAnimais(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsAnimais>(banco);
}

}  // namespace services
