#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace siblings::dados {

/// The two codes that a fiscal coupon cannot do without and that are registered where the sale
/// meets their lack: the municipality of a customer, the NCM of a product. Numbered status; a code
/// of nobody is a refusal.
class clsCadastroFiscal : public servicos::ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "siblings.clsCadastroFiscal";

  /// One row, its field `Codigo` the digits that are registered now, empty for none.
  virtual std::int16_t SelecionarMunicipio(double /*codigoDoCliente*/) { Ausente(); }
  virtual std::int16_t SelecionarNCM(double /*codigoInterno*/) { Ausente(); }
  /// Digits alone: seven of a municipality, eight of an NCM.
  virtual std::int16_t RegistrarMunicipio(double /*codigoDoCliente*/, std::string_view /*codigo*/) {
    Ausente();
  }
  virtual std::int16_t RegistrarNCM(double /*codigoInterno*/, std::string_view /*codigo*/) {
    Ausente();
  }
};

}  // namespace siblings::dados
