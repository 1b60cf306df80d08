#pragma once

#include <string>
#include <string_view>

namespace integrador {

/// What the check of an outbound file came to.
struct Conferencia {
  std::string recusa;  ///< Empty when the file keeps the format; else a sentence naming the field,
                       ///< without "|" or line breaks.
  int itens = 0, pagamentos = 0;
};

/// Checks the bytes of an outbound file against the format, character by character:
///
/// - Windows-1252 without control characters, every record ended by CR LF, the last one included;
/// - a record is "|", then each field followed by "|": so a field never holds one;
/// - one header, then items, then payments, at least one of each;
/// - sequences count from 1 by one. They may start over from 1: when an export failed, the cash
/// desk
///   repeats the items, and the payments, of the earlier try before those of the new one. An item's
///   sequence has three digits, and 1000 is written 000;
/// - amounts have exactly the digits of their mask, and a minus sign in front when negative, which
///   none but an item's discount is; that one is never positive;
/// - the term value of a payment repeats its value. Nothing else is promised about sums.
Conferencia Conferir(std::string_view bytes);

}  // namespace integrador
