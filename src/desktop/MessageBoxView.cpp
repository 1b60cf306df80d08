#include "desktop/MessageBoxView.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/Icons.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"

namespace desktop {
namespace {

using platform::Answer;
using platform::Icon;

constexpr int kTitleHeight = 44;
constexpr int kFooterHeight = 58;
constexpr int kPadding = 20;
constexpr int kIconSide = 36;
constexpr int kNarrowest = 340;
constexpr int kWidest = 560;
constexpr QSize kButton{92, 34};
constexpr double kTabStop = 28;
constexpr QColor kScrim{0x1e, 0x2d, 0x32, 0x50};

}  // namespace

MessageBoxView::MessageBoxView(const platform::MessageBox& box, QWidget* host,
                               std::function<void()> onAnswer)
    : QWidget(host, host == nullptr ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Widget),
      text_(ToQt(box.text)),
      title_(ToQt(box.title)),
      icon_(box.icon),
      onAnswer_(std::move(onAnswer)),
      answer_(box.buttons == platform::Buttons::kOk ? Answer::kOk : Answer::kNo) {
  if (box.buttons == platform::Buttons::kOk) {
    buttons_ = {{Answer::kOk, QStringLiteral("OK")}};
  } else {
    buttons_ = {{Answer::kYes, QStringLiteral("Sim")}, {Answer::kNo, QStringLiteral("Não")}};
    marked_ = box.preset == Answer::kNo ? 1 : 0;
  }
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setWindowTitle(title_);
  setAccessibleName(title_);
  setAccessibleDescription(text_);
  if (host != nullptr) host->installEventFilter(this);
  Arrange();
}

double MessageBoxView::LayOut(double width, QPainter* painter, QPointF at) const {
  const QFontMetricsF metrics(fonts::Text());
  const double top = at.y();
  for (const QString& paragraph : text_.split(u'\n')) {
    // A paragraph keeps the indent of its tabs where it goes on in the next line.
    const auto tabs = std::ranges::find_if(paragraph, [](QChar c) { return c != u'\t'; });
    const double indent = static_cast<double>(tabs - paragraph.begin()) * kTabStop;
    const QRectF room(at + QPointF(indent, 0), QSizeF(width - indent, 1e5));
    const QString words = paragraph.mid(tabs - paragraph.begin()).replace(u'\t', u' ');
    constexpr int kFlags = Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop;
    if (painter != nullptr) painter->drawText(room, kFlags, words);
    at.ry() += std::max(metrics.boundingRect(room, kFlags, words).height(), metrics.height());
  }
  return at.y() - top;
}

void MessageBoxView::Arrange() {
  const QRect room = isWindow() ? screen()->availableGeometry() : parentWidget()->rect();
  const int beside = 2 * kPadding + (icon_ == Icon::kNone ? 0 : kIconSide + 16);
  double natural = 0;
  for (const QString& line : text_.split(u'\n')) {
    const double tabs = static_cast<double>(line.count(u'\t')) * kTabStop;
    natural = std::max(natural, QFontMetricsF(fonts::Text()).horizontalAdvance(line) + tabs);
  }
  const int most = std::min(kWidest, room.width() - 40);
  const int wide =
      std::clamp(static_cast<int>(natural) + beside + 4, std::min(kNarrowest, most), most);
  const int textWide = wide - beside;
  const int textTall = static_cast<int>(std::ceil(LayOut(textWide, nullptr, {})));
  const int middle = std::max(textTall, kIconSide);
  const int tall = (title_.isEmpty() ? 0 : kTitleHeight) + middle + 2 * kPadding + kFooterHeight;
  if (isWindow()) {
    setGeometry(QRect(room.center() - QPoint(wide, tall) / 2, QSize(wide, tall)));
    box_ = rect();
  } else {
    setGeometry(room);
    box_ = QRect(room.center() - QPoint(wide, tall) / 2, QSize(wide, tall));
  }
  const int top = box_.top() + (title_.isEmpty() ? 0 : kTitleHeight) + kPadding;
  textBox_ = QRect(box_.right() - kPadding - textWide + 1, top, textWide, middle);
  indent_ = (middle - textTall) / 2;
  int right = box_.right() - kPadding + 5;
  for (auto button = buttons_.rbegin(); button != buttons_.rend(); ++button) {
    button->box = QRect(
        QPoint(right - kButton.width(), box_.bottom() - (kFooterHeight + kButton.height()) / 2 + 1),
        kButton);
    right -= kButton.width() + 10;
  }
}

QRect MessageBoxView::ButtonBox(Answer answer) const {
  const auto found = std::ranges::find(buttons_, answer, &Button::answer);
  return found == buttons_.end() ? QRect() : found->box;
}

void MessageBoxView::Give(Answer answer) {
  if (std::exchange(answered_, true)) return;
  answer_ = answer;
  onAnswer_();
}

void MessageBoxView::Mark(int index) {
  const int count = static_cast<int>(buttons_.size());
  marked_ = (index + count) % count;
  update();
}

int MessageBoxView::ButtonAt(const QPoint& place) const {
  const auto found = std::ranges::find_if(
      buttons_, [&](const Button& button) { return button.box.contains(place); });
  return found == buttons_.end() ? -1 : static_cast<int>(found - buttons_.begin());
}

bool MessageBoxView::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    // Tab too is for the buttons.
    keyPressEvent(static_cast<QKeyEvent*>(event));
    return true;
  }
  return QWidget::event(event);
}

