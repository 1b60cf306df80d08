#include "frame/servicos/Servico.h"

#include <map>

namespace servicos {
namespace {

std::map<std::string, Fabrica, std::less<>>& Fabricas() {
  static std::map<std::string, Fabrica, std::less<>> fabricas;
  return fabricas;
}

}  // namespace

void Registrar(std::string_view identificador, Fabrica fabrica) {
  Fabricas()[std::string(identificador)] = std::move(fabrica);
}

void EsquecerTodos() {
  Fabricas().clear();
}

std::unique_ptr<Servico> Criar(std::string_view identificador) {
  const auto found = Fabricas().find(identificador);
  if (found == Fabricas().end()) throw base::RuntimeError(base::Fault::kCannotCreateObject);
  std::unique_ptr<Servico> servico = found->second();
  if (!servico) throw base::RuntimeError(base::Fault::kCannotCreateObject);
  return servico;
}

}  // namespace servicos
