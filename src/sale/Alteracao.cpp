#include "base/Numbers.h"
#include "frame/Mensagens.h"
#include "frame/modRolagemComMouse.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;

void frmCaixaOperar::zvcmdAlterar_Click() {
  Procedimento(*this, " zvcmdAlterar_Click", [&](Ponto& ponto) {
    if (!GradeComItens()) {
      frame::Informar("Nenhum item para ser alterado da grade.");
      return;
    }
    ponto = 2;
    Registros_Alterar();
  });
}

std::int16_t frmCaixaOperar::Registros_Alterar() {
  std::int16_t resultado = 0;
  Procedimento(*this, "Registros_Alterar", [&](Ponto& ponto) {
    if (!GradeComItens()) return;
    const std::int32_t linha = msfgGrade.Row();
    const std::int32_t tipoDeVenda = TipoDeVendaDa(msfgGrade, linha);
    const auto tipoDeLancamento = base::ToInt16(TipoDeLancamentoDa(msfgGrade, linha));
    ponto = 2;
    if (tipoDeVenda == servicos::kPreVenda) {
      frame::Informar(
          "Este item refere-se a uma 'pré-venda' e não pode ser alterado diretamente no caixa.\nA "
          "alteração deste item somente é permitida na guia de 'pré-venda'.");
      return;
    }
    // The option stays changed also when the next test refuses.
    (tipoDeLancamento == kServico ? optServico : optProduto).Value = true;
    ponto = 3;
    if (EhClinicoOuCirurgico(msfgGrade, linha)) {
      frame::Informar(
          "Serviços clínicos e cirúrgicos somente podem ser alterados na ficha clínica pelo "
          "veterinário.");
      return;
    }
    ponto = 4;
    if (tipoDeLancamento == kServico) {
      PreencherComboboxTiposDeServicos(resultado);
      if (resultado == 1) return;
    }
    ponto = 5;
    item_.Devolver(msfgGrade, linha);
    ponto = 6;
    if (!PreencherComboboxComissionados(tipoDeLancamento)) {
      resultado = 1;
      return;
    }
    const std::string& funcionario = msfgGrade.TextMatrix(linha, kCodigoDoFuncionario);
    const std::int32_t comissionado =
        zvcmbComissionado.IndexOfData(base::ToInt32(base::Val(funcionario)));
    if (!funcionario.empty() && comissionado != -1) zvcmbComissionado.ListIndex = comissionado;
    ponto = 7;
    item_.DevolverValores(msfgGrade, linha);
    ponto = 8;
    frame::RetirarLinha(msfgGrade, linha);
    CalcularValoresDosItensDaGrade();
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(true);
  });
  return resultado;
}

void frmCaixaOperar::zvcmdRemover_Click() {
  Procedimento(*this, "zvcmdRemover_Click", [&](Ponto& ponto) {
    if (!GradeComItens()) {
      frame::Informar("Nenhum item para ser removido da grade.");
      return;
    }
    ponto = 2;
    const std::int32_t linha = msfgGrade.Row();
    const bool servico = TipoDeLancamentoDa(msfgGrade, linha) == kServico;
    if (TipoDeVendaDa(msfgGrade, linha) == servicos::kPreVenda) {
      frame::Informar(
          "Este item refere-se a uma 'pré-venda' e não pode ser removido diretamente no caixa.\nA "
          "remoção deste item somente é permitida na menu de 'pré-venda'.");
      return;
    }
    ponto = 3;
    if (EhClinicoOuCirurgico(msfgGrade, linha)) {
      frame::Informar(
          "Serviços clínicos e cirúrgicos somente podem ser removidos na ficha clínica pelo "
          "veterinário.");
      return;
    }
    ponto = 4;
    const std::string oQue = servico ? "serviço" : "produto";
    if (frame::Perguntar("Tem certeza que deseja remover o " + oQue + " '" +
                         msfgGrade.TextMatrix(linha, kNome) + "'?")) {
      frame::RetirarLinha(msfgGrade, linha);
      CalcularValoresDosItensDaGrade();
      return;
    }
    ponto = 5;
    // Of an only line the row past the last is asked for: the grid refuses, and the line stays.
    if (msfgGrade.Rows() == 2) msfgGrade.RemoveItem(msfgGrade.Rows());
  });
}

void frmCaixaOperar::msfgGrade_MouseDown(platform::MouseButton botao) {
  Procedimento(*this, "msfgGrade_MouseDown", [&](Ponto&) {
    if (botao != platform::MouseButton::kRight || msfgGrade.MouseRow() < 1) return;
    {
      const frame::SemRedesenho semRedesenho(msfgGrade);
      msfgGrade.highLight = 1;
      msfgGrade.Row(msfgGrade.MouseRow());
      msfgGrade.Col(0);
      msfgGrade.ColSel(msfgGrade.Cols() - 1);
    }
    mnuAlterarExcluir.PopUp(msfgGrade);
  });
}

void frmCaixaOperar::msfgGrade_DblClick() {
  Procedimento(*this, "msfgGrade_DblClick", [&](Ponto&) {
    if (msfgGrade.MouseRow() >= 1 && msfgGrade.MouseRow() <= msfgGrade.Rows()) Registros_Alterar();
  });
}

void frmCaixaOperar::msfgGrade_SelChange() {
  Procedimento(*this, "msfgGrade_SelChange",
               [&](Ponto&) { frame::SelecionarLinhaInteira(msfgGrade); });
}

void frmCaixaOperar::msfgGrade_KeyDown(platform::KeyStroke& tecla) {
  Procedimento(*this, "msfgGrade_KeyDown", [&](Ponto&) {
    if (!msfgGrade.Visible()) return;
    if (tecla.key == platform::Key::kEnter) Registros_Alterar();
    if (tecla.key == platform::Key::kDelete) zvcmdRemover_Click();
  });
}

void frmCaixaOperar::msfgGrade_GotFocus() {
  frame::AtivarRolagemComMouse(*this, msfgGrade);
}
void frmCaixaOperar::msfgGrade_LostFocus() {
  frame::DesativarRolagemComMouse();
}

}  // namespace sale
