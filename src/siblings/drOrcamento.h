#pragma once

#include "platform/DataReport.h"

namespace siblings {

/// An estimate as the customer takes it home. Its rows are those of clsOrcamentos::SelecionarItens.
class drOrcamento final : public platform::DataReport {
 public:
  explicit drOrcamento(const platform::Paper& papel);

  platform::ReportSection CabecalhoDaPagina{*this, "CabecalhoDaPagina",
                                            platform::Band::kPageHeader};
  platform::ReportLabel lblEmpresa{CabecalhoDaPagina, "lblEmpresa"};
  platform::ReportLabel lblDadosDaEmpresa{CabecalhoDaPagina, "lblDadosDaEmpresa"};
  platform::ReportLabel lblTitulo{CabecalhoDaPagina, "lblTitulo"};
  platform::ReportLabel lblData{CabecalhoDaPagina, "lblData"};
  platform::ReportLine linCliente{CabecalhoDaPagina, "linCliente"};
  platform::ReportLabel lblCliente{CabecalhoDaPagina, "lblCliente"};
  platform::ReportLabel lblAnimal{CabecalhoDaPagina, "lblAnimal"};
  platform::ReportLine linColunas{CabecalhoDaPagina, "linColunas"};
  platform::ReportLabel lblNome{CabecalhoDaPagina, "lblNome"};
  platform::ReportLabel lblQuantidade{CabecalhoDaPagina, "lblQuantidade"};
  platform::ReportLabel lblUnidade{CabecalhoDaPagina, "lblUnidade"};
  platform::ReportLabel lblValorUnitario{CabecalhoDaPagina, "lblValorUnitario"};
  platform::ReportLabel lblValorTotal{CabecalhoDaPagina, "lblValorTotal"};
  platform::ReportLine linDetalhes{CabecalhoDaPagina, "linDetalhes"};

  platform::ReportSection Detalhes{*this, "Detalhes", platform::Band::kDetail};
  platform::ReportText txtNome{Detalhes, "txtNome"};
  platform::ReportText txtQuantidade{Detalhes, "txtQuantidade"};
  platform::ReportText txtUnidade{Detalhes, "txtUnidade"};
  platform::ReportText txtValorUnitario{Detalhes, "txtValorUnitario"};
  platform::ReportText txtValorTotal{Detalhes, "txtValorTotal"};

  platform::ReportSection RodapeDoRelatorio{*this, "RodapeDoRelatorio",
                                            platform::Band::kReportFooter};
  platform::ReportLine linTotais{RodapeDoRelatorio, "linTotais"};
  platform::ReportLabel lblRotuloDaSoma{RodapeDoRelatorio, "lblRotuloDaSoma"};
  platform::ReportSum sumValorTotal{RodapeDoRelatorio, "sumValorTotal"};
  platform::ReportLabel lblRotuloDoDesconto{RodapeDoRelatorio, "lblRotuloDoDesconto"};
  platform::ReportLabel lblDesconto{RodapeDoRelatorio, "lblDesconto"};
  platform::ReportLabel lblRotuloDoTotal{RodapeDoRelatorio, "lblRotuloDoTotal"};
  platform::ReportLabel lblTotal{RodapeDoRelatorio, "lblTotal"};
  platform::ReportLabel lblObservacao{RodapeDoRelatorio, "lblObservacao"};
  platform::ReportLabel lblValidade{RodapeDoRelatorio, "lblValidade"};

  platform::ReportSection RodapeDaPagina{*this, "RodapeDaPagina", platform::Band::kPageFooter};
  platform::ReportLabel lblSemValorFiscal{RodapeDaPagina, "lblSemValorFiscal"};
  platform::ReportLabel lblPagina{RodapeDaPagina, "lblPagina"};

 private:
  platform::ReportLayout EmFolha();
  platform::ReportLayout EmBobina();
};

}  // namespace siblings
