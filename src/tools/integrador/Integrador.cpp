#include "tools/integrador/Integrador.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>
#include <random>
#include <stdexcept>
#include <system_error>

#include "base/Text.h"
#include "base/Windows1252.h"
#include "tools/integrador/Chave.h"
#include "tools/integrador/Conferencia.h"

namespace integrador {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

constexpr std::string_view kEnvio = "CFE-ENVIO-";
constexpr std::string_view kAdministracao = "CFE-ADMIN-";
constexpr const char* kRetorno = "CFE-RETORNO-";
constexpr const char* kRespondendo = "RESPONDENDO-";
constexpr std::string_view kTexto = ".txt";
constexpr std::string_view kInstrucao = "|ADMIN|";
constexpr milliseconds kIntervalo{100};
constexpr int kMorreu = 3;

constexpr const char* kAviso =
    "+------------------------------------------------------------+\n"
    "|  GERENCIADOR DO CF-e SAT (simulado)                        |\n"
    "|                                                            |\n"
    "|  O caixa pediu a tela de gerenciamento: aqui o operador    |\n"
    "|  cancela o cupom à mão.                                    |\n"
    "+------------------------------------------------------------+\n";

bool EhDoCaixa(const std::string& nome) {
  return (nome.starts_with(kEnvio) || nome.starts_with(kAdministracao)) && nome.ends_with(kTexto);
}

/// What the cash desk has put down whole, the oldest first. A temporary file has another name.
std::vector<fs::path> Pendentes(const fs::path& pasta) {
  std::vector<std::pair<fs::file_time_type, fs::path>> achados;
  std::error_code falha;
  for (fs::directory_iterator i(pasta, falha), fim; !falha && i != fim; i.increment(falha)) {
    std::error_code sumiu;
    if (!EhDoCaixa(i->path().filename().string()) || !i->is_regular_file(sumiu)) continue;
    achados.emplace_back(i->last_write_time(sumiu), i->path());
  }
  if (falha) throw std::runtime_error("Não é possível ler a pasta '" + pasta.string() + "'.");
  std::ranges::sort(achados);
  std::vector<fs::path> pendentes;
  pendentes.reserve(achados.size());
  for (auto& [quando, caminho] : achados) pendentes.push_back(std::move(caminho));
  return pendentes;
}

/// Removes the file and gives its bytes; nothing when it was withdrawn meanwhile.
std::optional<std::string> Tomar(const fs::path& caminho) {
  std::ifstream arquivo(caminho, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(arquivo), {}};
  const bool lido = arquivo.is_open() && !arquivo.bad();
  std::error_code falha;
  const bool removido = lido && fs::remove(caminho, falha);
  if (removido) return bytes;
  if (!fs::exists(caminho)) return std::nullopt;
  throw std::runtime_error("Não é possível tomar o arquivo '" + caminho.string() +
                           "'. Confira as permissões.");
}

/// The bytes of the answer; what the encoding lacks was refused with the command line.
std::string EmWindows1252(std::string_view texto) {
  std::string bytes;
  while (!texto.empty()) bytes += base::ToWindows1252(base::TakeCharacter(texto)).value_or('?');
  return bytes;
}

/// A file that is written as it grows, open all the while.
class Saida {
 public:
  explicit Saida(const fs::path& caminho)
      : caminho_(caminho),
        numero_(open(caminho.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666)) {
    if (numero_ < 0) Falhar();
  }
  ~Saida() { close(numero_); }
  Saida(const Saida&) = delete;
  Saida& operator=(const Saida&) = delete;

  void Escrever(std::string_view bytes) {
    if (write(numero_, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) Falhar();
  }
  void Firmar() {
    if (fsync(numero_) != 0) Falhar();
  }

 private:
  [[noreturn]] void Falhar() const {
    throw std::runtime_error("Não é possível gravar '" + caminho_.string() +
                             "'. Confira o espaço e as permissões.");
  }

  fs::path caminho_;
  int numero_;
};

class Integrador {
 public:
  Integrador(const Opcoes& opcoes, Encerramento& encerramento, std::ostream& conta)
      : opcoes_(opcoes), encerramento_(encerramento), conta_(conta) {}

  int Trabalhar() {
    Contar("Vigiando " + opcoes_.pasta);
    while (!encerramento_.Pedido()) {
      for (const fs::path& caminho : Pendentes(opcoes_.pasta)) {
        if (encerramento_.Pedido()) break;
        if (Atender(caminho) == kMorreu) return kMorreu;
        if (opcoes_.quantos > 0 && atendidos_ == opcoes_.quantos) return Encerrar();
      }
      if (!opcoes_.semDescanso) encerramento_.Esperar(kIntervalo);
    }
    return Encerrar();
  }

