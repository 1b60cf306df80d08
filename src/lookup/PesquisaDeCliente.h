#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/Record.h"
#include "frame/PainelDeMensagem.h"
#include "lookup/ClienteEncontrado.h"
#include "platform/Label.h"
#include "platform/ZVFind.h"

/// The customer box that the counter, the debts and the credit screens share: three linked find
/// fields of which any one searches.
namespace lookup {

/// What a search by any of the three fields looks for.
struct ProcuraDeCliente {
  std::string apelido, nome;  ///< Trimmed.
  double codigo = 0;
};

/// Asks the service for the customer, and the operator for one of several. The customer's record,
/// its cursor on it; null when there was none, none was chosen, an inactive, blocked or excluded
/// one was refused, or after a fault: the operator has been told.
base::RecordSetPtr ProcurarCliente(const ProcuraDeCliente& procura,
                                   frame::PainelDeMensagem& painel);

/// The message for a customer who cannot be served, by `Situacao`; nothing for one who can.
std::optional<std::string> RecusaDaSituacao(std::int32_t situacao);

/// What follows "Cliente*" on the label of a customer: VIP mark and ABC category.
std::string SufixoDoRotulo(const std::string& vip, const std::string& categoriaDaCurvaABC);

/// The three find fields of a customer box, and what they do to each other.
class CaixaDoCliente {
 public:
  /// What the screen does around a search.
  struct Acoes {
    /// Searches for what the fields hold and places the customer on the screen; false when none.
    std::function<bool()> pesquisar;
    /// A customer was placed; `campo` is the field that searched.
    std::function<void(platform::ZVFind& campo)> aceitar;
    /// The box is empty again: what else belongs to a customer goes too.
    std::function<void()> esvaziar;
  };

  CaixaDoCliente(platform::Label& lblCliente, platform::ZVFind& apelido, platform::ZVFind& nome,
                 platform::ZVFind& codigo, Acoes acoes)
      : lblCliente_(lblCliente), campos_{&apelido, &nome, &codigo}, acoes_(std::move(acoes)) {}

  /// Typing in one field clears what the others show, so that it is the only search term.
  void KeyDown(platform::ZVFind& campo);
  /// Enter or the button of a field: search for what was typed, or start anew.
  void Click(platform::ZVFind& campo);

  ProcuraDeCliente Procura() const;
  /// Whether all three fields are filled.
  bool Informado() const;
  /// What the code field says; 0 where it says no number.
  double CodigoDoCliente() const;
  /// Takes a customer up: the fields show them as found, and the label of the box their mark.
  void Receber(ClienteEncontrado cliente);
  /// The customer taken up last, who stays known when the fields are emptied.
  const ClienteEncontrado& Cliente() const { return cliente_; }
  void Esvaziar();
  void Habilitar(bool habilitar);
  void RestaurarRotulo() { Rotular({}); }

 private:
  void Recomecar(platform::ZVFind& campo);
  void Rotular(std::string_view sufixo);
  platform::ZVFind& Apelido() const { return *campos_[0]; }
  platform::ZVFind& Nome() const { return *campos_[1]; }
  platform::ZVFind& Codigo() const { return *campos_[2]; }

  platform::Label& lblCliente_;
  std::array<platform::ZVFind*, 3> campos_;
  Acoes acoes_;
  ClienteEncontrado cliente_;
};

/// The words of a search that is too short, shared by all text find fields.
inline constexpr std::string_view kTresCaracteres =
    "Informe 3 caracteres ou mais para iniciar a pesquisa.";
/// Whether a find field for text holds too little to search for; the operator is told.
bool PesquisaCurtaDemais(platform::ZVFind& campo);

}  // namespace lookup
