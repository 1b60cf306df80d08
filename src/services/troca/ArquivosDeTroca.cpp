#include "services/troca/ArquivosDeTroca.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "base/RuntimeError.h"
#include "services/troca/ExportacaoFiscal.h"

namespace services {
namespace {

namespace fs = std::filesystem;

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

/// An open file.
class Descritor {
 public:
  explicit Descritor(int numero) : numero_(numero) {}
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

constexpr mode_t kDoDono = 0700;
constexpr mode_t kDoGrupo = 0070;
constexpr mode_t kDosOutros = 0007;
constexpr mode_t kUsarPastaDoGrupo = 0030;
constexpr mode_t kUsarPastaDosOutros = 0003;

/// Whom a folder lets take files from it, as the bits of their classes.
mode_t QuemTira(mode_t pasta) {
  mode_t classes = kDoDono;
  if ((pasta & kUsarPastaDoGrupo) == kUsarPastaDoGrupo) classes |= kDoGrupo;
  if ((pasta & kUsarPastaDosOutros) == kUsarPastaDosOutros) classes |= kDosOutros;
  return classes;
}

}  // namespace

void FalharNaTroca(int codigo, const fs::path& onde) {
  const Frase frase = FraseDe(codigo);
  throw base::RuntimeError(static_cast<std::int32_t>(frase.falha),
                           std::string(frase.texto) + " (" + onde.string() + ": " +
                               std::generic_category().message(codigo) + ")");
}

bool ExisteNaTroca(const fs::path& caminho) {
  std::error_code ignorado;
  return fs::exists(fs::symlink_status(caminho, ignorado));
}

PastaAberta::PastaAberta(const fs::path& pasta)
    : pasta_(pasta), numero_(open(pasta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  struct stat estado {};
  if (numero_ < 0 || fstat(numero_, &estado) != 0) FalharNaTroca(errno, pasta);
  modo_ = estado.st_mode;
  grupo_ = estado.st_gid;
}

PastaAberta::~PastaAberta() {
  if (numero_ >= 0) close(numero_);
}

void PastaAberta::Partilhar(int arquivo) const {
  constexpr mode_t kLerEGravar = 0660;
  constexpr mode_t kLer = 0004;
  mode_t modo = QuemTira(modo_) & (kLerEGravar | kLer);
  struct stat estado {};
  const bool doGrupo = fstat(arquivo, &estado) == 0 &&
                       (estado.st_gid == grupo_ || fchown(arquivo, uid_t(-1), grupo_) == 0);
  // Of another group, nobody of the folder's own could read what they are to take.
  if ((modo & kDoGrupo) != 0 && !doGrupo) modo |= kLer;
  // A network folder may know no such rights; then its own hold.
  fchmod(arquivo, modo);
}

bool PastaAberta::Escrever(const fs::path& arquivo, std::string_view bytes) const {
  constexpr mode_t kSoDoDono = 0600;
  Descritor novo(
      open(arquivo.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kSoDoDono));
  if (!novo.Aberto() && errno == EEXIST) return false;
  if (!novo.Aberto()) FalharNaTroca(errno, arquivo);
  Partilhar(novo.Numero());
  while (!bytes.empty()) {
    const ssize_t escritos = write(novo.Numero(), bytes.data(), bytes.size());
    if (escritos < 0 && errno == EINTR) continue;
    if (escritos < 0) FalharNaTroca(errno, arquivo);
    bytes.remove_prefix(static_cast<std::size_t>(escritos));
  }
  if (fsync(novo.Numero()) != 0) FalharNaTroca(errno, arquivo);
  if (!novo.Fechar()) FalharNaTroca(errno, arquivo);
  return true;
}

bool PastaAberta::Firmar() const {
  return fsync(numero_) == 0 || errno == EINVAL || errno == ENOTSUP;
}

fs::path PastaAberta::Dentro(const char* nome) const {
  fs::path dentro = pasta_ / nome;
  if (mkdir(dentro.c_str(), kDoDono) != 0) return dentro;
  constexpr mode_t kHeranca = S_ISGID | S_ISVTX;
  // A network folder may know no such rights; then its own hold.
  if (chown(dentro.c_str(), uid_t(-1), grupo_) == 0) {
    chmod(dentro.c_str(), QuemTira(modo_) | (modo_ & kHeranca));
  }
  return dentro;
}

bool MoverNaTroca(const fs::path& arquivo, const fs::path& pasta, const fs::path& nome) {
  fs::path destino = pasta / nome;
  for (int i = 2; ExisteNaTroca(destino); ++i) {
    destino = pasta / (nome.stem().string() + '-' + std::to_string(i) + nome.extension().string());
  }
  return rename(arquivo.c_str(), destino.c_str()) == 0;
}

}  // namespace services
