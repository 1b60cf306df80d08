#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Servicos {

/// The services. Selecionar answers true on a fault.
class clsServicos : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Servicos.clsServicos";
  static constexpr std::string_view kMembros = "Selecionar";

  /// Of a type, by code, else by part of the name.
  virtual bool Selecionar(std::int32_t, std::int16_t, std::int32_t, std::string_view,
                          std::int16_t& /*tipo*/, std::string& /*nome*/, double& /*codigo*/) {
    Ausente();
  }
  /// By code or part of the name, for the pick lists; type 0 for all.
  virtual bool Selecionar(std::int32_t, std::int16_t, std::int32_t,
                          std::string_view /*codigoOuNome*/, std::int32_t /*tipo*/) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_N_Servicos
