#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/Clock.h"

namespace services {

class Banco;

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

/// Opens a database that CriarBanco has created, by its address: "sqlite:FILE", or "postgresql:"
/// followed by a connection text of libpq, as in "postgresql:host=servidor dbname=caixa" or
/// "postgresql://servidor/caixa". Throws FalhaDeAbertura, and then has changed nothing.
std::shared_ptr<Banco> AbrirBanco(std::string_view endereco, const base::Clock& relogio,
                                  std::string computador, std::string marca = "");

/// Creates the tables in a new SQLite file or an empty PostgreSQL database, or brings those of an
/// older version up to date; does nothing when they are current. All or nothing. Throws
/// FalhaDeAbertura.
void CriarBanco(std::string_view endereco);

}  // namespace services
