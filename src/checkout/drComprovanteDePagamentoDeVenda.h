#pragma once

#include "platform/DataReport.h"

namespace checkout {

/// The receipt of a sale that a customer takes home: not a fiscal document, and it says so.
class drComprovanteDePagamentoDeVenda final : public platform::DataReport {
 public:
  explicit drComprovanteDePagamentoDeVenda(const platform::Paper& papel);

  platform::ReportSection CabecalhoDaPagina{*this, "CabecalhoDaPagina",
                                            platform::Band::kPageHeader};
  platform::ReportLabel lblNomeFantasiaDaEmpresa{CabecalhoDaPagina, "lblNomeFantasiaDaEmpresa"};
  platform::ReportLabel lblTituloDoComprovante{CabecalhoDaPagina, "lblTituloDoComprovante"};
  platform::ReportLabel lblRotuloDaVenda{CabecalhoDaPagina, "lblRotuloDaVenda"};
  platform::ReportLabel lblNumeroDaVenda{CabecalhoDaPagina, "lblNumeroDaVenda"};
  platform::ReportLabel lblEmissao{CabecalhoDaPagina, "lblEmissao"};
  platform::ReportLine linCliente{CabecalhoDaPagina, "linCliente"};
  platform::ReportLabel lblRotuloDoCliente{CabecalhoDaPagina, "lblRotuloDoCliente"};
  platform::ReportLabel lblCodigoENomeOuRazaoSocialDoCliente{
      CabecalhoDaPagina, "lblCodigoENomeOuRazaoSocialDoCliente"};
  platform::ReportLabel lblEnderecoDoCliente{CabecalhoDaPagina, "lblEnderecoDoCliente"};
  platform::ReportLabel lblCanalDeComunicacaoDoCliente{CabecalhoDaPagina,
                                                       "lblCanalDeComunicacaoDoCliente"};
  platform::ReportLine linColunas{CabecalhoDaPagina, "linColunas"};
  platform::ReportLabel lblData{CabecalhoDaPagina, "lblData"};
  platform::ReportLabel lblAnimal{CabecalhoDaPagina, "lblAnimal"};
  platform::ReportLabel lblServicoOuProduto{CabecalhoDaPagina, "lblServicoOuProduto"};
  platform::ReportLabel lblQuantidade{CabecalhoDaPagina, "lblQuantidade"};
  platform::ReportLabel lblUnidade{CabecalhoDaPagina, "lblUnidade"};
  platform::ReportLabel lblValorUnitario{CabecalhoDaPagina, "lblValorUnitario"};
  platform::ReportLabel lblDesconto{CabecalhoDaPagina, "lblDesconto"};
  platform::ReportLabel lblValorTotal{CabecalhoDaPagina, "lblValorTotal"};
  platform::ReportLine linDetalhes{CabecalhoDaPagina, "linDetalhes"};

  platform::ReportSection Detalhes{*this, "Detalhes", platform::Band::kDetail};
  platform::ReportText txtDataDoServicoEfetuadoOuProdutoReservado{
      Detalhes, "txtDataDoServicoEfetuadoOuProdutoReservado"};
  platform::ReportText txtNomeDoAnimal{Detalhes, "txtNomeDoAnimal"};
  platform::ReportText txtNomeDoServicoOuProduto{Detalhes, "txtNomeDoServicoOuProduto"};
  platform::ReportText txtQuantidade{Detalhes, "txtQuantidade"};
  platform::ReportText txtUnidadeDeVenda{Detalhes, "txtUnidadeDeVenda"};
  platform::ReportText txtValorUnitario{Detalhes, "txtValorUnitario"};
  platform::ReportText txtDesconto{Detalhes, "txtDesconto"};
  platform::ReportText txtValorTotal{Detalhes, "txtValorTotal"};

  platform::ReportSection RodapeDoRelatorio{*this, "RodapeDoRelatorio",
                                            platform::Band::kReportFooter};
  platform::ReportLine linTotais{RodapeDoRelatorio, "linTotais"};
  platform::ReportLabel lblTotalDosServicosEProdutos{RodapeDoRelatorio,
                                                     "lblTotalDosServicosEProdutos"};
  platform::ReportLabel txtTotalDosServicosEProdutos{RodapeDoRelatorio,
                                                     "txtTotalDosServicosEProdutos"};
  platform::ReportLabel lblValorPago{RodapeDoRelatorio, "lblValorPago"};
  platform::ReportLabel txtValorPago{RodapeDoRelatorio, "txtValorPago"};
  platform::ReportLabel lblSaldoDevedor{RodapeDoRelatorio, "lblSaldoDevedor"};
  platform::ReportLabel txtSaldoDevedor{RodapeDoRelatorio, "txtSaldoDevedor"};
  platform::ReportLabel lblTroco{RodapeDoRelatorio, "lblTroco"};
  platform::ReportLabel txtTroco{RodapeDoRelatorio, "txtTroco"};
  platform::ReportLabel lblCredito{RodapeDoRelatorio, "lblCredito"};
  platform::ReportLabel txtCredito{RodapeDoRelatorio, "txtCredito"};
  platform::ReportLabel lblSemValorFiscal{RodapeDoRelatorio, "lblSemValorFiscal"};
  platform::ReportLabel lblAgradecimento{RodapeDoRelatorio, "lblAgradecimento"};

  platform::ReportSection RodapeDaPagina{*this, "RodapeDaPagina", platform::Band::kPageFooter};
  platform::ReportLine linRodape{RodapeDaPagina, "linRodape"};
  platform::ReportLabel lblTituloDoAplicativo{RodapeDaPagina, "lblTituloDoAplicativo"};
  platform::ReportLabel lblPagina{RodapeDaPagina, "lblPagina"};

 private:
  platform::ReportLayout EmFolha();
  platform::ReportLayout EmBobina();
};

}  // namespace checkout
