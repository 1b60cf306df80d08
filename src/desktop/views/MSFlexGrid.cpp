#include "desktop/views/MSFlexGrid.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/Paint.h"
#include "desktop/ScrollBar.h"
#include "platform/Form.h"
#include "platform/Input.h"
#include "platform/Screens.h"

namespace desktop {
namespace {

constexpr int kNotch = 120;
/// Contents that need more are the exception: amounts are then set smaller, words cut.
constexpr double kWidestCell = 220;

}  // namespace

MSFlexGridView::MSFlexGridView(platform::MSFlexGrid& grid, QWidget& parent)
    : View(grid, parent),
      down_(new ScrollBar(Qt::Vertical, this)),
      across_(new ScrollBar(Qt::Horizontal, this)) {
  setFocusPolicy(Qt::TabFocus);
  QObject::connect(down_, &QScrollBar::valueChanged, this, [this](int value) {
    if (Shows() != nullptr && value < Grid().Rows()) Grid().TopRow(value);
  });
  QObject::connect(across_, &QScrollBar::valueChanged, this, [this] { update(); });
  Arrange();
}

double MSFlexGridView::RingRadius() const {
  return paint::kPanelRadius;
}

QString MSFlexGridView::Spoken() const {
  if (Shows() == nullptr) return {};
  QStringList words;
  for (const GridColumns::Column& column : columns_.Shown()) {
    const QString text = CellText(Grid().Row(), column.index);
    if (!text.isEmpty()) words << CellText(0, column.index) + u' ' + text;
  }
  return words.join(QStringLiteral(", "));
}

void MSFlexGridView::Follow(const platform::PropertyBase& property) {
  if (&property != &Grid().Revision || stale_) return;
  stale_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (stale_) Arrange();
      },
      Qt::QueuedConnection);
}

double MSFlexGridView::RowHeight(std::int32_t row) const {
  return std::max(ToPixels(Grid().RowHeight(row)), 0);
}

double MSFlexGridView::HeaderHeight() const {
  double height = 0;
  for (std::int32_t row = 0; row < Grid().FixedRows(); ++row) height += RowHeight(row);
  return height;
}

QRectF MSFlexGridView::Body() const {
  const double right = down_->isHidden() ? 0 : ScrollBar::kThickness;
  const double bottom = across_->isHidden() ? 0 : ScrollBar::kThickness;
  return QRectF(rect()).adjusted(1, 1 + HeaderHeight(), -1 - right, -1 - bottom);
}

std::int32_t MSFlexGridView::EndOfView() const {
  double bottom = 0;
  std::int32_t row = std::max(Grid().TopRow(), Grid().FixedRows());
  for (const double room = Body().height(); row < Grid().Rows(); ++row) {
    bottom += RowHeight(row);
    if (bottom > room + 0.5) break;
  }
  return row;
}

void MSFlexGridView::MeasureCells() {
  // What has been seen stays: columns do not change width while the operator scrolls.
  const bool emptied = Grid().Rows() <= Grid().FixedRows() + 1 && IsBlank(Grid().Rows() - 1);
  if (emptied) needs_.clear();
  needs_.resize(static_cast<std::size_t>(Grid().Cols()));
  const std::int32_t end = std::min(EndOfView() + 1, Grid().Rows());
  for (std::int32_t col = 0; col < Grid().Cols(); ++col) {
    if (Grid().ColWidth(col) <= 0) continue;
    double& need = needs_[static_cast<std::size_t>(col)];
    // The title of an amount stands in one line; that of a text may take two.
    const bool amount = IsRightwards(Grid(), col);
    for (const QString& word : CellText(0, col).split(amount ? u'\n' : u' ')) {
      const double wide = fonts::figures::Advance(CellFont(0, col), word) + 2 * kCellMargin + 4;
      need = std::max(need, wide);
    }
    for (std::int32_t row = std::max(Grid().TopRow(), Grid().FixedRows()); row < end; ++row) {
      const QString text = CellText(row, col);
      if (text.isEmpty()) continue;
      const double wide = fonts::figures::Advance(CellFont(row, col), text) + 2 * kCellMargin;
      need = std::clamp(wide, need, std::max(need, kWidestCell));
    }
  }
}

void MSFlexGridView::ArrangeBars() {
  const QSignalBlocker quietDown(down_);
  const QSignalBlocker quietAcross(across_);
  const int right = down_->isHidden() ? 0 : ScrollBar::kThickness;
  const int bottom = across_->isHidden() ? 0 : ScrollBar::kThickness;
  const int header = static_cast<int>(HeaderHeight());
  down_->setGeometry(width() - 1 - ScrollBar::kThickness, 1 + header, ScrollBar::kThickness,
                     std::max(height() - 2 - header - bottom, 0));
  across_->setGeometry(1, height() - 1 - ScrollBar::kThickness, width() - 2 - right,
                       ScrollBar::kThickness);
  const std::int32_t first = Grid().FixedRows();
  const int seen = std::max(EndOfView() - std::max(Grid().TopRow(), first), 1);
  const std::int32_t last = std::max({Grid().Rows() - seen, first, Grid().TopRow()});
  down_->setRange(first, last);
  down_->setPageStep(seen);
  down_->setValue(Grid().TopRow());
  across_->setRange(0, std::max(static_cast<int>(columns_.Width() - Body().width()), 0));
  across_->setPageStep(static_cast<int>(Body().width()));
  across_->setSingleStep(40);
}

