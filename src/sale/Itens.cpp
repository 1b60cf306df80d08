#include "frame/Valores.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;
using platform::ZVFind;

void frmCaixaOperar::optServico_Click() {
  Procedimento(*this, "optServico_Click", [&](Ponto& ponto) {
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
    // A customer with one animal needs no choosing: it is chosen, and the list stays closed.
    if (zvcmbAnimal.ListCount() >= 2) zvcmbAnimal.Enabled = true;
    if (zvcmbAnimal.ListCount() == 1) zvcmbAnimal.ListIndex = 0;
    item_.ZerarValores("0");
  });
}

void frmCaixaOperar::optProduto_Click() {
  Procedimento(*this, "optProduto_Click", [&](Ponto& ponto) {
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
  Procedimento(*this, "zvcmbTiposDeServicos_Click", [&](Ponto& ponto) {
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
  Procedimento(*this, "zvfCodigoInternoDoProduto_Click",
               [&](Ponto&) { PesquisarOuLimparItem(zvfCodigoInternoDoProduto); });
}
void frmCaixaOperar::zvfNomeDoProduto_Click() {
  Procedimento(*this, "zvfNomeDoProduto_Click",
               [&](Ponto&) { PesquisarOuLimparItem(zvfNomeDoProduto); });
}
void frmCaixaOperar::zvfCodigoDoServico_Click() {
  Procedimento(*this, "zvfCodigoDoServico_Click",
               [&](Ponto&) { PesquisarOuLimparItem(zvfCodigoDoServico); });
}
void frmCaixaOperar::zvfNomeDoServico_Click() {
  Procedimento(*this, "zvfNomeDoServico_Click",
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
