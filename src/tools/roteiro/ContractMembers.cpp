#include "tools/roteiro/ContractMembers.h"

#include <algorithm>
#include <array>

#include "frame/servicos/Contrato.h"

namespace roteiro::contract {
namespace {

/// Members are parted by blanks.
struct Class {
  std::string_view name, members, familyMembers;
};

template <class... Classes>
constexpr std::array<Class, sizeof...(Classes)> NamesOf(servicos::Lista<Classes...>) {
  return {{{Classes::kIdentificador, Classes::kMembros, Classes::kMembrosDaFamilia}...}};
}

constexpr auto kServices = NamesOf(servicos::ServicosDeNegocio());
constexpr auto kScreens = NamesOf(servicos::TelasIrmas());
constexpr auto kEffects = NamesOf(servicos::Efeitos());

/// Null for a name that the contract does not know.
const Class* Find(std::string_view name) {
  const Class* found = nullptr;
  const auto look = [&](const auto& classes) {
    const auto* const at = std::ranges::find(classes, name, &Class::name);
    if (at != classes.end()) found = at;
  };
  look(kServices);
  look(kScreens);
  look(kEffects);
  return found;
}

bool HasWord(std::string_view words, std::string_view word) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(' '), words.size());
    if (words.substr(0, end) == word) return true;
    words.remove_prefix(std::min(end + 1, words.size()));
  }
  return false;
}

}  // namespace

bool IsClass(std::string_view className) {
  return Find(className) != nullptr;
}

bool IsMember(std::string_view className, std::string_view member) {
  const Class* const found = Find(className);
  return found != nullptr &&
         (HasWord(found->members, member) || HasWord(found->familyMembers, member));
}

}  // namespace roteiro::contract
