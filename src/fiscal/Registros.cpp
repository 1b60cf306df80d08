// The records, of which each field is preceded by "|" and each record ends with "|" and CR LF:
//
//   |00|65||2|0|123.456.789-09||N||N||||||||||||7|N|1.00.00|
//    |  |  | | |                |  |            | | version of the layout
//    |  |  | | |                |  |            | "N" to print the coupon, a blank not to
//    |  |  | | |                |  |            number of the register
//    |  |  | | |                |  "N" for a document told at the register
//    |  |  | | |                constant
//    |  |  | | document told at the register
//    |  |  | the customer's code in 8 digits for identification 3, "0" otherwise
//    |  |  identification of the consumer: 1, 2 or 3
//    |  constant
//    header
//
//   |05|001|000123|00000002,000|00000010,500|-000000001,00|000000020,00|
//    |  |   |      quantity     unit price   discount      total of the line
//    |  |   code of the product
//    |  sequence
//    item
//
//   |10|01|01|000000050,00||||||||                         cash, PIX
//   |10|02|03|000000050,00|10|01|01|2||||                  cards; 10 for credit, 20 for debit
//   |10|03|02|000000050,00|||||000000050,00|01|15|         what is due later: the value again,
//    |  |  |  the products' share of the tender            one instalment, the day of the month
//    |  |  fiscal code of the tender
//    |  sequence
//    payment
#include "fiscal/Registros.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/Pagamento.h"

namespace fiscal {
namespace {

using enum servicos::pagamento::Codigo;

constexpr std::string_view kFim = "|\r\n";
constexpr std::string_view kTresDecimais = "00000000.000";
constexpr std::string_view kDuasDecimais = "000000000.00";
constexpr std::string_view kZero = "000000000,00";

/// What a tender's record holds after its value.
enum class Grupo { kAVista, kCartao, kAPrazo };

struct MeioDePagamento {
  std::int16_t forma = 0;
  std::string_view codigoFiscal;
  Grupo grupo = Grupo::kAVista;
  std::string_view tipoDoCartao = {};
};

constexpr std::array<MeioDePagamento, 8> kMeiosDePagamento{{
    {kDinheiro, "01", Grupo::kAVista},
    {kCheque, "02", Grupo::kAPrazo},
    {kCartaoDeCredito, "03", Grupo::kCartao, "10"},
    {kCartaoDeDebito, "03", Grupo::kCartao, "20"},
    {kBoleto, "08", Grupo::kAPrazo},
    {kACredito, "10", Grupo::kAPrazo},
    {kCreditoDoCliente, "10", Grupo::kAPrazo},
    {kPix, "17", Grupo::kAVista},
}};

template <class... Textos>
void Campos(std::string& registros, const Textos&... textos) {
  ((registros += '|', registros += textos), ...);
}

void CamposVazios(std::string& registros, std::size_t quantos) {
  registros.append(quantos, '|');
}

/// The last `largura` characters of the text with zeros before it: what is longer loses its left.
std::string ComZeros(std::string_view texto, std::size_t largura) {
  return base::Right(std::string(largura, '0').append(texto), largura);
}

std::string ComMascara(std::string_view numero, std::string_view mascara) {
  return base::Format(base::ValOfNormalised(numero), mascara);
}

/// Services stay outside the coupon: each tender shrinks to the share that the products have in the
/// sale. A sale below 1,00 counts as one of nothing, for its text is read up to the comma.
std::string ParteDosProdutos(const Pagamento& pagamento) {
  if (base::Val(pagamento.valorDaVenda) == 0) return std::string(kZero);
  const base::Currency emCentavos = pagamento.totalDeProdutos * base::ToCurrency(100);
  const double parte = base::ToDouble(emCentavos) / base::ValOfNormalised(pagamento.valorDaVenda) *
                       base::ValOfNormalised(pagamento.valor) / 100;
  return base::Format(parte, kDuasDecimais);
}

std::string DiaDoVencimento(const Pagamento& pagamento) {
  const bool temData = base::IsDate(pagamento.vencimento);
  return base::ToText((temData ? base::ToDate(pagamento.vencimento) : pagamento.hoje).Day());
}

}  // namespace

std::string RegistroDeCabecalho(const Cabecalho& cabecalho) {
  std::string codigo = "0";
  if (cabecalho.tipoDeIdentificacao == kClienteCadastrado) {
    const std::string_view texto = cabecalho.codigoDoCliente;
    codigo = texto.empty() ? std::string() : ComZeros(texto, 8);
  }
  const bool informado = cabecalho.tipoDeIdentificacao == kDocumentoInformado;
  std::string registro;
  Campos(registro, "00", "65", "", base::ToText(cabecalho.tipoDeIdentificacao), codigo,
         cabecalho.documento, "", "N", "", informado ? "N" : "");
  CamposVazios(registro, 11);
  Campos(registro, base::ToText(cabecalho.numeroDoCaixa), cabecalho.imprimir, "1.00.00");
  registro += kFim;
  return registro;
}

void AcrescentarItem(std::string& registros, const Item& item) {
  Campos(registros, "05", ComZeros(base::Trim(item.sequencia), 3),
         item.codigo.empty() ? std::string() : ComZeros(item.codigo, 6),
         ComMascara(item.quantidade, kTresDecimais), ComMascara(item.valorUnitario, kTresDecimais),
         ComMascara(item.desconto, kDuasDecimais), ComMascara(item.valorTotal, kDuasDecimais));
  registros += kFim;
}

void AcrescentarPagamento(std::string& registros, const Pagamento& pagamento) {
  Campos(registros, "10", base::Format(base::Val(pagamento.sequencia), "00"));
  const auto* const meio =
      std::ranges::find(kMeiosDePagamento, pagamento.forma, &MeioDePagamento::forma);
  if (meio != kMeiosDePagamento.end()) {
    const std::string valor = ParteDosProdutos(pagamento);
    Campos(registros, meio->codigoFiscal, valor);
    switch (meio->grupo) {
      case Grupo::kAVista:
        CamposVazios(registros, 7);
        break;
      case Grupo::kCartao:
        Campos(registros, meio->tipoDoCartao, "01", "01", "2");
        CamposVazios(registros, 3);
        break;
      case Grupo::kAPrazo:
        CamposVazios(registros, 4);
        Campos(registros, valor, "01", DiaDoVencimento(pagamento));
        break;
    }
  }
  registros += kFim;
}

}  // namespace fiscal
