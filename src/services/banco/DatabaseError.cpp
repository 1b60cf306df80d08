#include "services/banco/DatabaseError.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace services {
namespace {

struct Words {
  Trouble trouble;
  std::string_view sentence;
};

constexpr Words kWords[] = {
    {Trouble::kConnectionLost,
     "A conexão com o banco de dados caiu e nada foi gravado. Aguarde um instante e tente de "
     "novo."},
    {Trouble::kInDoubt,
     "A conexão com o banco de dados caiu durante a gravação e não foi possível saber se ela ficou "
     "registrada. Confira antes de repetir a operação."},
    {Trouble::kBusy,
     "O banco de dados está ocupado por outro computador. Aguarde um instante e tente de novo."},
    {Trouble::kConflict, "Outro computador alterava os mesmos dados. Tente de novo."},
    {Trouble::kConstraint,
     "O banco de dados recusou os dados desta operação e nada foi gravado. Avise o suporte."},
    {Trouble::kOutOfRange,
     "Um valor ultrapassa o limite que o caixa registra. Confira os valores."},
    {Trouble::kFull,
     "Não há mais espaço ou recursos no servidor de dados. Libere espaço em disco e tente de "
     "novo."},
    {Trouble::kReadOnly,
     "O banco de dados está disponível só para leitura. Verifique as permissões de gravação."},
    {Trouble::kStorage,
     "Houve um erro de leitura ou gravação no disco do banco de dados. Avise o suporte."},
    {Trouble::kCorrupt,
     "O banco de dados está danificado. Pare de usá-lo e restaure a última cópia de segurança."},
    {Trouble::kNotADatabase, "O arquivo não é um banco de dados do caixa."},
    {Trouble::kNoPermission,
     "O usuário do banco de dados não tem permissão para esta operação. Avise o suporte."},
    {Trouble::kSchema,
     "As tabelas do banco de dados não são as que este programa espera. Atualize o banco de "
     "dados."},
    {Trouble::kReadFailed,
     "Não foi possível ler o banco de dados: a conexão caiu ou o servidor não respondeu a tempo. "
     "Aguarde um instante e tente de novo."},
    {Trouble::kFileGone,
     "O arquivo do banco de dados foi apagado, trocado ou cortado com o caixa aberto, e o que se "
     "faz nele pode se perder. Feche o programa e chame o suporte."},
    {Trouble::kUnderWay,
     "O caixa ainda espera a resposta do banco de dados à operação anterior. Aguarde um instante e "
     "tente de novo."},
    {Trouble::kOther, "O banco de dados não concluiu a operação. Avise o suporte."},
};

std::string WithDetail(Trouble trouble, std::string_view detail) {
  std::string text(Sentence(trouble));
  if (!detail.empty()) text.append(" (").append(detail).append(")");
  return text;
}

struct StateClass {
  std::string_view prefix;
  Trouble trouble;
};

/// The first prefix that fits decides, so that single states stand before their class.
constexpr StateClass kStates[] = {
    {"08", Trouble::kConnectionLost},
    {"57P", Trouble::kConnectionLost},
    {"57014", Trouble::kBusy},
    {"55P03", Trouble::kBusy},
    {"53300", Trouble::kBusy},
    {"25P03", Trouble::kConnectionLost},
    {"40", Trouble::kConflict},
    {"23", Trouble::kConstraint},
    {"22003", Trouble::kOutOfRange},
    {"2200H", Trouble::kOutOfRange},
    {"53", Trouble::kFull},
    {"25006", Trouble::kReadOnly},
    {"0A000", Trouble::kReadOnly},
    {"58", Trouble::kStorage},
    {"XX001", Trouble::kCorrupt},
    {"XX002", Trouble::kCorrupt},
    {"42501", Trouble::kNoPermission},
    {"28", Trouble::kNoPermission},
    {"3D000", Trouble::kSchema},
    {"3F000", Trouble::kSchema},
    {"42P01", Trouble::kSchema},
    {"42703", Trouble::kSchema},
};

}  // namespace

std::string_view Sentence(Trouble trouble) {
  const auto* found = std::ranges::find(kWords, trouble, &Words::trouble);
  return found == std::end(kWords) ? Sentence(Trouble::kOther) : found->sentence;
}

DatabaseError::DatabaseError(Trouble trouble, std::string_view detail)
    : std::runtime_error(WithDetail(trouble, detail)), trouble_(trouble), detail_(detail) {}

Trouble TroubleOfSqlite(int extendedCode) {
  // A column that holds whole numbers alone refuses a sum that no longer is one.
  if (extendedCode == SQLITE_CONSTRAINT_DATATYPE) return Trouble::kOutOfRange;
  if (extendedCode == SQLITE_BUSY_SNAPSHOT) return Trouble::kConflict;
  constexpr int kPrimaryCode = 0xFF;
  switch (extendedCode & kPrimaryCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return Trouble::kBusy;
    case SQLITE_CONSTRAINT:
      return Trouble::kConstraint;
    case SQLITE_TOOBIG:
    case SQLITE_MISMATCH:
    case SQLITE_RANGE:
      return Trouble::kOutOfRange;
    case SQLITE_FULL:
    case SQLITE_NOMEM:
      return Trouble::kFull;
    case SQLITE_READONLY:
      return Trouble::kReadOnly;
    case SQLITE_IOERR:
    case SQLITE_NOLFS:
      return Trouble::kStorage;
    case SQLITE_CORRUPT:
      return Trouble::kCorrupt;
    case SQLITE_NOTADB:
      return Trouble::kNotADatabase;
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_CANTOPEN:
      return Trouble::kNoPermission;
    case SQLITE_SCHEMA:
      return Trouble::kSchema;
    default:
      return Trouble::kOther;
  }
}

Trouble TroubleOfSqlState(std::string_view state) {
  if (state.empty()) return Trouble::kConnectionLost;
  const auto* found = std::ranges::find_if(
      kStates, [state](const StateClass& each) { return state.starts_with(each.prefix); });
  return found == std::end(kStates) ? Trouble::kOther : found->trouble;
}

}  // namespace services
