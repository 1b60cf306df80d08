#include "services/contrato/TentativasDeLogin.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/Text.h"
#include "services/Banco.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Outcome.h"
#include "services/banco/Search.h"
#include "services/banco/Session.h"

namespace services {
namespace {

constexpr std::int32_t kFreeFailures = 3;
constexpr std::int64_t kLongestWait = 60;
/// What nobody has tried again for so long is forgotten, for any name can be typed here.
constexpr int kDaysKept = 1;
/// More than a user's name has; what is typed beyond counts as the same.
constexpr std::size_t kLongestName = 60;

/// The failures in a row of one user name at this computer.
struct Failures {
  std::int32_t count = 0;
  base::DateTime last;
};

std::string NameOf(std::string_view usuario) {
  return base::Left(SearchForm(usuario), kLongestName);
}

Failures Read(Banco& banco, const std::string& name) {
  static const Statement kept(
      "SELECT falhas, ultima FROM tentativas_de_login"
      " WHERE computador_busca = $1 AND usuario_busca = $2");
  Failures failures;
  banco.Sessao().Select(kept, {ComputerForm(banco.Computador()), name}, [&](const Row& row) {
    failures = {.count = row.Number(0), .last = row.Moment(1)};
  });
  return failures;
}

/// In seconds.
std::int64_t WaitAfter(std::int32_t failures) {
  if (failures < kFreeFailures) return 0;
  constexpr std::int32_t kPastLongest = 6;
  return std::min(kLongestWait,
                  std::int64_t{1} << std::min(failures - kFreeFailures, kPastLongest));
}

/// A clock that was set back since is not waited for.
void RefuseTooSoon(const Failures& failures, base::DateTime now) {
  if (now < failures.last) return;
  const std::int64_t left = failures.last.Seconds() + WaitAfter(failures.count) - now.Seconds();
  if (left <= 0) return;
  throw Refusal{.sentence = "Muitas tentativas seguidas. Aguarde " + std::to_string(left) +
                            (left == 1 ? " segundo" : " segundos") + " e tente de novo."};
}

/// Each computer clears away its own, by its own clock.
void ClearAway(Banco& banco, base::DateTime now) {
  static const Statement old(
      "DELETE FROM tentativas_de_login WHERE computador_busca = $1 AND ultima < $2");
  banco.Sessao().Run(old, {ComputerForm(banco.Computador()), now.PlusDays(-kDaysKept)});
}

/// False when another program at this computer has counted one meanwhile.
bool Add(Banco& banco, const std::string& name, const Failures& known, base::DateTime now) {
  static const Statement add(
      "INSERT INTO tentativas_de_login (computador_busca, usuario_busca, falhas, ultima)"
      " VALUES ($1, $2, 1, $3)"
      " ON CONFLICT (computador_busca, usuario_busca) DO UPDATE SET"
      " falhas = tentativas_de_login.falhas + 1, ultima = excluded.ultima"
      " WHERE tentativas_de_login.falhas = $4");
  return banco.Sessao().Run(add, {ComputerForm(banco.Computador()), name, now, known.count}) > 0;
}

}  // namespace

void ContarTentativa(Banco& banco, std::string_view usuario) {
  const std::string name = NameOf(usuario);
  const base::DateTime now = banco.Agora();
  // Who has to wait hears it also while somebody else holds the database.
  RefuseTooSoon(Read(banco, name), now);
  InTransaction(banco.Sessao(), [&](Transaction&) {
    ClearAway(banco, now);
    const Failures known = Read(banco, name);
    RefuseTooSoon(known, now);
    if (!Add(banco, name, known, now)) {
      throw DatabaseError(Trouble::kConflict, "tentativas_de_login");
    }
  });
}

void EsquecerTentativas(Banco& banco, std::string_view usuario) {
  static const Statement forget(
      "DELETE FROM tentativas_de_login WHERE computador_busca = $1 AND usuario_busca = $2");
  InTransaction(banco.Sessao(), [&](Transaction&) {
    banco.Sessao().Run(forget, {ComputerForm(banco.Computador()), NameOf(usuario)});
  });
}

}  // namespace services
