#include "frame/servicos/ArquivoDeRetorno.h"

#include <algorithm>
#include <cstddef>

#include "base/Text.h"
#include "base/Windows1252.h"

namespace servicos {
namespace {

constexpr std::string_view kMarcaDeUtf8 = "\xEF\xBB\xBF";
constexpr char32_t kNaoECaractere = 0xFFFD;

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
  std::string texto;
  for (const char byte : bytes) {
    base::AppendCharacter(texto, base::FromWindows1252(byte).value_or(kNaoECaractere));
  }
  return texto;
}

}  // namespace servicos
