#pragma once

#include "platform/CheckBox.h"
#include "platform/Form.h"
#include "platform/ImageList.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/Menu.h"
#include "platform/OptionButton.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/Toolbar.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVFind.h"
#include "platform/ZVNumberBox.h"

namespace gallery {

/// A screen that fills the host's container as a sale counter does: strip, toolbar, fields, grid,
/// amounts and a wait panel, with example contents and no rules.
class Counter : public platform::Form {
 public:
  Counter();

  platform::PictureBox picTitulo{*this, "picTitulo"};
  platform::Label lblCaixa{picTitulo, "lblCaixa"};
  platform::Label lblNomeDoCaixa{picTitulo, "lblNomeDoCaixa"};
  platform::ZVComboBox zvcmbCaixas{picTitulo, "zvcmbCaixas"};
  platform::Label lblEstado{picTitulo, "lblEstado"};
  platform::Toolbar tbMenu{picTitulo, "tbMenu"};

  platform::PictureBox picCliente{*this, "picCliente"};
  platform::Label lblFicha{picCliente, "lblFicha"};
  platform::ZVFind zvfFicha{picCliente, "zvfFicha"};
  platform::Label lblCliente{picCliente, "lblCliente"};
  platform::ZVFind zvfCliente{picCliente, "zvfCliente"};
  platform::Label lblNome{picCliente, "lblNome"};
  platform::ZVFind zvfNome{picCliente, "zvfNome"};

  platform::PictureBox picItem{*this, "picItem"};
  platform::OptionButton optServico{picItem, "optServico"};
  platform::OptionButton optProduto{picItem, "optProduto"};
  platform::Label lblCodigo{picItem, "lblCodigo"};
  platform::ZVFind zvfCodigo{picItem, "zvfCodigo"};
  platform::Label lblComissionado{picItem, "lblComissionado"};
  platform::ZVComboBox zvcmbComissionado{picItem, "zvcmbComissionado"};
  platform::Label lblQuantidade{picItem, "lblQuantidade"};
  platform::ZVNumberBox zvnumQuantidade{picItem, "zvnumQuantidade"};
  platform::Label lblValor{picItem, "lblValor"};
  platform::ZVNumberBox zvnumValor{picItem, "zvnumValor"};
  platform::CheckBox chkEntrega{picItem, "chkEntrega"};
  platform::ZVCommandButton zvcmdAdicionar{picItem, "zvcmdAdicionar"};
  platform::ZVCommandButton zvcmdAlterar{picItem, "zvcmdAlterar"};
  platform::ZVCommandButton zvcmdRemover{picItem, "zvcmdRemover"};

  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
  platform::Label lblSubtotal{*this, "lblSubtotal"};
  platform::ZVNumberBox zvnumSubtotal{*this, "zvnumSubtotal"};
  platform::Label lblDica{*this, "lblDica"};
  platform::PictureBox picLiquido{*this, "picLiquido"};
  platform::Label lblLiquido{picLiquido, "lblLiquido"};
  platform::ZVNumberBox zvnumLiquido{picLiquido, "zvnumLiquido"};
  platform::ZVCommandButton zvcmdPagamento{*this, "zvcmdPagamento"};
  platform::ZVCommandButton zvcmdLimpar{*this, "zvcmdLimpar"};

  platform::PictureBox picMensagem{*this, "picMensagem"};
  platform::Label lblMensagem{picMensagem, "lblMensagem"};
  platform::ImageList ilImagens{*this, "ilImagens", {"menu_caixa_Abertura"}};

  platform::MenuItem mnuProdutos{*this, "mnuProdutos", "Produtos"};
  platform::MenuItem mnuServicos{*this, "mnuServicos", "Serviços"};
  platform::Menu mnuPrecos{*this, "mnuPrecos", {&mnuProdutos, &mnuServicos}};

  /// Fills fields and grid; with `lines` lines in the grid.
  void Fill(int lines);

 private:
  void FillToolbar();
};

}  // namespace gallery
