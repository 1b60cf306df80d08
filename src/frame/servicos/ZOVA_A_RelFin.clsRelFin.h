#pragma once

#include <string_view>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_A_RelFin {

/// The promissory note.
class clsRelFin : public TelaIrma {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_A_RelFin.clsRelFin";
  static constexpr std::string_view kMembros = "ImprimirNotaPromissoria";

  virtual void ImprimirNotaPromissoria(std::string_view /*hoje*/, base::DateTime /*vencimento*/,
                                       base::Currency /*valor*/, double /*codigoDoCliente*/,
                                       bool& /*visualizar*/) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_A_RelFin
