#include "sale/LinhaDeVenda.h"

#include "base/Numbers.h"

namespace sale {
namespace {

std::int32_t Inteiro(const std::string& texto) {
  return base::ToInt32(base::ToDouble(texto));
}

}  // namespace

std::int32_t TipoDeVendaDa(const base::GradeLida& grade, std::int32_t linha) {
  return Inteiro(grade.TextMatrix(linha, servicos::linha::ColunaDoTipoDeVenda(grade)));
}

std::int32_t TipoDeLancamentoDa(const base::GradeLida& grade, std::int32_t linha) {
  return Inteiro(grade.TextMatrix(linha, servicos::linha::ColunaDoTipoDeLancamento(grade)));
}

bool EhClinicoOuCirurgico(const base::GradeLida& grade, std::int32_t linha) {
  return TipoDeLancamentoDa(grade, linha) == kServico &&
         servicos::EhClinicoOuCirurgico(Inteiro(grade.TextMatrix(linha, kTipoOuCodigoDeBarras)));
}

}  // namespace sale
