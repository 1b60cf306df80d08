#pragma once

#include <cstdint>
#include <string>

#include "base/Record.h"

namespace sale {

class TelaDoBalcao;

/// The strip's registers: the list to choose one from, what state the chosen one is in, and what
/// the counter offers in that state. The number of the chosen one outlives the program, in the
/// settings file.
class FaixaDeCaixas {
 public:
  explicit FaixaDeCaixas(TelaDoBalcao& tela) : tela_(tela) {}

  /// Appends a register to the list. Error 5 for a name above 100 characters.
  void Acrescentar(const base::RecordSet& caixa);

  bool Escolhido() const;
  /// The number of the chosen register; -1 without one.
  std::int32_t Numero() const;
  /// Chooses the first register of that number, if one is listed, as the operator would.
  void Escolher(std::int32_t numero);
  /// Makes the choice that of the whole module. Without one its name stays that of the last.
  void Tomar() const;

  /// What the list says of the chosen register, servicos::SituacaoDoCaixa or a number that nothing
  /// is known of; out of operation without one. Error 13 where it says no number.
  std::int32_t Situacao() const;
  /// Opens and closes toolbar and work area as it befits a register in that state, and says why.
  void Oferecer(std::int32_t situacao);

  /// Takes the number up that the settings file has kept, or puts the present one there.
  static void LerArquivo();
  static void GravarArquivo();

 private:
  TelaDoBalcao& tela_;
};

}  // namespace sale
