#include "desktop/reports/frmVisualizacao.h"

#include <QEvent>
#include <QKeyEvent>
#include <cmath>
#include <string>
#include <utility>

#include "desktop/reports/PageArea.h"
#include "platform/Input.h"
#include "platform/Layout.h"

namespace desktop::reports {

using platform::Look;

namespace {

constexpr std::int32_t kBar = 900;
constexpr std::int32_t kMargin = 240;
/// Narrower than this, the commands that others make up for give way.
constexpr std::int32_t kRoomForAll = 13500;
constexpr std::int32_t kWidth = 14100;
constexpr std::int32_t kHeight = 10200;
constexpr std::int32_t kTop = kHeight - kBar;

constexpr unsigned kHoldFoot = platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom;

/// Keys that are commands and type nothing mean nothing to a control: they are heard before the one
/// that has the focus, and press the button that stands for them.
class CommandKeys final : public QObject {
 public:
  CommandKeys(frmVisualizacao& form, QWidget& view, QObject& owner) : QObject(&owner), form_(form) {
    view.installEventFilter(this);
    for (QWidget* each : view.findChildren<QWidget*>()) each->installEventFilter(this);
  }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool prints = key.matches(QKeySequence::Print);
    if (!prints && !key.matches(QKeySequence::Save)) return false;
    if (!key.isAutoRepeat()) {
      platform::input::Click(prints ? form_.zvcmdImprimir : form_.zvcmdSalvar);
    }
    return true;
  }

  frmVisualizacao& form_;
};

}  // namespace

frmVisualizacao::frmVisualizacao(std::shared_ptr<const platform::ReportPages> report, bool isTable)
    : Form("frmVisualizacao"), report_(std::move(report)) {
  zvcmdPlanilha.Visible.Assign(isTable);
  Caption.Assign(report_->title.empty() ? "Visualizar impressão" : report_->title);
  // What stands at the left is placed as the room allows.
  const auto picture = [](platform::Control& control, std::string_view does,
                          std::string_view icon) {
    return platform::Place{
        control, {0, 210, 510, 480}, "", Look::kNormal, platform::kHoldTopLeft, does, icon};
  };
  constexpr auto kRight = platform::kHoldTopRight;
  Arrange(
      {.size = {kWidth, kHeight},
       .places = {
           {picPaginas, {0, 0, kWidth, kTop}, "", Look::kNormal, platform::kHoldAll},
           {picRodape, {0, kTop, kWidth, kBar}, "", Look::kFooter, kHoldFoot},
           picture(zvcmdDiminuir, "Diminuir (-)", "smaller"),
           picture(zvcmdAumentar, "Aumentar (+)", "larger"),
           picture(zvcmdLargura, "Ajustar à largura", "page-width"),
           picture(zvcmdPaginaInteira, "Página inteira", "whole-page"),
           {zvcmdTamanhoReal,
            {0, 210, 930, 480},
            "100%",
            Look::kNormal,
            platform::kHoldTopLeft,
            "Tamanho real"},
           picture(zvcmdPrimeira, "Primeira página (Home)", "first"),
           picture(zvcmdAnterior, "Página anterior", "previous"),
           picture(zvcmdProxima, "Próxima página", "next"),
           picture(zvcmdUltima, "Última página (End)", "last"),
           {zvcmdFechar, {isTable ? 7110 : 8460, 210, 1200, 480}, "Fechar", Look::kNormal, kRight},
           {zvcmdPlanilha,
            {8460, 210, 1200, 480},
            "Planilha",
            Look::kNormal,
            kRight,
            "Salvar as linhas em uma planilha"},
           {zvcmdSalvar,
            {9810, 210, 1950, 480},
            "Salvar PDF",
            Look::kNormal,
            kRight,
            "Salvar em um arquivo PDF (Ctrl+S)",
            "save"},
           {zvcmdImprimir,
            {11910, 210, 1950, 480},
            "Imprimir",
            Look::kPrimary,
            kRight,
            "Imprimir (Ctrl+P)",
            "printer"},
           // Last, since a label that stands before a control would name it.
           {lblTamanho, {0, 330, 540, 240}, "100%", Look::kHint},
           {lblPagina, {0, 330, 1500, 240}, "", Look::kHint},
       }});
  defaultButton = &zvcmdImprimir;
  cancelButton = &zvcmdFechar;
  TakeCommands();
}

