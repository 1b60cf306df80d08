#include "frame/servicos/ZOVA_N_Funcionarios.clsFuncionarios.h"
#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Funcionarios::clsFuncionarios;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"Codigo", kNumber, "codigo"},
    {"Apelido", kText, "apelido"},
    {"Comissionado", kYesNo, "comissionado"},
    {"ComissaoUnica", kYesNo, "comissao_unica"},
    {"PercentualDeComissaoUnica", kMoney, "comissao_unica_perc"},
    {"PercentualDeComissaoEmClinicos", kMoney, "comissao_clinicos"},
    {"PercentualDeComissaoEmCirurgiaSimples", kMoney, "comissao_cirurgia_simples"},
    {"PercentualDeComissaoEmCirurgiaMedia", kMoney, "comissao_cirurgia_media"},
    {"PercentualDeComissaoEmCirurgiaComplexa", kMoney, "comissao_cirurgia_complexa"},
    {"PercentualDeComissaoEmBanhosTosasEEsteticas", kMoney, "comissao_banhos"},
    {"PercentualDeComissaoEmHospedagens", kMoney, "comissao_hospedagens"},
    {"PercentualDeComissaoEmAdestramentos", kMoney, "comissao_adestramentos"},
    {"PercentualDeComissaoEmOutros", kMoney, "comissao_outros"},
};

class clsFuncionarios : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  bool Selecionar(std::int32_t, std::int16_t, std::int32_t, std::string_view, std::string_view,
                  double& codigo) override {
    return ComFalha("Selecionar", [&] {
      static const Statement all("SELECT " + ColumnsOf(kFields) +
                                 " FROM funcionarios ORDER BY apelido, codigo");
      static const Statement one("SELECT " + ColumnsOf(kFields) +
                                 " FROM funcionarios WHERE codigo = $1");
      outcome_.rows = codigo == 0
                          ? SelectRows(sessao(), kFields, all, {}).rows
                          : SelectRows(sessao(), kFields, one, {CodeIn(codigo).value_or(0)}).rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsFuncionarios(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsFuncionarios>(banco);
}

}  // namespace services
