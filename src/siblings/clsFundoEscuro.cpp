#include "frame/servicos/ZOVA_A_EfeitosDeTela.clsFundoEscuro.h"
#include "platform/Desktop.h"
#include "siblings/Telas.h"

namespace siblings {
namespace {

class clsFundoEscuro final : public servicos::ZOVA_A_EfeitosDeTela::clsFundoEscuro {
 public:
  void Aplicar(std::int32_t& janela, std::int16_t& intensidade) override {
    platform::Desktop::Current().Dim(janela, intensidade);
  }
  void Remover(std::int32_t& janela) override { platform::Desktop::Current().Undim(janela); }
};

}  // namespace

TelaNova NovaClsFundoEscuro() {
  return std::make_unique<clsFundoEscuro>();
}

}  // namespace siblings
