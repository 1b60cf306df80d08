#include "checkout/Observacao.h"

#include <cstdint>

#include "base/Text.h"
#include "frame/servicos/LinhaDeVenda.h"

namespace checkout {
namespace {

/// Calls `novo(nome, lista)` for each line whose animal the list, as it stands by then, does not
/// yet contain. A line without an animal has the empty name: it is new to an empty list and known
/// to any other.
template <class Novo>
std::string ListarAnimais(const base::GradeLida& itens, Novo novo) {
  std::string lista;
  for (std::int32_t linha = 1; linha < itens.Rows(); ++linha) {
    const std::string& nome = itens.TextMatrix(linha, servicos::linha::kNomeDoAnimal);
    if (!base::Contains(base::Upper(lista), base::Upper(nome))) novo(nome, lista);
  }
  return lista;
}

int ContarAnimais(const base::GradeLida& itens) {
  int quantos = 0;
  ListarAnimais(itens, [&](const std::string& nome, std::string& lista) {
    lista += " " + nome;
    ++quantos;
  });
  return quantos;
}

std::string AnimaisPorExtenso(const base::GradeLida& itens, int quantos) {
  int posicao = 0;
  return ListarAnimais(itens, [&](const std::string& nome, std::string& lista) {
    ++posicao;
    if (posicao > 1) lista += quantos >= posicao ? " e " : ", ";
    lista += nome;
  });
}

}  // namespace

std::string ObservacaoDaVenda(std::string_view codigoDoCliente, std::string_view nomeDoCliente,
                              std::string_view documento, const base::GradeLida& itens) {
  std::string texto = "Cliente: " + std::string(codigoDoCliente) + "-" + std::string(nomeDoCliente);
  if (!documento.empty()) texto += " (" + std::string(documento) + ")";
  const int quantos = ContarAnimais(itens);
  if (quantos > 0) {
    texto += quantos == 1 ? "\nAnimal: " : "\nAnimais: ";
    texto += AnimaisPorExtenso(itens, quantos);
  }
  return texto;
}

}  // namespace checkout
