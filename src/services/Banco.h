#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/Clock.h"

namespace services {

class Session;

/// Why a database could not be opened or created. `what()` is one Portuguese sentence or two for
/// the operator, which a host prints before it ends with status 1. It never shows a password.
class FalhaDeAbertura : public std::runtime_error {
 public:
  enum class Motivo {
    kEnderecoInvalido,     ///< Neither sqlite:FILE nor postgresql:CONNINFO.
    kNaoExiste,            ///< No such file or folder.
    kNaoEBanco,            ///< A file or database of something else.
    kNaoCriado,            ///< An empty file or database: nothing was created in it yet.
    kEsquemaMaisNovo,      ///< Written by a newer version of this program.
    kEsquemaMaisAntigo,    ///< To be migrated first; see CriarBanco.
    kOcupado,              ///< Another program holds it and does not let go.
    kSemPermissao,         ///< No rights to read and write.
    kServidorInacessivel,  ///< No connection to the server.
    kOutro,
  };

  FalhaDeAbertura(Motivo motivo, const std::string& frase)
      : std::runtime_error(frase), motivo_(motivo) {}

  Motivo Qual() const { return motivo_; }

 private:
  Motivo motivo_;
};

/// The clinic's database as one process uses it: one connection with its prepared statements, the
/// clock, and the name of this computer. The services share it. For one thread.
class Banco {
 public:
  /// `relogio` outlives the database. `computador` is the name under which the module knows this
  /// computer, since the module frees a customer without saying it again; "N" when there is none.
  Banco(std::unique_ptr<Session> sessao, const base::Clock& relogio, std::string computador);
  ~Banco();
  Banco(const Banco&) = delete;
  Banco& operator=(const Banco&) = delete;

  Session& Sessao() { return *sessao_; }
  base::DateTime Agora() const { return relogio_.Now(); }
  const std::string& Computador() const { return computador_; }

 private:
  std::unique_ptr<Session> sessao_;
  const base::Clock& relogio_;
  std::string computador_;
};

/// Opens a database that CriarBanco has created, by its address: "sqlite:FILE", or "postgresql:"
/// followed by a connection text of libpq, as in "postgresql:host=servidor dbname=caixa" or
/// "postgresql://servidor/caixa". Throws FalhaDeAbertura, and then has changed nothing.
std::shared_ptr<Banco> AbrirBanco(std::string_view endereco, const base::Clock& relogio,
                                  std::string computador);

/// Creates the tables in a new SQLite file or an empty PostgreSQL database, or brings those of an
/// older version up to date; does nothing when they are current. All or nothing. Throws
/// FalhaDeAbertura.
void CriarBanco(std::string_view endereco);

}  // namespace services
