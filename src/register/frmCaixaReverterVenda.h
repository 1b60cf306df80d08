#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "consent/Autorizar.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "register/frmVendasDoDia.h"

namespace registers {

/// One of the two ways in which a sale is turned: cancelled, or its cancellation undone.
struct ReversaoDeVenda {
  using Operacao = std::int16_t (servicos::ZOVA_N_Caixa::clsCaixa::*)(double, std::string_view);

  VendasDoDia lista;
  std::string_view campo, rotulo, legenda;  ///< The reason's field, and its label with the caption.
  std::string_view semMotivo;
  const consent::Autorizacao* autorizacao = nullptr;
  consent::Chamador chamador = consent::Chamador::kFica;
  bool cancelaCupom = false;  ///< A sale with a coupon needs a word with the fiscal application.
  Operacao operacao = nullptr;
  bool contaParada = false;  ///< NumeroDaFalha tells of a refusal with a stop too.
};

extern const ReversaoDeVenda kCancelarVenda, kDesfazerCancelamento;

/// Cancels a sale of the day with a reason, or restores one that was cancelled.
class frmCaixaReverterVenda final : public frmVendasDoDia {
 public:
  explicit frmCaixaReverterVenda(const ReversaoDeVenda& reversao);

  platform::Label lblMotivo;
  platform::ZVTextBox zvtxtMotivo;
  platform::Label lblObservacaoDeCamposObrigatorios{*this, "lblObservacaoDeCamposObrigatorios"};

  /// The sale is turned.
  bool OperacaoConcluida() const { return operacaoConcluida_; }
  /// The service's result when it tells of the register, with the text that came with it.
  std::int32_t NumeroDaFalha() const { return numeroDaFalha_; }
  std::string DescricaoDaFalha() const { return descricaoDaFalha_; }

 private:
  void zvcmdConfirmar_Click();
  std::int16_t ValidarCampos();
  /// Whether the operator's rights, or a supervisor's, allow it.
  bool Permitido();
  void Registrar(double numero);
  void Encontrada() override { zvtxtMotivo.SetFocus(); }

  const ReversaoDeVenda& reversao_;
  bool operacaoConcluida_ = false;
  std::int32_t numeroDaFalha_ = 0;
  std::string descricaoDaFalha_;
};

}  // namespace registers
