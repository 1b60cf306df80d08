#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_RelFin {

/// The figures of the cash reports.
class clsRelFin : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_RelFin.clsRelFin";
  static constexpr std::string_view kMembros =
      "SelecionarResumoDeCaixas SelecionarLancamentosDeCaixas";

  virtual std::int16_t SelecionarResumoDeCaixas(std::string& /*condicaoDoCaixa*/,
                                                std::string& /*condicaoDoPeriodo*/) {
    Ausente();
  }
  virtual std::int16_t SelecionarLancamentosDeCaixas(std::string& /*condicaoDoCaixa*/,
                                                     std::string& /*condicaoDoPeriodo*/) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_N_RelFin