 private:
  int Atender(const fs::path& caminho) {
    const std::string nome = caminho.filename().string();
    if (opcoes_.demoraAoTomar.count() > 0) Contar("Visto: " + nome);
    encerramento_.Esperar(opcoes_.demoraAoTomar);
    if (encerramento_.Pedido()) return 0;
    if (opcoes_.morte == Morte::kAntesDeTomar) return Morrer("antes de tomar " + nome);
    const std::optional<std::string> bytes = Tomar(caminho);
    if (!bytes) {
      Contar("Foi retirado antes de ser tomado: " + nome);
      return 0;
    }
    Contar("Tomado: " + nome);
    if (opcoes_.morte == Morte::kDepoisDeTomar) return Morrer("depois de tomar " + nome);
    ++atendidos_;
    if (*bytes == kInstrucao) {
      conta_ << kAviso << std::flush;
    } else if (nome.starts_with(kAdministracao)) {
      Contar("Instrução desconhecida, ignorada: " + nome);
    } else {
      encerramento_.Esperar(opcoes_.demoraAoResponder);
      Responder(nome.substr(kEnvio.size()), Julgar(*bytes));
    }
    return 0;
  }

  /// The line of the answer.
  std::string Julgar(const std::string& bytes) {
    const Conferencia conferencia = Conferir(bytes);
    std::string recusa = conferencia.recusa;
    if (recusa.empty()) {
      Contar("Conferido: itens " + std::to_string(conferencia.itens) + ", pagamentos " +
             std::to_string(conferencia.pagamentos));
      recusa = opcoes_.recusa;
    }
    if (!recusa.empty()) {
      Contar("Recusado: " + recusa);
      return "|ERRO|" + recusa + "|\r\n";
    }
    const std::string chave = NovaChave();
    Contar("Emitido: " + chave);
    return "|OK||" + chave + "|\r\n";
  }

  std::string NovaChave() {
    constexpr std::uint32_t kCodigos = 1'000'000;
    constexpr int kMesFixo = 2601;
    ++cupons_;
    if (opcoes_.chavesFixas) return MontarChave(kMesFixo, cupons_ % kCodigos, cupons_ % kCodigos);
    const std::time_t agora = std::time(nullptr);
    std::tm local{};
    localtime_r(&agora, &local);
    return MontarChave(local.tm_year % 100 * 100 + local.tm_mon + 1, cupons_ % kCodigos,
                       std::random_device{}() % kCodigos);
  }

  void Responder(const std::string& raiz, const std::string& linha) {
    const fs::path pasta = opcoes_.pasta;
    const fs::path retorno = pasta / (kRetorno + raiz);
    const std::string bytes = EmWindows1252(linha);
    if (opcoes_.emPedacos) {
      constexpr std::size_t kPedacos = 3;
      Saida saida(retorno);
      const std::size_t tamanho = bytes.size() / kPedacos;
      saida.Escrever(bytes.substr(0, tamanho));
      encerramento_.Esperar(*opcoes_.emPedacos);
      saida.Escrever(bytes.substr(tamanho, tamanho));
      encerramento_.Esperar(*opcoes_.emPedacos);
      saida.Escrever(bytes.substr(2 * tamanho));
    } else {
      const fs::path temporario = pasta / (kRespondendo + raiz + ".tmp");
      Saida saida(temporario);
      saida.Escrever(bytes);
      saida.Firmar();
      fs::rename(temporario, retorno);
    }
    Contar("Respondido: " + retorno.filename().string());
  }

  int Morrer(const std::string& quando) {
    Contar("Morreu, como pedido, " + quando);
    return kMorreu;
  }
  int Encerrar() {
    Contar("Encerrado, arquivos atendidos: " + std::to_string(atendidos_));
    return 0;
  }
  void Contar(const std::string& linha) {
    if (!opcoes_.quieto) conta_ << linha << std::endl;
  }

  const Opcoes& opcoes_;
  Encerramento& encerramento_;
  std::ostream& conta_;
  int atendidos_ = 0;
  std::uint32_t cupons_ = 0;
};

}  // namespace

int Trabalhar(const Opcoes& opcoes, Encerramento& encerramento, std::ostream& conta) {
  if (!fs::is_directory(opcoes.pasta)) {
    throw std::runtime_error("A pasta '" + opcoes.pasta +
                             "' não existe. Informe a pasta em que o caixa grava os cupons.");
  }
  return Integrador(opcoes, encerramento, conta).Trabalhar();
}

}  // namespace integrador
