#include "base/Text.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::kZeroEmDinheiro;
using frame::Ponto;
using frame::Procedimento;
using platform::ZVFind;

namespace {

void Esvaziar(ZVFind& campo) {
  campo.Status = ZVFind::kEmpty;
  campo.Text = "";
}

}  // namespace

void frmCaixaOperar::optServico_Click() {
  Procedimento(", frmCaixaOperar, optServico_Click, Ponto: ", [&](Ponto& ponto) {
    for (ZVFind* campo :
         {&zvfCodigoDeBarrasDoProduto, &zvfNomeDoProduto, &zvfCodigoInternoDoProduto}) {
      campo->Visible = false;
      Esvaziar(*campo);
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
    zvnumQuantidade.Text = "0";
    zvnumValorUnitario.Text = std::string(kZeroEmDinheiro);
    zvnumPercentualDeDescontoPorItem.Text = std::string(kZeroEmDinheiro);
    zvnumValorDeDescontoPorItem.Text = std::string(kZeroEmDinheiro);
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
    Esvaziar(zvfNomeDoServico);
    Esvaziar(zvfCodigoDoServico);
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
    zvnumQuantidade.Text = "0,000";
    zvnumValorUnitario.Text = std::string(kZeroEmDinheiro);
    zvnumPercentualDeDescontoPorItem.Text = std::string(kZeroEmDinheiro);
    zvnumValorDeDescontoPorItem.Text = std::string(kZeroEmDinheiro);
  });
}

void frmCaixaOperar::zvcmbTiposDeServicos_Click() {
  Procedimento(", frmCaixaOperar, zvcmbTiposDeServicos_Click, Ponto: ", [&](Ponto& ponto) {
    if (frame::TomarSupressaoDePesquisa()) return;
    zvnumQuantidade.Text = "1";
    zvnumValorUnitario.Text = std::string(kZeroEmDinheiro);
    zvnumPercentualDeDescontoPorItem.Text = std::string(kZeroEmDinheiro);
    zvnumValorDeDescontoPorItem.Text = std::string(kZeroEmDinheiro);
    Esvaziar(zvfCodigoDoServico);
    Esvaziar(zvfNomeDoServico);
    ponto = 2;
    if (PreencherComboboxComissionados(kServico)) HabilitarDesabilitarCampos(true);
  });
}

std::vector<ZVFind*> frmCaixaOperar::Companheiros(const ZVFind& campo) {
  const bool deServico = &campo == &zvfCodigoDoServico || &campo == &zvfNomeDoServico;
  const std::vector<ZVFind*> todos =
      deServico ? std::vector<ZVFind*>{&zvfCodigoDoServico, &zvfNomeDoServico}
                : std::vector<ZVFind*>{&zvfCodigoDeBarrasDoProduto, &zvfNomeDoProduto,
                                       &zvfCodigoInternoDoProduto};
  std::vector<ZVFind*> outros;
  for (ZVFind* cada : todos) {
    if (cada != &campo) outros.push_back(cada);
  }
  return outros;
}

void frmCaixaOperar::EsvaziarCompanheiros(const ZVFind& campo) {
  if (frame::TomarSupressaoDePesquisa()) return;
  // What the others last found goes: a line must never mix two items.
  for (ZVFind* outro : Companheiros(campo)) outro->Text = "";
}

void frmCaixaOperar::zvfCodigoDeBarrasDoProduto_KeyDown() {
  EsvaziarCompanheiros(zvfCodigoDeBarrasDoProduto);
}
void frmCaixaOperar::zvfCodigoInternoDoProduto_KeyDown() {
  EsvaziarCompanheiros(zvfCodigoInternoDoProduto);
}
void frmCaixaOperar::zvfNomeDoProduto_KeyDown() {
  EsvaziarCompanheiros(zvfNomeDoProduto);
}
void frmCaixaOperar::zvfCodigoDoServico_KeyDown() {
  EsvaziarCompanheiros(zvfCodigoDoServico);
}
void frmCaixaOperar::zvfNomeDServico_KeyDown() {
  EsvaziarCompanheiros(zvfNomeDoServico);
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
  for (ZVFind* outro : Companheiros(campo)) {
    Esvaziar(*outro);
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

// One routine for the four fields of names and codes: a search, or a clear, by the field's status.
void frmCaixaOperar::PesquisarOuLimparItem(ZVFind& campo) {
  const bool deServico = &campo == &zvfCodigoDoServico || &campo == &zvfNomeDoServico;
  if (campo.Status() == ZVFind::kEmpty) {
    VoltarAoCampo(campo);
    return;
  }
  if (campo.Status() != ZVFind::kTyped) return;
  if (deServico && zvcmbTiposDeServicos.ListIndex() == -1) {
    frame::Informar("Selecione o tipo de serviço.");
    zvcmbTiposDeServicos.SetFocus();
    return;
  }
  if (lookup::PesquisaCurtaDemais(campo)) return;
  for (ZVFind* outro : Companheiros(campo)) outro->Text = "";
  const bool encontrado = deServico ? ProcurarServicoDosCampos() : ProcurarProdutoDosCampos();
  if (SemCliente()) return;
  if (!encontrado) {
    RecomecarItem(campo);
    campo.Status = ZVFind::kFound;
    return;
  }
  if (!deServico) AbrirCamposDoProdutoEncontrado();
}

}  // namespace sale
