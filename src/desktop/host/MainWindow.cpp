#include "desktop/host/MainWindow.h"

#include <QCloseEvent>
#include <QPainter>
#include <utility>

#include "base/Value.h"
#include "desktop/Convert.h"
#include "desktop/DesktopQt.h"
#include "desktop/Palette.h"
#include "desktop/host/Module.h"
#include "desktop/host/frmEntrada.h"
#include "platform/Input.h"

namespace host {
namespace {

/// The title of the window and of the module's boxes; also the name of its settings file.
constexpr auto kTitle = "Caixa";

}  // namespace

MainWindow::MainWindow(desktop::DesktopQt& desktop)
    : desktop_(desktop), container_(new QWidget(this)), module_(std::make_unique<Module>()) {
  setObjectName(QStringLiteral("caixa"));
  setWindowTitle(QString::fromLatin1(kTitle));
  setMinimumSize(800, 560);
  desktop_.Register(*this);
}

MainWindow::~MainWindow() {
  // The counter's window goes first, and the counter with it.
  delete container_;
}

void MainWindow::ShowSignIn() {
  signIn_ = std::make_unique<frmEntrada>();
  signIn_->aoEntrar = [this](base::RecordSetPtr user) {
    // The sign-in is still on the stack: the cash desk opens from the event loop.
    QMetaObject::invokeMethod(
        this, [this, user = std::move(user)] { OpenCashDesk(user); }, Qt::QueuedConnection);
  };
  platform::input::Run([this] {
    signIn_->SetParent(desktop_.Register(*container_));
    signIn_->Show();
  });
}

void MainWindow::OpenCashDesk(base::RecordSetPtr user) {
  if (signIn_ == nullptr) return;
  signIn_->Unload();
  signIn_.reset();
  user->MoveFirst();
  const std::string name = base::ToText(user->Fields("NomeDeUsuario"));
  setWindowTitle(QString::fromLatin1(kTitle) + QStringLiteral(" - ") + desktop::ToQt(name));
  platform::input::Run([&] {
    module_->Open(std::move(user), kTitle, desktop_.Register(*this),
                  desktop_.Register(*container_));
  });
}

void MainWindow::resizeEvent(QResizeEvent*) {
  container_->setGeometry(rect());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!desktop_.IsIdle()) {
    event->ignore();
    desktop_.ShutDown([this] { close(); });
    return;
  }
  module_->FreeCustomer();
  event->accept();
  if (onClosed) onClosed();
}

void MainWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), desktop::palette::kGround);
}

}  // namespace host
