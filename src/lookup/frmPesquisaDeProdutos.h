#pragma once

#include <optional>

#include "lookup/frmPesquisa.h"

namespace lookup {

/// The pick list of products, from which prices are consulted too.
class frmPesquisaDeProdutos final : public frmPesquisa {
 public:
  frmPesquisaDeProdutos();

  /// Prices are only looked at: the opener takes no choice from the list.
  void FormularioDeConsultaDePreco(bool consulta) { formularioDeConsultaDePreco_ = consulta; }

  /// The chosen product.
  ItemEncontrado Produto() const;

 private:
  Selecao Selecionar(const std::string& texto, frame::Espera& espera) override;
  std::string NadaEncontrado(const std::string& texto) const override;

  [[maybe_unused]] bool formularioDeConsultaDePreco_ = false;
};

/// The one of several products that the operator picks; nothing when they leave the list.
std::optional<ItemEncontrado> EscolherProduto(const Selecao& produtos);

}  // namespace lookup
