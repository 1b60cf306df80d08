#pragma once

#include "register/frmVendasDoDia.h"

namespace registers {

/// Prints a second copy of the receipt of one of the day's sales. It writes nothing.
class frmCaixaComprovanteDeVenda final : public frmVendasDoDia {
 public:
  frmCaixaComprovanteDeVenda();

  platform::PictureBox picMensagem{*this, "picMensagem"};
  platform::Label lblMensagem{picMensagem, "lblMensagem"};

 private:
  void zvcmdEmitirComprovanteDeVenda_Click();
  void Imprimir2aViaDoComprovanteDePagamentoDeVenda(double numeroDaVenda);
  void Encontrada() override { zvcmdEmitirComprovanteDeVenda_Click(); }

  frame::PainelDeMensagem painel_{*this, picMensagem};
};

}  // namespace registers
