#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "services/banco/Param.h"

namespace services {

/// A column that is written: its type on PostgreSQL, and what stands in it for one row.
template <class Linha>
struct ColunaDe {
  std::string_view nome;
  std::string_view tipo;
  Param (*valor)(const Linha&);
};

/// A column without its value.
struct Coluna {
  std::string_view nome;
  std::string_view tipo;
};

template <class Linha, std::size_t n>
std::vector<Coluna> NomesETipos(const ColunaDe<Linha> (&colunas)[n]) {
  std::vector<Coluna> todas;
  todas.reserve(n);
  for (const auto& coluna : colunas) todas.push_back({coluna.nome, coluna.tipo});
  return todas;
}

/// One value a column, in their order.
template <class Linha, std::size_t n>
Params Valores(const ColunaDe<Linha> (&colunas)[n], const Linha& linha) {
  Params valores;
  valores.reserve(n);
  for (const auto& coluna : colunas) valores.push_back(coluna.valor(linha));
  return valores;
}

/// The names of the columns, parted by commas.
std::string Nomes(std::span<const Coluna> colunas);

/// Null where there is none.
inline Param NumeroOuNulo(std::int64_t numero) {
  return numero == 0 ? Param() : Param(numero);
}

}  // namespace services
