#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace services {

class Banco;

/// A user of the demonstration clinic, with the password that only its hash is kept of.
struct UsuarioDeDemonstracao {
  std::string nome;
  std::string senha;
  std::string papel;  ///< What the user may do, in a few words for the operator.
};

/// The database already holds a clinic; `what()` is a sentence for the operator.
class BancoNaoVazio : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Fills an empty database with an invented clinic: company, registers, users, customers with their
/// animals, products, services, employees, open pre-sale lines, overdue debts. The same on every
/// run but for the dates, which lie around the database's today. All or nothing. Throws
/// BancoNaoVazio or DatabaseError.
std::vector<UsuarioDeDemonstracao> CriarDemonstracao(Banco& banco);

}  // namespace services
