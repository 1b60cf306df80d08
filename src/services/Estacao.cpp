#include "services/Estacao.h"

#include <fcntl.h>
#include <sodium.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <system_error>

namespace services {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNome = "estacao.id";
constexpr std::size_t kDigitos = 16;

[[noreturn]] void Falhar(const fs::path& arquivo, int codigo) {
  throw std::runtime_error(
      "Não foi possível ler nem gravar '" + arquivo.string() +
      "', que distingue este computador dos outros. Confira as permissões da pasta e abra o caixa "
      "de novo. (" +
      std::generic_category().message(codigo) + ")");
}

std::string MarcaNova() {
  if (sodium_init() < 0) throw std::runtime_error("libsodium");
  std::array<unsigned char, kDigitos / 2> bytes{};
  randombytes_buf(bytes.data(), bytes.size());
  std::array<char, kDigitos + 1> texto{};
  sodium_bin2hex(texto.data(), texto.size(), bytes.data(), bytes.size());
  return texto.data();
}

bool EMarca(std::string_view texto) {
  return texto.size() == kDigitos && std::ranges::all_of(texto, [](char c) {
           return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
         });
}

/// Nothing when there is no file; empty when it holds something else.
std::optional<std::string> Lida(const fs::path& arquivo) {
  const int numero = open(arquivo.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
  if (numero < 0 && errno == ENOENT) return std::nullopt;
  if (numero < 0) Falhar(arquivo, errno);
  std::array<char, 2 * kDigitos> texto{};
  const auto tamanho = read(numero, texto.data(), texto.size());
  const int codigo = errno;
  close(numero);
  if (tamanho < 0) Falhar(arquivo, codigo);
  std::string_view marca(texto.data(), static_cast<std::size_t>(tamanho));
  if (marca.ends_with('\n')) marca.remove_suffix(1);
  return EMarca(marca) ? std::string(marca) : std::string();
}

/// A whole file under a name of its own, on the disk before it gets the one that others read.
fs::path Gravada(const fs::path& arquivo, const std::string& marca) {
  fs::path nova = arquivo.string() + '.' + marca;
  const int numero = open(nova.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
  if (numero < 0) Falhar(arquivo, errno);
  const std::string linha = marca + '\n';
  const bool inteira =
      write(numero, linha.data(), linha.size()) == static_cast<ssize_t>(linha.size()) &&
      fsync(numero) == 0;
  const int codigo = errno;
  close(numero);
  if (inteira) return nova;
  unlink(nova.c_str());
  Falhar(arquivo, codigo);
}

/// What keeps the new name in a folder through a power failure.
void Assentar(const fs::path& pasta) {
  const int numero = open(pasta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (numero < 0) return;
  fsync(numero);
  close(numero);
}

}  // namespace

std::string MarcaDaEstacao(const std::string& pasta) {
  const fs::path arquivo = fs::path(pasta.empty() ? "." : pasta) / kNome;
  const std::optional<std::string> achada = Lida(arquivo);
  if (achada && !achada->empty()) return *achada;
  const fs::path nova = Gravada(arquivo, MarcaNova());
  // Of two programs that start at once, the one that comes second takes the other one's mark. A
  // damaged file makes room, and so it goes where a file cannot have a second name.
  const bool criada = !achada && link(nova.c_str(), arquivo.c_str()) == 0;
  const bool outra = !achada && !criada && errno == EEXIST;
  const bool posta = criada || outra || rename(nova.c_str(), arquivo.c_str()) == 0;
  const int codigo = errno;
  unlink(nova.c_str());
  if (!posta) Falhar(arquivo, codigo);
  Assentar(arquivo.parent_path());
  const std::optional<std::string> marca = Lida(arquivo);
  if (!marca || marca->empty()) Falhar(arquivo, EIO);
  return *marca;
}

}  // namespace services
