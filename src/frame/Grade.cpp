#include "frame/Grade.h"

#include <algorithm>

#include "base/Text.h"

namespace frame {
namespace {

using platform::Align;
using platform::MSFlexGrid;
using platform::SortMode;

constexpr auto kNumericaCrescente = static_cast<std::int16_t>(SortMode::kNumericAscending);
constexpr auto kNumericaDecrescente = static_cast<std::int16_t>(SortMode::kNumericDescending);
constexpr auto kTextoCrescente = static_cast<std::int16_t>(SortMode::kTextAscending);
constexpr auto kTextoDecrescente = static_cast<std::int16_t>(SortMode::kTextDescending);

void EscreverChavesDeData(MSFlexGrid& grade, std::int32_t coluna) {
  for (std::int32_t linha = 1; linha < grade.Rows(); ++linha) {
    const std::string& data = grade.TextMatrix(linha, coluna);
    grade.TextMatrix(linha, grade.Cols() - 1,
                     base::Mid(data, 7, 4) + base::Mid(data, 4, 2) + base::Mid(data, 1, 2));
  }
}

/// Puts the column's ascending or descending mode in force, with its picture. A column of another
/// kind leaves both alone.
void Ordenar(MSFlexGrid& grade, bool crescente, Classificacao& classificacao) {
  const std::int32_t tipo = grade.ColData(grade.Col());
  if (tipo < kNumero || tipo > kData) return;
  classificacao.OrdemDeClassificacao = tipo == kNumero
                                           ? (crescente ? kNumericaCrescente : kNumericaDecrescente)
                                           : (crescente ? kTextoCrescente : kTextoDecrescente);
  grade.CellPicture(crescente ? kClassificacaoCrescente : kClassificacaoDecrescente);
}

}  // namespace

void ConfigurarColunas(MSFlexGrid& grade, std::span<const Coluna> colunas) {
  const SemRedesenho semRedesenho(grade);
  grade.Clear();
  grade.Rows(2);
  grade.FixedRows(1);
  grade.Cols(static_cast<std::int32_t>(colunas.size()));
  for (std::int32_t i = 0; i < grade.Cols(); ++i) {
    const Coluna& coluna = colunas[static_cast<std::size_t>(i)];
    grade.TextMatrix(0, i, coluna.titulo);
    grade.ColWidth(i, coluna.largura);
    grade.ColAlignment(i, coluna.alinhamento);
    grade.ColData(i, coluna.tipo);
  }
}

void Classificar(MSFlexGrid& grade, std::int16_t coluna, bool alternar,
                 Classificacao& classificacao) {
  const SemRedesenho semRedesenho(grade);
  grade.Row(0);
  grade.Col(classificacao.ColunaDeClassificacao);
  grade.CellPicture("");
  if (grade.ColData(coluna) == kData) EscreverChavesDeData(grade, coluna);
  const std::int16_t ordem = classificacao.OrdemDeClassificacao;
  if (coluna != classificacao.ColunaDeClassificacao || !alternar) {
    classificacao.ColunaDeClassificacao = coluna;
    grade.Col(coluna);
    Ordenar(grade, true, classificacao);
  } else {
    Ordenar(grade, ordem != kNumericaCrescente && ordem != kTextoCrescente, classificacao);
  }
  grade.CellPictureAlignment(Align::kRightCenter);
  if (grade.ColData(grade.Col()) == kData) grade.Col(grade.Cols() - 1);
  if (classificacao.OrdemDeClassificacao != 0) {
    grade.Sort(static_cast<SortMode>(classificacao.OrdemDeClassificacao));
  }
  SelecionarLinha(grade, 1);
  classificacao.ColunaDeClassificacao = coluna;
}

std::int32_t ColunaComTitulo(const MSFlexGrid& grade, std::string_view titulo) {
  const std::string procurado = base::Upper(titulo);
  for (std::int32_t i = 0; i < grade.Cols(); ++i) {
    if (base::Upper(grade.TextMatrix(0, i)) == procurado) return i;
  }
  return -1;
}

void SelecionarLinhaInteira(MSFlexGrid& grade) {
  if (grade.Rows() <= 1) return;
  const std::int32_t linha = grade.RowSel();
  grade.Row(linha);
  grade.ColSel(grade.Cols() - 1);
}

void SelecionarLinha(MSFlexGrid& grade, std::int32_t linha) {
  if (grade.Rows() <= linha) return;
  grade.TopRow(linha);
  grade.Row(linha);
  grade.RowSel(linha);
  grade.Col(0);
  grade.ColSel(grade.Cols() - 1);
}

bool SomenteLinhaEmBranco(const MSFlexGrid& grade) {
  if (grade.Rows() != 2) return false;
  for (std::int32_t i = 0; i <= grade.Cols() - 2; ++i) {
    if (!grade.TextMatrix(1, i).empty()) return false;
  }
  return true;
}

void RetirarLinha(MSFlexGrid& grade, std::int32_t linha) {
  if (grade.Rows() == 2) grade.AddItem("");
  grade.RemoveItem(linha);
}

}  // namespace frame
