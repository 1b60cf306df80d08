#pragma once

#include "platform/DataReport.h"
#include "siblings/NotaPromissoria.h"

namespace siblings {

/// A promissory note: half a sheet in a frame, or a stretch of the roll.
class drNotaPromissoria final : public platform::DataReport {
 public:
  drNotaPromissoria(const platform::Paper& papel, const NotaPromissoria& nota);

  platform::ReportSection Nota{*this, "Nota", platform::Band::kReportHeader};
  platform::ReportBox boxNota{Nota, "boxNota"};
  platform::ReportLabel lblTitulo{Nota, "lblTitulo"};
  platform::ReportLabel lblNumero{Nota, "lblNumero"};
  platform::ReportLabel lblVencimento{Nota, "lblVencimento"};
  platform::ReportBox boxValor{Nota, "boxValor"};
  platform::ReportLabel lblValor{Nota, "lblValor"};
  platform::ReportLine linTitulo{Nota, "linTitulo"};
  platform::ReportLabel lblPromessa{Nota, "lblPromessa"};
  platform::ReportLabel lblQuantia{Nota, "lblQuantia"};
  platform::ReportLabel lblPraca{Nota, "lblPraca"};
  platform::ReportLabel lblRotuloDoEmitente{Nota, "lblRotuloDoEmitente"};
  platform::ReportLabel lblEmitente{Nota, "lblEmitente"};
  platform::ReportLabel lblRotuloDoDocumento{Nota, "lblRotuloDoDocumento"};
  platform::ReportLabel lblDocumento{Nota, "lblDocumento"};
  platform::ReportLabel lblRotuloDoEndereco{Nota, "lblRotuloDoEndereco"};
  platform::ReportLabel lblEndereco{Nota, "lblEndereco"};
  platform::ReportLabel lblLocalEData{Nota, "lblLocalEData"};
  platform::ReportLine linAssinatura{Nota, "linAssinatura"};
  platform::ReportLabel lblAssinatura{Nota, "lblAssinatura"};

 private:
  platform::ReportLayout EmFolha();
  platform::ReportLayout EmBobina();
};

}  // namespace siblings
