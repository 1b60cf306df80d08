#include "desktop/host/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <utility>

#include "base/Value.h"
#include "desktop/Convert.h"
#include "desktop/DesktopQt.h"
#include "desktop/Palette.h"
#include "desktop/host/Module.h"
#include "desktop/host/Notice.h"
#include "desktop/host/frmEntrada.h"
#include "platform/Input.h"

namespace host {
namespace {

/// The title of the window and of the module's boxes; also the name of its settings file.
constexpr auto kTitle = "Caixa";

/// How often a window that is to close, or to tell something, looks whether it may.
constexpr int kLookMilliseconds = 50;
constexpr auto kWhyOpen =
    "A operação em andamento precisa terminar, e o caixa fecha sozinho em seguida. Se houver uma "
    "pergunta na tela, responda a ela.";

}  // namespace

MainWindow::MainWindow(desktop::DesktopQt& desktop)
    : desktop_(desktop), container_(new QWidget(this)), module_(std::make_unique<Module>()) {
  setObjectName(QStringLiteral("caixa"));
  setWindowTitle(QString::fromLatin1(kTitle));
  setMinimumSize(800, 560);
  desktop_.Register(*this);
  confirmation_.setInterval(kLookMilliseconds);
  QObject::connect(&confirmation_, &QTimer::timeout, this, [this] { FollowConfirmation(); });
  rest_.setInterval(kLookMilliseconds);
  QObject::connect(&rest_, &QTimer::timeout, this, [this] { TellAtRest(); });
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
  if (onSignedIn) platform::input::Run(onSignedIn);
}

void MainWindow::Tell(const std::string& sentence) {
  news_.push_back(sentence);
  rest_.start();
}

void MainWindow::TellAtRest() {
  const bool busy = !desktop_.IsResting() || desktop_.Box() != nullptr || notice_ != nullptr ||
                    QApplication::activePopupWidget() != nullptr;
  if (busy || news_.empty()) return;
  const std::string sentence = std::move(news_.front());
  news_.pop_front();
  if (news_.empty()) rest_.stop();
  platform::input::Run([&] {
    desktop_.Ask({sentence, kTitle, platform::Icon::kInformation, platform::Buttons::kOk,
                  platform::Answer::kOk});
  });
}

void MainWindow::resizeEvent(QResizeEvent*) {
  container_->setGeometry(rect());
}

void MainWindow::CloseAfterwards() {
  if (notice_ != nullptr) return;
  notice_ = new Notice(*this, QString::fromUtf8(kWhyOpen));
  confirmation_.start();
}

void MainWindow::FollowConfirmation() {
  if (platform::Form::CommandsHeld::Any()) {
    // Boxes and screens that came meanwhile lie over it.
    notice_->raise();
    return;
  }
  confirmation_.stop();
  delete notice_;
  close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (platform::Form::CommandsHeld::Any()) {
    event->ignore();
    CloseAfterwards();
    return;
  }
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
