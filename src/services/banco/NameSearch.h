#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "services/banco/Fields.h"
#include "services/banco/Outcome.h"
#include "services/banco/Session.h"

namespace services {

/// A selection of rows of a table by part of their names, through the index of trigrams.
///
/// A part such as "maria silva" is made of trigrams that half the clinic's customers share, and the
/// index has a list of rows for each. So only a few of them are looked up, from all of its words,
/// and the rows that have those are held against the whole part.
class NameSearch {
 public:
  struct Table {
    std::string_view name;
    std::string_view key;
  };

  /// `selection` has "{named}" where the keys of the rows found belong, as in "codigo IN
  /// ({named})", and `others` places of its own, from $1 on. `limit` is for the keys, as in " LIMIT
  /// 5001".
  NameSearch(std::string_view selection, Table table, int others, std::string_view limit = {});

  /// The part of a name that a text asks for; nothing when it has fewer than three characters, by
  /// which the index knows nobody.
  static std::optional<std::string> PartIn(std::string_view text);

  /// What to run for a part, and with which values behind those of the other places.
  const Statement& For(Engine engine, const std::string& part) const;
  static Params Bound(Engine engine, const std::string& part, Params others);

 private:
  Statement byPart_;
  Statement bySamples_;  ///< For parts that are long.
};

/// The rows that an operator looks through, kMostRows at most; when there are more, the outcome
/// says so.
struct Listing {
  Session& session;
  Outcome& outcome;
  std::span<const Field> fields;
  std::string_view what;  ///< The rows in the plural, as in "clientes".

  void Show(const Statement& statement, const Params& params) const;
  /// By a text that the operator typed: those whose names have it, or those of `shorter` where it
  /// is too short for that. Both have the same `others` in their own places.
  void ShowNamed(const NameSearch& search, const Statement& shorter, std::string_view text,
                 const Params& others) const;
};

}  // namespace services
