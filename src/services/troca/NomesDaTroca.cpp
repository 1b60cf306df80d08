#include "services/troca/NomesDaTroca.h"

#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <random>
#include <vector>

#include "base/Text.h"

namespace services {
namespace {

std::string Hexadecimal(std::uint32_t numero, int digitos) {
  std::array<char, 9> texto{};
  std::snprintf(texto.data(), texto.size(), "%0*X", digitos, numero);
  return texto.data();
}

/// A workstation's name as part of a file's: no two names give the same, and none gives a "-".
std::string EmNomeDeArquivo(std::string_view computador) {
  if (computador.empty()) return "_";
  std::string nome;
  for (const char c : computador) {
    const bool minuscula = c >= 'a' && c <= 'z';
    const bool simples = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    if (minuscula) {
      nome += static_cast<char>(c - 'a' + 'A');
    } else if (simples) {
      nome += c;
    } else {
      nome += '_' + Hexadecimal(static_cast<unsigned char>(c), 2);
    }
  }
  return nome;
}

/// Takes a name that the system keeps for as long as this process lives, and for no longer; -1 when
/// another process has it.
int Prender(std::string_view marca) {
  const std::string nome = "caixa-troca-" + std::string(marca);
  sockaddr_un endereco{};
  endereco.sun_family = AF_UNIX;
  // Behind a first byte of 0 it is a name without a file.
  nome.copy(endereco.sun_path + 1, sizeof(endereco.sun_path) - 1);
  const auto tamanho = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + nome.size());
  const int numero = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (numero < 0) return -1;
  if (bind(numero, reinterpret_cast<const sockaddr*>(&endereco), tamanho) == 0) return numero;
  const int erro = errno;
  close(numero);
  errno = erro;
  return -1;
}

/// Drawn once, and held as long as the process lives: it tells it from every other one, also from
/// one that had its number before.
const std::string& MarcaDoProcesso() {
  static const std::string marca = [] {
    std::string nova = Hexadecimal(std::random_device{}(), 8);
    Prender(nova);
    return nova;
  }();
  return marca;
}

bool Vive(pid_t processo, std::string_view marca) {
  if (kill(processo, 0) != 0 && errno != EPERM) return false;
  const int numero = Prender(marca);
  if (numero < 0) return errno == EADDRINUSE;
  close(numero);
  return false;
}

std::string Momento(const base::DateTime& agora) {
  std::array<char, 24> texto{};
  std::snprintf(texto.data(), texto.size(), "%04d%02d%02d%02d%02d%02d", agora.Year(), agora.Month(),
                agora.Day(), agora.Hour(), agora.Minute(), agora.Second());
  return texto.data();
}

/// A process that is gone waits for nothing and writes nothing any more. What is no process's
/// number is none of our making, and left alone.
Dono DonoDe(std::string_view processo, std::string_view marca) {
  pid_t numero = 0;
  const char* const fim = processo.data() + processo.size();
  const auto lido = std::from_chars(processo.data(), fim, numero);
  if (lido.ec != std::errc() || lido.ptr != fim || numero <= 0) return Dono::kOutroProcesso;
  if (numero == getpid()) {
    return marca == MarcaDoProcesso() ? Dono::kEsteProcesso : Dono::kNinguem;
  }
  return Vive(numero, marca) ? Dono::kOutroProcesso : Dono::kNinguem;
}

}  // namespace

NomesDaTroca::NomesDaTroca(std::string_view computador, std::string_view marca)
    : computador_(EmNomeDeArquivo(computador)), marca_(marca) {}

std::string NomesDaTroca::Novo(base::DateTime agora) const {
  static std::atomic<std::uint64_t> numeros = 0;
  std::string nome = computador_ + '-';
  if (!marca_.empty()) nome += marca_ + '-';
  nome += Momento(agora) + '-' + std::to_string(getpid()) + '-' + MarcaDoProcesso() + '-';
  return nome + std::to_string(++numeros);
}

std::optional<NomesDaTroca::Achado> NomesDaTroca::Ler(std::string_view arquivo,
                                                      std::string_view especie,
                                                      std::string_view extensao) const {
  if (arquivo.size() < especie.size() + extensao.size()) return std::nullopt;
  if (!arquivo.starts_with(especie) || !arquivo.ends_with(extensao)) return std::nullopt;
  arquivo.remove_prefix(especie.size());
  arquivo.remove_suffix(extensao.size());
  constexpr std::size_t kSemMarca = 5;
  constexpr std::size_t kComMarca = 6;
  std::vector<std::string> partes = base::Split(arquivo, '-');
  if (partes.size() < kSemMarca || partes.front() != computador_) return std::nullopt;
  const bool semMarca = partes.size() == kSemMarca;
  if (partes.size() > kComMarca || (!semMarca && partes[1] != marca_)) return std::nullopt;
  const std::size_t processo = partes.size() - 3;
  return Achado{.dono = DonoDe(partes[processo], partes[processo + 1]),
                .semMarca = semMarca && !marca_.empty()};
}

}  // namespace services