void frmVisualizacao::TakeCommands() {
  Resize = [this] { Form_Resize(); };
  for (platform::Control* control : Controls()) {
    control->KeyDown = [this](platform::KeyStroke& tecla) { Control_KeyDown(tecla); };
  }
  zvcmdDiminuir.Click = [this] { pages_->Step(false); };
  zvcmdAumentar.Click = [this] { pages_->Step(true); };
  zvcmdLargura.Click = [this] { pages_->SetFit(PageArea::Fit::kWidth); };
  zvcmdPaginaInteira.Click = [this] { pages_->SetFit(PageArea::Fit::kPage); };
  zvcmdTamanhoReal.Click = [this] { pages_->SetZoom(1); };
  zvcmdPrimeira.Click = [this] { pages_->GoTo(0); };
  zvcmdAnterior.Click = [this] { pages_->GoTo(pages_->Page() - 1); };
  zvcmdProxima.Click = [this] { pages_->GoTo(pages_->Page() + 1); };
  zvcmdUltima.Click = [this] { pages_->GoTo(pages_->PageCount() - 1); };
  zvcmdFechar.Click = [this] { Hide(); };
  zvcmdSalvar.Click = [this] { aoSalvar(); };
  zvcmdPlanilha.Click = [this] { aoSalvarPlanilha(); };
  zvcmdImprimir.Click = [this] { aoImprimir(); };
}

frmVisualizacao::~frmVisualizacao() {
  // Its place is let go of now and deleted later; until then nothing may call back.
  delete pages_.data();
}

PageArea* frmVisualizacao::Pages() const {
  return pages_;
}

void frmVisualizacao::Attach(QWidget& place) {
  pages_ = new PageArea(report_, &place);
  pages_->setGeometry(place.rect());
  pages_->onChange = [this] { ShowState(); };
  pages_->ShowReadable();
  pages_->show();
  new CommandKeys(*this, *place.parentWidget(), *pages_);
}

void frmVisualizacao::Form_Resize() {
  const bool all = Width() >= kRoomForAll;
  const bool several = report_->pages.size() > 1;
  struct Item {
    platform::Control& control;
    std::int32_t gap;
    bool shown;
  };
  // Wide enough for the greatest number.
  constexpr std::size_t kTen = 10;
  lblPagina.Width = report_->pages.size() < kTen ? 1170 : 1560;
  const Item bar[] = {{zvcmdDiminuir, 0, true},
                      {lblTamanho, 90, all},
                      {zvcmdAumentar, 60, true},
                      {zvcmdLargura, 180, true},
                      {zvcmdPaginaInteira, 60, true},
                      {zvcmdTamanhoReal, 60, all},
                      {zvcmdPrimeira, 300, several && all},
                      {zvcmdAnterior, several && all ? 60 : 300, several},
                      {lblPagina, 120, true},
                      {zvcmdProxima, 60, several},
                      {zvcmdUltima, 60, several && all}};
  std::int32_t left = kMargin;
  for (const Item& item : bar) {
    item.control.Visible = item.shown;
    if (!item.shown) continue;
    item.control.Left = left + item.gap;
    left = item.control.Left() + item.control.Width();
  }
  if (pages_ != nullptr) pages_->setGeometry(pages_->parentWidget()->rect());
}

void frmVisualizacao::ShowState() {
  lblTamanho.Caption = std::to_string(std::lround(pages_->Zoom() * 100)) + "%";
  lblPagina.Caption =
      "Página " + std::to_string(pages_->Page() + 1) + " de " + std::to_string(pages_->PageCount());
}

void frmVisualizacao::Control_KeyDown(platform::KeyStroke& tecla) {
  using platform::Key;
  constexpr double kArrow = 0.1;
  switch (tecla.key) {
    case Key::kPageUp:
      pages_->ScrollBy(-1);
      break;
    case Key::kPageDown:
      pages_->ScrollBy(1);
      break;
    case Key::kUp:
      pages_->ScrollBy(-kArrow);
      break;
    case Key::kDown:
      pages_->ScrollBy(kArrow);
      break;
    case Key::kHome:
      pages_->ScrollToEnd(false);
      break;
    case Key::kEnd:
      pages_->ScrollToEnd(true);
      break;
    case Key::kCharacter:
      if (tecla.character == U'+' || tecla.character == U'=') pages_->Step(true);
      if (tecla.character == U'-') pages_->Step(false);
      break;
    default:
      return;
  }
  tecla.key = Key::kNone;
}

}  // namespace desktop::reports
