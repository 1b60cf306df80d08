#include "tools/integrador/Opcoes.h"

#include <charconv>
#include <string_view>

#include "base/Text.h"
#include "base/Windows1252.h"

namespace integrador {
namespace {

using std::chrono::milliseconds;

milliseconds LerSegundos(const std::string& nome, const std::string& texto) {
  constexpr double kMaximo = 3600;
  double segundos = -1;
  const char* const fim = texto.data() + texto.size();
  const auto lido = std::from_chars(texto.data(), fim, segundos, std::chars_format::fixed);
  const bool certo = lido.ec == std::errc() && lido.ptr == fim;
  if (!certo || !(segundos >= 0 && segundos <= kMaximo)) {
    throw MauUso(nome + ": '" + texto + "' não são segundos, de 0 a 3600, como 0.5.");
  }
  constexpr double kPorSegundo = 1000;
  return milliseconds(static_cast<std::int64_t>(segundos * kPorSegundo));
}

int LerQuantos(const std::string& nome, const std::string& texto) {
  int numero = 0;
  const char* const fim = texto.data() + texto.size();
  const auto lido = std::from_chars(texto.data(), fim, numero);
  if (lido.ec != std::errc() || lido.ptr != fim || numero < 1) {
    throw MauUso(nome + ": '" + texto + "' não é um número inteiro maior que zero.");
  }
  return numero;
}

std::string LerRecusa(const std::string& nome, const std::string& texto) {
  constexpr char32_t kPrimeiroTexto = 0x20;
  std::string_view resto = texto;
  while (!resto.empty()) {
    const char32_t caractere = base::TakeCharacter(resto);
    if (caractere < kPrimeiroTexto || caractere == U'|' || !base::ToWindows1252(caractere)) {
      throw MauUso(nome +
                   ": o texto não pode ter |, quebra de linha, nem letras de outro alfabeto.");
    }
  }
  return texto;
}

void Morrer(Opcoes& opcoes, Morte quando) {
  if (opcoes.morte != Morte::kNunca) throw MauUso("Só se morre uma vez: antes ou depois de tomar.");
  opcoes.morte = quando;
}

/// An option without a value.
struct Chave {
  std::string_view nome;
  void (*tomar)(Opcoes& opcoes);
};
constexpr Chave kChaves[] = {
    {"--ajuda", [](Opcoes& o) { o.ajuda = true; }},
    {"--help", [](Opcoes& o) { o.ajuda = true; }},
    {"-h", [](Opcoes& o) { o.ajuda = true; }},
    {"--quieto", [](Opcoes& o) { o.quieto = true; }},
    {"--sem-descanso", [](Opcoes& o) { o.semDescanso = true; }},
    {"--chaves-fixas", [](Opcoes& o) { o.chavesFixas = true; }},
    {"--morrer-antes", [](Opcoes& o) { Morrer(o, Morte::kAntesDeTomar); }},
    {"--morrer-depois", [](Opcoes& o) { Morrer(o, Morte::kDepoisDeTomar); }},
};

/// An option followed by its value.
struct ComValor {
  std::string_view nome;
  void (*tomar)(Opcoes& opcoes, const std::string& nome, const std::string& valor);
};
using Texto = const std::string&;
constexpr ComValor kComValor[] = {
    {"--demora-ao-tomar", [](Opcoes& o, Texto n, Texto v) { o.demoraAoTomar = LerSegundos(n, v); }},
    {"--demora-ao-responder",
     [](Opcoes& o, Texto n, Texto v) { o.demoraAoResponder = LerSegundos(n, v); }},
    {"--em-pedacos", [](Opcoes& o, Texto n, Texto v) { o.emPedacos = LerSegundos(n, v); }},
    {"--recusar", [](Opcoes& o, Texto n, Texto v) { o.recusa = LerRecusa(n, v); }},
    {"--quantos", [](Opcoes& o, Texto n, Texto v) { o.quantos = LerQuantos(n, v); }},
};

template <class Tabela>
const auto* Achar(const Tabela& tabela, const std::string& nome) {
  const auto* achado = std::begin(tabela);
  while (achado != std::end(tabela) && achado->nome != nome) ++achado;
  return achado == std::end(tabela) ? nullptr : achado;
}

}  // namespace

const char* Opcoes::Ajuda() {
  return "Uso: integrador-simulado PASTA [OPÇÕES]\n"
         "\n"
         "Faz as vezes do aplicativo fiscal: vigia a pasta de troca, toma os arquivos do caixa,\n"
         "confere cada registro e responde com uma chave inventada ou com uma recusa. Nenhum\n"
         "documento é emitido.\n"
         "\n"
         "  --demora-ao-tomar SEGUNDOS      espera antes de tomar um arquivo\n"
         "  --demora-ao-responder SEGUNDOS  espera entre tomar e responder\n"
         "  --em-pedacos SEGUNDOS           escreve a resposta em três pedaços, com essa pausa\n"
         "                                  entre eles, no próprio arquivo de retorno\n"
         "  --recusar TEXTO                 recusa todos os cupons com esse texto\n"
         "  --morrer-antes                  termina ao ver o primeiro arquivo, sem o tomar\n"
         "  --morrer-depois                 termina depois de tomar o primeiro, sem responder\n"
         "  --sem-descanso                  procura arquivos sem pausa: toma cada um assim que "
         "aparece\n"
         "  --quantos N                     termina depois de N arquivos\n"
         "  --chaves-fixas                  as mesmas chaves a cada vez que é iniciado\n"
         "  --quieto                        não conta o que faz (o aviso do gerenciador aparece)\n"
         "  --ajuda                         mostra esta ajuda\n"
         "\n"
         "Termina com Ctrl+C. Sai com 0 quando termina a pedido, 1 quando não pode trabalhar na\n"
         "pasta, 2 quando o comando não foi entendido, 3 quando morreu como pedido.\n";
}

Opcoes Opcoes::Ler(const std::vector<std::string>& argumentos) {
  Opcoes opcoes;
  for (std::size_t i = 0; i < argumentos.size(); ++i) {
    const std::string& nome = argumentos[i];
    if (const Chave* const chave = Achar(kChaves, nome)) {
      chave->tomar(opcoes);
    } else if (const ComValor* const comValor = Achar(kComValor, nome)) {
      const bool falta = i + 1 == argumentos.size() || argumentos[i + 1].empty();
      if (falta) throw MauUso("Falta o valor depois de " + nome + ".");
      comValor->tomar(opcoes, nome, argumentos[++i]);
    } else if (nome.starts_with("-")) {
      throw MauUso("A opção '" + nome + "' não existe.");
    } else if (!opcoes.pasta.empty()) {
      throw MauUso("Há argumentos a mais: informe uma pasta só.");
    } else {
      opcoes.pasta = nome;
    }
  }
  if (opcoes.pasta.empty() && !opcoes.ajuda) throw MauUso("Informe a pasta de troca.");
  return opcoes;
}

}  // namespace integrador
