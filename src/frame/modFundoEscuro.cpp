#include "frame/modFundoEscuro.h"

#include "frame/servicos/ZOVA_A_EfeitosDeTela.clsFundoEscuro.h"

namespace frame {

using servicos::ZOVA_A_EfeitosDeTela::clsFundoEscuro;

// The component keeps the state of each window itself: no object is kept between the two calls.

void AplicarFundoEscuro(platform::WindowHandle janela, std::int16_t intensidade) {
  servicos::CriarServico<clsFundoEscuro>()->Aplicar(janela, intensidade);
}

void RemoverFundoEscuro(platform::WindowHandle janela) {
  servicos::CriarServico<clsFundoEscuro>()->Remover(janela);
}

}  // namespace frame
