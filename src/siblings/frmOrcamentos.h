#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Lista.h"
#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTheme.h"
#include "siblings/Sessao.h"

namespace siblings {

/// The animal that a new estimate is for.
struct Animal {
  std::int32_t codigo = 0;
  std::string nome;
};

/// The estimates of a customer: the lines of each, new ones, printing and cancelling.
class frmOrcamentos final : public platform::Form {
 public:
  frmOrcamentos(Cliente cliente, Animal animal);

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblCliente{*this, "lblCliente"};
  platform::Label lblAnimal{*this, "lblAnimal"};
  platform::Label lblOrcamentos{*this, "lblOrcamentos"};
  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
  platform::Label lblItens{*this, "lblItens"};
  platform::MSFlexGrid msfgItens{*this, "msfgItens"};
  platform::Label lblObservacao{*this, "lblObservacao"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::ZVCommandButton zvcmdCancelarOrcamento{picRodape, "zvcmdCancelarOrcamento"};
  platform::ZVCommandButton zvcmdImprimir{picRodape, "zvcmdImprimir"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};
  platform::ZVCommandButton zvcmdNovo{picRodape, "zvcmdNovo"};

  /// Shows the form over the darkened host until the operator closes it.
  void MontarExibirFormulario();

 private:
  void Desenhar();
  void zvcmdNovo_Click();
  void zvcmdImprimir_Click();
  void zvcmdCancelarOrcamento_Click();
  void msfgGrade_SelChange();

  /// Fills the list; false after a fault, which has been reported.
  bool Listar();
  std::int32_t NumeroSelecionado() const;

  Cliente cliente_;
  Animal animal_;
  frame::Lista orcamentos_;
  frame::Lista itens_;
};

}  // namespace siblings
