#pragma once

#include <cstdint>
#include <optional>

#include "frame/Lista.h"
#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/OptionButton.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVFind.h"
#include "platform/ZVNumberBox.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"
#include "siblings/Sessao.h"
#include "siblings/dados/clsOrcamentos.h"
#include "siblings/frmOrcamentos.h"

namespace siblings {

/// A new estimate: services and products line by line, a discount, and for how long it is good.
class frmOrcamento final : public platform::Form {
 public:
  frmOrcamento(const Cliente& cliente, const Animal& animal);

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblCliente{*this, "lblCliente"};
  platform::PictureBox picItem{*this, "picItem"};
  platform::OptionButton optServico{picItem, "optServico"};
  platform::OptionButton optProduto{picItem, "optProduto"};
  platform::Label lblItem{picItem, "lblItem"};
  platform::ZVFind zvfItem{picItem, "zvfItem"};
  platform::Label lblQuantidade{picItem, "lblQuantidade"};
  platform::ZVNumberBox zvnumQuantidade{picItem, "zvnumQuantidade"};
  platform::Label lblValorUnitario{picItem, "lblValorUnitario"};
  platform::ZVNumberBox zvnumValorUnitario{picItem, "zvnumValorUnitario"};
  platform::ZVCommandButton zvcmdAdicionar{picItem, "zvcmdAdicionar"};
  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
  platform::ZVCommandButton zvcmdRemover{*this, "zvcmdRemover"};
  platform::Label lblObservacao{*this, "lblObservacao"};
  platform::ZVTextBox zvtxtObservacao{*this, "zvtxtObservacao"};
  platform::Label lblDiasDeValidade{*this, "lblDiasDeValidade"};
  platform::ZVNumberBox zvnumDiasDeValidade{*this, "zvnumDiasDeValidade"};
  platform::Label lblDesconto{*this, "lblDesconto"};
  platform::ZVNumberBox zvnumDesconto{*this, "zvnumDesconto"};
  platform::PictureBox picTotal{*this, "picTotal"};
  platform::Label lblTotal{picTotal, "lblTotal"};
  platform::ZVTextBox zvtxtTotal{picTotal, "zvtxtTotal"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::Label lblObservacaoDeCamposObrigatorios{picRodape, "lblObservacaoDeCamposObrigatorios"};
  platform::ZVCommandButton zvcmdCancelar{picRodape, "zvcmdCancelar"};
  platform::ZVCommandButton zvcmdSalvar{picRodape, "zvcmdSalvar"};

  /// Shows the form until the estimate is registered or given up: its number, 0 for none.
  std::int32_t MontarExibirFormulario();

 private:
  void Desenhar();
  void LigarEventos();
  void Form_Unload(bool& ficar);
  void zvfItem_Click();
  void optTipo_Click();
  void zvcmdAdicionar_Click();
  void zvcmdRemover_Click();
  void zvnumDesconto_LostFocus();
  void zvcmdSalvar_Click();
  void zvcmdCancelar_Click();

  /// Empties the fields of an item, for another one.
  void LimparItem();
  /// Looks for what the field holds; nothing when there was none, or none was chosen.
  std::optional<dados::Orcamento::Item> Procurar();
  bool ValidarItem();
  bool Validar();
  void MostrarItens();
  void Somar();

  dados::Orcamento orcamento_;
  std::optional<dados::Orcamento::Item> item_;
  frame::Lista itens_;
  std::int32_t numero_ = 0;
};

}  // namespace siblings
