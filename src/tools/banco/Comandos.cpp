#include "tools/banco/Comandos.h"

#include <chrono>
#include <ctime>
#include <exception>
#include <iostream>
#include <optional>

#include "base/Clock.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "services/Banco.h"
#include "services/Search.h"
#include "tools/banco/Relatorios.h"

namespace banco {
namespace {

constexpr const char* kAjuda =
    "Uso: caixa-banco BANCO COMANDO [ARGUMENTO] [--agora AAAA-MM-DDTHH:MM:SS]\n"
    "\n"
    "BANCO é sqlite:ARQUIVO ou postgresql:CONEXÃO, como em\n"
    "  sqlite:/var/lib/clinica/caixa.db\n"
    "  postgresql:host=servidor dbname=caixa user=caixa\n"
    "\n"
    "Comandos:\n"
    "  criar           cria as tabelas, ou atualiza as de uma versão anterior\n"
    "  demonstracao    preenche um banco vazio com uma clínica inventada e mostra as senhas\n"
    "  vendas [N]      mostra as últimas N vendas, com itens, pagamentos e troco (padrão: 10)\n"
    "  travas          mostra os clientes em atendimento e em que computador\n"
    "  liberar CÓDIGO  libera o cliente que um computador desligado deixou em atendimento\n"
    "  conferir        confere se as contas de todas as vendas fecham\n"
    "\n"
    "--agora põe a clínica de demonstração em torno desse momento, em vez de agora.\n"
    "Sai com 0 quando deu certo, 1 quando não, 2 quando o comando não foi entendido.\n";

/// The command line cannot be understood.
struct MauUso {
  std::string frase;
};

/// The computer's clock, or the moment that it was set to.
class Relogio : public base::Clock {
 public:
  explicit Relogio(std::optional<base::DateTime> parado) : parado_(parado) {}

  base::DateTime Now() const override {
    if (parado_) return *parado_;
    const std::time_t agora = std::time(nullptr);
    std::tm local{};
    localtime_r(&agora, &local);
    constexpr int kAnoZero = 1900;
    return {local.tm_year + kAnoZero,  local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
            std::min(local.tm_sec, 59)};
  }
  double Elapsed() const override {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
  }

 private:
  std::optional<base::DateTime> parado_;
};

struct Pedido {
  std::string banco, comando;
  std::optional<std::string> argumento;
  std::optional<base::DateTime> agora;
};

base::DateTime LerMomento(const std::string& texto) {
  const std::vector<std::string> partes = base::Split(texto, 'T');
  const std::vector<std::string> data = base::Split(partes.front(), '-');
  try {
    if (partes.size() == 2 && data.size() == 3) {
      return base::ToDate(data[2] + '/' + data[1] + '/' + data[0] + ' ' + partes[1]);
    }
  } catch (const base::RuntimeError&) {
    // Told below.
  }
  throw MauUso{"'" + texto + "' não é um momento como 2026-11-22T14:30:00."};
}

std::int32_t LerNumero(const std::string& texto) {
  if (const auto numero = services::CodeIn(texto)) return *numero;
  throw MauUso{"'" + texto + "' não é um número inteiro maior que zero."};
}

Pedido Ler(const std::vector<std::string>& argumentos) {
  Pedido pedido;
  std::vector<std::string> soltos;
  for (std::size_t i = 0; i < argumentos.size(); ++i) {
    if (argumentos[i] == "--agora") {
      if (i + 1 == argumentos.size()) throw MauUso{"Falta o momento depois de --agora."};
      pedido.agora = LerMomento(argumentos[++i]);
    } else if (argumentos[i].starts_with("--")) {
      throw MauUso{"A opção '" + argumentos[i] + "' não existe."};
    } else {
      soltos.push_back(argumentos[i]);
    }
  }
  if (soltos.size() < 2) throw MauUso{"Informe o banco de dados e o comando."};
  if (soltos.size() > 3) throw MauUso{"Há argumentos a mais."};
  pedido.banco = soltos[0];
  pedido.comando = soltos[1];
  if (soltos.size() == 3) pedido.argumento = soltos[2];
  return pedido;
}

int Criar(const Pedido& pedido, const base::Clock&) {
  services::CriarBanco(pedido.banco);
  std::cout << "O banco de dados está criado e atualizado.\n";
  return 0;
}

std::shared_ptr<services::Banco> Abrir(const Pedido& pedido, const base::Clock& relogio) {
  return services::AbrirBanco(pedido.banco, relogio, "caixa-banco");
}

int Demonstrar(const Pedido& pedido, const base::Clock& relogio) {
  services::CriarBanco(pedido.banco);
  Mostrar(std::cout, services::CriarDemonstracao(*Abrir(pedido, relogio)));
  return 0;
}

int MostrarVendas(const Pedido& pedido, const base::Clock& relogio) {
  constexpr std::int32_t kPadrao = 10;
  const std::int32_t quantas = pedido.argumento ? LerNumero(*pedido.argumento) : kPadrao;
  Mostrar(std::cout, services::UltimasVendas(*Abrir(pedido, relogio), quantas));
  return 0;
}

int MostrarTravas(const Pedido& pedido, const base::Clock& relogio) {
  Mostrar(std::cout, services::ListarTravas(*Abrir(pedido, relogio)));
  return 0;
}

int Liberar(const Pedido& pedido, const base::Clock& relogio) {
  if (!pedido.argumento) throw MauUso{"Informe o código do cliente a liberar."};
  const std::int32_t codigo = LerNumero(*pedido.argumento);
  if (!services::LiberarTrava(*Abrir(pedido, relogio), codigo)) {
    std::cerr << "O cliente " << codigo << " não está em atendimento.\n";
    return 1;
  }
  std::cout << "O cliente " << codigo << " foi liberado.\n";
  return 0;
}

int ConferirContas(const Pedido& pedido, const base::Clock& relogio) {
  const std::vector<std::string> achados = services::Conferir(*Abrir(pedido, relogio));
  for (const std::string& achado : achados) std::cout << achado << '\n';
  std::cout << (achados.empty() ? "As contas de todas as vendas fecham.\n"
                                : "As contas não fecham. Avise o suporte.\n");
  return achados.empty() ? 0 : 1;
}

struct Comando {
  std::string_view nome;
  bool aceitaArgumento;
  int (*executar)(const Pedido&, const base::Clock&);
};

constexpr Comando kComandos[] = {
    {"criar", false, Criar},         {"demonstracao", false, Demonstrar},
    {"vendas", true, MostrarVendas}, {"travas", false, MostrarTravas},
    {"liberar", true, Liberar},      {"conferir", false, ConferirContas},
};

int Cumprir(const Pedido& pedido) {
  for (const Comando& comando : kComandos) {
    if (comando.nome != pedido.comando) continue;
    if (pedido.argumento && !comando.aceitaArgumento) throw MauUso{"Há argumentos a mais."};
    return comando.executar(pedido, Relogio(pedido.agora));
  }
  throw MauUso{"O comando '" + pedido.comando + "' não existe."};
}

}  // namespace

int Executar(const std::vector<std::string>& argumentos) {
  constexpr int kMauUso = 2;
  if (argumentos.size() == 1 && (argumentos[0] == "--help" || argumentos[0] == "-h")) {
    std::cout << kAjuda;
    return 0;
  }
  try {
    return Cumprir(Ler(argumentos));
  } catch (const MauUso& uso) {
    std::cerr << uso.frase << "\n\n" << kAjuda;
    return kMauUso;
  } catch (const std::exception& erro) {
    std::cerr << erro.what() << '\n';
    return 1;
  }
}

}  // namespace banco
