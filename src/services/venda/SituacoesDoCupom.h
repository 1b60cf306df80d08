#pragma once

#include <string_view>

namespace services {

/// What became of a coupon; Cupons.h tells what each means. In statements by ComCodigos.
inline constexpr std::string_view kCupomEnviado = "enviado", kCupomEmitido = "emitido",
                                  kCupomVendido = "vendido", kCupomRecusado = "recusado",
                                  kCupomRetirado = "retirado", kCupomEncerrado = "encerrado";

}  // namespace services
