#include "frame/modPegarNomeDoComputador.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Desktop.h"

namespace frame {

std::string PegarNomeDoComputador() {
  std::string nome;
  try {
    nome = base::Trim(platform::Desktop::Current().ComputerName());
  } catch (const base::RuntimeError&) {
    // A machine that cannot tell its name counts as one without.
  }
  return nome.empty() ? "N" : nome;
}

}  // namespace frame
