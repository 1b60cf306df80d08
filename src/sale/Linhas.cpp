#include <algorithm>

#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;

void frmCaixaOperar::zvcmdAdicionar_Click() {
  Procedimento(", frmCaixaOperar, zvcmdAdicionar_Click, Ponto: ", [&](Ponto& ponto) {
    if (regras_.AcimaDoLimite(frame::LerCurrency(zvnumPercentualDeDescontoPorItem)) &&
        VerificaPercDeDescontoLimiteDaVendaNoCaixa() == 1) {
      frame::Informar(
          "Percentual de desconto não autorizado. - Favor comunicar o 'Administrador'.");
      zvnumPercentualTotalDeDesconto.SetFocus();
      return;
    }
    ponto = 2;
    if (ValidarCamposDaGrade() == 1) return;
    ponto = 3;
    const NovaLinha linha = item_.MontarLinha();
    ponto = 4;
    if (!ConfirmarRepetida(linha)) return;
    ponto = 5;
    if (VerificaDescMaximoAutomaticoDeVenda() == 1) return;
    ponto = 6;
    const bool primeira = !GradeComItens();
    msfgGrade.AddItem(linha.celulas);
    if (primeira) msfgGrade.RemoveItem(1);
    // A long sale scrolls on, so that the operator sees what was added.
    msfgGrade.TopRow(std::max(msfgGrade.Rows() - msfgGrade.RowsInView(), 1));
    ponto = 7;
    CalcularValoresDosItensDaGrade();
    ponto = 8;
    caixaDoCliente_.Habilitar(false);
    optServico.Enabled = zvcmbAnimal.ListCount() > 0;
    item_.Encerrar();
    if (item_.EhServico()) {
      zvcmbTiposDeServicos.SetFocus();
    } else {
      zvfCodigoDeBarrasDoProduto.SetFocus();
    }
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(false);
  });
}

bool frmCaixaOperar::ConfirmarRepetida(const NovaLinha& linha) {
  for (std::int32_t i = 1; i <= msfgGrade.Rows() - 1; ++i) {
    if (ChaveDaLinha(msfgGrade, i) != linha.chave) continue;
    if (!frame::Perguntar("Este item já consta em sua lista de itens de pré-venda.\nIncluí-lo mais "
                          "uma vez?")) {
      return false;
    }
  }
  return true;
}

void frmCaixaOperar::CalcularValoresDosItensDaGrade() {
  Procedimento(", frmCaixaOperar, CalcularValoresDosItensDaGrade, Ponto: ", [&](Ponto& ponto) {
    const SomaDasLinhas soma = SomarLinhas(msfgGrade);
    ponto = 2;
    totais_.Exibir(soma);
    zvnumPercentualTotalDeDesconto_LostFocus();
    ponto = 3;
    totais_.Apurar(soma);
  });
}

}  // namespace sale
