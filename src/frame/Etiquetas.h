#pragma once

#include <string_view>

namespace frame {

/// Under which screen and routine an error of a procedure is known.
struct Etiqueta {
  std::string_view tela, rotina;
};

/// What names another screen or module than the one that the procedure belongs to today: hosts and
/// their support know these errors so.
namespace etiquetas {

inline constexpr Etiqueta kCaixaOperar{"clsCaixa", "CaixaOperar"};
inline constexpr Etiqueta kVerificarBloqueioDoCliente{
    "modFuncoes", "VerificarBloqueioDoClienteParaOperacoesNosCaixas"};
inline constexpr Etiqueta kRetornarCreditoDoCliente{"frmFichaClinica", "RetornarCreditoDoCliente"};
inline constexpr Etiqueta kInformacoesDoLimiteDeCredito{"frmFichaClinica",
                                                        "InformacoesDoLimiteDeCredito"};
inline constexpr Etiqueta kValidarDadosDoCliente{"frmFichaClinica", "ValidarDadosDoCliente"};
inline constexpr Etiqueta kPreencherComboboxComissionados{"frmFichaClinica",
                                                          "PreencherComboboxComissionados"};
inline constexpr Etiqueta kImprimirNotaPromissoria{"clsRelFin", "ImprimirNotaPromissoria"};
inline constexpr Etiqueta kExportarDadosCFeSATParaArquivo{"frmCaixaPagar",
                                                          "ExportarDadosCFeSATParaArquivo"};
inline constexpr Etiqueta kAtualizarPercDeDescontoLimite{
    "frmCaixaPagar", "AtualizarPercDeDescontoLimiteDaVendaNoCaixa"};
inline constexpr Etiqueta kVerificaPercDeDescontoLimite{
    "frmFichaDeProcedimentos", "VerificaPercDeDescontoLimiteDaVendaNoCaixa"};
inline constexpr Etiqueta kValidarData{"frmFicha", "ValidarData"};
inline constexpr Etiqueta kPreencherFormaDePagamento{"frmFichaCompleta",
                                                     "PreencherzvcmbFormaDePagamento"};
inline constexpr Etiqueta kGradeDePagamentosConfigurar{"frmLista", "Grade_Configurar"};
inline constexpr Etiqueta kImprimir2aVia{"frmCaixaPagar",
                                         "Imprimir2aViaDoComprovanteDePagamentoDeVenda"};
inline constexpr Etiqueta kCarregarDetalhes{"frmPesquisaDeProdutos1", "Form_Load"};
inline constexpr Etiqueta kListaDeColunas{"frmCaixaOperarDeClientes", "mnuListaDeColunas_Click"};

}  // namespace etiquetas
}  // namespace frame
