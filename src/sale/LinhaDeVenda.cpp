#include "sale/LinhaDeVenda.h"

#include "base/Numbers.h"
#include "base/Text.h"

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
         servicos::EhClinicoOuCirurgico(Inteiro(grade.TextMatrix(linha, kTipoOuCodigoDeBarras)));
}

std::string TextoDoComissionado(const std::string& apelido, base::Currency percentual) {
  return base::PadRight(apelido, servicos::linha::kLarguraDoNome) +
         base::PadRight(base::FormatMoney(percentual), servicos::linha::kLarguraDaComissao);
}

base::Currency PercentualDoComissionado(const std::string& texto) {
  if (base::IsBlank(texto)) return {};
  const std::string percentual = base::Right(texto, servicos::linha::kLarguraDaComissao);
  return base::ToCurrency(base::FormatMoney(base::ToCurrency(percentual)));
}

}  // namespace sale
