#include <QEvent>
#include <QWidget>
#include <memory>
#include <stdexcept>
#include <string>

#include "desktop/Convert.h"
#include "desktop/DesktopQt.h"
#include "desktop/Paint.h"
#include "desktop/reports/PageArea.h"
#include "desktop/reports/Pdf.h"
#include "desktop/reports/QtMeasure.h"
#include "desktop/reports/Spreadsheet.h"
#include "desktop/reports/frmSalvarDocumento.h"
#include "desktop/reports/frmVisualizacao.h"
#include "desktop/views/View.h"

/// Reports on the desktop: straight to the printer, or first as a picture on the screen.
namespace desktop {
namespace {

using PagesPtr = std::shared_ptr<const platform::ReportPages>;

constexpr const char* kBoxTitle = "Caixa";
constexpr int kTitleHeight = 44;

PagesPtr Composed(const platform::DataReport& report, base::DateTime now) {
  const reports::QtMeasure measure;
  return std::make_shared<const platform::ReportPages>(
      platform::Compose(report, measure, now, platform::Telling::kPagesAlone));
}

/// Keeps the preview nearly as large as the host's window.
class FillHost final : public QObject {
 public:
  FillHost(QWidget& host, platform::Form& form) : host_(host), form_(form) {
    host.installEventFilter(this);
    Fill();
  }

 private:
  void Fill() {
    const QSize room = host_.size() - QSize(2, 2) * paint::kShadow - QSize(0, kTitleHeight);
    form_.ResizeTo(ToTwips(room.width()), ToTwips(room.height()));
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize) Fill();
    return false;
  }

  QWidget& host_;
  platform::Form& form_;
};

/// The host lies in the dark meanwhile, as behind every dialog.
class Darkness {
 public:
  Darkness(DesktopQt& desktop, QWidget* host) : desktop_(desktop) {
    if (host == nullptr) return;
    window_ = desktop.Register(*host);
    desktop.Dim(window_, 0);
  }
  ~Darkness() {
    if (window_ != 0) desktop_.Undim(window_);
  }
  Darkness(const Darkness&) = delete;
  Darkness& operator=(const Darkness&) = delete;

 private:
  DesktopQt& desktop_;
  platform::WindowHandle window_ = 0;
};

}  // namespace

void DesktopQt::Preview(platform::DataReport& report) {
  ShowPages(Composed(report, Now()), platform::TableOf(report));
}

void DesktopQt::Print(platform::DataReport& report) {
  const PagesPtr pages = Composed(report, Now());
  try {
    reports::Print(*pages, printing_.printer, moduleFolder_);
    return;
  } catch (const std::runtime_error& failure) {
    TellTrouble(std::string(failure.what()) +
                " O documento será aberto na tela: dali pode ser salvo em PDF.");
  }
  ShowPages(pages, platform::TableOf(report));
}

void DesktopQt::TellTrouble(const std::string& sentence) {
  Ask({sentence, kBoxTitle, platform::Icon::kStop, platform::Buttons::kOk, platform::Answer::kOk});
}

void DesktopQt::ShowPages(const PagesPtr& pages, const platform::ReportTable& table) {
  reports::frmVisualizacao form(pages, !table.columns.empty());
  form.Activate = [this, &form] {
    if (form.Pages() == nullptr) form.Attach(*ViewOf(form.picPaginas));
    form.zvcmdImprimir.SetFocus();
  };
  form.aoImprimir = [this, &form, &pages] {
    try {
      reports::Print(*pages, printing_.printer, moduleFolder_);
    } catch (const std::runtime_error& failure) {
      return TellTrouble(std::string(failure.what()) +
                         " Corrija isto e tente de novo, ou salve o documento em PDF.");
    }
    form.Hide();
  };
  form.aoSalvar = [this, &pages] {
    Save(*pages, {{"PDF", ".pdf"}},
         [&](const std::string& path) { reports::WritePdf(*pages, path); });
  };
  form.aoSalvarPlanilha = [this, &pages, &table] {
    Save(*pages, {{"planilha", ".xlsx"}, {"texto", ".csv"}},
         [&](const std::string& path) { reports::WriteTable(table, path); });
  };
  QWidget* const host = windows_.Host();
  const Darkness darkness(*this, host);
  std::unique_ptr<FillHost> filling;
  if (host != nullptr) filling = std::make_unique<FillHost>(*host, form);
  form.ShowModal();
}

void DesktopQt::Save(const platform::ReportPages& pages,
                     const std::vector<reports::frmSalvarDocumento::Formato>& formats,
                     const std::function<void(const std::string& path)>& write) {
  const auto save = [&](const std::string& path) {
    try {
      write(path);
    } catch (const std::runtime_error& failure) {
      TellTrouble(failure.what());
      return false;
    }
    return true;
  };
  const std::string name = reports::FileNameOf(pages, Now());
  if (printing_.saveAs) {
    save(printing_.saveAs(name + formats.front().final));
    return;
  }
  reports::frmSalvarDocumento form(reports::UsualPlaces(), name, formats);
  form.aoSalvar = save;
  form.ShowModal();
}

}  // namespace desktop
