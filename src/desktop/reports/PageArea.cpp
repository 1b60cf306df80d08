#include "desktop/reports/PageArea.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/Convert.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "desktop/ScrollBar.h"
#include "desktop/reports/Painting.h"

namespace desktop::reports {
namespace {

constexpr double kTwipsPerPixel = 15;
/// The ground around the sheets and between them: room for their shadow.
constexpr int kGround = 24;
constexpr double kSteps[] = {0.25, 0.33, 0.5,  0.67, 0.75, 0.9, 1,   1.1,
                             1.25, 1.5,  1.75, 2,    2.5,  3,   3.5, 4};
constexpr double kSmallest = 0.25;
constexpr double kLargest = 4;
/// A roll is narrow and its letters are small: it is read enlarged.
constexpr double kReadableRoll = 1.5;
/// A line of the pages, for the wheel and the arrows.
constexpr int kLine = 48;

int Pixels(std::int32_t twips, double zoom) {
  return static_cast<int>(std::ceil(twips * zoom / kTwipsPerPixel));
}

}  // namespace

PageArea::PageArea(std::shared_ptr<const platform::ReportPages> report, QWidget* parent)
    : QAbstractScrollArea(parent), report_(std::move(report)) {
  setObjectName(QStringLiteral("paginas"));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setFocusPolicy(Qt::NoFocus);
  setVerticalScrollBar(new ScrollBar(Qt::Vertical, this));
  setHorizontalScrollBar(new ScrollBar(Qt::Horizontal, this));
  QPalette ground = palette();
  ground.setColor(QPalette::Window, palette::kGround);
  setPalette(ground);
  setAutoFillBackground(true);
  Arrange();
}

const platform::ReportPage& PageArea::At(int page) const {
  return report_->pages[static_cast<std::size_t>(page)];
}

QSize PageArea::SizeOf(int page) const {
  return {Pixels(At(page).width, zoom_), Pixels(At(page).height, zoom_)};
}

QRect PageArea::BoxOf(int page) const {
  const QSize size = SizeOf(page);
  const int room = std::max(whole_.width(), viewport()->width());
  // What is lower than the area stands in its middle.
  const int spare = std::max(viewport()->height() - whole_.height(), 0) / 2;
  const QPoint at((room - size.width()) / 2, tops_[static_cast<std::size_t>(page)] + spare);
  return {at - QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value()), size};
}

// The size of the sheets.

double PageArea::FittingZoom(Fit fit) const {
  if (report_->pages.empty()) return 1;
  const platform::ReportPage& page = At(page_);
  const QSize room = maximumViewportSize();
  const double across =
      (room.width() - 2 * kGround - ScrollBar::kThickness) * kTwipsPerPixel / page.width;
  const double down = (room.height() - 2 * kGround) * kTwipsPerPixel / page.height;
  return std::clamp(fit == Fit::kWidth ? across : std::min(across, down), kSmallest, kLargest);
}

void PageArea::Resize(double zoom, const QPoint& anchor) {
  zoom = std::clamp(zoom, kSmallest, kLargest);
  const double grown = zoom / zoom_;
  const QRect before = report_->pages.empty() ? QRect() : BoxOf(page_);
  const QPointF inPage = QPointF(anchor - before.topLeft()) * grown;
  zoom_ = zoom;
  going_ = true;
  Arrange();
  if (!report_->pages.empty()) {
    const QPoint off = (BoxOf(page_).topLeft() + inPage).toPoint() - anchor;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + off.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + off.y());
  }
  going_ = false;
  viewport()->update();
  TellPage();
}

void PageArea::SetZoom(double zoom) {
  readable_ = false;
  fit_ = Fit::kNone;
  Resize(zoom, viewport()->rect().center());
}

void PageArea::Step(bool larger) {
  constexpr double kHair = 0.005;
  if (larger) {
    const auto* const next = std::upper_bound(std::begin(kSteps), std::end(kSteps), zoom_ + kHair);
    return SetZoom(next == std::end(kSteps) ? kLargest : *next);
  }
  const auto* const next = std::lower_bound(std::begin(kSteps), std::end(kSteps), zoom_ - kHair);
  SetZoom(next == std::begin(kSteps) ? kSmallest : *std::prev(next));
}

void PageArea::SetFit(Fit fit) {
  readable_ = false;
  fit_ = fit;
  const int page = page_;
  Resize(FittingZoom(fit), QPoint(viewport()->width() / 2, 0));
  if (fit == Fit::kPage) GoTo(page);
}

void PageArea::ShowReadable() {
  const bool roll = report_->paper.kind == platform::Paper::Kind::kRoll80;
  fit_ = Fit::kNone;
  readable_ = true;
  Resize(std::min(FittingZoom(Fit::kWidth), roll ? kReadableRoll : 1), {0, 0});
}

