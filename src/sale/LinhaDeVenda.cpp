#include "sale/LinhaDeVenda.h"

#include "base/Numbers.h"

namespace sale {
namespace {

std::int32_t Inteiro(const std::string& texto) {
  return base::ToInt32(base::ToDouble(texto));
}

}  // namespace

std::string ChaveDaLinha(const base::GradeLida& grade, std::int32_t linha) {
  return grade.TextMatrix(linha, kTipoOuCodigoDeBarras) + grade.TextMatrix(linha, kCodigo) +
         grade.TextMatrix(linha, kCodigoDoAnimal) + grade.TextMatrix(linha, kCodigoDoFuncionario);
}

std::int32_t TipoDeVendaDa(const base::GradeLida& grade, std::int32_t linha) {
  return Inteiro(grade.TextMatrix(linha, grade.Cols() - 2));
}

std::int32_t TipoDeLancamentoDa(const base::GradeLida& grade, std::int32_t linha) {
  return Inteiro(grade.TextMatrix(linha, grade.Cols() - 1));
}

bool EhClinicoOuCirurgico(const base::GradeLida& grade, std::int32_t linha) {
  return TipoDeLancamentoDa(grade, linha) == kServico &&
         Inteiro(grade.TextMatrix(linha, kTipoOuCodigoDeBarras)) <= kUltimoTipoClinicoOuCirurgico;
}

}  // namespace sale
