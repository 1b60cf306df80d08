#include "clinic/Loading.h"

#include <algorithm>
#include <vector>

#include "clinic/Clock.h"
#include "services/Abertura.h"
#include "services/banco/Preenchimento.h"
#include "services/banco/Session.h"
#include "support/RawPostgres.h"

namespace bench {
namespace {

using services::Engine;
using services::Params;
using services::Session;
using services::Statement;

constexpr std::int64_t kChunk = 20'000;

/// An index or trigger, and how to make it again.
struct Helper {
  std::string kind, name, definition;
};

std::vector<Helper> HelpersOf(Session& session, const std::string& table) {
  const Statement select(
      "SELECT type, name, sql FROM sqlite_schema WHERE tbl_name = $1"
      " AND type IN ('index', 'trigger') AND sql IS NOT NULL",
      "SELECT 'index', i.indexname, i.indexdef FROM pg_indexes i WHERE i.tablename = $1"
      " AND NOT EXISTS (SELECT 1 FROM pg_constraint c WHERE c.conname = i.indexname)");
  std::vector<Helper> helpers;
  session.Select(select, {table}, [&](const services::Row& row) {
    helpers.push_back({row.Text(0), row.Text(1), row.Text(2)});
  });
  return helpers;
}

void InsertInto(Session& session, const Load& load) {
  for (std::int64_t from = 0; from < load.rows; from += kChunk) {
    std::vector<Params> rows;
    for (std::int64_t at = from; at < std::min(from + kChunk, load.rows); ++at) {
      rows.push_back(load.row(at));
    }
    services::InsertRows(session, load.table, load.columns, rows);
  }
}

void AppendCell(std::string& line, const services::Param& value) {
  if (const auto* number = value.Integer()) {
    line += std::to_string(*number);
  } else if (const auto* text = value.Text()) {
    for (const char c : *text) {
      if (c == '\\') line += '\\';
      c == '\n' ? line += "\\n" : line += c;
    }
  } else {
    line += "\\N";
  }
}

void CopyInto(const std::string& connection, const Load& load) {
  RawPostgres link(connection);
  link.BeginCopy(load.table, load.columns);
  std::string lines;
  for (std::int64_t at = 0; at < load.rows; ++at) {
    const Params row = load.row(at);
    for (std::size_t column = 0; column < row.size(); ++column) {
      if (column > 0) lines += '\t';
      AppendCell(lines, row[column]);
    }
    lines += '\n';
    if ((at + 1) % kChunk != 0 && at + 1 != load.rows) continue;
    link.Copy(lines);
    lines.clear();
  }
  link.EndCopy();
}

/// The connection text of an address.
std::string TargetOf(const std::string& address) {
  return address.substr(address.find(':') + 1);
}

/// The index of names on SQLite is a table of its own, which the triggers were to follow.
void RebuildNames(Session& session, const std::string& table) {
  const Statement hasNames("SELECT 1 FROM sqlite_schema WHERE name = $1");
  const std::string names = table + "_busca";
  if (session.Select(hasNames, {names}, [](const services::Row&) {}) == 0) return;
  session.RunScript("INSERT INTO " + names + " (" + names + ") VALUES ('rebuild')");
}

}  // namespace

void LoadRows(const std::string& address, const Load& load) {
  const StandingClock clock;
  const auto banco = services::AbrirBanco(address, clock, "bench");
  Session& session = banco->Sessao();
  const std::vector<Helper> helpers = HelpersOf(session, load.table);
  const bool isSqlite = session.Kind() == Engine::kSqlite;
  if (isSqlite) session.Begin();
  for (const Helper& helper : helpers) {
    session.RunScript("DROP " + helper.kind + " " + helper.name);
  }
  if (isSqlite) {
    InsertInto(session, load);
  } else {
    CopyInto(TargetOf(address), load);
  }
  for (const Helper& helper : helpers) session.RunScript(helper.definition);
  if (isSqlite) {
    RebuildNames(session, load.table);
    session.Commit();
  } else {
    // It stands in no transaction, and a session writes in none but those.
    RawPostgres(TargetOf(address)).Execute(("VACUUM ANALYZE " + load.table).c_str());
  }
}

}  // namespace bench
