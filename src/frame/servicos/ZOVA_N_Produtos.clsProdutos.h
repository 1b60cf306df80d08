#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Produtos {

/// The products. Selecionar answers true on a fault.
class clsProdutos : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Produtos.clsProdutos";
  static constexpr std::string_view kMembros = "Selecionar";

  /// By internal code, else by exact barcode, else by part of the name.
  virtual bool Selecionar(std::int32_t, std::int16_t, std::int32_t, std::string_view,
                          std::string& /*nome*/, std::string& /*codigoDeBarras*/,
                          double& /*codigoInterno*/) {
    Ausente();
  }
  /// By code or part of the name, for the pick lists.
  virtual bool Selecionar(std::int32_t, std::int16_t, std::int32_t,
                          std::string_view /*codigoOuNome*/, std::string_view) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_N_Produtos
