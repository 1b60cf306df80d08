#include "clinic/Opened.h"

#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"

namespace bench {

void OpenRegister(std::int32_t number) {
  const auto caixa = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
  caixa->NumeroDoCaixa(number);
  caixa->Operador("marina");
  caixa->MOEDA(1);
  caixa->ValorDoLancamento(0.0);
  Require(caixa->RegistrarAbertura() == servicos::kSucesso, *caixa);
}

}  // namespace bench
