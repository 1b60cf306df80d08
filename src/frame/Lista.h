#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "base/Record.h"
#include "frame/Grade.h"
#include "platform/MSFlexGrid.h"

namespace frame {

/// A grid that shows the rows of a selection: whole rows selected, sorted by a click on a header,
/// scrolled by the wheel.
class Lista {
 public:
  /// The last of the columns belongs to the sort where one of them holds dates.
  Lista(platform::MSFlexGrid& grade, std::span<const Coluna> colunas);

  /// The operator, or a sort, has brought another row to the fore.
  std::function<void()> aoSelecionar;
  /// The operator has clicked a row that shows a record, or pressed Enter on it. A screen without
  /// this leaves clicks and Enter alone.
  std::function<void()> aoEscolher;
  /// The operator has double-clicked such a row, or pressed Enter on it where nobody chooses.
  std::function<void()> aoAbrir;

  void Esvaziar();
  /// One row a record, in the order in which they come; the first is selected. Amounts have two
  /// decimals or the more that they need; of a moment a date column shows the day and a text column
  /// the time. Error 9 for a field that the records do not have.
  void Preencher(base::RecordSet& registros);
  /// The same of records whose fields fill the columns from the first one on, whatever their names;
  /// a no-break space, by which services part lines, begins a new line.
  void PreencherPorPosicao(base::RecordSet& registros);

  /// How many records the grid shows.
  std::int32_t Quantos() const { return quantos_; }
  /// Sorts by a column, as `Classificar` of Grade.h.
  void Classificar(std::int16_t coluna, bool alternar);
  /// Selects a row, which is 1 at least and `Quantos` at most, and brings it into view.
  void SelecionarA(std::int32_t linha);
  /// Selects the row whose cell has that text, if there is one.
  void SelecionarOnde(std::int32_t coluna, const std::string& texto);
  /// A cell of the selected row; empty when the grid shows no record.
  std::string Selecionado(std::int32_t coluna) const;

 private:
  /// A field, and the column that it fills.
  struct Campo {
    std::int32_t coluna, campo;
  };

  template <class Campos, class Texto>
  void Preencher(base::RecordSet& registros, Campos campos, Texto texto);
  void Clicar();
  void Teclar(platform::KeyStroke& tecla);
  void Abrir();
  void Selecionar();

  platform::MSFlexGrid& grade_;
  std::span<const Coluna> colunas_;
  Classificacao classificacao_;
  std::int32_t quantos_ = 0;
};

}  // namespace frame
