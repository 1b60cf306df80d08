#include "services/PastaDeTroca.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <random>
#include <system_error>
#include <utility>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "services/ExportacaoFiscal.h"

namespace services {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kGravando = "GRAVANDO-";
constexpr std::string_view kRetorno = "CFE-RETORNO-";
constexpr std::string_view kTexto = ".txt";
constexpr std::string_view kTemporario = ".tmp";
constexpr const char* kAtrasadas = "respostas-atrasadas";

struct Frase {
  FalhaNaExportacao falha;
  const char* texto;
};

Frase FraseDe(int codigo) {
  using enum FalhaNaExportacao;
  switch (codigo) {
    case ENOENT:
      return {kNoFolder,
              "A pasta de troca com o aplicativo fiscal não foi encontrada. Confira a pasta, ou a "
              "ligação com o computador em que ela está, e tente de novo."};
    case ENOTDIR:
      return {kNotAFolder,
              "O que está no lugar da pasta de troca com o aplicativo fiscal não é uma pasta. "
              "Confira as configurações e tente de novo."};
    case EACCES:
    case EPERM:
    case EROFS:
      return {kNoPermission,
              "Não há permissão de gravar na pasta de troca com o aplicativo fiscal. Libere a "
              "gravação na pasta e tente de novo."};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return {kFull,
              "Não há espaço para gravar na pasta de troca com o aplicativo fiscal. Libere espaço "
              "e tente de novo."};
    case ENAMETOOLONG:
      return {kNameTooLong,
              "O caminho da pasta de troca com o aplicativo fiscal é longo demais. Escolha nas "
              "configurações uma pasta de caminho mais curto."};
    default:
      return {
          kOther,
          "Não foi possível gravar na pasta de troca com o aplicativo fiscal. Confira a pasta e "
          "tente de novo; se o erro se repetir, avise o suporte."};
  }
}

/// What the system itself says stands in brackets behind the sentence, for the support.
[[noreturn]] void Falhar(int codigo, const fs::path& onde) {
  const Frase frase = FraseDe(codigo);
  throw base::RuntimeError(static_cast<std::int32_t>(frase.falha),
                           std::string(frase.texto) + " (" + onde.string() + ": " +
                               std::generic_category().message(codigo) + ")");
}

/// An open file or folder.
class Descritor {
 public:
  Descritor(const fs::path& caminho, int modo)
      : numero_(open(caminho.c_str(), modo | O_CLOEXEC, 0666)) {}
  ~Descritor() { Fechar(); }
  Descritor(const Descritor&) = delete;
  Descritor& operator=(const Descritor&) = delete;

  bool Aberto() const { return numero_ >= 0; }
  int Numero() const { return numero_; }
  /// What was written may fail as late as here.
  bool Fechar() {
    const int numero = numero_;
    numero_ = -1;
    return numero < 0 || close(numero) == 0;
  }

 private:
  int numero_;
};

/// A file that goes again unless it was delivered.
class Passageiro {
 public:
  explicit Passageiro(fs::path caminho) : caminho_(std::move(caminho)) {}
  ~Passageiro() {
    if (!caminho_.empty()) unlink(caminho_.c_str());
  }
  Passageiro(const Passageiro&) = delete;
  Passageiro& operator=(const Passageiro&) = delete;

  void Renomear(const fs::path& novo) {
    if (rename(caminho_.c_str(), novo.c_str()) != 0) Falhar(errno, novo);
    caminho_ = novo;
  }
  void Entregar() { caminho_.clear(); }

