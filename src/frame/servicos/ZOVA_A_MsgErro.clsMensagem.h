#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_A_MsgErro {

/// The error viewer.
class clsMensagem : public Servico {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_A_MsgErro.clsMensagem";
  static constexpr std::string_view kMembros = "Exibir";

  virtual void Exibir(std::int32_t /*numero*/, std::string_view /*descricao*/,
                      std::string_view /*local*/, std::string_view /*nomeDaAplicacao*/) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_A_MsgErro
