#include "frame/Valores.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_N_Caixa.clsServicosEProdutos.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;

std::int16_t frmCaixaOperar::PreencherGradeComServicosEfetuadosEProdutosReservados(double codigo) {
  Procedimento(*this, "PreencherGradeComServicosEfetuadosEProdutosReservados", [&](Ponto& ponto) {
    frame::Espera espera(painelDeMensagem_);
    auto preVenda = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsServicosEProdutos>();
    const std::int16_t resultado = preVenda->ServicosEfetuadosEProdutosReservados(codigo);
    espera.Ocultar();
    if (resultado != 0) {
      frame::ExibirErroDoServico(*preVenda);
      return;
    }
    ponto = 2;
    const base::RecordSetPtr itens = preVenda->ResultadoDaSelecaoEmRecordSet();
    const bool aindaEmAtendimento = caixaDoCliente_.CodigoDoCliente() == codigo;
    if (itens->RecordCount() == 0 || !aindaEmAtendimento) return;
    {
      const frame::SemRedesenho semRedesenho(msfgGrade);
      msfgGrade.Rows(itens->RecordCount() + 1);
      if (msfgGrade.Rows() > 1) msfgGrade.FixedRows(1);
      ponto = 3;
      std::int32_t linha = 1;
      base::ForEachRow(*itens, [&] {
        for (std::int32_t i = 0; i < msfgGrade.Cols(); ++i) {
          // The fields carry their own text; no format is applied here.
          msfgGrade.TextMatrix(
              linha, i,
              base::ToText(itens->Fields(servicos::linha::kCampos[static_cast<std::size_t>(i)])));
        }
        ++linha;
      });
    }
    ponto = 4;
    lblItensDaPreVenda.Visible = true;
    CalcularValoresDosItensDaGrade();
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(false);
  });
  return 0;
}

}  // namespace sale
