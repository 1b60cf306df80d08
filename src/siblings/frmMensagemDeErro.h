#pragma once

#include <cstdint>
#include <string_view>

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVMemo.h"
#include "platform/ZVTheme.h"

namespace siblings {

/// The error viewer: what went wrong and where, in a form that can be read out to the support.
class frmMensagemDeErro final : public platform::Form {
 public:
  frmMensagemDeErro();

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblDescricao{*this, "lblDescricao"};
  platform::Label lblOrientacao{*this, "lblOrientacao"};
  platform::Label lblDetalhes{*this, "lblDetalhes"};
  platform::ZVMemo zvmemDetalhes{*this, "zvmemDetalhes"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};

  /// Shows the error until the operator closes it.
  void MontarExibirFormulario(std::int32_t numero, std::string_view descricao,
                              std::string_view local, std::string_view nomeDaAplicacao);
};

}  // namespace siblings