void PageArea::Arrange() {
  tops_.clear();
  int top = kGround;
  int wide = 0;
  for (int page = 0; page < static_cast<int>(report_->pages.size()); ++page) {
    tops_.push_back(top);
    const QSize size = SizeOf(page);
    top += size.height() + kGround;
    wide = std::max(wide, size.width());
  }
  whole_ = QSize(wide + 2 * kGround, top);
  const QSize room = viewport()->size();
  verticalScrollBar()->setRange(0, std::max(whole_.height() - room.height(), 0));
  verticalScrollBar()->setPageStep(room.height());
  verticalScrollBar()->setSingleStep(kLine);
  horizontalScrollBar()->setRange(0, std::max(whole_.width() - room.width(), 0));
  horizontalScrollBar()->setPageStep(room.width());
  horizontalScrollBar()->setSingleStep(kLine);
}

void PageArea::resizeEvent(QResizeEvent*) {
  if (readable_) return ShowReadable();
  if (fit_ != Fit::kNone) return Resize(FittingZoom(fit_), {0, 0});
  Arrange();
  TellPage();
}

// Which page.

void PageArea::GoTo(int page) {
  if (tops_.empty()) return;
  page_ = std::clamp(page, 0, PageCount() - 1);
  going_ = true;
  // The first one shows the ground above it, as when the preview opened.
  verticalScrollBar()->setValue(page_ == 0 ? 0
                                           : tops_[static_cast<std::size_t>(page_)] - kGround / 2);
  going_ = false;
  TellPage();
}

void PageArea::FindPage() {
  const QScrollBar& bar = *verticalScrollBar();
  const int middle = bar.value() + viewport()->height() / 2;
  int found = 0;
  for (int page = 0; page < PageCount(); ++page) {
    if (tops_[static_cast<std::size_t>(page)] <= middle) found = page;
  }
  if (bar.value() == bar.minimum()) found = 0;
  if (bar.value() == bar.maximum() && bar.maximum() > 0) found = PageCount() - 1;
  if (std::exchange(page_, found) != found) TellPage();
}

void PageArea::TellPage() {
  setAccessibleName(QStringLiteral("Página %1 de %2").arg(page_ + 1).arg(PageCount()));
  if (QAccessible::isActive() && !report_->pages.empty()) {
    setAccessibleDescription(ToQt(platform::AsText(*report_)[static_cast<std::size_t>(page_)]));
  }
  if (onChange) onChange();
}

void PageArea::ScrollBy(double screenfuls) {
  // A line of the last screenful stays in sight.
  const double step = screenfuls * (viewport()->height() - kLine);
  verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(std::lround(step)));
}

void PageArea::ScrollToEnd(bool last) {
  verticalScrollBar()->setValue(last ? verticalScrollBar()->maximum() : 0);
  if (page_ != (last ? PageCount() - 1 : 0)) GoTo(last ? PageCount() - 1 : 0);
}

void PageArea::scrollContentsBy(int dx, int dy) {
  viewport()->scroll(dx, dy);
  if (!going_) FindPage();
}

// The mouse.

void PageArea::wheelEvent(QWheelEvent* event) {
  event->accept();
  const int turned = event->angleDelta().y();
  if (!(event->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
  if (turned == 0) return;
  constexpr double kNotch = 120;
  constexpr double kGrowth = 1.1;
  readable_ = false;
  fit_ = Fit::kNone;
  Resize(zoom_ * std::pow(kGrowth, turned / kNotch), event->position().toPoint());
}

void PageArea::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragging_ = true;
  draggedAt_ = event->pos();
  viewport()->setCursor(Qt::ClosedHandCursor);
}

void PageArea::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_) return;
  const QPoint by = event->pos() - std::exchange(draggedAt_, event->pos());
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - by.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - by.y());
}

void PageArea::mouseReleaseEvent(QMouseEvent*) {
  dragging_ = false;
  viewport()->unsetCursor();
}

// The picture.

bool PageArea::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::Paint) return QAbstractScrollArea::viewportEvent(event);
  Paint(static_cast<QPaintEvent*>(event)->rect());
  return true;
}

void PageArea::Paint(const QRect& exposed) {
  QPainter painter(viewport());
  painter.fillRect(exposed, palette::kGround);
  for (int page = 0; page < PageCount(); ++page) {
    const QRect box = BoxOf(page);
    const int reach = paint::kShadow + 4;
    if (!box.adjusted(-reach, -reach, reach, reach).intersects(exposed)) continue;
    // Softer than that of a dialog: a sheet lies flat.
    constexpr double kSoft = 0.45;
    painter.setOpacity(kSoft);
    paint::Shadow(painter, box, 0);
    painter.setOpacity(1);
    painter.fillRect(box, Qt::white);
    const QRectF inPage =
        QRectF(exposed.translated(-box.topLeft())).intersected(QRectF(QPointF(), box.size()));
    if (inPage.isEmpty()) continue;
    const double pixelsPerTwip = zoom_ / kTwipsPerPixel;
    painter.save();
    painter.setClipRect(box);
    painter.translate(box.topLeft());
    PaintPage(painter, At(page), pixelsPerTwip,
              QRectF(inPage.topLeft() / pixelsPerTwip, inPage.size() / pixelsPerTwip));
    painter.restore();
  }
}

}  // namespace desktop::reports
