#include "desktop/DesktopQt.h"

#include <QApplication>
#include <QCursor>
#include <QDateTime>
#include <QScopedValueRollback>
#include <QSysInfo>
#include <QThread>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/RuntimeError.h"
#include "desktop/Accessible.h"
#include "desktop/Convert.h"
#include "desktop/ForeignContainer.h"
#include "desktop/FormFrame.h"
#include "desktop/FormView.h"
#include "desktop/MessageBoxView.h"
#include "desktop/PopUpMenu.h"
#include "desktop/views/Toolbar.h"
#include "platform/Input.h"
#include "platform/Menu.h"
#include "platform/Screens.h"

namespace desktop {
namespace {

/// Keeps a form as long as the window that it was made a child of.
class Keeper final : public QObject {
 public:
  Keeper(QWidget& container, std::unique_ptr<platform::Form> form)
      : QObject(&container), form_(std::move(form)) {}

 private:
  std::unique_ptr<platform::Form> form_;
};

}  // namespace

DesktopQt::DesktopQt(std::string moduleFolder) : moduleFolder_(std::move(moduleFolder)) {
  started_.start();
  gate_.onAct = [this] { ClearAtRest(); };
  InstallAccessibility();
}

DesktopQt::~DesktopQt() {
  adopted_.clear();
  // Each tells of its end while it goes.
  const std::map<platform::Form*, Screen> screens = std::exchange(screens_, {});
  for (const auto& [form, screen] : screens) {
    screen.frame != nullptr ? delete screen.frame : delete screen.view;
  }
}

base::DateTime DesktopQt::Now() const {
  if (stoppedAt_) return *stoppedAt_;
  const QDateTime now = QDateTime::currentDateTime();
  return base::DateTime::FromSeconds(now.toSecsSinceEpoch() + now.offsetFromUtc());
}

double DesktopQt::Elapsed() const {
  return static_cast<double>(started_.nsecsElapsed()) / 1e9;
}

std::string DesktopQt::ComputerName() {
  return FromQt(QSysInfo::machineHostName());
}

void DesktopQt::Freeze(double seconds) {
  QThread::usleep(static_cast<unsigned long>(std::llround(std::max(seconds, 0.0) * 1e6)));
}

void DesktopQt::Beep() {
  QApplication::beep();
}

FormView* DesktopQt::ViewOf(const platform::Form& form) const {
  const auto found = screens_.find(const_cast<platform::Form*>(&form));
  return found == screens_.end() ? nullptr : found->second.view;
}

View* DesktopQt::ViewOf(const platform::Control& control) const {
  const FormView* const form = ViewOf(control.OwnerForm());
  return form == nullptr ? nullptr : form->ViewOf(control);
}

MessageBoxView* DesktopQt::Box() const {
  return static_cast<MessageBoxView*>(gate_.Box());
}

void DesktopQt::Paint() {
  const QScopedValueRollback painting(isPainting_, true);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DesktopQt::ShutDown(std::function<void()> unwound) {
  loops_.ShutDown(std::move(unwound));
  while (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
}

// Screens.

DesktopQt::Screen& DesktopQt::ScreenOf(platform::Form& form) {
  Screen& screen = screens_[&form];
  if (screen.view != nullptr) return screen;
  if (QWidget* const container = ContainerOf(form)) {
    EmbedIn(*container, form, screen);
  } else {
    screen.frame = new FormFrame(form, windows_.Host());
    screen.view = &screen.frame->View();
  }
  return screen;
}

QWidget* DesktopQt::ContainerOf(const platform::Form& form) {
  const platform::WindowHandle handle = form.Parent();
  if (handle == 0) return nullptr;
  if (QWidget* const own = windows_.Find(handle)) return own;
  std::unique_ptr<ForeignContainer>& foreign = foreign_[handle];
  if (foreign == nullptr) foreign = ForeignContainer::In(handle);
  if (foreign == nullptr) {
    throw base::RuntimeError(static_cast<std::int32_t>(base::Fault::kInvalidArgument),
                             "A janela em que a tela deveria abrir não foi encontrada. Feche o "
                             "programa e abra-o de novo; se o erro se repetir, avise o suporte.");
  }
  return foreign.get();
}

void DesktopQt::EmbedIn(QWidget& container, platform::Form& form, Screen& screen) {
  // A plain child from before its first show: re-parented later it would lose the focus.
  screen.view = new FormView(form, &container);
  screen.view->FillContainer();
  // The container may take its children along before it lets go of the form.
  platform::Form* const key = &form;
  QObject::connect(screen.view, &QObject::destroyed, &gate_, [this, key, view = screen.view] {
    const auto found = screens_.find(key);
    if (found != screens_.end() && found->second.view == view) screens_.erase(found);
  });
}

void DesktopQt::Placing(platform::Form& form) {
  Screen& screen = ScreenOf(form);
  if (screen.frame != nullptr) {
    if (!screen.frame->isVisible()) screen.frame->Centre();
    return;
  }
  const QWidget* const container = screen.view->parentWidget();
  form.ResizeTo(ToTwips(container->width()), ToTwips(container->height()));
}

void DesktopQt::Shown(platform::Form& form) {
  const Screen& screen = ScreenOf(form);
  if (screen.frame != nullptr) {
    std::erase(order_, &form);
    order_.push_back(&form);
    screen.frame->Follow();
    if (screen.frame->isWindow()) screen.frame->activateWindow();
  } else {
    screen.view->setVisible(screen.view->HasSize());
    screen.view->raise();
  }
  gate_.ScreenChanged();
  Restack();
  SyncKeyboard();
}

void DesktopQt::Hidden(platform::Form& form) {
  const auto found = screens_.find(&form);
  if (found == screens_.end()) return;
  std::erase(order_, &form);
  found->second.frame != nullptr ? found->second.frame->hide() : found->second.view->hide();
  gate_.ScreenChanged();
  Restack();
  SyncKeyboard();
  loops_.Check();
}

void DesktopQt::Forgotten(platform::Form& form) {
  const auto found = screens_.find(&form);
  if (found == screens_.end()) return;
  const Screen screen = found->second;
  screens_.erase(found);
  std::erase(order_, &form);
  if (screen.frame != nullptr) {
    screen.frame->LetGo();
    screen.frame->deleteLater();
  } else {
    screen.view->LetGo();
    screen.view->deleteLater();
  }
  gate_.ScreenChanged();
  Restack();
  SyncKeyboard();
}

void DesktopQt::FocusMoved(platform::Form& form) {
  FormView* const view = ViewOf(form);
  if (view != nullptr && gate_.Box() == nullptr && platform::screens::IsReachable(form)) {
    view->TakeKeyboard();
  }
}

void DesktopQt::Refresh(platform::Form& form) {
  if (FormView* const view = ViewOf(form); view != nullptr && view->isVisible()) view->repaint();
}

void DesktopQt::SyncKeyboard() {
  if (MessageBoxView* const box = Box()) return box->setFocus();
  platform::Form* target = platform::screens::Modal();
  if (target == nullptr) {
    // A form that only tells the operator to wait leaves the keyboard to the one beneath.
    for (platform::Form* form : platform::screens::Loaded()) {
      if (!form->IsVisible() || ViewOf(*form) == nullptr) continue;
      if (target == nullptr || target->ActiveControl() == nullptr) target = form;
    }
  }
  if (target == nullptr) return;
  if (FormView* const view = ViewOf(*target)) view->TakeKeyboard();
}

void DesktopQt::RunModal(platform::Form& form) {
  loops_.Run([&form] { return !form.IsVisible(); });
}

void DesktopQt::Adopt(platform::WindowHandle container, std::unique_ptr<platform::Form> form) {
  if (QWidget* const widget = windows_.Find(container)) {
    new Keeper(*widget, std::move(form));
  } else {
    // In another process's window it lives as long as this desktop.
    adopted_.push_back(std::move(form));
  }
}

// Boxes and menus.

platform::Answer DesktopQt::Ask(const platform::MessageBox& box) {
  MessageBoxView view(box, windows_.Host(), [this] { loops_.Check(); });
  struct Scope {
    Scope(DesktopQt& d, MessageBoxView& v) : desktop(d), box(v) {
      desktop.gate_.Hold(box);
      desktop.gate_.ScreenChanged();
    }
    ~Scope() {
      box.hide();
      desktop.gate_.Release(box);
      desktop.gate_.ScreenChanged();
      desktop.SyncKeyboard();
    }
    DesktopQt& desktop;
    MessageBoxView& box;
  } scope(*this, view);
  view.show();
  view.raise();
  if (view.isWindow()) view.activateWindow();
  view.setFocus();
  loops_.Run([&view] { return view.IsAnswered(); });
  return view.Given();
}

void DesktopQt::PopUp(platform::Menu& menu, const platform::Control& under) {
  View* const view = ViewOf(under);
  if (view == nullptr) return;
  PopUpMenu popUp(*view);
  for (platform::MenuItem* item : menu.Items()) {
    if (!item->Visible()) continue;
    popUp.Add(
        ToQt(item->Caption()), item->Enabled(), [item] { platform::input::Choose(*item); },
        item->Checked());
  }
  QPoint at = view->mapToGlobal(QPoint(0, view->height() + 2));
  if (const auto* const bar = dynamic_cast<ToolbarView*>(view)) {
    // Beside the button, so that the other buttons stay in sight.
    const QRect button = bar->ButtonBox(nullptr);
    if (!button.isEmpty()) at = view->mapToGlobal(button.topRight() - QPoint(6, 0));
  } else if (under.GetKind() == platform::Kind::kGrid) {
    at = QCursor::pos();
  }
  const std::function<void()> chosen = popUp.Choose(at);
  gate_.ScreenChanged();
  if (loops_.IsShuttingDown()) throw platform::Shutdown{};
  if (chosen) chosen();
}

// Darkness.

void DesktopQt::Dim(platform::WindowHandle window, std::int16_t intensity) {
  QWidget* const widget = windows_.Find(window);
  if (widget == nullptr) return;
  QWidget* const top = widget->window();
  std::unique_ptr<Dimmer>& dimmer = dimmers_[top];
  if (dimmer == nullptr) {
    dimmer = std::make_unique<Dimmer>(*top, [this, top] { return WaitPanels(*top); });
    QObject::connect(top, &QObject::destroyed, &gate_, [this, top] { dimmers_.erase(top); });
  }
  dimmer->Apply(intensity, platform::screens::Modal());
  Restack();
}

void DesktopQt::Undim(platform::WindowHandle window) {
  const QWidget* const widget = windows_.Find(window);
  const auto found = dimmers_.find(widget == nullptr ? nullptr : widget->window());
  if (found == dimmers_.end()) return;
  found->second->Remove();
  Restack();
}

int DesktopQt::DimCount(platform::WindowHandle window) const {
  const QWidget* const widget = windows_.Find(window);
  const auto found = dimmers_.find(widget == nullptr ? nullptr : widget->window());
  return found == dimmers_.end() ? 0 : found->second->Count();
}

bool DesktopQt::ShowsWaitPanel() const {
  return std::ranges::any_of(screens_, [](const auto& each) {
    return each.second.view->isVisible() &&
           !each.second.view->WaitPanels(*each.second.view).isEmpty();
  });
}

QPainterPath DesktopQt::WaitPanels(const QWidget& window) const {
  QPainterPath panels;
  for (const auto& [form, screen] : screens_) {
    if (screen.view->isVisible() && window.isAncestorOf(screen.view)) {
      panels.addPath(screen.view->WaitPanels(window));
    }
  }
  return panels;
}

void DesktopQt::Restack() {
  // From the ground up: modal screens, the veil beneath the one in front or over them all, forms
  // that ask to wait, boxes.
  const platform::Form* modal = nullptr;
  FormFrame* front = nullptr;
  std::vector<FormFrame*> waiting;
  for (platform::Form* form : order_) {
    FormFrame* const frame = screens_[form].frame;
    frame->raise();
    if (form->IsModal()) {
      modal = form;
      front = frame;
    } else {
      waiting.push_back(frame);
    }
  }
  for (const auto& [window, dimmer] : dimmers_) {
    if (dimmer->Count() == 0) continue;
    const bool beneath = front != nullptr && front->window() == window && !dimmer->Covers(*modal);
    dimmer->PlaceBeneath(beneath ? front : nullptr);
  }
  for (FormFrame* frame : waiting) frame->raise();
  if (QWidget* const box = gate_.Box()) box->raise();
}

void DesktopQt::ClearAtRest() {
  if (!IsIdle() || gate_.Box() != nullptr || platform::screens::Modal() != nullptr) return;
  for (const auto& [window, dimmer] : dimmers_) {
    if (dimmer->Count() > 0) dimmer->Clear();
  }
}

}  // namespace desktop
