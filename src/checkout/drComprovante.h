#pragma once

#include <string>
#include <string_view>

#include "platform/DataReport.h"

namespace checkout {

/// What a receipt says beside the lines of its sale, in its final form.
struct Comprovante {
  std::string empresa, venda, cliente, endereco, canais;
  std::string total, rotuloDoPago, pago;
};

/// The receipt of a sale that a customer takes home: not a fiscal document, and it says so. The
/// first one and its copy are told apart by what they add to it.
class drComprovante : public platform::DataReport {
 public:
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
  platform::ReportLabel lblSemValorFiscal{RodapeDoRelatorio, "lblSemValorFiscal"};
  platform::ReportLabel lblAgradecimento{RodapeDoRelatorio, "lblAgradecimento"};

  platform::ReportSection RodapeDaPagina{*this, "RodapeDaPagina", platform::Band::kPageFooter};
  platform::ReportLine linRodape{RodapeDaPagina, "linRodape"};
  platform::ReportLabel lblTituloDoAplicativo{RodapeDaPagina, "lblTituloDoAplicativo"};
  platform::ReportLabel lblPagina{RodapeDaPagina, "lblPagina"};

  /// Writes what does not come from the lines, which are the DataSource.
  void Preencher(const Comprovante& comprovante);

 protected:
  /// The words of the head, on a sheet and on the roll.
  struct Palavras {
    std::string_view titulo, tituloNaBobina, emissao, emissaoNaBobina;
  };
  drComprovante(std::string_view nome, std::string_view impressao);

  platform::ReportLayout EmFolha(const Palavras& palavras);
  platform::ReportLayout EmBobina(const Palavras& palavras);
};

/// The one that is printed right after the sale: it tells the change too.
class drComprovanteDePagamentoDeVenda final : public drComprovante {
 public:
  explicit drComprovanteDePagamentoDeVenda(const platform::Paper& papel);

  platform::ReportLabel lblTroco{RodapeDoRelatorio, "lblTroco"};
  platform::ReportLabel txtTroco{RodapeDoRelatorio, "txtTroco"};
  platform::ReportLabel lblCredito{RodapeDoRelatorio, "lblCredito"};
  platform::ReportLabel txtCredito{RodapeDoRelatorio, "txtCredito"};
};

/// The copy, which must not pass for the first: it says that it is one, and when it was printed.
class dr2aViaDoComprovanteDePagamentoDeVenda final : public drComprovante {
 public:
  explicit dr2aViaDoComprovanteDePagamentoDeVenda(const platform::Paper& papel);
};

}  // namespace checkout
