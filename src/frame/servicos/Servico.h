#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/Record.h"
#include "base/RuntimeError.h"

/// The contract with the business services and the sibling screens of the suite: one abstract class
/// for each, under its name, in a namespace of its project's name. A service object lives for one
/// use: it is created by its identifier, given its inputs, asked once, read, and let go.
///
/// Numbered status of an operation: 0 success; 1 fault (NumeroDoErro, DescricaoDoErro,
/// LocalDoErro); 2 refusal as information, 3 refusal as stop, any other a failure number
/// (DescricaoDaFalha). A selection without rows is a success with an empty record set.
namespace servicos {

enum : std::int16_t {
  kSucesso = 0,
  kErro = 1,
  kRecusa = 2,
  kRecusaGrave = 3,
};

/// Failure numbers after which the counter reads its registers again.
enum : std::int16_t {
  kCaixaInexistente = 41,
  kCaixaDesativado = 43,
  kCaixaJaAberto = 51,
  kCaixaNaoAberto = 52,
};

/// A member that a service does not implement is missing from it: run-time error 438. Each class
/// of the contract gives its kIdentificador, and in kMembros the names of its members, parted by
/// blanks; those that it shares with its family stand in kMembrosDaFamilia.
class Servico {
 public:
  static constexpr std::string_view kMembrosDaFamilia = "";

  virtual ~Servico() = default;

 protected:
  [[noreturn]] static void Ausente() { throw base::RuntimeError(base::Fault::kNoSuchMember); }
};

/// What every business service has that can fail.
class ServicoDeNegocio : public Servico {
 public:
  static constexpr std::string_view kMembrosDaFamilia =
      "DadosDoUsuario NumeroDoErro DescricaoDoErro LocalDoErro DescricaoDaFalha "
      "ResultadoDaSelecaoEmRecordSet";

  /// The session record, or null; it outlives the service.
  virtual void DadosDoUsuario(const base::Record*) { Ausente(); }
  virtual std::int32_t NumeroDoErro() { Ausente(); }
  virtual std::string DescricaoDoErro() { Ausente(); }
  virtual std::string LocalDoErro() { Ausente(); }
  virtual std::string DescricaoDaFalha() { Ausente(); }
  /// The rows of the last selection, an empty set when it found none; never null.
  virtual base::RecordSetPtr ResultadoDaSelecaoEmRecordSet() { Ausente(); }
};

/// What every sibling screen is given before it opens; it opens modally.
class TelaIrma : public Servico {
 public:
  static constexpr std::string_view kMembrosDaFamilia = "DadosDoUsuario NomeDaAplicacao";

  virtual void DadosDoUsuario(const base::Record*) { Ausente(); }
  virtual void NomeDaAplicacao(std::string_view) { Ausente(); }
};

using Fabrica = std::function<std::unique_ptr<Servico>()>;

/// Puts a service behind its identifier, in place of any earlier one.
void Registrar(std::string_view identificador, Fabrica fabrica);
/// Forgets every service.
void EsquecerTodos();
/// A new service; run-time error 429 when none stands behind the identifier.
std::unique_ptr<Servico> Criar(std::string_view identificador);

/// A new service of a contract class, found by the identifier of that class.
template <class Classe>
std::unique_ptr<Classe> CriarServico() {
  std::unique_ptr<Servico> servico = Criar(Classe::kIdentificador);
  if (dynamic_cast<Classe*>(servico.get()) == nullptr) {
    throw base::RuntimeError(base::Fault::kCannotCreateObject);
  }
  return std::unique_ptr<Classe>(static_cast<Classe*>(servico.release()));
}

}  // namespace servicos
