#include "services/venda/Lembrete.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <exception>
#include <filesystem>
#include <system_error>

#include "services/banco/Param.h"
#include "services/banco/Senhas.h"

namespace services {
namespace {

constexpr int kArquivos = 16;
constexpr std::string_view kInicio = "registrando 1";
constexpr std::string_view kFim = "fim";

std::string Linha(std::string texto) {
  std::ranges::replace_if(
      texto, [](unsigned char c) { return c < ' '; }, ' ');
  return texto + '\n';
}

std::string Escrita(const std::string& banco, const Lembranca& nota) {
  return Linha(std::string(kInicio)) + Linha(banco) + Linha(nota.sessao) +
         Linha(std::to_string(nota.operacao)) + Linha(std::to_string(nota.cupom)) +
         Linha(std::string(1, static_cast<char>(nota.tipo))) + Linha(std::string(1, nota.artigo)) +
         Linha(*Param(nota.quando).Text()) + Linha(nota.conteudo) + Linha(nota.oQue) +
         Linha(std::string(kFim));
}

std::string Tudo(int arquivo) {
  std::array<char, 16384> bytes{};
  const auto tamanho = pread(arquivo, bytes.data(), bytes.size(), 0);
  return {bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(tamanho, 0))};
}

struct Nota {
  std::string banco;
  Lembranca lembranca;
};

template <class Numero>
bool Ler(const std::string& texto, Numero& numero) {
  const char* const fim = texto.data() + texto.size();
  const auto lido = std::from_chars(texto.data(), fim, numero);
  return lido.ec == std::errc() && lido.ptr == fim;
}

/// Nothing where the text is not whole: then the registration had not begun.
std::optional<Nota> Lida(std::string_view texto) {
  std::array<std::string, 11> linhas;
  for (std::string& linha : linhas) {
    const auto fim = texto.find('\n');
    if (fim == std::string_view::npos) return std::nullopt;
    linha = texto.substr(0, fim);
    texto.remove_prefix(fim + 1);
  }
  if (linhas.front() != kInicio || linhas.back() != kFim || linhas[5].size() != 1 ||
      linhas[6].size() != 1) {
    return std::nullopt;
  }
  std::int64_t operacao = 0;
  std::int32_t cupom = 0;
  if (!Ler(linhas[3], operacao) || !Ler(linhas[4], cupom)) return std::nullopt;
  try {
    return Nota{.banco = linhas[1],
                .lembranca = {.sessao = linhas[2],
                              .operacao = operacao,
                              .cupom = cupom,
                              .tipo = TipoDeRegistro{linhas[5].front()},
                              .artigo = linhas[6].front(),
                              .quando = MomentOf(linhas[7]),
                              .conteudo = linhas[8],
                              .oQue = linhas[9]}};
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

}  // namespace

Lembrete::Lembrete(const std::string& pasta, std::string_view banco) : banco_(Resumo(banco)) {
  const std::filesystem::path onde(pasta.empty() ? "." : pasta);
  std::string vazio;
  for (int i = 1; i <= kArquivos; ++i) {
    const std::string arquivo = (onde / ("registrando." + std::to_string(i))).string();
    // One that has never been is taken only where no other is free; none lies behind it.
    const bool existe = access(arquivo.c_str(), F_OK) == 0;
    const Achado achado = existe ? Tomar(arquivo) : Achado::kVazio;
    if (achado == Achado::kLembranca) return;
    if (achado == Achado::kVazio && vazio.empty()) vazio = arquivo;
    if (!existe) break;
  }
  if (!vazio.empty()) Tomar(vazio);
}

Lembrete::~Lembrete() {
  Soltar();
}

void Lembrete::Soltar() {
  if (numero_ >= 0) close(numero_);
  numero_ = -1;
}

Lembrete::Achado Lembrete::Tomar(const std::string& arquivo) {
  Soltar();
  numero_ = open(arquivo.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
  if (numero_ < 0 || flock(numero_, LOCK_EX | LOCK_NB) != 0) {
    Soltar();
    return Achado::kNada;
  }
  const auto nota = Lida(Tudo(numero_));
  if (nota && nota->banco == banco_) {
    deixada_ = nota->lembranca;
    return Achado::kLembranca;
  }
  if (!nota) return Achado::kVazio;
  Soltar();
  return Achado::kNada;
}

void Lembrete::Anotar(const Lembranca& lembranca) noexcept {
  if (numero_ < 0) return;
  try {
    // Whole blocks, so that the file seldom grows or shrinks; what lies behind the end is nothing.
    constexpr std::size_t kBloco = 1024;
    std::string texto = Escrita(banco_, lembranca);
    texto.resize((texto.size() / kBloco + 1) * kBloco, '\n');
    if (pwrite(numero_, texto.data(), texto.size(), 0) != static_cast<ssize_t>(texto.size())) {
      Apagar();
    }
  } catch (const std::exception&) {
    Apagar();
  }
}

void Lembrete::Firmar() noexcept {
  if (numero_ >= 0) fsync(numero_);
}

void Lembrete::Apagar() noexcept {
  if (numero_ >= 0 && ftruncate(numero_, 0) != 0) Soltar();
}

}  // namespace services
