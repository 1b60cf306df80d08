#pragma once

#include <string>
#include <string_view>

namespace frame {

/// What LerValorDoArquivoIni answers for a key that is not there; callers compare with it exactly.
inline constexpr std::string_view kNenhumValorLido = "Nenhum valor lido";

/// A value of the settings file: the module's folder, the application's title, ".ini"; sections in
/// brackets, key=value lines, names without regard to case. At most 255 characters come back.
std::string LerValorDoArquivoIni(std::string_view secao, std::string_view chave);

/// Writes a value and keeps all else in the file. A file that cannot be written fails in silence.
/// Always answers the empty text.
std::string GravarValorNoArquivoIni(std::string_view secao, std::string_view chave,
                                    std::string_view valor);

}  // namespace frame
