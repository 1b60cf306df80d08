#include "desktop/FormView.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include "desktop/Convert.h"
#include "desktop/FocusRing.h"
#include "desktop/Keys.h"
#include "desktop/Palette.h"
#include "desktop/views/Toolbar.h"
#include "desktop/views/View.h"
#include "desktop/views/Views.h"
#include "platform/Input.h"

namespace desktop {

FormView::FormView(platform::Form& form, QWidget* parent) : QWidget(parent), form_(&form) {
  setObjectName(ToQt(form.Name()));
  setAccessibleName(ToQt(form.Title()));
  // Tab is the module's, and so is the focus: clicking beside a field leaves it where it is.
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
  form.Observe(*this);
  resize(ToPixels(form.Width()), ToPixels(form.Height()));
  Build();
  ring_ = new FocusRing(*this);
  ShowPointer();
}

FormView::~FormView() {
  LetGo();
}

void FormView::Build() {
  // A panel is declared before what lies on it.
  for (platform::Control* control : form_->Controls()) {
    platform::Control* const panel = control->Parent().AsControl();
    QWidget* parent = this;
    if (panel != nullptr) parent = ViewOf(*panel);
    View* const view = MakeView(*control, *parent);
    if (view == nullptr) continue;
    views_.emplace(control, view);
    view->installEventFilter(this);
  }
}

View* FormView::ViewOf(const platform::Control& control) const {
  const auto found = views_.find(&control);
  return found == views_.end() ? nullptr : found->second;
}

void FormView::LetGo() {
  if (form_ == nullptr) return;
  form_->Unobserve(*this);
  form_ = nullptr;
  for (const auto& [control, view] : views_) view->LetGo();
  views_.clear();
  hide();
}

bool FormView::HasSize() const {
  return form_ != nullptr && form_->Width() > 0 && form_->Height() > 0;
}

void FormView::TakeKeyboard() {
  if (form_ == nullptr || !form_->IsVisible()) return;
  const platform::Control* const active = form_->ActiveControl();
  View* const view = active == nullptr ? nullptr : ViewOf(*active);
  QWidget* const target = view != nullptr && view->isVisible() ? view : static_cast<QWidget*>(this);
  if (!target->hasFocus()) target->setFocus(Qt::OtherFocusReason);
  ring_->Surround(view != nullptr && view->hasFocus() ? view : nullptr);
}

void FormView::GiveBackFocus(QWidget& view) {
  for (QWidget* each = &view; each != nullptr; each = each->parentWidget()) {
    if (auto* const form = dynamic_cast<FormView*>(each)) return form->TakeKeyboard();
  }
}

QPainterPath FormView::WaitPanels(const QWidget& window) const {
  QPainterPath panels;
  for (const auto& [control, view] : views_) {
    if (control->GetKind() != platform::Kind::kPictureBox ||
        control->look != platform::Look::kWait || !view->isVisible()) {
      continue;
    }
    const QRectF box(view->mapTo(&window, QPoint(0, 0)), QSizeF(view->size()));
    panels.addRoundedRect(box, view->RingRadius(), view->RingRadius());
  }
  return panels;
}

void FormView::Changed(platform::Object&, const platform::PropertyBase& property) {
  if (form_ == nullptr) return;
  if (&property == &form_->Width || &property == &form_->Height) {
    resize(ToPixels(form_->Width()), ToPixels(form_->Height()));
    if (fillsContainer_) setVisible(form_->IsVisible() && HasSize());
    update();
  } else if (&property == &form_->MousePointer) {
    ShowPointer();
  }
}

void FormView::ShowPointer() {
  const std::int16_t pointer = form_->MousePointer();
  const bool waits = pointer == platform::kHourglassPointer;
  const bool works = pointer == platform::kArrowHourglassPointer;
  setCursor(waits ? Qt::WaitCursor : works ? Qt::BusyCursor : Qt::ArrowCursor);
  for (const auto& [control, view] : views_) {
    view->setCursor(waits || works ? cursor() : QCursor(view->Pointer()));
  }
}

void FormView::FillContainer() {
  fillsContainer_ = true;
  parentWidget()->installEventFilter(this);
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
  if (form_ == nullptr) return false;
  if (watched == parent()) {
    const QSize room = parentWidget()->size();
    if (event->type() == QEvent::Resize && form_->IsVisible() && HasSize()) {
      platform::input::Run([&] { form_->ResizeTo(ToTwips(room.width()), ToTwips(room.height())); });
    }
    return false;
  }
  switch (event->type()) {
    case QEvent::FocusIn:
      ring_->Surround(static_cast<View*>(watched));
      break;
    case QEvent::FocusOut:
      // An open list or menu lies over the control that keeps the focus.
      if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        ring_->Surround(nullptr);
      }
      break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
      if (auto* const view = static_cast<View*>(watched); view->hasFocus()) ring_->Surround(view);
      break;
    default:
      break;
  }
  return false;
}

void FormView::keyPressEvent(QKeyEvent* event) {
  if (form_ == nullptr) return;
  if (event->key() == Qt::Key_F10) {
    for (const auto& [control, view] : views_) {
      if (control->GetKind() == platform::Kind::kToolbar && control->IsShown()) {
        return static_cast<ToolbarView*>(view)->TakeKeyboard();
      }
    }
  }
  if (IsHeldCommand(*event, false)) return;
  for (const platform::KeyStroke& stroke : Strokes(*event)) {
    if (form_ != nullptr && hasFocus()) platform::input::Press(*form_, stroke);
  }
}

void FormView::wheelEvent(QWheelEvent* event) {
  event->accept();
  platform::Control* const active = form_ == nullptr ? nullptr : form_->ActiveControl();
  if (active == nullptr || active->GetKind() != platform::Kind::kGrid) return;
  // The list that has the focus follows the wheel wherever the mouse is.
  if (View* const view = ViewOf(*active)) QCoreApplication::sendEvent(view, event);
}

void FormView::paintEvent(QPaintEvent*) {
  if (!fillsContainer_) return;
  QPainter painter(this);
  painter.fillRect(rect(), palette::kGround);
}

}  // namespace desktop
