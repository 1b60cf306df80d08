#include "desktop/FormFrame.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "desktop/CloseButton.h"
#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/FormView.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "platform/Input.h"
#include "platform/ZVTheme.h"

namespace desktop {
namespace {

constexpr int kTitleHeight = 44;

platform::ZVTheme* ThemeOf(const platform::Form& form) {
  for (platform::Control* control : form.Controls()) {
    if (control->GetKind() == platform::Kind::kTheme) {
      return static_cast<platform::ZVTheme*>(control);
    }
  }
  return nullptr;
}

}  // namespace

FormFrame::FormFrame(platform::Form& form, QWidget* host)
    : QWidget(host, host == nullptr ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Widget),
      form_(&form),
      theme_(ThemeOf(form)),
      view_(new FormView(form, this)),
      close_(new CloseButton(*this,
                             [this] {
                               if (form_ != nullptr) platform::input::Close(*form_);
                             })),
      placed_(form.Left() != 0 || form.Top() != 0) {
  setWindowTitle(Title());
  form.Observe(*this);
  if (theme_ != nullptr) theme_->Observe(*this);
  view_->installEventFilter(this);
  if (host != nullptr) host->installEventFilter(this);
  Arrange();
  if (placed_) MoveTo({ToPixels(form.Left()), ToPixels(form.Top())});
  hide();
}

FormFrame::~FormFrame() {
  LetGo();
}

void FormFrame::LetGo() {
  if (form_ == nullptr) return;
  form_->Unobserve(*this);
  if (theme_ != nullptr) theme_->Unobserve(*this);
  if (!placed_) {
    // The middle is found anew when the form comes back.
    form_->Left.Assign(0);
    form_->Top.Assign(0);
  }
  form_ = nullptr;
  theme_ = nullptr;
  view_->LetGo();
  hide();
}

int FormFrame::Margin() const {
  return isWindow() ? 1 : paint::kShadow;
}

QString FormFrame::Title() const {
  return form_ == nullptr ? QString() : ToQt(form_->Title());
}

bool FormFrame::HasThemeTitle() const {
  return theme_ != nullptr && theme_->Visible() && theme_->Width() > 0 && theme_->Height() > 0;
}

int FormFrame::TitleHeight() const {
  return HasThemeTitle() || Title().isEmpty() ? 0 : kTitleHeight;
}

QRect FormFrame::Box() const {
  const int margin = Margin();
  return rect().adjusted(margin, margin, -margin, -margin);
}

QRect FormFrame::Grip() const {
  const int tall =
      HasThemeTitle() ? std::min(ToPixels(theme_->Height()), kTitleHeight) : TitleHeight();
  return {Box().topLeft(), QSize(Box().width(), tall)};
}

void FormFrame::Arrange() {
  if (form_ == nullptr) return;
  const int margin = Margin();
  view_->move(margin, margin + TitleHeight());
  const QSize old = size();
  resize(view_->width() + 2 * margin, view_->height() + TitleHeight() + 2 * margin);
  const QRect grip = Grip();
  constexpr int kBeside = 8;
  close_->move(grip.right() - CloseButton::kSide - kBeside,
               grip.top() + (grip.height() - CloseButton::kSide) / 2);
  close_->setVisible(!grip.isEmpty());
  close_->raise();
  if (isVisible() && old != size()) Centre();
  update();
}

void FormFrame::Centre() {
  if (form_ == nullptr || placed_) return;
  const QWidget* const host = parentWidget();
  const QRect room = host != nullptr ? host->rect() : screen()->availableGeometry();
  const QSize box = Box().size();
  MoveTo({room.left() + std::max((room.width() - box.width()) / 2, 0),
          room.top() + std::max((room.height() - box.height()) / 2, 0)});
}

void FormFrame::MoveTo(const QPoint& box) {
  placing_ = true;
  form_->Left.Assign(ToTwips(box.x()));
  form_->Top.Assign(ToTwips(box.y()));
  placing_ = false;
  move(box - QPoint(Margin(), Margin()));
}

void FormFrame::Follow() {
  setVisible(form_ != nullptr && form_->IsVisible() && view_->HasSize());
}

void FormFrame::Changed(platform::Object& object, const platform::PropertyBase& property) {
  if (form_ == nullptr) return;
  if (&object == form_ && (&property == &form_->Left || &property == &form_->Top)) {
    if (placing_) return;
    placed_ = true;
    MoveTo({ToPixels(form_->Left()), ToPixels(form_->Top())});
  } else if (&object == form_ && (&property == &form_->Width || &property == &form_->Height)) {
    if (isVisible() != (form_->IsVisible() && view_->HasSize())) Follow();
  } else {
    setWindowTitle(Title());
    Arrange();
  }
}

bool FormFrame::eventFilter(QObject* watched, QEvent* event) {
  if (form_ == nullptr || event->type() != QEvent::Resize) return false;
  if (watched == view_) {
    Arrange();
  } else if (isVisible()) {
    Centre();
  }
  return false;
}

void FormFrame::paintEvent(QPaintEvent*) {
  if (form_ == nullptr) return;
  QPainter painter(this);
  const QRectF box = Box();
  const double radius = isWindow() ? 0 : paint::kDialogRadius;
  if (!isWindow()) paint::Shadow(painter, box, radius);
  paint::Box(painter, box.adjusted(-1, -1, 1, 1), radius + 1, palette::kPanel,
             palette::kPanelBorder);
  if (TitleHeight() > 0) {
    paint::DialogTitle(painter, QRectF(box.left(), box.top(), box.width(), kTitleHeight), Title());
  }
}

void FormFrame::mousePressEvent(QMouseEvent* event) {
  dragging_ =
      event->button() == Qt::LeftButton && form_ != nullptr && Grip().contains(event->pos());
  grippedAt_ = event->pos() - Box().topLeft();
}

void FormFrame::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_ || form_ == nullptr) return;
  QPoint at = mapToParent(event->pos()) - grippedAt_;
  if (const QWidget* const host = parentWidget()) {
    // The title stays within reach.
    at.setX(std::clamp(at.x(), kTitleHeight - Box().width(), host->width() - kTitleHeight));
    at.setY(std::clamp(at.y(), 0, std::max(host->height() - kTitleHeight, 0)));
  }
  placed_ = true;
  MoveTo(at);
}

void FormFrame::mouseReleaseEvent(QMouseEvent*) {
  dragging_ = false;
}

void FormFrame::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (form_ != nullptr) platform::input::Close(*form_);
}

}  // namespace desktop
