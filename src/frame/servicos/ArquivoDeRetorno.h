#pragma once

#include <string>
#include <string_view>

namespace servicos {

/// What the outside fiscal application answered.
struct Retorno {
  bool emitido = false;
  std::string erro;   ///< Why not, in its words; may be empty.
  std::string chave;  ///< The key of the coupon issued.
};

/// Reads the one line that a return file holds:
///
///     |OK||35150900000000000000590000000000000000000000|...
///     |ERRO|Cliente sem endereço.|
///
/// The first character is skipped, whatever it is. A further line goes on with the fields of the
/// one before, so that two lines are never "OK". A file without a line is a coupon without a key.
Retorno LerRetorno(std::string_view texto);

/// The text of a file that was written in UTF-8, with or without its mark, or else in Windows-1252.
std::string TextoDoArquivo(std::string_view bytes);

}  // namespace servicos
