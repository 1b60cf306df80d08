#pragma once

#include <QPointer>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/ReportPages.h"
#include "platform/ZVCommandButton.h"

class QWidget;

namespace desktop::reports {

class PageArea;

/// The preview of a report: its sheets as they will be printed, to be looked at in any size,
/// printed, and saved as PDF or, where it is a list, as a spreadsheet.
class frmVisualizacao final : public platform::Form {
 public:
  /// `isTable`: its rows may be saved as a table too.
  frmVisualizacao(std::shared_ptr<const platform::ReportPages> report, bool isTable);
  ~frmVisualizacao() override;

  platform::PictureBox picPaginas{*this, "picPaginas"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::ZVCommandButton zvcmdDiminuir{picRodape, "zvcmdDiminuir"};
  platform::Label lblTamanho{picRodape, "lblTamanho"};
  platform::ZVCommandButton zvcmdAumentar{picRodape, "zvcmdAumentar"};
  platform::ZVCommandButton zvcmdLargura{picRodape, "zvcmdLargura"};
  platform::ZVCommandButton zvcmdPaginaInteira{picRodape, "zvcmdPaginaInteira"};
  platform::ZVCommandButton zvcmdTamanhoReal{picRodape, "zvcmdTamanhoReal"};
  platform::ZVCommandButton zvcmdPrimeira{picRodape, "zvcmdPrimeira"};
  platform::ZVCommandButton zvcmdAnterior{picRodape, "zvcmdAnterior"};
  platform::Label lblPagina{picRodape, "lblPagina"};
  platform::ZVCommandButton zvcmdProxima{picRodape, "zvcmdProxima"};
  platform::ZVCommandButton zvcmdUltima{picRodape, "zvcmdUltima"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};
  platform::ZVCommandButton zvcmdPlanilha{picRodape, "zvcmdPlanilha"};
  platform::ZVCommandButton zvcmdSalvar{picRodape, "zvcmdSalvar"};
  platform::ZVCommandButton zvcmdImprimir{picRodape, "zvcmdImprimir"};

  /// The operator wants it printed, saved, or its rows saved.
  std::function<void()> aoImprimir, aoSalvar, aoSalvarPlanilha;

  /// Lays the sheets over the place of picPaginas; once the form is up.
  void Attach(QWidget& place);
  /// Null until then.
  PageArea* Pages() const;

 private:
  void TakeCommands();
  void Form_Resize();
  void Control_KeyDown(platform::KeyStroke& tecla);
  void ShowState();

  std::shared_ptr<const platform::ReportPages> report_;
  QPointer<PageArea> pages_;  ///< A child of its place.
};

}  // namespace desktop::reports
