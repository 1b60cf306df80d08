#include "desktop/ForeignContainer.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWindow>
#include <cstdlib>
#include <utility>

namespace desktop {
namespace {

/// The size of another process's window is asked for now and then: its changes are told to that
/// process alone.
constexpr int kAskMilliseconds = 250;

/// The size of a window of the X server in its own pixels; empty when there is no such window.
QSize SizeOf(WId window) {
  const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t* const server = x11 == nullptr ? nullptr : x11->connection();
  // Platforms without an X server may have the interface and no connection behind it.
  if (server == nullptr) return {};
  const std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)> told(
      xcb_get_geometry_reply(server, xcb_get_geometry(server, static_cast<xcb_drawable_t>(window)),
                             nullptr),
      &std::free);
  return told == nullptr ? QSize() : QSize(told->width, told->height);
}

}  // namespace

std::unique_ptr<ForeignContainer> ForeignContainer::In(platform::WindowHandle window) {
  const auto id = static_cast<WId>(window);
  if (window <= 0 || SizeOf(id).isEmpty()) return nullptr;
  std::unique_ptr<QWindow> foreign(QWindow::fromWinId(id));
  if (foreign == nullptr) return nullptr;
  return std::unique_ptr<ForeignContainer>(new ForeignContainer(std::move(foreign)));
}

ForeignContainer::ForeignContainer(std::unique_ptr<QWindow> window)
    : QWidget(nullptr, Qt::FramelessWindowHint), window_(std::move(window)) {
  winId();
  windowHandle()->setParent(window_.get());
  FollowSize();
  auto* const timer = new QTimer(this);
  QObject::connect(timer, &QTimer::timeout, this, [this] { FollowSize(); });
  timer->start(kAskMilliseconds);
  QCoreApplication::instance()->installEventFilter(this);
  show();
}

ForeignContainer::~ForeignContainer() {
  // The other process's window is not ours to take along.
  if (windowHandle() != nullptr) windowHandle()->setParent(nullptr);
}

void ForeignContainer::FollowSize() {
  const QSize room = SizeOf(window_->winId()) / devicePixelRatioF();
  if (room != size() && !room.isEmpty()) setGeometry(QRect(QPoint(0, 0), room));
}

bool ForeignContainer::eventFilter(QObject* watched, QEvent* event) {
  // The window manager knows the outer window only: the keyboard is asked for.
  if (event->type() == QEvent::MouseButtonPress && watched == windowHandle() && !isActiveWindow()) {
    activateWindow();
  }
  return false;
}

}  // namespace desktop