 private:
  fs::path caminho_;
};

void Escrever(Descritor& arquivo, std::string_view bytes, const fs::path& caminho) {
  while (!bytes.empty()) {
    const ssize_t escritos = write(arquivo.Numero(), bytes.data(), bytes.size());
    if (escritos < 0 && errno == EINTR) continue;
    if (escritos < 0) Falhar(errno, caminho);
    bytes.remove_prefix(static_cast<std::size_t>(escritos));
  }
  if (fsync(arquivo.Numero()) != 0) Falhar(errno, caminho);
  if (!arquivo.Fechar()) Falhar(errno, caminho);
}

/// Makes the names in the folder durable. Some network folders have no such thing.
bool Firmar(Descritor& pasta) {
  return fsync(pasta.Numero()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

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

/// Drawn once: it tells this process from an earlier one that had the same number.
const std::string& Marca() {
  static const std::string marca = Hexadecimal(std::random_device{}(), 8);
  return marca;
}

std::string Momento(const base::DateTime& agora) {
  std::array<char, 24> texto{};
  std::snprintf(texto.data(), texto.size(), "%04d%02d%02d%02d%02d%02d", agora.Year(), agora.Month(),
                agora.Day(), agora.Hour(), agora.Minute(), agora.Second());
  return texto.data();
}

/// Whose a file of this workstation is.
enum class Dono { kEsteProcesso, kOutroProcesso, kNinguem };

/// `nome` is a stem behind the workstation's name; one that is not of our making is left to whoever
/// made it. A process that is gone waits for nothing and writes nothing any more.
Dono DonoDe(std::string_view nome) {
  constexpr std::size_t kPartes = 4;
  const std::vector<std::string> partes = base::Split(nome, '-');
  if (partes.size() != kPartes) return Dono::kOutroProcesso;
  const std::string& processo = partes[1];
  pid_t numero = 0;
  const char* const fim = processo.data() + processo.size();
  const auto lido = std::from_chars(processo.data(), fim, numero);
  if (lido.ec != std::errc() || lido.ptr != fim || numero <= 0) return Dono::kOutroProcesso;
  if (numero == getpid()) return partes[2] == Marca() ? Dono::kEsteProcesso : Dono::kNinguem;
  return kill(numero, 0) == 0 || errno == EPERM ? Dono::kOutroProcesso : Dono::kNinguem;
}

/// What stands between the two in a file's name; empty when it has another form.
std::string_view Entre(std::string_view nome, const std::string& inicio, std::string_view fim) {
  if (nome.size() < inicio.size() + fim.size()) return {};
  if (!nome.starts_with(inicio) || !nome.ends_with(fim)) return {};
  return nome.substr(inicio.size(), nome.size() - inicio.size() - fim.size());
}

bool Existe(const fs::path& caminho) {
  std::error_code ignorado;
  return fs::exists(fs::symlink_status(caminho, ignorado));
}

}  // namespace

PastaDeTroca::PastaDeTroca(const std::string& pasta, const base::Clock& relogio,
                           std::string_view computador)
    : pasta_(fs::absolute(pasta)), relogio_(relogio), computador_(EmNomeDeArquivo(computador)) {}

PastaDeTroca::Arquivos PastaDeTroca::Gravar(std::string_view especie,
                                            std::string_view bytes) const {
  static std::atomic<std::uint64_t> numeros = 0;
  Descritor pasta(pasta_, O_RDONLY | O_DIRECTORY);
  if (!pasta.Aberto()) Falhar(errno, pasta_);
  Arrumar();
  for (;;) {
    const std::string nome = computador_ + '-' + Momento(relogio_.Now()) + '-' +
                             std::to_string(getpid()) + '-' + Marca() + '-' +
                             std::to_string(++numeros);
    const fs::path temporario = pasta_ / (std::string(kGravando) + nome + std::string(kTemporario));
    const fs::path envio = pasta_ / (std::string(especie) + nome + std::string(kTexto));
    const fs::path retorno = pasta_ / (std::string(kRetorno) + nome + std::string(kTexto));
    Descritor arquivo(temporario, O_WRONLY | O_CREAT | O_EXCL);
    if (!arquivo.Aberto() && errno == EEXIST) continue;
    if (!arquivo.Aberto()) Falhar(errno, temporario);
    Passageiro passageiro(temporario);
    if (Existe(envio) || Existe(retorno)) continue;
    Escrever(arquivo, bytes, temporario);
    passageiro.Renomear(envio);
    // Taken already is as good as kept.
    if (!Firmar(pasta) && Existe(envio)) Falhar(EIO, pasta_);
    passageiro.Entregar();
    return {envio.string(), retorno.string()};
  }
}

void PastaDeTroca::Arrumar() const {
  std::error_code falha;
  for (fs::directory_iterator i(pasta_, falha), fim; !falha && i != fim; i.increment(falha)) {
    const std::string nome = i->path().filename().string();
    const std::string_view resposta =
        Entre(nome, std::string(kRetorno) + computador_ + '-', kTexto);
    const std::string_view meiaEscrita =
        Entre(nome, std::string(kGravando) + computador_ + '-', kTemporario);
    // In this process nobody waits for anything earlier once it exports again, but another thread
    // may be writing.
    if (!resposta.empty() && DonoDe(resposta) != Dono::kOutroProcesso) PorDeLado(i->path());
    if (!meiaEscrita.empty() && DonoDe(meiaEscrita) == Dono::kNinguem) unlink(i->path().c_str());
  }
}

void PastaDeTroca::PorDeLado(const fs::path& resposta) const {
  std::error_code falha;
  const fs::path pasta = pasta_ / kAtrasadas;
  fs::create_directory(pasta, falha);
  fs::path destino = pasta / resposta.filename();
  for (int i = 2; Existe(destino); ++i) {
    destino = pasta / (resposta.stem().string() + '-' + std::to_string(i) + std::string(kTexto));
  }
  fs::rename(resposta, destino, falha);
}

}  // namespace services
