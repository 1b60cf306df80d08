#include "base/RuntimeError.h"
#include "base/Text.h"
#include "checkout/GradeDePagamentos.h"
#include "checkout/frmCaixaPagar.h"
#include "fiscal/Registros.h"
#include "fiscal/frmCaixaInformarCPFCNPJ.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/LinhaDeVenda.h"
#include "frame/servicos/Pagamento.h"
#include "platform/Desktop.h"

// The fiscal coupon of a sale comes before its registration, so that its key is stored with it.
namespace checkout {

using base::Currency;
using fiscal::frmCaixaInformarCPFCNPJ;
using frame::valores;

namespace {

bool EhProduto(const base::GradeLida& itens, std::int32_t linha) {
  constexpr double kProduto = std::int32_t{servicos::kProduto};
  return base::Val(itens.TextMatrix(linha, servicos::linha::ColunaDoTipoDeLancamento(itens))) ==
         kProduto;
}

/// Whether a line of the sale is a product; services alone never need a fiscal document.
bool TemProduto(const base::GradeLida& itens) {
  for (std::int32_t linha = 1; linha < itens.Rows(); ++linha) {
    if (EhProduto(itens, linha)) return true;
  }
  return false;
}

/// The walk-in customer of the database is nobody whom a coupon could name.
bool EhConsumidorFinal(const std::string& nome) {
  return base::Contains(base::Upper(nome), "CONSUMIDOR");
}

}  // namespace

/// Issues the fiscal coupon of a sale with products. False: the confirmation stops here, with the
/// tenders kept. A sale never carries the key of an earlier one.
bool frmCaixaPagar::EmitirDocumentoFiscal(frame::Espera& espera) {
  valores().ChaveSAT.clear();
  if (!frame::EmiteDocumentoFiscal()) return true;
  if (!TemProduto(base::Required(venda_.GradeDeItensDaVendas))) return true;
  const Consumidor consumidor = PerguntarConsumidor();
  const std::string_view imprimir =
      ImprimirCFeSAT(espera) ? fiscal::kImprimir : fiscal::kNaoImprimir;
  MontarCabecalhoSAT(consumidor.tipoDeIdentificacao, consumidor.documento, imprimir);
  const Currency totalDeProdutos = MontarRegistrosSAT();
  if (totalDeProdutos <= Currency()) {
    frame::Informar("Está é um venda de cortesia e não terá a emissão do documento fiscal.");
    return true;
  }
  if (ExportarDadosCFeSATParaArquivo(CabecalhoCFeSAT, ItensCFeSAT, PagamentosCFeSAT)) return true;
  espera.Ocultar();
  return valores().ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT;
}

/// Asks whom the coupon is to name; the dialog stands in the place of the checkout meanwhile.
frmCaixaPagar::Consumidor frmCaixaPagar::PerguntarConsumidor() {
  Hide();
  frmCaixaInformarCPFCNPJ().MontarExibirFormulario();
  Show();
  switch (frmCaixaInformarCPFCNPJ::TipoDeEnvio) {
    case frmCaixaInformarCPFCNPJ::kOutroCPF:
    case frmCaixaInformarCPFCNPJ::kOutroCNPJ:
      return {fiscal::kDocumentoInformado, frmCaixaInformarCPFCNPJ::CPFCNPJInformado};
    case frmCaixaInformarCPFCNPJ::kDoCliente:
      if (EhConsumidorFinal(zvtxtApelidoOuNomeFantasiaDoCliente.Text()) ||
          EhConsumidorFinal(zvtxtNomeOuRazaoSocialDoCliente.Text())) {
        return {fiscal::kNaoIdentificado, ""};
      }
      return {fiscal::kClienteCadastrado, ""};
    default:
      return {fiscal::kNaoIdentificado, ""};
  }
}

/// Whether the coupon is to be printed, the operator being asked where the company wants that.
bool frmCaixaPagar::ImprimirCFeSAT(frame::Espera& espera) {
  if (!valores().ImprimirComprovanteDeCFeSAT) return false;
  if (!valores().SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT) return true;
  espera.Ocultar();
  const bool imprimir = frame::Perguntar("Deseja imprimir o comprovante de CF-e / SAT?");
  espera.Mostrar();
  return imprimir;
}

/// Adds the records of this sale to those of earlier tries, and gives what its products come to.
Currency frmCaixaPagar::MontarRegistrosSAT() {
  using enum servicos::linha::Coluna;
  const base::GradeLida& itens = *venda_.GradeDeItensDaVendas;
  Currency totalDeProdutos;
  int sequencia = 0;
  for (std::int32_t linha = 1; linha < itens.Rows(); ++linha) {
    if (!EhProduto(itens, linha)) continue;
    const auto celula = [&](std::int32_t coluna) -> const std::string& {
      return itens.TextMatrix(linha, coluna);
    };
    totalDeProdutos += base::ToCurrency(celula(kValorTotal));
    MontarRegistroDeItensDeProdutosSAT(base::ToText(++sequencia), celula(kCodigo),
                                       celula(kQuantidade), celula(kValorUnitario),
                                       celula(kDescontoEmValor), celula(kValorTotal));
  }
  sequencia = 0;
  for (std::int32_t linha = 1; linha < msfgGrade.Rows(); ++linha) {
    const auto celula = [&](std::int32_t coluna) -> const std::string& {
      return msfgGrade.TextMatrix(linha, coluna);
    };
    if (celula(kColunaForma).empty()) continue;
    MontarRegistroDeFormasDePagamentosSAT(base::ToText(++sequencia),
                                          servicos::pagamento::CodigoDa(celula(kColunaForma)),
                                          celula(kColunaValor), celula(kColunaVencimento),
                                          celula(kColunaNumeroDoLancamento), totalDeProdutos);
  }
  return totalDeProdutos;
}

void frmCaixaPagar::MontarCabecalhoSAT(std::int16_t tipoDeIdentificacaoDoConsumidor,
                                       std::string_view documentoDoConsumidor,
                                       std::string_view imprimirCFeSAT) {
  CabecalhoCFeSAT =
      fiscal::RegistroDeCabecalho({.tipoDeIdentificacao = tipoDeIdentificacaoDoConsumidor,
                                   .documento = documentoDoConsumidor,
                                   .codigoDoCliente = zvtxtCodigoDoCliente.Text(),
                                   .numeroDoCaixa = valores().NumeroDoCaixa,
                                   .imprimir = imprimirCFeSAT});
}

void frmCaixaPagar::MontarRegistroDeItensDeProdutosSAT(
    std::string_view sequencia, std::string_view codigo, std::string_view quantidade,
    std::string_view valorUnitario, std::string_view desconto, std::string_view valorTotal) {
  fiscal::AcrescentarItem(ItensCFeSAT,
                          {sequencia, codigo, quantidade, valorUnitario, desconto, valorTotal});
}

void frmCaixaPagar::MontarRegistroDeFormasDePagamentosSAT(std::string_view sequencia,
                                                          std::int16_t formaDePagamento,
                                                          std::string_view valor,
                                                          std::string_view vencimento,
                                                          std::string_view /*numeroDoLancamento*/,
                                                          Currency totalDeProdutos) {
  fiscal::AcrescentarPagamento(PagamentosCFeSAT, {.sequencia = sequencia,
                                                  .forma = formaDePagamento,
                                                  .valor = valor,
                                                  .vencimento = vencimento,
                                                  .valorDaVenda = zvtxtValorDaVenda.Text(),
                                                  .totalDeProdutos = totalDeProdutos,
                                                  .hoje = platform::Desktop::Current().Now()});
}

bool frmCaixaPagar::ExportarDadosCFeSATParaArquivo(std::string_view cabecalho,
                                                   std::string_view itens,
                                                   std::string_view pagamentos) {
  return troca_.ExportarDadosCFeSATParaArquivo(cabecalho, itens, pagamentos);
}

}  // namespace checkout
