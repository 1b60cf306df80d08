#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Record.h"
#include "services/banco/Session.h"

namespace services {

/// A field of a record set, and the column that it is read from.
struct Field {
  enum class Kind {
    kNumber,  ///< 32 bits
    kMoney,   ///< a currency: amounts, and percentages too
    kText,
    kMoment,  ///< a date, with its time if it has one
    kYesNo,   ///< the text "Sim" or "Não"
    kTruth,   ///< a boolean
  };

  std::string_view name;
  Kind kind = Kind::kText;
  std::string_view column;  ///< Any expression of the selection.
};

/// The columns of the fields, parted by commas, in their order.
std::string ColumnsOf(std::span<const Field> fields);

/// The rows of a selection whose columns are those of the fields, in their order; at most `most` of
/// them. `more` tells whether there were further ones. `finish` may change the values of a row.
struct Selected {
  base::RecordSetPtr rows;
  bool more = false;
};
Selected SelectRows(Session& session, std::span<const Field> fields, const Statement& statement,
                    const Params& params, std::int64_t most = INT64_MAX,
                    const std::function<void(std::vector<base::Value>&)>& finish = {});

}  // namespace services