bool MessageBoxView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && watched == parent()) Arrange();
  return false;
}

void MessageBoxView::keyPressEvent(QKeyEvent* event) {
  event->accept();
  // A key still held from before has not read this box.
  if (event->isAutoRepeat()) return;
  if (event->matches(QKeySequence::Copy)) {
    QGuiApplication::clipboard()->setText(text_);
    return;
  }
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      return Give(buttons_[static_cast<std::size_t>(marked_)].answer);
    case Qt::Key_Escape:
      return Give(buttons_.back().answer);
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Backtab:
      return Mark(marked_ - 1);
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Tab:
      return Mark(marked_ + 1);
    default:
      break;
  }
  const QString typed = event->text().toUpper();
  if (typed.isEmpty()) return;
  for (const Button& button : buttons_) {
    if (button.words.toUpper().startsWith(typed)) return Give(button.answer);
  }
}

void MessageBoxView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = ButtonAt(event->pos());
  if (pressed_ >= 0) Mark(pressed_);
}

void MessageBoxView::mouseMoveEvent(QMouseEvent* event) {
  const int over = ButtonAt(event->pos());
  if (over == hovered_) return;
  hovered_ = over;
  update();
}

void MessageBoxView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int pressed = std::exchange(pressed_, -1);
  update();
  if (pressed >= 0 && pressed == ButtonAt(event->pos())) {
    Give(buttons_[static_cast<std::size_t>(pressed)].answer);
  }
}

void MessageBoxView::closeEvent(QCloseEvent* event) {
  event->ignore();
  Give(buttons_.back().answer);
}

void MessageBoxView::PaintIcon(QPainter& painter) const {
  const auto [name, color] = [this]() -> std::pair<std::string_view, QColor> {
    switch (icon_) {
      case Icon::kStop:
        return {"stop", palette::kStop};
      case Icon::kQuestion:
        return {"question", palette::kQuestion};
      default:
        return {"info", palette::kAccent};
    }
  }();
  const QRectF round(box_.left() + kPadding, textBox_.top(), kIconSide, kIconSide);
  paint::Box(painter, round, kIconSide / 2.0, color);
  icons::Draw(painter, name, round.adjusted(7, 7, -7, -7), palette::kPanel);
}

void MessageBoxView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double radius = isWindow() ? 0 : paint::kDialogRadius;
  if (!isWindow()) {
    painter.fillRect(rect(), kScrim);
    paint::Shadow(painter, box_, radius);
  }
  paint::Box(painter, box_, radius, palette::kPanel, palette::kPanelBorder);
  if (!title_.isEmpty()) {
    paint::DialogTitle(painter, QRectF(box_.left(), box_.top(), box_.width(), kTitleHeight),
                       title_);
  }
  if (icon_ != Icon::kNone) PaintIcon(painter);
  painter.setFont(fonts::Text());
  painter.setPen(palette::kText);
  LayOut(textBox_.width(), &painter, textBox_.topLeft() + QPointF(0, indent_));
  const QRectF footer(box_.left() + 1, box_.bottom() - kFooterHeight + 1, box_.width() - 2,
                      kFooterHeight - 1);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(paint::Outline(footer, radius, {.topLeft = false, .topRight = false}),
                   palette::kBand);
  painter.fillRect(QRectF(footer.left(), footer.top(), footer.width(), 1), palette::kPanelBorder);
  for (int i = 0; i < static_cast<int>(buttons_.size()); ++i) {
    const Button& button = buttons_[static_cast<std::size_t>(i)];
    if (i == marked_) {
      paint::Box(painter, QRectF(button.box).adjusted(-3, -3, 3, 3), paint::kFieldRadius + 3,
                 palette::kOuterRing);
    }
    paint::Button(painter, button.box, button.words, "",
                  {.primary = i == marked_, .hovered = i == hovered_, .pressed = i == pressed_});
  }
}

}  // namespace desktop
