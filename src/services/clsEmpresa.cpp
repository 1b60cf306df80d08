#include "frame/servicos/ZOVA_N_Empresa.clsEmpresa.h"
#include "services/Fabricas.h"
#include "services/Fields.h"
#include "services/SobreBanco.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Empresa::clsEmpresa;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"NomeFantasia", kText, "nome_fantasia"},
    {"FormatoDeCodigoDeBarrasParaBalanca", kText, "formato_de_codigo_de_barras_para_balanca"},
    {"DataInicialDaPromocao", kMoment, "data_inicial_da_promocao"},
    {"DataFinalDaPromocao", kMoment, "data_final_da_promocao"},
    {"PercPromocaoDeDescontoNaVendaDeServico", kMoney, "perc_promocao_servico"},
    {"PercPromocaoDeDescontoNaVendaDeProduto", kMoney, "perc_promocao_produto"},
    {"DataInicialDoDesctoMaxAutomatico", kMoment, "data_inicial_do_desconto_maximo"},
    {"DataFinalDoDesctoMaxAutomatico", kMoment, "data_final_do_desconto_maximo"},
    {"PercDeDescMaxAutNaVendaDeServico", kMoney, "perc_desconto_maximo_servico"},
    {"PercDeDescMaxAutNaVendaDeProduto", kMoney, "perc_desconto_maximo_produto"},
    {"PercDeDescontoLimiteDaVendaNoCaixa", kMoney, "perc_desconto_limite"},
    {"ImprimirComprovanteDePagamento", kYesNo, "imprimir_comprovante"},
    {"SolicitarConfirmacaoParaImprimirComprovanteDePagamento", kYesNo, "confirmar_comprovante"},
    {"VisualizarImpressaoDoComprovanteDePagamento", kYesNo, "visualizar_comprovante"},
    {"ImprimirNotaPromissoria", kYesNo, "imprimir_nota_promissoria"},
    {"SolicitarConfirmacaoParaImprimirNotaPromissoria", kYesNo, "confirmar_nota_promissoria"},
    {"VisualizarImpressaoDaNotaPromissoria", kYesNo, "visualizar_nota_promissoria"},
    {"ImprimirComprovanteDeCFeSAT", kYesNo, "imprimir_cfe_sat"},
    {"SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT", kYesNo, "confirmar_cfe_sat"},
    {"ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT", kYesNo,
     "vender_mesmo_com_falha_no_cfe_sat"},
};

class clsEmpresa : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t Selecionar(std::int32_t, std::int32_t) override {
    return Numerado("Selecionar", [this] {
      static const Statement one("SELECT " + ColumnsOf(kFields) +
                                 " FROM empresa ORDER BY codigo LIMIT 1");
      outcome_.rows = SelectRows(sessao(), kFields, one, {}).rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsEmpresa(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsEmpresa>(banco);
}

}  // namespace services
