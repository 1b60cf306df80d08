#include "desktop/screen/XScreen.h"

#include <sys/prctl.h>

#include <QFile>
#include <QImage>
#include <QThread>
#include <QtEndian>
#include <array>
#include <csignal>
#include <stdexcept>

namespace xscreen {
namespace {

constexpr int kPatience = 30'000;
constexpr int kLookEveryMilliseconds = 20;
constexpr int kLooks = 1'500;

/// Fields of the header of a window dump, each a big-endian word.
enum Word {
  kHeaderSize = 0,
  kWidth = 4,
  kHeight = 5,
  kBytesPerLine = 12,
  kColours = 19,
  kWords = 25
};
constexpr int kBytesPerColour = 12;

}  // namespace

void TieToUs(QProcess& program) {
  program.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

XScreen::XScreen(const QString& folder, bool windowManager)
    : folder_(folder), environment_(QProcessEnvironment::systemEnvironment()) {
  for (const char* name : {"QT_QPA_PLATFORM", "QT_SCALE_FACTOR", "WAYLAND_DISPLAY", "XMODIFIERS",
                           "QT_IM_MODULE", "DBUS_SESSION_BUS_ADDRESS"}) {
    environment_.remove(QString::fromLatin1(name));
  }
  for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
    environment_.insert(QString::fromLatin1(name), folder);
  }
  // In a sanitizer build the program's own leaks fail it, not those of the system's libraries.
  environment_.insert(QStringLiteral("LSAN_OPTIONS"),
                      QStringLiteral("suppressions=" CAIXA_FOREIGN_LEAKS));
  TieToUs(server_);
  // It finds a free number itself and tells it.
  server_.setStandardErrorFile(QProcess::nullDevice());
  server_.start(
      QStringLiteral("Xvfb"),
      {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
       QStringLiteral("0"), QStringLiteral("1024x768x24"), QStringLiteral("-nolisten"),
       QStringLiteral("tcp"), QStringLiteral("-noreset"), QStringLiteral("-fbdir"), folder});
  QByteArray number;
  while (!number.endsWith('\n')) {
    if (!server_.waitForReadyRead(kPatience)) throw std::runtime_error("Xvfb does not start");
    number += server_.readAllStandardOutput();
  }
  environment_.insert(QStringLiteral("DISPLAY"), u':' + QString::fromLatin1(number.trimmed()));
  if (!windowManager) return;
  TieToUs(windowManager_);
  windowManager_.setProcessEnvironment(environment_);
  windowManager_.setStandardErrorFile(QProcess::nullDevice());
  windowManager_.start(QStringLiteral("openbox"));
  for (int look = 0; !IsManaged(); ++look) {
    if (look == kLooks) throw std::runtime_error("openbox does not start");
    QThread::msleep(kLookEveryMilliseconds);
  }
}

bool XScreen::IsManaged() const {
  // A window manager that is ready says so on the root window.
  QProcess reader;
  reader.setProcessEnvironment(environment_);
  reader.start(QStringLiteral("xprop"),
               {QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK")});
  return reader.waitForFinished(kPatience) && reader.readAllStandardOutput().contains("window id");
}

XScreen::~XScreen() {
  for (QProcess* program : {&windowManager_, &server_}) {
    if (program->state() == QProcess::NotRunning) continue;
    program->terminate();
    if (!program->waitForFinished(5'000)) program->kill();
    program->waitForFinished(5'000);
  }
}

void XScreen::Send(const QStringList& acts) const {
  QProcess sender;
  sender.setProcessEnvironment(environment_);
  sender.start(QStringLiteral("xdotool"), acts);
  if (!sender.waitForFinished(kPatience) || sender.exitCode() != 0) {
    throw std::runtime_error("xdotool " + acts.join(u' ').toStdString() + ": " +
                             sender.readAllStandardError().toStdString());
  }
}

bool XScreen::Save(const QString& path) const {
  QFile dump(folder_ + QStringLiteral("/Xvfb_screen0"));
  if (!dump.open(QIODevice::ReadOnly)) return false;
  const QByteArray bytes = dump.readAll();
  std::array<quint32, kWords> header{};
  if (bytes.size() < static_cast<qsizetype>(sizeof header)) return false;
  qFromBigEndian<quint32>(bytes.constData(), kWords, header.data());
  const qsizetype pixels = header[kHeaderSize] + qsizetype{header[kColours]} * kBytesPerColour;
  if (bytes.size() < pixels + qsizetype{header[kBytesPerLine]} * header[kHeight]) return false;
  const QImage picture(reinterpret_cast<const uchar*>(bytes.constData()) + pixels,
                       static_cast<int>(header[kWidth]), static_cast<int>(header[kHeight]),
                       header[kBytesPerLine], QImage::Format_RGB32);
  return picture.save(path);
}

}  // namespace xscreen
