#include "services/Abertura.h"

#include <libpq-fe.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

#include "services/Banco.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/NewFile.h"
#include "services/banco/PostgresSession.h"
#include "services/banco/Schema.h"
#include "services/banco/SqliteSession.h"

namespace services {
namespace {

using Motivo = FalhaDeAbertura::Motivo;

constexpr std::string_view kSqlitePrefix = "sqlite:";
constexpr std::string_view kPostgresPrefix = "postgresql:";

struct Address {
  Engine engine = Engine::kSqlite;
  std::string target;  ///< The file, or the connection text.
  std::string shown;   ///< How messages name the database: no connection text, it may hold secrets.

  /// The command that creates or updates it.
  std::string CreatingCommand() const {
    return engine == Engine::kSqlite ? "caixa-banco sqlite:" + target + " criar"
                                     : "caixa-banco postgresql:... criar";
  }
};

/// A server that does not answer may not hold the screen for minutes.
constexpr std::string_view kLimits[] = {"connect_timeout=5", "tcp_user_timeout=15000",
                                        "keepalives_idle=15", "keepalives_interval=5",
                                        "keepalives_count=3"};

/// The connection text or address, with the limits that it does not set itself.
std::string WithLimits(std::string_view connection) {
  const bool isUri = connection.starts_with(kPostgresPrefix);
  std::string text(connection);
  for (const std::string_view limit : kLimits) {
    if (connection.find(limit.substr(0, limit.find('=') + 1)) != std::string_view::npos) continue;
    text += !isUri ? ' ' : text.find('?') == std::string::npos ? '?' : '&';
    text += limit;
  }
  return text;
}

/// Whether the server's library understands a connection text. It is asked beforehand, since what
/// it would complain of afterwards quotes the text, and with it the password.
bool IsUnderstood(const std::string& connection) {
  const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(
      PQconninfoParse(connection.c_str(), nullptr), PQconninfoFree);
  return options != nullptr;
}

Address AddressOf(std::string_view text) {
  if (text.starts_with(kSqlitePrefix) && text.size() > kSqlitePrefix.size()) {
    const std::string file(text.substr(kSqlitePrefix.size()));
    return {Engine::kSqlite, file, "'" + file + "'"};
  }
  if (!text.starts_with(kPostgresPrefix)) {
    throw FalhaDeAbertura(Motivo::kEnderecoInvalido,
                          "O endereço do banco de dados deve ser sqlite:ARQUIVO ou "
                          "postgresql:CONEXÃO, como em sqlite:clinica.db.");
  }
  const std::string_view rest = text.substr(kPostgresPrefix.size());
  const std::string connection = WithLimits(rest.starts_with("//") ? text : rest);
  if (!IsUnderstood(connection)) {
    throw FalhaDeAbertura(Motivo::kEnderecoInvalido,
                          "O endereço do servidor PostgreSQL não foi entendido. Escreva-o como em "
                          "\"postgresql:host=servidor dbname=caixa user=caixa\".");
  }
  return {Engine::kPostgres, connection, "do servidor PostgreSQL"};
}

[[noreturn]] void Refuse(Motivo why, const std::string& sentence) {
  throw FalhaDeAbertura(why, sentence);
}

[[noreturn]] void RefuseAsBusy(const Address& address) {
  Refuse(Motivo::kOcupado, "O banco de dados " + address.shown +
                               " está em uso exclusivo por outro programa. Feche esse programa e "
                               "tente de novo.");
}

[[noreturn]] void RefuseForPermission(const Address& address) {
  Refuse(Motivo::kSemPermissao,
         "Este usuário do computador não tem permissão para ler e gravar o banco de dados " +
             address.shown + " e a pasta em que ele está. Peça a permissão ao administrador.");
}

[[noreturn]] void RefuseAsForeign(const Address& address) {
  Refuse(Motivo::kNaoEBanco,
         address.engine == Engine::kSqlite
             ? "O arquivo " + address.shown +
                   " não é um banco de dados do caixa. Nada foi "
                   "alterado nele; confira o caminho."
             : "O banco de dados " + address.shown +
                   " é de outro programa. Nada foi alterado nele; confira o endereço.");
}

/// The end of a sentence: what the server answered, for whoever set the address up. Its first line,
/// since it says the same of every network address that it tried.
std::string InServersWords(const DatabaseError& error) {
  const std::string& detail = error.Detail();
  return detail.empty() ? "." : " (" + detail.substr(0, detail.find('\n')) + ").";
}

/// The refusal that a fault at opening amounts to.
[[noreturn]] void RefuseFor(const DatabaseError& error, const Address& address) {
  const bool isFile = address.engine == Engine::kSqlite;
  switch (error.What()) {
    case Trouble::kBusy:
      RefuseAsBusy(address);
    case Trouble::kNotADatabase:
      RefuseAsForeign(address);
    case Trouble::kReadOnly:
    case Trouble::kNoPermission:
      if (isFile) RefuseForPermission(address);
      Refuse(Motivo::kSemPermissao,
             "O usuário do banco de dados não tem as permissões de que o caixa precisa no servidor "
             "PostgreSQL. Peça-as ao administrador" +
                 InServersWords(error));
    case Trouble::kConnectionLost:
    case Trouble::kReadFailed:
      Refuse(
          Motivo::kServidorInacessivel,
          "Não foi possível entrar no servidor PostgreSQL. Confira se ele está ligado, o endereço, "
          "o usuário e a senha" +
              InServersWords(error));
    default:
      break;
  }
  Refuse(Motivo::kOutro,
         "Não foi possível usar o banco de dados " + address.shown + ". " + error.what());
}

/// What can be told of a file before SQLite touches it; it would create journals beside it.
void CheckFile(const Address& address) {
  struct stat status {};
  if (stat(address.target.c_str(), &status) != 0) {
    if (errno == EACCES) RefuseForPermission(address);
    Refuse(Motivo::kNaoExiste,
           "O banco de dados " + address.shown +
               " não existe. Confira o caminho ou crie-o com: " + address.CreatingCommand());
  }
  if (!S_ISREG(status.st_mode)) RefuseAsForeign(address);
  const auto folder = std::filesystem::path(address.target).parent_path();
  const bool isWritable = access(address.target.c_str(), R_OK | W_OK) == 0 &&
                          access(folder.empty() ? "." : folder.c_str(), W_OK | X_OK) == 0;
  if (!isWritable) RefuseForPermission(address);
}

std::unique_ptr<Session> Connect(const Address& address, const std::string& computer) {
  if (address.engine == Engine::kSqlite) {
    return std::make_unique<SqliteSession>(address.target, SqliteSession::File::kMustExist);
  }
  return std::make_unique<PostgresSession>(address.target, computer);
}

void CheckSchema(Session& session, const Address& address) {
  const int schema = SchemaIn(session);
  if (schema < 0) RefuseAsForeign(address);
  if (schema == 0) {
    Refuse(Motivo::kNaoCriado,
           "O banco de dados " + address.shown +
               " está vazio. Crie as tabelas com: " + address.CreatingCommand());
  }
  if (schema > CurrentSchema()) {
    Refuse(Motivo::kEsquemaMaisNovo, "O banco de dados " + address.shown +
                                         " foi gravado por uma versão mais nova do caixa "
                                         "(esquema " +
                                         std::to_string(schema) + "; este programa conhece até o " +
                                         std::to_string(CurrentSchema()) +
                                         "). Atualize este programa.");
  }
  if (schema < CurrentSchema()) {
    Refuse(
        Motivo::kEsquemaMaisAntigo,
        "O banco de dados " + address.shown +
            " é de uma versão anterior do caixa. Faça uma cópia de segurança e atualize-o com: " +
            address.CreatingCommand());
  }
}

/// Whether sales can be written, found out without writing.
void CheckRights(Session& session, const Address& address) {
  const Transaction nothing(session);
  if (address.engine == Engine::kSqlite) return;
  static const Statement rights(
      "SELECT 1",
      "SELECT current_setting('transaction_read_only') = 'off'"
      " AND has_sequence_privilege('vendas_numero_seq', 'USAGE')"
      " AND bool_and(has_table_privilege(c.oid, 'SELECT') AND has_table_privilege(c.oid, 'INSERT')"
      " AND has_table_privilege(c.oid, 'UPDATE') AND has_table_privilege(c.oid, 'DELETE'))"
      " FROM pg_class c WHERE c.relkind = 'r' AND c.relname <> 'esquema_do_caixa'"
      " AND c.relnamespace = (SELECT relnamespace FROM pg_class"
      " WHERE oid = to_regclass('esquema_do_caixa'))");
  session.Select(rights, {}, [&](const Row& row) {
    if (row.Text(0) != "t")
      throw DatabaseError(Trouble::kNoPermission, "SELECT, INSERT, UPDATE, DELETE, USAGE");
  });
}

/// Makes a file that is known to be ours ready for work. SQLite keeps the kind of its journal in
/// the file, but a restored copy has lost it.
void Settle(Session& session) {
  auto* const file = dynamic_cast<SqliteSession*>(&session);
  if (file != nullptr) file->UseLog();
}

/// The folder of a new file, which is what can be wrong before there is a file.
void CheckFolder(const Address& address) {
  const auto folder = std::filesystem::path(address.target).parent_path();
  std::error_code ignored;
  if (!folder.empty() && !std::filesystem::is_directory(folder, ignored)) {
    Refuse(Motivo::kNaoExiste,
           "A pasta '" + folder.string() + "' não existe. Crie-a antes do banco de dados.");
  }
  if (access(folder.empty() ? "." : folder.c_str(), W_OK | X_OK) != 0) RefuseForPermission(address);
}

}  // namespace

std::shared_ptr<Banco> AbrirBanco(std::string_view endereco, const base::Clock& relogio,
                                  std::string computador, std::string marca) {
  const Address address = AddressOf(endereco);
  if (address.engine == Engine::kSqlite) CheckFile(address);
  try {
    auto session = Connect(address, computador);
    const Operation whole(*session);
    CheckSchema(*session, address);
    CheckRights(*session, address);
    Settle(*session);
    return std::make_shared<Banco>(std::move(session), relogio, std::move(computador),
                                   std::move(marca));
  } catch (const DatabaseError& error) {
    RefuseFor(error, address);
  }
}

void CriarBanco(std::string_view endereco) {
  const Address address = AddressOf(endereco);
  try {
    if (address.engine == Engine::kSqlite) {
      std::error_code ignored;
      if (!std::filesystem::exists(address.target, ignored)) {
        CheckFolder(address);
        CreateWhole(address.target);
      }
      CheckFile(address);
    }
    const auto session = Connect(address, "");
    const Unhurried withoutLimits(*session);
    const int schema = SchemaIn(*session);
    if (schema < 0) RefuseAsForeign(address);
    if (schema > CurrentSchema()) CheckSchema(*session, address);
    Settle(*session);
    Migrate(*session);
  } catch (const DatabaseError& error) {
    RefuseFor(error, address);
  }
}

}  // namespace services
