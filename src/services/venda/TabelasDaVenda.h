#pragma once

#include <string_view>
#include <vector>

#include "services/banco/Param.h"
#include "services/venda/Colunas.h"
#include "services/venda/Venda.h"

namespace services {

/// The columns of a sale's own row that are written as they come. Its number, register, customer
/// and count of pre-sale lines are not among them: they depend on what the database holds.
const std::vector<Coluna>& ColunasDaVenda();
Params LinhaDaVenda(const Venda& venda);
std::vector<Params> ItensDaVenda(const Venda& venda);

/// One of the tables whose rows belong to a sale; the sale's number is not among the columns.
struct TabelaDaVenda {
  std::string_view nome;
  std::vector<Coluna> colunas;
  /// The rows for a sale, one value a column.
  std::vector<Params> (*linhas)(const Venda&);
};

/// Items, register entries, receivables, movements of the customer's credit.
const std::vector<TabelaDaVenda>& TabelasDaVenda();

}  // namespace services
