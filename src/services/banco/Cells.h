#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/Record.h"
#include "services/banco/Session.h"

namespace services {

/// A field of a record set that goes into a screen's grid as it stands, and the column that it is
/// read from.
struct Cell {
  enum class Form {
    kAsIs,
    kDay,       ///< dd/mm/yyyy of a moment
    kTime,      ///< hh:mm:ss of it
    kMoney,     ///< "#,##0.00"
    kDiscount,  ///< the same, negative
    kQuantity,  ///< a service's in whole numbers, a product's like money
  };

  std::string_view name;
  Form form = Form::kAsIs;
  std::string_view column;  ///< Any expression of the selection.
};

/// The columns of the cells, parted by commas, in their order.
std::string ColumnsOf(std::span<const Cell> cells);

/// The rows of a selection that begins with the columns of the cells, each value a text in its
/// final form. `kind` is the number of the column that says whether a line is a service or a
/// product, where quantities are among them.
base::RecordSetPtr SelectCells(Session& session, std::span<const Cell> cells,
                               const Statement& statement, const Params& params, int kind = -1);

}  // namespace services
