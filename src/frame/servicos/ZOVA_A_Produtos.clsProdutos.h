#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_A_Produtos {

/// Registers the fiscal classification of a product.
class clsProdutos : public TelaIrma {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_A_Produtos.clsProdutos";
  static constexpr std::string_view kMembros = "CodigoInterno Nome AbrirFichaDeCadastroDeNCM";

  virtual void CodigoInterno(double) { Ausente(); }
  virtual void Nome(std::string_view) { Ausente(); }
  /// 1 a fault, 99 left without registering.
  virtual std::int16_t AbrirFichaDeCadastroDeNCM() { Ausente(); }
};

}  // namespace servicos::ZOVA_A_Produtos
