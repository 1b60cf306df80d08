#pragma once

#include <cstddef>
#include <string>

namespace services {

enum class Engine { kSqlite, kPostgres };

/// A piece of SQL, prepared once a connection and run many times. Its places are $1, $2 and so on.
/// Mostly one text serves both engines. Statements are kept for the life of the program, as
/// function statics.
class Statement {
 public:
  enum class Planning {
    kOnce,      ///< One plan for all values.
    kByValues,  ///< Planned for the values of each run, where they decide what is fast.
  };

  explicit Statement(const std::string& text) : Statement(text, text) {}
  Statement(std::string sqlite, std::string postgres, Planning planning = Planning::kOnce);
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  const std::string& Text(Engine engine) const {
    return engine == Engine::kSqlite ? sqlite_ : postgres_;
  }
  Planning Planned() const { return planning_; }
  /// Counted from 0, the same for the life of the program.
  std::size_t Id() const { return id_; }

 private:
  std::string sqlite_;
  std::string postgres_;
  Planning planning_;
  std::size_t id_;
};

}  // namespace services
