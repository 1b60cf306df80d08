#include "frame/Valores.h"

#include <utility>

#include "base/RuntimeError.h"

namespace frame {

Valores& valores() {
  static Valores valores;
  return valores;
}

base::Value CampoDaSessao(std::string_view campo) {
  return base::Required(valores().DadosDoUsuario).Field(campo);
}

bool Direito(std::string_view campo) {
  return base::ToBool(CampoDaSessao(campo));
}

bool EmiteDocumentoFiscal() {
  return base::ToText(CampoDaSessao("CodigoDoDocumentoComEmissaoPermitida")) == "11";
}

bool TomarSupressaoDePesquisa() {
  return std::exchange(valores().SuprimirProximoKeyDownDaPesquisa, false);
}

}  // namespace frame
