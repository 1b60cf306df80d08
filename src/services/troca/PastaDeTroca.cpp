#include "services/troca/PastaDeTroca.h"

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <system_error>
#include <utility>

#include "base/RuntimeError.h"
#include "services/troca/ArquivosDeTroca.h"

namespace services {
namespace {

namespace fs = std::filesystem;

/// A file that goes again unless it was delivered: for good, or into the archive once it may be
/// known outside.
class Passageiro {
 public:
  explicit Passageiro(fs::path caminho) : caminho_(std::move(caminho)) {}
  ~Passageiro() {
    if (caminho_.empty()) return;
    const bool guardado =
        pasta_ != nullptr && MoverNaTroca(caminho_, pasta_->Dentro(PastaDeTroca::kArquivo), nome_);
    if (!guardado) unlink(caminho_.c_str());
  }
  Passageiro(const Passageiro&) = delete;
  Passageiro& operator=(const Passageiro&) = delete;

  void GuardarSeFalhar(const PastaAberta& pasta, fs::path nome) {
    pasta_ = &pasta;
    nome_ = std::move(nome);
  }
  void Renomear(const fs::path& novo) {
    if (rename(caminho_.c_str(), novo.c_str()) != 0) FalharNaTroca(errno, novo);
    caminho_ = novo;
  }
  void Entregar() { caminho_.clear(); }

 private:
  fs::path caminho_, nome_;
  const PastaAberta* pasta_ = nullptr;
};

/// With nothing behind the last separator: paths of files in the folder are compared with it.
fs::path Completa(const std::string& pasta) {
  fs::path completa = fs::absolute(pasta).lexically_normal();
  return completa.has_filename() ? completa : completa.parent_path();
}

bool EMaisVelhoQue(const fs::path& arquivo, std::chrono::hours idade) {
  std::error_code falha;
  const auto gravado = fs::last_write_time(arquivo, falha);
  return !falha && fs::file_time_type::clock::now() - gravado > idade;
}

template <class Acao>
void ParaCadaArquivo(const fs::path& pasta, Acao acao) {
  std::error_code falha;
  for (fs::directory_iterator i(pasta, falha), fim; !falha && i != fim; i.increment(falha)) {
    acao(i->path());
  }
}

}  // namespace

PastaDeTroca::PastaDeTroca(const std::string& pasta, std::string_view computador,
                           std::string_view marca)
    : pasta_(Completa(pasta)), nomes_(computador, marca) {}

PastaDeTroca::Arquivos PastaDeTroca::Gravar(std::string_view especie, std::string_view bytes,
                                            base::DateTime agora,
                                            const AntesDeSair& antesDeSair) const {
  const PastaAberta pasta(pasta_);
  for (;;) {
    const std::string raiz = nomes_.Novo(agora);
    const auto caminho = [&](std::string_view antes, std::string_view depois) {
      return pasta_ / (std::string(antes) + raiz + std::string(depois));
    };
    const fs::path temporario = caminho(kArquivoSendoGravado, kExtensaoTemporaria);
    const fs::path envio = caminho(especie, kExtensaoDeTexto);
    const fs::path retorno = caminho(kArquivoDeRetorno, kExtensaoDeTexto);
    if (ExisteNaTroca(temporario) || ExisteNaTroca(envio) || ExisteNaTroca(retorno)) continue;
    Passageiro passageiro(temporario);
    if (!pasta.Escrever(temporario, bytes)) {
      passageiro.Entregar();  // It is another one's.
      continue;
    }
    Arquivos arquivos{envio.string(), retorno.string()};
    if (antesDeSair) {
      passageiro.GuardarSeFalhar(pasta, envio.filename());
      antesDeSair(arquivos);
    }
    passageiro.Renomear(envio);
    // Taken already is as good as kept.
    if (!pasta.Firmar() && ExisteNaTroca(envio)) FalharNaTroca(EIO, pasta_);
    passageiro.Entregar();
    return arquivos;
  }
}

void PastaDeTroca::Arrumar() const {
  // One without a mark may be awaited by another computer of this name, but not for that long.
  constexpr std::chrono::hours kUmDia{24};
  const PastaAberta pasta(pasta_);
  ParaCadaArquivo(pasta_, [&](const fs::path& arquivo) {
    const std::string nome = arquivo.filename().string();
    const auto largado = [&](std::string_view especie, std::string_view extensao) {
      const auto achado = nomes_.Ler(nome, especie, extensao);
      return achado && (!achado->semMarca || EMaisVelhoQue(arquivo, kUmDia)) ? achado->dono
                                                                             : Dono::kOutroProcesso;
    };
    // In this process nobody waits for anything earlier once it exports again, but another thread
    // may be writing.
    if (largado(kArquivoDeRetorno, kExtensaoDeTexto) != Dono::kOutroProcesso) {
      MoverNaTroca(arquivo, pasta.Dentro(kAtrasadas), nome);
    }
    if (largado(kArquivoSendoGravado, kExtensaoTemporaria) == Dono::kNinguem) {
      // As an outbound file that was taken back: that is what became of it.
      const std::string raiz = arquivo.stem().string().substr(kArquivoSendoGravado.size());
      const std::string envio = std::string(kArquivoDeEnvio) + raiz + std::string(kExtensaoDeTexto);
      if (!MoverNaTroca(arquivo, pasta.Dentro(kArquivo), envio)) {
        unlink(arquivo.c_str());
      }
    }
  });
}

bool PastaDeTroca::Guardar(const std::string& arquivo) const {
  const fs::path caminho(arquivo);
  if (caminho.parent_path() != pasta_ || !ExisteNaTroca(caminho)) return false;
  return MoverNaTroca(caminho, PastaAberta(pasta_).Dentro(kArquivo), caminho.filename());
}

bool PastaDeTroca::GuardarEmVezDeApagar(const std::string& arquivo) const {
  const fs::path caminho(arquivo);
  if (caminho.parent_path() != pasta_) return false;
  if (Guardar(arquivo)) return true;
  if (caminho.filename().string().starts_with(kArquivoDeEnvio)) return false;
  throw base::RuntimeError(base::Fault::kPermissionDenied);
}

void PastaDeTroca::LimparArquivo() const {
  constexpr std::chrono::hours kTrintaDias{30 * 24};
  ParaCadaArquivo(pasta_ / kArquivo, [&](const fs::path& arquivo) {
    std::error_code ignorado;
    if (EMaisVelhoQue(arquivo, kTrintaDias)) fs::remove(arquivo, ignorado);
  });
}

bool PastaDeTroca::EDeOutroPrograma(const std::string& envio) const {
  const auto achado =
      nomes_.Ler(fs::path(envio).filename().string(), kArquivoDeEnvio, kExtensaoDeTexto);
  return achado && achado->dono == Dono::kOutroProcesso;
}

}  // namespace services
