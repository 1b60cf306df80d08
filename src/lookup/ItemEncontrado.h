#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Currency.h"
#include "base/Record.h"
#include "frame/servicos/Codigos.h"

namespace lookup {

/// A service or a product that was found, as a sale takes it up. Its texts are those of its record.
struct ItemEncontrado {
  servicos::TipoDeLancamento tipo = servicos::kServico;
  std::string codigo = {};          ///< Of a product the internal one.
  std::string codigoDeBarras = {};  ///< Of a product.
  std::string nome = {};
  std::string unidade = {};                  ///< In which a product is sold.
  std::string custo = {};                    ///< Of one unit; empty for none.
  std::string valorDeVenda = {};             ///< As the field for a unit price shows it.
  base::Currency percentualDeComissao = {};  ///< Of a product; of a service it is the employee's.
  std::int32_t tipoDeServico = 0;            ///< Of a service.
};

/// The product of the current row. `unidade` is the field that holds its unit.
ItemEncontrado ProdutoDe(const base::RecordSet& registro,
                         std::string_view unidade = "UnidadeDeVenda");
/// The service of the current row.
ItemEncontrado ServicoDe(const base::RecordSet& registro);

}  // namespace lookup
