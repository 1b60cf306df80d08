#include "base/Text.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/modRolagemComMouse.h"
#include "platform/Desktop.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using base::FormatMoney;
using frame::Ponto;
using frame::Procedimento;
using platform::ZVFind;

namespace {

void Selecionar(platform::ZVComboBox& lista, const std::string& dado) {
  const std::int32_t indice = lista.IndexOfData(base::ToInt32(base::Val(dado)));
  if (indice != -1) lista.ListIndex = indice;
}

std::string ComSinalTrocado(const std::string& texto) {
  return FormatMoney(base::ToDouble(texto) * -1.0);
}

}  // namespace

void frmCaixaOperar::zvcmdAlterar_Click() {
  Procedimento(", frmCaixaOperar,  zvcmdAlterar_Click, Ponto: ", [&](Ponto& ponto) {
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
  Procedimento(", frmCaixaOperar, Registros_Alterar, Ponto: ", [&](Ponto& ponto) {
    if (!GradeComItens()) return;
    const std::int32_t linha = msfgGrade.Row();
    const std::int32_t tipoDeVenda = TipoDeVendaDa(msfgGrade, linha);
    const auto tipoDeLancamento = base::ToInt16(TipoDeLancamentoDa(msfgGrade, linha));
    ponto = 2;
    if (tipoDeVenda == kPreVenda) {
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
    DevolverAosCampos(tipoDeLancamento);
    ponto = 6;
    if (!PreencherComboboxComissionados(tipoDeLancamento)) {
      resultado = 1;
      return;
    }
    const std::string& funcionario = msfgGrade.TextMatrix(linha, kCodigoDoFuncionario);
    if (!funcionario.empty()) Selecionar(zvcmbComissionado, funcionario);
    ponto = 7;
    zvnumQuantidade.Text = msfgGrade.TextMatrix(linha, kQuantidade);
    zvnumValorUnitario.Text = msfgGrade.TextMatrix(linha, kValorUnitario);
    zvnumPercentualDeDescontoPorItem.Text =
        ComSinalTrocado(msfgGrade.TextMatrix(linha, kDescontoEmPercentual));
    zvnumValorDeDescontoPorItem.Text =
        ComSinalTrocado(msfgGrade.TextMatrix(linha, kDescontoEmValor));
    NumeroDoLancamentoDoItem =
        base::ToInt32(base::Val(msfgGrade.TextMatrix(linha, kNumeroDeLancamento)));
    ponto = 8;
    frame::RetirarLinha(msfgGrade, linha);
    CalcularValoresDosItensDaGrade();
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(true);
  });
  return resultado;
}

void frmCaixaOperar::DevolverAosCampos(std::int16_t tipoDeLancamento) {
  frame::SupressaoDePesquisa supressao;
  const std::int32_t linha = msfgGrade.Row();
  const auto celula = [&](Coluna coluna) { return msfgGrade.TextMatrix(linha, coluna); };
  const auto preencher = [](ZVFind& campo, const std::string& texto) {
    campo.Status = ZVFind::kFound;
    campo.Text = texto;
  };
  if (tipoDeLancamento == kProduto) {
    preencher(zvfCodigoDeBarrasDoProduto, celula(kTipoOuCodigoDeBarras));
    preencher(zvfCodigoInternoDoProduto, celula(kCodigo));
    preencher(zvfNomeDoProduto, celula(kNome));
    PercentualDeComissaoDoProduto = base::ToCurrency(celula(kPercentualDeComissao));
    zvfNomeDoProduto.Tag = celula(kCusto);
    UnidadeDeVendaDoProduto = celula(kUnidade);
    return;
  }
  Selecionar(zvcmbTiposDeServicos, celula(kTipoOuCodigoDeBarras));
  preencher(zvfCodigoDoServico, celula(kCodigo));
  preencher(zvfNomeDoServico, celula(kNome));
  zvfNomeDoServico.Tag = celula(kCusto);
  Selecionar(zvcmbAnimal, celula(kCodigoDoAnimal));
}

void frmCaixaOperar::zvcmdRemover_Click() {
  Procedimento(", frmCaixaOperar, zvcmdRemover_Click, Ponto: ", [&](Ponto& ponto) {
    if (!GradeComItens()) {
      frame::Informar("Nenhum item para ser removido da grade.");
      return;
    }
    ponto = 2;
    const std::int32_t linha = msfgGrade.Row();
    const bool servico = TipoDeLancamentoDa(msfgGrade, linha) == kServico;
    if (TipoDeVendaDa(msfgGrade, linha) == kPreVenda) {
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
  Procedimento(", frmCaixaOperar, msfgGrade_MouseDown, Ponto: ", [&](Ponto&) {
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
  Procedimento(", frmCaixaOperar, msfgGrade_DblClick, Ponto: ", [&](Ponto&) {
    if (msfgGrade.MouseRow() >= 1 && msfgGrade.MouseRow() <= msfgGrade.Rows()) Registros_Alterar();
  });
}

void frmCaixaOperar::msfgGrade_SelChange() {
  Procedimento(", frmCaixaOperar, msfgGrade_SelChange, Ponto: ",
               [&](Ponto&) { frame::SelecionarLinhaInteira(msfgGrade); });
}

void frmCaixaOperar::msfgGrade_KeyDown(platform::KeyStroke& tecla) {
  Procedimento(", frmCaixaOperar, msfgGrade_KeyDown, Ponto: ", [&](Ponto&) {
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
