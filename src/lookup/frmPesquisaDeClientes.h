#pragma once

#include "lookup/frmPesquisa.h"

namespace lookup {

/// The pick list of customers. One who cannot be served is not let out of it.
class frmPesquisaDeClientes final : public frmPesquisa {
 public:
  frmPesquisaDeClientes();

 private:
  std::int16_t ValidarCampos() override;
  Selecao Selecionar(const std::string& texto, frame::Espera& espera) override;
  std::string NadaEncontrado(const std::string& texto) const override;
};

}  // namespace lookup
