#include "frame/Valores.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;
using platform::ZVFind;

void frmCaixaOperar::optServico_Click() {
  Procedimento(", frmCaixaOperar, optServico_Click, Ponto: ", [&](Ponto& ponto) {
    for (ZVFind* campo :
         {&zvfCodigoDeBarrasDoProduto, &zvfNomeDoProduto, &zvfCodigoInternoDoProduto}) {
      campo->Visible = false;
      ItemEmEdicao::Esvaziar(*campo);
    }
    ponto = 2;
    lblTipoDeServicoOuCodigoDeBarrasDoProduto.Caption = "Tipo de serviço";
    lblNomeDoServicoOuNomeDoProduto.Caption = "Nome do serviço";
    lblNomeDoAnimalOuCodigoInternoDoProduto.Caption = "Nome do animal";
    lblCodigoDoServico.Visible = true;
    for (platform::Control* campo : {static_cast<platform::Control*>(&zvcmbTiposDeServicos),
                                     static_cast<platform::Control*>(&zvfNomeDoServico),
                                     static_cast<platform::Control*>(&zvfCodigoDoServico)}) {
      campo->Visible = true;
      campo->Enabled = true;
    }
    zvcmbAnimal.Visible = true;
    ponto = 3;
    // An only animal needs no choosing: it is chosen, and the list stays closed.
    if (zvcmbAnimal.ListCount() >= 2) zvcmbAnimal.Enabled = true;
    if (zvcmbAnimal.ListCount() == 1) zvcmbAnimal.ListIndex = 0;
    item_.ZerarValores("0");
  });
}

void frmCaixaOperar::optProduto_Click() {
  Procedimento(", frmCaixaOperar, optProduto_Click, Ponto: ", [&](Ponto& ponto) {
    zvcmbTiposDeServicos.Visible = false;
    zvfNomeDoServico.Visible = false;
    zvfCodigoDoServico.Visible = false;
    zvcmbAnimal.Visible = false;
    lblCodigoDoServico.Visible = false;
    zvcmbTiposDeServicos.ListIndex = -1;
    ItemEmEdicao::Esvaziar(zvfNomeDoServico);
    ItemEmEdicao::Esvaziar(zvfCodigoDoServico);
    zvcmbAnimal.ListIndex = -1;
    ponto = 2;
    lblTipoDeServicoOuCodigoDeBarrasDoProduto.Caption = "Codigo de barras do produto";
    lblNomeDoServicoOuNomeDoProduto.Caption = "Nome do produto";
    lblNomeDoAnimalOuCodigoInternoDoProduto.Caption = "Código interno do produto";
    for (ZVFind* campo :
         {&zvfCodigoDeBarrasDoProduto, &zvfNomeDoProduto, &zvfCodigoInternoDoProduto}) {
      campo->Visible = true;
      campo->Enabled = true;
    }
    ponto = 3;
    item_.ZerarValores("0,000");
  });
}

void frmCaixaOperar::zvcmbTiposDeServicos_Click() {
  Procedimento(", frmCaixaOperar, zvcmbTiposDeServicos_Click, Ponto: ", [&](Ponto& ponto) {
    if (frame::TomarSupressaoDePesquisa()) return;
    item_.ZerarValores("1");
    ItemEmEdicao::Esvaziar(zvfCodigoDoServico);
    ItemEmEdicao::Esvaziar(zvfNomeDoServico);
    ponto = 2;
    if (PreencherComboboxComissionados(kServico)) HabilitarDesabilitarCampos(true);
  });
}

void frmCaixaOperar::zvfCodigoDeBarrasDoProduto_KeyDown() {
  item_.EsvaziarCompanheiros(zvfCodigoDeBarrasDoProduto);
}
void frmCaixaOperar::zvfCodigoInternoDoProduto_KeyDown() {
  item_.EsvaziarCompanheiros(zvfCodigoInternoDoProduto);
}
void frmCaixaOperar::zvfNomeDoProduto_KeyDown() {
  item_.EsvaziarCompanheiros(zvfNomeDoProduto);
}
void frmCaixaOperar::zvfCodigoDoServico_KeyDown() {
  item_.EsvaziarCompanheiros(zvfCodigoDoServico);
}
void frmCaixaOperar::zvfNomeDServico_KeyDown() {
  item_.EsvaziarCompanheiros(zvfNomeDoServico);
}

void frmCaixaOperar::zvfCodigoInternoDoProduto_Click() {
  Procedimento(", frmCaixaOperar, zvfCodigoInternoDoProduto_Click, Ponto: ",
               [&](Ponto&) { PesquisarOuLimparItem(zvfCodigoInternoDoProduto); });
}
void frmCaixaOperar::zvfNomeDoProduto_Click() {
  Procedimento(", frmCaixaOperar, zvfNomeDoProduto_Click, Ponto: ",
               [&](Ponto&) { PesquisarOuLimparItem(zvfNomeDoProduto); });
}
void frmCaixaOperar::zvfCodigoDoServico_Click() {
  Procedimento(", frmCaixaOperar, zvfCodigoDoServico_Click, Ponto: ",
               [&](Ponto&) { PesquisarOuLimparItem(zvfCodigoDoServico); });
}
void frmCaixaOperar::zvfNomeDoServico_Click() {
  Procedimento(", frmCaixaOperar, zvfNomeDoServico_Click, Ponto: ",
               [&](Ponto&) { PesquisarOuLimparItem(zvfNomeDoServico); });
}

void frmCaixaOperar::RecomecarItem(ZVFind& campo) {
  for (ZVFind* outro : item_.Companheiros(campo)) {
    ItemEmEdicao::Esvaziar(*outro);
    outro->Enabled = true;
  }
  LimparCamposDeQuantidadeEValoresDoItemDaVenda();
  HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(false);
}

void frmCaixaOperar::VoltarAoCampo(ZVFind& campo) {
  RecomecarItem(campo);
  campo.Enabled = true;
  campo.SetFocus();
}

}  // namespace sale
