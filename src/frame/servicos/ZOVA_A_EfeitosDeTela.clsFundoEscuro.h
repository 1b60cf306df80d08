#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_A_EfeitosDeTela {

/// The darkened window behind a dialog or a wait.
class clsFundoEscuro : public Servico {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_A_EfeitosDeTela.clsFundoEscuro";
  static constexpr std::string_view kMembros = "Aplicar Remover";

  virtual void Aplicar(std::int32_t& /*janela*/, std::int16_t& /*intensidade*/) { Ausente(); }
  virtual void Remover(std::int32_t& /*janela*/) { Ausente(); }
};

}  // namespace servicos::ZOVA_A_EfeitosDeTela
