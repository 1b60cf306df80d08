#include "services/banco/Integridade.h"

#include <map>
#include <string_view>
#include <utility>

#include "base/Text.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Migrations.h"

namespace services {
namespace {

using Findings = std::vector<std::string>;

/// Damage is seldom alone, and the first sentences say what the thousandth would.
constexpr std::size_t kMost = 10;

void Tell(Findings& findings, const std::string& sentence) {
  if (findings.size() < kMost) findings.push_back(sentence);
}

/// Statements live as long as the program.
const Statement& Kept(const std::string& sql) {
  static std::map<std::string, Statement> kept;
  return kept.try_emplace(sql, sql).first->second;
}

void CheckFile(Session& session, Findings& findings) {
  static const Statement check("PRAGMA integrity_check(10)");
  session.Select(check, {}, [&](const Row& row) {
    const std::string told = row.Text(0);
    if (told == "ok") return;
    for (const std::string& line : base::Split(told, '\n')) {
      if (!line.empty()) Tell(findings, "O arquivo do banco de dados está danificado: " + line);
    }
  });
}

/// The indexes of names are tables of their own to SQLite. Looking them through is a command of
/// theirs in the form of a writing, which changes nothing.
void CheckNameIndexes(Session& session, Findings& findings) {
  for (const Migration& migration : Migrations()) {
    for (const NamedTable& named : migration.named) {
      const std::string index = std::string(named.table) + "_busca";
      try {
        const Transaction nothing(session);
        session.RunScript("INSERT INTO " + index + " (" + index +
                          ", rank) VALUES ('integrity-check', 1)");
      } catch (const DatabaseError& error) {
        if (error.What() != Trouble::kCorrupt) throw;
        Tell(findings,
             "O índice da busca por nomes em " + std::string(named.table) + " está danificado.");
      }
    }
  }
}

bool IsText(const std::string& text) {
  std::string again;
  for (std::string_view rest = text; !rest.empty();) {
    const char32_t character = base::TakeCharacter(rest);
    const bool isControl = character == U'\x7f' || (character < U' ' && character != U'\n' &&
                                                    character != U'\r' && character != U'\t');
    if (isControl) return false;
    base::AppendCharacter(again, character);
  }
  return again == text;
}

/// What no keyboard writes into a text is damage.
void CheckTexts(Session& session, Findings& findings) {
  static const Statement columns(
      "SELECT m.name, c.name FROM sqlite_schema m, pragma_table_info(m.name) c"
      " WHERE m.type = 'table' AND m.sql LIKE '%STRICT%' AND c.type = 'TEXT' ORDER BY 1, 2");
  std::vector<std::pair<std::string, std::string>> all;
  session.Select(columns, {}, [&](const Row& row) { all.emplace_back(row.Text(0), row.Text(1)); });
  for (const auto& [table, column] : all) {
    std::int64_t wrong = 0;
    session.Select(Kept("SELECT " + column + " FROM " + table), {},
                   [&](const Row& row) { wrong += IsText(row.Text(0)) ? 0 : 1; });
    if (wrong == 0) continue;
    Tell(findings, "Em " + table + ", " + std::to_string(wrong) + " registros têm em " + column +
                       " o que não é texto.");
  }
}

/// A column that points to rows of another table.
struct Reference {
  std::string table, column, target, key;

  std::string Broken() const {
    return "SELECT count(*) FROM " + table + " t WHERE t." + column +
           " IS NOT NULL AND NOT EXISTS (SELECT 1 FROM " + target + " a WHERE a." + key + " = t." +
           column + ")";
  }
};

/// As the engine's own catalogue has them.
std::vector<Reference> References(Session& session) {
  static const Statement all(
      "SELECT m.name, f.\"from\", f.\"table\", f.\"to\" FROM sqlite_schema m,"
      " pragma_foreign_key_list(m.name) f WHERE m.type = 'table' ORDER BY 1, 2",
      "SELECT CAST(c.conrelid AS regclass), quote_ident(a.attname), CAST(c.confrelid AS regclass),"
      " quote_ident(b.attname) FROM pg_constraint c"
      " JOIN pg_attribute a ON a.attrelid = c.conrelid AND a.attnum = c.conkey[1]"
      " JOIN pg_attribute b ON b.attrelid = c.confrelid AND b.attnum = c.confkey[1]"
      " WHERE c.contype = 'f' AND cardinality(c.conkey) = 1 AND c.connamespace ="
      " (SELECT oid FROM pg_namespace WHERE nspname = current_schema()) ORDER BY 1, 2");
  std::vector<Reference> references;
  session.Select(all, {}, [&](const Row& row) {
    references.push_back({row.Text(0), row.Text(1), row.Text(2), row.Text(3)});
  });
  return references;
}

void CheckReferences(Session& session, Findings& findings) {
  for (const Reference& each : References(session)) {
    std::int64_t rows = 0;
    session.Select(Kept(each.Broken()), {}, [&](const Row& row) { rows = row.Integer(0); });
    if (rows == 0) continue;
    Tell(findings, "Em " + each.table + ", " + std::to_string(rows) + " registros apontam em " +
                       each.column + " para o que não existe em " + each.target + ".");
  }
}

}  // namespace

std::vector<std::string> ConferirArmazenamento(Session& session) {
  Findings findings;
  if (session.Kind() == Engine::kSqlite) {
    CheckFile(session, findings);
    CheckNameIndexes(session, findings);
    CheckTexts(session, findings);
  }
  CheckReferences(session, findings);
  return findings;
}

}  // namespace services
