#include "fiscal/ArquivoDeRetorno.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/Text.h"

namespace fiscal {
namespace {

constexpr std::string_view kMarcaDeUtf8 = "\xEF\xBB\xBF";
constexpr char32_t kNaoECaractere = 0xFFFD;

/// What Windows-1252 has between 0x80 and 0x9F; all else is as in Unicode.
constexpr std::array<char32_t, 32> kDe80a9F{
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

bool EhUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    if (base::TakeCharacter(bytes) == kNaoECaractere) return false;
  }
  return true;
}

/// The text up to the next line break, which is taken off with it: CR LF, LF or CR.
std::string_view TomarLinha(std::string_view& texto) {
  const std::size_t fim = std::min(texto.find_first_of("\r\n"), texto.size());
  const std::string_view linha = texto.substr(0, fim);
  texto.remove_prefix(fim);
  texto.remove_prefix(texto.starts_with("\r\n") ? 2 : std::min<std::size_t>(texto.size(), 1));
  return linha;
}

std::string_view TomarCampo(std::string_view& linha) {
  const std::size_t fim = std::min(linha.find('|'), linha.size());
  const std::string_view campo = linha.substr(0, fim);
  linha.remove_prefix(std::min(fim + 1, linha.size()));
  return campo;
}

}  // namespace

Retorno LerRetorno(std::string_view texto) {
  Retorno retorno;
  std::string situacao;
  while (!texto.empty()) {
    std::string_view linha = TomarLinha(texto);
    if (!linha.empty()) base::TakeCharacter(linha);
    for (std::string* const campo : {&situacao, &retorno.erro, &retorno.chave}) {
      *campo += TomarCampo(linha);
    }
    if (base::Upper(situacao) != "OK") return retorno;
  }
  retorno.emitido = true;
  return retorno;
}

std::string TextoDoArquivo(std::string_view bytes) {
  if (bytes.starts_with(kMarcaDeUtf8)) bytes.remove_prefix(kMarcaDeUtf8.size());
  if (EhUtf8(bytes)) return std::string(bytes);
  constexpr unsigned char kPrimeiro = 0x80;
  std::string texto;
  for (const char cada : bytes) {
    const auto byte = static_cast<unsigned char>(cada);
    const bool proprio = byte >= kPrimeiro && byte - kPrimeiro < static_cast<int>(kDe80a9F.size());
    base::AppendCharacter(texto, proprio ? kDe80a9F[byte - kPrimeiro] : byte);
  }
  return texto;
}

}  // namespace fiscal
