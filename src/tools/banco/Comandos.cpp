#include "tools/banco/Comandos.h"

#include <chrono>
#include <ctime>
#include <exception>
#include <iostream>
#include <optional>

#include "base/Clock.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "services/Abertura.h"
#include "services/Banco.h"
#include "services/banco/Search.h"
#include "services/venda/Conferencia.h"
#include "services/venda/Cupons.h"
#include "tools/banco/Relatorios.h"

namespace banco {
namespace {

constexpr const char* kAjuda =
    "Uso: caixa-banco BANCO COMANDO [ARGUMENTO...] [--agora AAAA-MM-DDTHH:MM:SS]\n"
    "\n"
    "BANCO é sqlite:ARQUIVO ou postgresql:CONEXÃO, como em\n"
    "  sqlite:/var/lib/clinica/caixa.db\n"
    "  postgresql:host=servidor dbname=caixa user=caixa\n"
    "\n"
    "Comandos:\n"
    "  criar           cria as tabelas, ou atualiza as de uma versão anterior\n"
    "  demonstracao    preenche um banco vazio com uma clínica inventada e mostra as senhas\n"
    "  empresa [AJUSTE=VALOR...]\n"
    "                  altera ajustes da empresa, como DataFinalDaPromocao=30/11/2026, e mostra\n"
    "                  todos\n"
    "  vendas [N]      mostra as últimas N vendas, com itens, pagamentos e troco (padrão: 10)\n"
    "  venda NÚMERO    mostra tudo o que uma venda deixou no banco\n"
    "  cliente CÓDIGO  mostra o crédito, as contas e as pré-vendas em aberto de um cliente\n"
    "  travas          mostra os clientes em atendimento e em que computador\n"
    "  liberar CÓDIGO  libera o cliente que um computador desligado deixou em atendimento\n"
    "  cupons [todos]  mostra os cupons fiscais que ficaram sem venda, ou todos\n"
    "  cupons encerrar NÚMERO MOTIVO\n"
    "                  encerra um deles, que assim deixa de ser avisado\n"
    "  conferir        confere se o banco está inteiro e se as contas de todas as vendas fecham\n"
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
  std::vector<std::string> argumentos;
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
  pedido.banco = soltos[0];
  pedido.comando = soltos[1];
  pedido.argumentos.assign(soltos.begin() + 2, soltos.end());
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
  const std::int32_t quantas =
      pedido.argumentos.empty() ? kPadrao : LerNumero(pedido.argumentos[0]);
  Mostrar(std::cout, services::UltimasVendas(*Abrir(pedido, relogio), quantas));
  return 0;
}

int MostrarVenda(const Pedido& pedido, const base::Clock& relogio) {
  const std::int32_t numero = LerNumero(pedido.argumentos[0]);
  const auto ficha = services::LerFichaDaVenda(*Abrir(pedido, relogio), numero);
  if (!ficha) {
    std::cerr << "Não há venda de número " << numero << ".\n";
    return 1;
  }
  Mostrar(std::cout, *ficha);
  return 0;
}

int MostrarCliente(const Pedido& pedido, const base::Clock& relogio) {
  const std::int32_t codigo = LerNumero(pedido.argumentos[0]);
  const auto ficha = services::LerFichaDoCliente(*Abrir(pedido, relogio), codigo);
  if (!ficha) {
    std::cerr << "Não há cliente cadastrado com o código " << codigo << ".\n";
    return 1;
  }
  Mostrar(std::cout, codigo, *ficha);
  return 0;
}

int AjustarEmpresa(const Pedido& pedido, const base::Clock& relogio) {
  std::vector<services::Ajuste> ajustes;
  for (const std::string& argumento : pedido.argumentos) {
    const std::size_t igual = argumento.find('=');
    if (igual == std::string::npos) {
      throw MauUso{"'" + argumento + "' não é um ajuste como ImprimirNotaPromissoria=Sim."};
    }
    ajustes.emplace_back(argumento.substr(0, igual), argumento.substr(igual + 1));
  }
  const auto banco = Abrir(pedido, relogio);
  services::AlterarEmpresa(*banco, ajustes);
  Mostrar(std::cout, services::LerAjustesDaEmpresa(*banco));
  return 0;
}

int MostrarTravas(const Pedido& pedido, const base::Clock& relogio) {
  Mostrar(std::cout, services::ListarTravas(*Abrir(pedido, relogio)));
  return 0;
}

int Liberar(const Pedido& pedido, const base::Clock& relogio) {
  const std::int32_t codigo = LerNumero(pedido.argumentos[0]);
  if (!services::LiberarTrava(*Abrir(pedido, relogio), codigo)) {
    std::cerr << "O cliente " << codigo << " não está em atendimento.\n";
    return 1;
  }
  std::cout << "O cliente " << codigo << " foi liberado.\n";
  return 0;
}

int EncerrarCupom(const Pedido& pedido, const base::Clock& relogio) {
  if (pedido.argumentos.size() < 3) throw MauUso{"Informe o número do cupom e o motivo."};
  const std::int32_t numero = LerNumero(pedido.argumentos[1]);
  const std::string& motivo = pedido.argumentos[2];
  if (base::IsBlank(motivo)) throw MauUso{"Informe o motivo."};
  if (!services::EncerrarCupom(*Abrir(pedido, relogio), numero, motivo)) {
    std::cerr << "Não há cupom em aberto de número " << numero << ".\n";
    return 1;
  }
  std::cout << "O cupom " << numero << " foi encerrado.\n";
  return 0;
}

int MostrarCupons(const Pedido& pedido, const base::Clock& relogio) {
  const std::string qual = pedido.argumentos.empty() ? "" : pedido.argumentos[0];
  if (qual == "encerrar") return EncerrarCupom(pedido, relogio);
  if (!qual.empty() && (qual != "todos" || pedido.argumentos.size() > 1)) {
    throw MauUso{"Depois de cupons só cabem todos, ou encerrar com o número e o motivo."};
  }
  const auto banco = Abrir(pedido, relogio);
  services::CompletarCupons(*banco, services::Alcance::kTodas);
  Mostrar(std::cout, services::ListarCupons(*banco, !qual.empty()));
  return 0;
}

int ConferirContas(const Pedido& pedido, const base::Clock& relogio) {
  const auto banco = Abrir(pedido, relogio);
  const std::string regra = services::RegraDoLog(*banco);
  if (!regra.empty()) std::cout << regra << '\n';
  const std::vector<std::string> achados = services::Conferir(*banco);
  for (const std::string& achado : achados) std::cout << achado << '\n';
  std::cout << (achados.empty() ? "As contas de todas as vendas fecham.\n"
                                : "As contas não fecham. Avise o suporte.\n");
  return achados.empty() ? 0 : 1;
}

struct Comando {
  std::string_view nome;
  std::size_t minimo, maximo;  ///< Arguments.
  int (*executar)(const Pedido&, const base::Clock&);
};

constexpr std::size_t kQualquer = 100;

constexpr Comando kComandos[] = {
    {"criar", 0, 0, Criar},
    {"demonstracao", 0, 0, Demonstrar},
    {"empresa", 0, kQualquer, AjustarEmpresa},
    {"vendas", 0, 1, MostrarVendas},
    {"venda", 1, 1, MostrarVenda},
    {"cliente", 1, 1, MostrarCliente},
    {"travas", 0, 0, MostrarTravas},
    {"liberar", 1, 1, Liberar},
    {"cupons", 0, 3, MostrarCupons},
    {"conferir", 0, 0, ConferirContas},
};

int Cumprir(const Pedido& pedido) {
  for (const Comando& comando : kComandos) {
    if (comando.nome != pedido.comando) continue;
    if (pedido.argumentos.size() < comando.minimo) {
      throw MauUso{"Falta o número ou código depois de " + pedido.comando + "."};
    }
    if (pedido.argumentos.size() > comando.maximo) throw MauUso{"Há argumentos a mais."};
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