void MSFlexGridView::Arrange() {
  stale_ = false;
  if (Shows() == nullptr) return;
  double rows = 0;
  for (std::int32_t row = Grid().FixedRows(); row < Grid().Rows(); ++row) {
    rows += RowHeight(row);
    if (rows > height()) break;
  }
  const double room = height() - 2 - HeaderHeight();
  down_->setVisible(rows > room || Grid().TopRow() > Grid().FixedRows());
  MeasureCells();
  columns_.Arrange(Grid(), Body().width(), needs_);
  across_->setVisible(columns_.Width() > Body().width() + 0.5);
  if (!across_->isHidden()) {
    down_->setVisible(!down_->isHidden() || rows > room - ScrollBar::kThickness);
    columns_.Arrange(Grid(), Body().width(), needs_);
  }
  ArrangeBars();
  update();
}

void MSFlexGridView::resizeEvent(QResizeEvent*) {
  Arrange();
}

bool MSFlexGridView::event(QEvent* event) {
  // A picture may be taken before the event loop came round.
  if (event->type() == QEvent::Paint && stale_) Arrange();
  return View::event(event);
}

QRectF MSFlexGridView::CellBox(std::int32_t row, std::int32_t col) const {
  const auto& shown = columns_.Shown();
  const auto column = std::ranges::find(shown, col, &GridColumns::Column::index);
  if (column == shown.end()) return {};
  const double left = 1 + column->left - across_->value();
  double top = 1;
  if (row < Grid().FixedRows()) {
    for (std::int32_t each = 0; each < row; ++each) top += RowHeight(each);
    return {left, top, column->width, RowHeight(row)};
  }
  const std::int32_t first = std::max(Grid().TopRow(), Grid().FixedRows());
  if (row < first || row >= EndOfView()) return {};
  top = Body().top();
  for (std::int32_t each = first; each < row; ++each) top += RowHeight(each);
  return {left, top, column->width, RowHeight(row)};
}

MSFlexGridView::Cell MSFlexGridView::CellAt(const QPointF& at) const {
  const std::int32_t col = columns_.At(at.x() - 1 + across_->value());
  double bottom = 1;
  for (std::int32_t row = 0; row < Grid().FixedRows(); ++row) {
    bottom += RowHeight(row);
    if (at.y() < bottom) return {row, col};
  }
  for (std::int32_t row = std::max(Grid().TopRow(), Grid().FixedRows()); row < Grid().Rows();
       ++row) {
    bottom += RowHeight(row);
    if (at.y() < bottom) return {row, col};
  }
  return {};
}

QString MSFlexGridView::ToolTipAt(const QPoint& at) const {
  const Cell cell = CellAt(at);
  if (cell.row < 0 || cell.col < 0) return View::ToolTipAt(at);
  const QString text = CellText(cell.row, cell.col);
  const double room = CellBox(cell.row, cell.col).width() - 2 * kCellMargin;
  const bool whole =
      fonts::figures::Advance(CellFont(cell.row, cell.col), text) <= std::max(room, 0.0);
  return whole ? View::ToolTipAt(at) : text;
}

void MSFlexGridView::ShowCurrentRow() {
  if (Shows() == nullptr) return;
  const std::int32_t row = Grid().Row();
  if (row < Grid().FixedRows() || row < Grid().TopRow() || row < EndOfView()) return;
  // The module counts rows by the height of the first one; the bar below may hide one more.
  Grid().TopRow(std::min(Grid().TopRow() + row - EndOfView() + 1, row));
}

bool MSFlexGridView::TakeKey(QKeyEvent& event) {
  const bool left = event.key() == Qt::Key_Left;
  if (!across_->isHidden() && (left || event.key() == Qt::Key_Right)) {
    across_->setValue(across_->value() + (left ? -1 : 1) * across_->singleStep());
    return true;
  }
  const bool taken = View::TakeKey(event);
  ShowCurrentRow();
  return taken;
}

void MSFlexGridView::PressCell(QMouseEvent& event) {
  const Cell cell = CellAt(event.position());
  if (cell.row < 0 || cell.col < 0) {
    platform::input::Focus(*Shows());
    return;
  }
  const bool left = event.button() == Qt::LeftButton;
  platform::input::ClickCell(Grid(), cell.row, cell.col,
                             left ? platform::MouseButton::kLeft : platform::MouseButton::kRight,
                             false);
}

void MSFlexGridView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton) PressCell(*event);
}

void MSFlexGridView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The first press was the click; the second brings the double click alone, and sorts nothing.
  const Cell cell = CellAt(event->position());
  const platform::Form& form = Grid().OwnerForm();
  if (event->button() != Qt::LeftButton || cell.row < Grid().FixedRows() || cell.col < 0) return;
  if (!IsWarm() || form.AreCommandsHeld() || Grid().DblClick.IsRunning()) return;
  platform::input::Run([&] { Grid().DblClick(); });
}

void MSFlexGridView::wheelEvent(QWheelEvent* event) {
  event->accept();
  wheel_ += event->angleDelta().y();
  const int notches = wheel_ / kNotch;
  wheel_ %= kNotch;
  if (notches != 0) platform::input::Wheel(Grid(), notches * kNotch);
}

}  // namespace desktop
