#include "frame/servicos/ZOVA_N_Empresa.clsEmpresa.h"
#include "services/contrato/CamposDaEmpresa.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Empresa::clsEmpresa;

class clsEmpresa : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t Selecionar(std::int32_t, std::int32_t) override {
    return Numerado("Selecionar", [this] {
      static const Statement one("SELECT " + ColumnsOf(kCamposDaEmpresa) +
                                 " FROM empresa ORDER BY codigo LIMIT 1");
      outcome_.rows = SelectRows(sessao(), kCamposDaEmpresa, one, {}).rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsEmpresa(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsEmpresa>(banco);
}

}  // namespace services
