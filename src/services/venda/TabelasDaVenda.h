#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "services/banco/Param.h"
#include "services/venda/Venda.h"

namespace services {

/// A column that a sale writes, and its type on PostgreSQL.
struct Coluna {
  std::string_view nome;
  std::string_view tipo;
};

/// The columns of a sale's own row that are written as they come. Its number, register, customer
/// and count of pre-sale lines are not among them: they depend on what the database holds.
std::span<const Coluna> ColunasDaVenda();
Params LinhaDaVenda(const Venda& venda);
std::vector<Params> ItensDaVenda(const Venda& venda);

/// One of the tables whose rows belong to a sale; the sale's number is not among the columns.
struct TabelaDaVenda {
  std::string_view nome;
  std::span<const Coluna> colunas;
  /// The rows for a sale, one value a column.
  std::vector<Params> (*linhas)(const Venda&);
};

/// Items, register entries, receivables, movements of the customer's credit.
std::span<const TabelaDaVenda> TabelasDaVenda();

/// The names of the columns, parted by commas.
std::string Nomes(std::span<const Coluna> colunas);

}  // namespace services
