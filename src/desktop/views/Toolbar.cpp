#include "desktop/views/Toolbar.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/FormView.h"
#include "desktop/Icons.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "platform/Input.h"

namespace desktop {
namespace {

constexpr int kHeight = 36;
constexpr int kNarrowest = 26;
constexpr double kIcon = 20;
/// Where pictures and words begin.
constexpr double kMargin = 9;
constexpr double kWords = 39;

}  // namespace

ToolbarView::ToolbarView(platform::Toolbar& toolbar, QWidget& parent) : View(toolbar, parent) {
  setMouseTracking(true);
  for (const auto& button : toolbar.All()) button->Observe(*this);
}

void ToolbarView::LetGo() {
  hovered_ = pressed_ = marked_ = chosen_ = nullptr;
  // While the toolbar is being destroyed it is a mere control, and its buttons are gone already.
  if (auto* const bar = dynamic_cast<platform::Toolbar*>(Shows())) {
    for (const auto& button : bar->All()) button->Unobserve(*this);
  }
  View::LetGo();
}

std::vector<ToolbarView::Button*> ToolbarView::Visible() const {
  std::vector<Button*> visible;
  for (const auto& button : Bar().All()) {
    if (button->Visible()) visible.push_back(button.get());
  }
  return visible;
}

QRect ToolbarView::ButtonBox(const Button* button) const {
  if (button == nullptr) button = chosen_;
  const std::vector<Button*> visible = Visible();
  const int count = static_cast<int>(visible.size());
  if (count == 0) return {};
  // On a low screen the buttons move together rather than off it.
  const int tall = std::clamp(height() / count, kNarrowest, kHeight);
  const auto at = std::ranges::find(visible, button) - visible.begin();
  return at == count ? QRect() : QRect(0, static_cast<int>(at) * tall, width(), tall);
}

ToolbarView::Button* ToolbarView::ButtonAt(const QPoint& place) const {
  for (Button* button : Visible()) {
    if (ButtonBox(button).contains(place)) return button;
  }
  return nullptr;
}

bool ToolbarView::IsOpen(const Button* button) const {
  return button != nullptr && button->Enabled() && IsWarm();
}

void ToolbarView::Hover(Button* button) {
  if (hovered_ == button) return;
  hovered_ = button;
  update();
}

void ToolbarView::Choose(Button& button) {
  chosen_ = &button;
  platform::input::Choose(Bar(), button);
  update();
}

QString ToolbarView::ToolTipAt(const QPoint& at) const {
  const Button* const button = ButtonAt(at);
  return button == nullptr ? View::ToolTipAt(at) : ToQt(button->ToolTipText());
}

void ToolbarView::TakeKeyboard() {
  if (!IsWarm()) return;
  setFocus(Qt::ShortcutFocusReason);
  marked_ = nullptr;
  Step(1);
}

void ToolbarView::Step(int by) {
  const std::vector<Button*> visible = Visible();
  const int count = static_cast<int>(visible.size());
  int at = static_cast<int>(std::ranges::find(visible, marked_) - visible.begin());
  if (at == count) at = by > 0 ? -1 : 0;
  for (int step = 0; step < count; ++step) {
    at = (at + by + count) % count;
    if (!IsOpen(visible[static_cast<std::size_t>(at)])) continue;
    marked_ = visible[static_cast<std::size_t>(at)];
    break;
  }
  update();
}

void ToolbarView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return Step(-1);
    case Qt::Key_Down:
      return Step(1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: {
      if (event->isAutoRepeat()) return;
      Button* const button = marked_;
      FormView::GiveBackFocus(*this);
      if (IsOpen(button)) Choose(*button);
      return;
    }
    default:
      FormView::GiveBackFocus(*this);
  }
}

void ToolbarView::focusOutEvent(QFocusEvent*) {
  marked_ = nullptr;
  update();
}

void ToolbarView::mousePressEvent(QMouseEvent* event) {
  Button* const button = ButtonAt(event->pos());
  if (event->button() != Qt::LeftButton || !IsOpen(button)) return;
  pressed_ = button;
  update();
}

void ToolbarView::mouseMoveEvent(QMouseEvent* event) {
  Button* const button = ButtonAt(event->pos());
  Hover(IsOpen(button) ? button : nullptr);
}

void ToolbarView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  Button* const button = std::exchange(pressed_, nullptr);
  update();
  if (button != nullptr && button == ButtonAt(event->pos())) Choose(*button);
}

void ToolbarView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (Button* button : Visible()) {
    const QRectF box = ButtonBox(button);
    const QRectF inner = box.adjusted(2, 1, -2, -1);
    const bool open = button->Enabled() && IsUsable();
    const bool warm = open && (button == hovered_ || button == pressed_ || button == marked_);
    if (warm) {
      paint::Box(painter, inner, paint::kFieldRadius,
                 button == pressed_ ? palette::kOuterRing : palette::kPale,
                 button == marked_ ? palette::kAccent : QColor());
    }
    const QColor ink = !open ? palette::kPaleText : warm ? palette::kAccent : palette::kText;
    const double side = std::min(kIcon, box.height() - 4);
    icons::Draw(painter, button->Image(), QRectF(kMargin, box.center().y() - side / 2, side, side),
                open && !warm ? palette::kAccent : ink);
    painter.setFont(fonts::Sized(fonts::kTextSize, warm ? QFont::DemiBold : QFont::Normal));
    painter.setPen(ink);
    paint::WrappedWords(painter, QRectF(kWords, box.top(), width() - kWords - 4, box.height()),
                        Qt::AlignLeft | Qt::AlignVCenter, ToQt(button->Caption()));
  }
}

}  // namespace desktop
