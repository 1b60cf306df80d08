#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/MSFlexGrid.h"

/// What all grids of the module have in common: their columns as rows of a table, whole-row
/// selection, and the sort that a picture in the header shows.
namespace frame {

/// What a column holds, which decides how it is sorted; kept as the grid's ColData.
enum TipoDeColuna : std::int16_t { kNumero = 0, kTexto = 1, kData = 2 };

/// One column of a grid. A width of 0 hides it.
struct Coluna {
  std::string_view titulo;
  std::int32_t largura = 0;  ///< Twips.
  platform::Align alinhamento = platform::Align::kLeftCenter;
  TipoDeColuna tipo = kTexto;
  std::string_view campo = {};  ///< The record set field that fills it, where one does.
};

/// The keys of the two pictures of ilClassificacaoDaGrade.
inline constexpr std::string_view kClassificacaoCrescente = "Classificacao_Crescente";
inline constexpr std::string_view kClassificacaoDecrescente = "Classificacao_Decrescente";

/// The sorted column of a screen's grid and the mode in force, in the numbers of the grid's Sort.
struct Classificacao {
  std::int16_t ColunaDeClassificacao = 0;
  std::int16_t OrdemDeClassificacao = 0;
};

/// Empties the grid and gives it these columns, one header row and one blank row.
void ConfigurarColunas(platform::MSFlexGrid& grade, std::span<const Coluna> colunas);

/// Sorts by a column: ascending at first, the other way round when `alternar` asks for the column
/// that is sorted already. A date column is sorted by keys yyyymmdd written into the last column.
/// Afterwards the first row is on top and selected whole.
void Classificar(platform::MSFlexGrid& grade, std::int16_t coluna, bool alternar,
                 Classificacao& classificacao);

/// The column whose header reads `titulo`, in any case of letters, or -1.
std::int32_t ColunaComTitulo(const platform::MSFlexGrid& grade, std::string_view titulo);

/// Widens the selection to the whole row that the operator moved to.
void SelecionarLinhaInteira(platform::MSFlexGrid& grade);
/// Selects a row across all columns and brings it to the top of the view.
void SelecionarLinha(platform::MSFlexGrid& grade, std::int32_t linha);

/// Whether the grid holds its blank row and nothing else, looking at all columns but the last.
bool SomenteLinhaEmBranco(const platform::MSFlexGrid& grade);

/// Takes a row out; the last one leaves a blank row behind.
void RetirarLinha(platform::MSFlexGrid& grade, std::int32_t linha);

/// Keeps the grid from repainting for a stretch of a routine; within another such stretch it
/// changes nothing.
class SemRedesenho {
 public:
  explicit SemRedesenho(platform::MSFlexGrid& grade) : grade_(grade), antes_(grade.Redraw()) {
    grade_.Redraw(false);
  }
  ~SemRedesenho() { grade_.Redraw(antes_); }
  SemRedesenho(const SemRedesenho&) = delete;
  SemRedesenho& operator=(const SemRedesenho&) = delete;

 private:
  platform::MSFlexGrid& grade_;
  const bool antes_;
};

}  // namespace frame
