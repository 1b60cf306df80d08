#include "services/venda/Colunas.h"

namespace services {

std::string Nomes(std::span<const Coluna> colunas) {
  std::string nomes;
  for (const Coluna& coluna : colunas) {
    if (!nomes.empty()) nomes += ", ";
    nomes += coluna.nome;
  }
  return nomes;
}

}  // namespace services
