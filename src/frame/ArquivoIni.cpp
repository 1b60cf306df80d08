#include "frame/ArquivoIni.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "frame/Valores.h"
#include "platform/Desktop.h"

namespace frame {
namespace {

constexpr std::size_t kMaiorValor = 255;
constexpr std::string_view kSufixo = ".ini";
constexpr std::size_t kMaiorNomeDeArquivo = 255;  ///< In bytes, as file systems count.

/// The title as a name of a file in the module's folder and nowhere else: what leads to another
/// folder or ends a name becomes "_", and a title that is too long for a name is cut.
std::string NomeDoArquivo(std::string_view titulo) {
  std::string nome;
  while (!titulo.empty()) {
    const std::string_view resto = titulo;
    const char32_t letra = base::TakeCharacter(titulo);
    const std::string_view escrita = resto.substr(0, resto.size() - titulo.size());
    if (nome.size() + escrita.size() + kSufixo.size() > kMaiorNomeDeArquivo) break;
    nome += letra < U' ' || letra == U'/' ? "_" : escrita;
  }
  return nome.append(kSufixo);
}

std::string Caminho() {
  return platform::Desktop::Current().ModuleFolder() + '/' +
         NomeDoArquivo(valores().NomeDaAplicacao);
}

std::string Aparado(std::string_view texto) {
  const std::size_t inicio = texto.find_first_not_of(" \t\r");
  if (inicio == std::string_view::npos) return {};
  return std::string(texto.substr(inicio, texto.find_last_not_of(" \t\r") - inicio + 1));
}

bool MesmoNome(std::string_view a, std::string_view b) {
  return base::Lower(Aparado(a)) == base::Lower(Aparado(b));
}

/// The lines of the file, none when it is absent: a first start is nothing to report. Nothing for a
/// file that is there and cannot be read now.
std::optional<std::vector<std::string>> Linhas() {
  try {
    const std::string bytes = platform::Desktop::Current().ReadFile(Caminho());
    std::vector<std::string> linhas = base::Split(bytes, '\n');
    if (!linhas.empty() && linhas.back().empty()) linhas.pop_back();
    return linhas;
  } catch (const base::RuntimeError& erro) {
    if (!platform::files::IsAbsence(erro)) return std::nullopt;
    return std::vector<std::string>();
  }
}

/// The section that a line opens.
std::optional<std::string> SecaoDe(const std::string& linha) {
  constexpr std::string_view kMarca = "\xEF\xBB\xBF";  // Some editors put it in front of all.
  std::string_view bytes = linha;
  if (bytes.starts_with(kMarca)) bytes.remove_prefix(kMarca.size());
  const std::string texto = Aparado(bytes);
  if (!texto.starts_with('[')) return std::nullopt;
  return texto.substr(1, texto.find(']') - 1);
}

/// Where a key stands, or where it would be put.
struct Lugar {
  bool secaoExiste = false;
  bool chaveExiste = false;
  std::size_t linha = 0;
};

Lugar Procurar(const std::vector<std::string>& linhas, std::string_view secao,
               std::string_view chave) {
  Lugar lugar{.linha = linhas.size()};
  for (std::size_t i = 0; i < linhas.size(); ++i) {
    if (const auto nome = SecaoDe(linhas[i])) {
      if (lugar.secaoExiste) break;
      lugar.secaoExiste = MesmoNome(*nome, secao);
      if (lugar.secaoExiste) lugar.linha = i + 1;
      continue;
    }
    if (!lugar.secaoExiste) continue;
    const std::size_t igual = linhas[i].find('=');
    if (igual != std::string::npos && MesmoNome(linhas[i].substr(0, igual), chave)) {
      return {true, true, i};
    }
    if (!Aparado(linhas[i]).empty()) lugar.linha = i + 1;
  }
  if (!lugar.secaoExiste) lugar.linha = linhas.size();
  return lugar;
}

std::string SemAspas(std::string texto) {
  const bool aspas = texto.size() >= 2 && (texto.front() == '"' || texto.front() == '\'') &&
                     texto.back() == texto.front();
  return aspas ? texto.substr(1, texto.size() - 2) : texto;
}

}  // namespace

std::string LerValorDoArquivoIni(std::string_view secao, std::string_view chave) {
  const auto linhas = Linhas();
  if (!linhas) return std::string(kNenhumValorLido);
  const Lugar lugar = Procurar(*linhas, secao, chave);
  if (!lugar.chaveExiste) return std::string(kNenhumValorLido);
  const std::string& linha = (*linhas)[lugar.linha];
  return base::Left(SemAspas(Aparado(linha.substr(linha.find('=') + 1))), kMaiorValor);
}

std::string GravarValorNoArquivoIni(std::string_view secao, std::string_view chave,
                                    std::string_view valor) {
  auto lidas = Linhas();
  // What could not be read would be lost by what is written in its place.
  if (!lidas) return {};
  std::vector<std::string>& linhas = *lidas;
  const Lugar lugar = Procurar(linhas, secao, chave);
  const std::string nova = std::string(chave) + '=' + std::string(valor);
  if (lugar.chaveExiste) {
    linhas[lugar.linha] = nova;
  } else {
    if (!lugar.secaoExiste) linhas.push_back('[' + std::string(secao) + ']');
    const std::size_t onde = lugar.secaoExiste ? lugar.linha : linhas.size();
    linhas.insert(linhas.begin() + static_cast<std::ptrdiff_t>(onde), nova);
  }
  std::string bytes;
  for (const std::string& linha : linhas) bytes += linha + '\n';
  try {
    platform::Desktop::Current().WriteFile(Caminho(), bytes);
  } catch (const base::RuntimeError&) {
    // A settings file that cannot be written costs the operator nothing but the memory of a choice.
  }
  return {};
}

}  // namespace frame
