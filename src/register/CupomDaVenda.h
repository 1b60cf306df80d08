#pragma once

#include <string>
#include <string_view>

namespace registers {

/// What has to be settled with the operator, and with the fiscal application, before a sale with a
/// coupon is cancelled: the coupon is cancelled by hand in that application, which opens for it
/// when it finds an instruction, and only within 30 minutes of its issue. `data` and `hora` are
/// those of the sale (dd/mm/yyyy, hh:mm:ss). Whether the sale is to be cancelled, with its coupon
/// or, where that is no longer possible, alone.
bool PrepararCancelamentoDoCupom(const std::string& data, const std::string& hora);

/// Leaves an instruction for the fiscal application, where the company issues coupons at all. False
/// when it could not be written.
bool GravaInstrucaoParaGerenciadorCFeSAT(std::string_view texto);

}  // namespace registers
