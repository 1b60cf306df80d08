#pragma once

#include <string>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_SO {

/// The name of the operating system; it only chooses how frames are drawn.
class clsObterVersaoDoSO : public Servico {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_SO.clsObterVersaoDoSO";
  static constexpr std::string_view kMembros = "ObterversaoDoSO";

  virtual std::string ObterversaoDoSO() { Ausente(); }
};

}  // namespace servicos::ZOVA_N_SO
