#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_A_Orcamentos {

/// Estimates.
class clsOrcamentos : public TelaIrma {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_A_Orcamentos.clsOrcamentos";
  static constexpr std::string_view kMembros =
      "CodigoDoCliente ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente CodigoDoAnimal "
      "NomeDoAnimal AbrirFicha";

  virtual void CodigoDoCliente(double) { Ausente(); }
  virtual void ApelidoOuNomeFantasiaDoCliente(std::string_view) { Ausente(); }
  virtual void NomeOuRazaoSocialDoCliente(std::string_view) { Ausente(); }
  virtual void CodigoDoAnimal(std::int32_t) { Ausente(); }
  virtual void NomeDoAnimal(std::string_view) { Ausente(); }
  virtual void AbrirFicha() { Ausente(); }
};

}  // namespace servicos::ZOVA_A_Orcamentos
