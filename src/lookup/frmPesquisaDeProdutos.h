#pragma once

#include "lookup/frmPesquisa.h"

namespace lookup {

/// The pick list of products, from which prices are consulted too.
class frmPesquisaDeProdutos final : public frmPesquisa {
 public:
  frmPesquisaDeProdutos();

  /// Prices are only looked at: the opener takes no choice from the list.
  void FormularioDeConsultaDePreco(bool consulta) { formularioDeConsultaDePreco_ = consulta; }

  /// The chosen product under the names of the counter's own search.
  base::RecordSetPtr Produto() const;

 private:
  Encontrados Selecionar(const std::string& texto, frame::Espera& espera) override;
  std::string NadaEncontrado(const std::string& texto) const override;

  [[maybe_unused]] bool formularioDeConsultaDePreco_ = false;
};

}  // namespace lookup
