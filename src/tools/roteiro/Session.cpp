#include "tools/roteiro/Session.h"

#include <utility>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace roteiro {
namespace {

constexpr std::string_view kRights[] = {
    "Administrador",
    "PermissaoDoModuloCaixaAlterarDescontosDeVendas",
    "PermissaoDoModuloCaixaRelatorios",
    "PermissaoDoModuloCaixaEfetuarVendasACreditoFiado",
    "PermissaoDoModuloCaixaEfetuarSaidasDeCaixas",
    "PermissaoDoModuloCaixaCancelarVendas",
};
constexpr std::string_view kTexts[] = {"NomeDeUsuario", "CodigoDoDocumentoComEmissaoPermitida"};

}  // namespace

Session::Session() {
  for (const std::string_view name : kRights) Set(name, false);
  for (const std::string_view name : kTexts) Set(name, "");
}

void Session::Set(std::string_view name, base::Value value) {
  fields_[base::Lower(name)] = std::move(value);
}

base::Value Session::Field(std::string_view name) const {
  const auto found = fields_.find(base::Lower(name));
  if (found == fields_.end()) throw base::RuntimeError(base::Fault::kIndexOutOfRange);
  return found->second;
}

}  // namespace roteiro
