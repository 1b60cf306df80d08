#include "siblings/Sessao.h"

#include "base/Numbers.h"
#include "base/Value.h"
#include "frame/Valores.h"

namespace siblings {

std::string Cliente::PorExtenso() const {
  std::string texto = base::ToText(codigo) + " - " + apelido;
  if (!nome.empty() && nome != apelido) texto += " (" + nome + ")";
  return texto;
}

std::string NomeDoOperador() {
  return base::ToText(frame::CampoDaSessao("NomeDeUsuario"));
}

}  // namespace siblings
