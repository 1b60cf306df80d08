#include "services/banco/Schema.h"

#include "services/banco/Migrations.h"

namespace services {
namespace {

constexpr int kNothing = 0;
constexpr int kSomethingElse = -1;

std::int64_t SingleNumber(Session& session, const Statement& statement) {
  std::int64_t number = 0;
  session.Select(statement, {}, [&](const Row& row) { number = row.Integer(0); });
  return number;
}

/// Keeps two programs from migrating at the same time; on SQLite the transaction does.
void TakeTurns(Session& session) {
  // The other one may have much to do.
  static const Statement patience("SELECT 1", "SELECT set_config('lock_timeout', '120s', true)");
  static const Statement turn("SELECT 1", "SELECT 1 FROM pg_advisory_xact_lock(7325001)");
  SingleNumber(session, patience);
  SingleNumber(session, turn);
}

}  // namespace

int CurrentSchema() {
  return Migrations().back().version;
}

int SchemaIn(Session& session) {
  // One look at both: another program may be creating it at this moment.
  static const Statement tables(
      "SELECT CASE WHEN EXISTS (SELECT 1 FROM sqlite_schema WHERE type = 'table'"
      " AND name = 'esquema_do_caixa') THEN 1"
      " WHEN EXISTS (SELECT 1 FROM sqlite_schema) THEN -1 ELSE 0 END",
      "SELECT CASE WHEN EXISTS (SELECT 1 FROM pg_class WHERE oid = to_regclass('esquema_do_caixa'))"
      " THEN 1 WHEN EXISTS (SELECT 1 FROM pg_class WHERE relnamespace ="
      " (SELECT oid FROM pg_namespace WHERE nspname = current_schema())"
      " AND relkind IN ('r', 'p', 'v', 'm', 'f')) THEN -1 ELSE 0 END");
  static const Statement version("SELECT versao FROM esquema_do_caixa");
  const auto found = SingleNumber(session, tables);
  if (found == 0) return kNothing;
  return found < 0 ? kSomethingElse : static_cast<int>(SingleNumber(session, version));
}

void Migrate(Session& session) {
  Transaction transaction(session);
  TakeTurns(session);
  const int before = SchemaIn(session);
  if (before == kNothing) {
    session.RunScript("CREATE TABLE esquema_do_caixa (versao integer NOT NULL)");
    session.RunScript("INSERT INTO esquema_do_caixa (versao) VALUES (0)");
  }
  if (before == kSomethingElse || before >= CurrentSchema()) return;
  for (const Migration& migration : Migrations()) {
    if (migration.version > before) session.RunScript(ScriptOf(migration, session.Kind()));
  }
  static const Statement update("UPDATE esquema_do_caixa SET versao = $1");
  session.Run(update, {CurrentSchema()});
  transaction.Commit();
}

}  // namespace services
