#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/DateTime.h"
#include "services/venda/Provas.h"

namespace services {

/// A registration, as much of it as is needed to find out later whether it stands.
struct Lembranca {
  std::string sessao;  ///< Session::Name of the connection.
  std::int64_t operacao = 0;
  std::int32_t cupom = 0;  ///< That of the sale; 0 for none.
  TipoDeRegistro tipo = TipoDeRegistro::kMovimento;
  char artigo = 'a';
  base::DateTime quando;
  std::string conteudo;  ///< One line; the same for the same registration alone.
  std::string oQue;
};

/// What this program is registering, noted in the settings folder of the workstation from before it
/// is asked for until the operator has seen what became of it. So a program that was killed, or
/// closed in doubt, leaves word to the next one.
///
/// The files registrando.1 to registrando.16 serve as many programs of one folder at once; each
/// holds one of them locked. A note is worth no failure: where it cannot be kept, the registration
/// goes on without.
class Lembrete {
 public:
  /// `banco` tells the database from others: what was left for another one stays where it is.
  Lembrete(const std::string& pasta, std::string_view banco);
  ~Lembrete();
  Lembrete(const Lembrete&) = delete;
  Lembrete& operator=(const Lembrete&) = delete;

  /// What a program left that is gone, and that is this one's from now on.
  const std::optional<Lembranca>& Deixada() const { return deixada_; }

  /// Holds when this program is killed; not through a power failure before Firmar.
  void Anotar(const Lembranca& lembranca) noexcept;
  void Firmar() noexcept;
  void Apagar() noexcept;

 private:
  /// Whether the file could be taken, and whether something for this database lies in it.
  enum class Achado { kNada, kVazio, kLembranca };
  Achado Tomar(const std::string& arquivo);
  void Soltar();

  std::string banco_;
  int numero_ = -1;
  std::optional<Lembranca> deixada_;
};

}  // namespace services
