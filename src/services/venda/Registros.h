#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/DateTime.h"
#include "services/banco/Session.h"
#include "services/venda/Lembrete.h"
#include "services/venda/Provas.h"

namespace services {

class Banco;

/// What is about to be registered: how the operator is told of it, and what it is known by when
/// they do it again.
struct Registro {
  std::string oQue;   ///< As in "venda de 100,00 para Dudu".
  char artigo = 'a';  ///< Of these words: 'a' or 'o'.
  TipoDeRegistro tipo = TipoDeRegistro::kMovimento;
  base::DateTime quando;
  std::int64_t operacao = 0;  ///< Tells this attempt from every other one.
  /// ConteudoDe all that was handed over and is not drawn anew each time.
  std::function<std::string()> conteudo;

  bool TemNumero() const { return tipo == TipoDeRegistro::kVenda; }
};

/// One text for so many values, the same for the same values alone.
std::string ConteudoDe(const std::vector<Params>& linhas);

/// What became of this program's registrations: of sales and movements alike.
///
/// One whose commit got no answer is kept until it is known whether it stands. Before that nothing
/// else is registered, so that there is one at most. With a Lembrete that holds for one that an
/// earlier run of the program left, too. Found to stand, it answers the same
/// registration once more, when that is the very next one and comes within 15 minutes: an operator
/// who saw an error tries again.
class Registros {
 public:
  /// Writes in a transaction of its own, of which it gives a proof, and sets the number before that
  /// is kept.
  using Gravar = std::function<void(std::int32_t& numero)>;

  explicit Registros(Banco& banco) : banco_(banco) {}

  /// Notes from now on what is being registered, and takes over what was left; as Lembrete.
  void Lembrar(const std::string& pasta, std::string_view banco);

  /// Registers through `gravar`, unless it turns out to stand already; the number. Throws Refusal
  /// when it is still not known whether the one before stands; base::RuntimeError with the number
  /// of Trouble::kInDoubt when it is not known of this one; what `gravar` throws.
  std::int32_t Registrar(const Registro& novo, const Gravar& gravar);

  /// Whether a note stays of what the operator has seen by now, whose screen is at rest.
  bool HaNotaVista() const { return concluido_; }
  void ApagarNotaVista();

  bool HaDuvida() const { return duvida_ && !duvida_->achadaEm; }
  /// Finds out what is in doubt, and tells the operator; takes 10 s at most.
  void Apurar();

  /// What is told of a fault, after "A venda 12 está registrada." until the next registration or
  /// until that is forgotten: the operator is not to take the fault for the sale's.
  std::string AposUltimo(const std::string& falha) const;
  void EsquecerUltimo() { ultimo_.clear(); }

 private:
  struct Duvida {
    Registro registro;
    std::string conteudo;  ///< Its fingerprint.
    std::int32_t numero = 0;
    Doubt doubt;
    std::optional<double> achadaEm = {};  ///< When it was found to stand, by the clock.
  };

  void Anotar(const Registro& novo);
  /// It is known what became of what is noted; the note stays until the operator has seen it.
  void Concluir() { concluido_ = lembrete_.has_value(); }
  /// What became of the one in doubt; its number is known when it stands.
  Standing Procurar();
  /// The number under which it stands already, if it does.
  std::optional<std::int32_t> JaRegistrado(const Registro& novo);

  Banco& banco_;
  std::string ultimo_;
  std::optional<Duvida> duvida_;
  std::optional<Lembrete> lembrete_;
  bool concluido_ = false;
};

}  // namespace services
