#include "services/venda/RegistrosDoCupom.h"

#include <cstddef>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/Codigos.h"
#include "services/venda/Venda.h"

namespace services {
namespace {

constexpr std::string_view kPrimeiroItem = "|05|001|";
constexpr std::string_view kPrimeiroPagamento = "|10|01|";
constexpr std::string_view kItem = "05";

/// The fields of a record, counted from 1 as the layout does.
using Campos = std::vector<std::string>;

enum CampoDoCabecalho : std::size_t {
  kIdentificacao = 4,
  kCodigoDoCliente = 5,
  kDocumento = 6,
  kNumeroDoCaixa = 22,
};
enum CampoDoItem : std::size_t { kTipo = 1, kCodigo = 3, kValorTotal = 7 };

std::string Campo(const Campos& campos, std::size_t numero) {
  return numero < campos.size() ? campos[numero] : std::string();
}

std::int32_t Inteiro(const std::string& campo) {
  constexpr double kMaior = 999'999'999;
  const double numero = base::Val(campo);
  return numero >= 0 && numero <= kMaior ? base::ToInt32(numero) : 0;
}

base::Currency Valor(const std::string& campo) {
  return base::IsNumeric(campo) ? base::ToCurrency(campo) : base::Currency();
}

/// The records from the last one that begins a try.
std::string_view UltimaTentativa(std::string_view registros, std::string_view primeiro) {
  const std::size_t quebra = registros.rfind("\n" + std::string(primeiro));
  return quebra == std::string_view::npos ? registros : registros.substr(quebra + 1);
}

std::vector<Campos> Itens(const std::string& conteudo) {
  std::vector<Campos> itens;
  for (const std::string& registro : base::Split(conteudo, '\n')) {
    Campos campos = base::Split(registro, '|');
    if (Campo(campos, kTipo) == kItem) itens.push_back(std::move(campos));
  }
  return itens;
}

}  // namespace

RegistrosDoCupom LerRegistrosDoCupom(std::string_view cabecalho, std::string_view itens,
                                     std::string_view pagamentos) {
  const Campos campos = base::Split(cabecalho, '|');
  RegistrosDoCupom registros{.caixa = Inteiro(Campo(campos, kNumeroDoCaixa)),
                             .consumidor = Campo(campos, kIdentificacao) + '|' +
                                           Campo(campos, kCodigoDoCliente) + '|' +
                                           Campo(campos, kDocumento),
                             .codigoDoCliente = Inteiro(Campo(campos, kCodigoDoCliente)),
                             .conteudo = std::string(UltimaTentativa(itens, kPrimeiroItem)),
                             .valor = {}};
  registros.conteudo += UltimaTentativa(pagamentos, kPrimeiroPagamento);
  for (const Campos& item : Itens(registros.conteudo)) {
    registros.valor += Valor(Campo(item, kValorTotal));
  }
  return registros;
}

bool SaoOsProdutosDe(const std::string& conteudo, const Venda& venda) {
  constexpr std::int32_t kCodigos = 1'000'000;  // A code keeps its last six digits.
  const std::vector<Campos> itens = Itens(conteudo);
  auto item = itens.begin();
  for (const Venda::Item& vendido : venda.itens) {
    if (vendido.tipoDeLancamento != servicos::kProduto) continue;
    if (item == itens.end() || Inteiro(Campo(*item, kCodigo)) != vendido.codigo % kCodigos ||
        Valor(Campo(*item, kValorTotal)) != vendido.valorTotal) {
      return false;
    }
    ++item;
  }
  return item == itens.end() && !itens.empty();
}

}  // namespace services
