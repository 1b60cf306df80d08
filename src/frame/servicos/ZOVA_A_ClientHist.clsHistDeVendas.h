#pragma once

#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_A_ClientHist {

/// The sales history of a customer.
class clsHistDeVendas : public TelaIrma {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_A_ClientHist.clsHistDeVendas";
  static constexpr std::string_view kMembros =
      "CodigoDoCliente ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente "
      "DataInicialDoHistorico AbrirFichaExibicao";

  virtual void CodigoDoCliente(double) { Ausente(); }
  virtual void ApelidoOuNomeFantasiaDoCliente(std::string_view) { Ausente(); }
  virtual void NomeOuRazaoSocialDoCliente(std::string_view) { Ausente(); }
  /// dd/mm/yyyy.
  virtual void DataInicialDoHistorico(std::string_view) { Ausente(); }
  virtual void AbrirFichaExibicao() { Ausente(); }
};

}  // namespace servicos::ZOVA_A_ClientHist
