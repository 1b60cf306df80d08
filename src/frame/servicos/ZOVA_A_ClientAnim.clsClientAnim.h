#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_A_ClientAnim {

/// Registers the municipality code of a customer.
class clsClientAnim : public TelaIrma {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_A_ClientAnim.clsClientAnim";
  static constexpr std::string_view kMembros =
      "CodigoDoCliente ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente "
      "AbrirFichaDeCadastroDeCodigoIBGEDoMunicipio";

  virtual void CodigoDoCliente(double) { Ausente(); }
  virtual void ApelidoOuNomeFantasiaDoCliente(std::string_view) { Ausente(); }
  virtual void NomeOuRazaoSocialDoCliente(std::string_view) { Ausente(); }
  /// 1 a fault, 99 left without registering.
  virtual std::int16_t AbrirFichaDeCadastroDeCodigoIBGEDoMunicipio() { Ausente(); }
};

}  // namespace servicos::ZOVA_A_ClientAnim
