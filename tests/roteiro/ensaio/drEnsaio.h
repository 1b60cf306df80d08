#pragma once

#include <memory>
#include <utility>

#include "platform/DataReport.h"
#include "platform/Desktop.h"

namespace ensaio {

/// A report of a page and a half on A4, to be shown and printed by the screen.
class drEnsaio final : public platform::DataReport {
 public:
  drEnsaio() : DataReport("drEnsaio") {
    auto linhas = std::make_shared<base::RecordSet>(std::vector<std::string>{"Item", "Valor"});
    for (std::int32_t i = 1; i <= 3; ++i) {
      linhas->Append({"Banho " + std::to_string(i), base::ToCurrency(i)});
    }
    DataSource = std::move(linhas);
    using enum platform::ReportAlign;
    Arrange({platform::Desktop::Current().ReceiptPaper(),
             {{Detalhes, 5000}},
             {{lblTitulo, {0, 0, 4000, 240}, "Ensaio em %d %t"},
              {lblOculto, {0, 240, 4000, 240}, "Oculto"},
              {txtItem, {0, 0, 2000, 240}, "Item"},
              {txtValor, {2000, 0, 2000, 240}, "Valor", {}, kRight},
              {rptfTotal, {2000, 0, 2000, 240}, "Valor", {}, kRight},
              {lblPagina, {0, 0, 4000, 240}, "Página %p de %P", {}, kRight}}});
    txtValor.DataFormat = "#,##0.00";
  }

  platform::ReportSection CabecalhoDaPagina{*this, "CabecalhoDaPagina",
                                            platform::Band::kPageHeader};
  platform::ReportLabel lblTitulo{CabecalhoDaPagina, "lblTitulo"};
  platform::ReportLabel lblOculto{CabecalhoDaPagina, "lblOculto"};
  platform::ReportSection Detalhes{*this, "Detalhes", platform::Band::kDetail};
  platform::ReportText txtItem{Detalhes, "txtItem"};
  platform::ReportText txtValor{Detalhes, "txtValor"};
  platform::ReportSection RodapeDoRelatorio{*this, "RodapeDoRelatorio",
                                            platform::Band::kReportFooter};
  platform::ReportSum rptfTotal{RodapeDoRelatorio, "rptfTotal"};
  platform::ReportSection RodapeDaPagina{*this, "RodapeDaPagina", platform::Band::kPageFooter};
  platform::ReportLabel lblPagina{RodapeDaPagina, "lblPagina"};
};

}  // namespace ensaio
