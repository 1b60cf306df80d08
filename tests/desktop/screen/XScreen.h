#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace xscreen {

/// An X server of this test's own, 1024 by 768 pixels and without hardware, with a window manager
/// if wanted; both end with the object, or with the test should it die. Throws std::runtime_error
/// when the server does not come up.
class XScreen {
 public:
  /// `folder` takes what the programs write, the picture of the screen included.
  XScreen(const QString& folder, bool windowManager);
  ~XScreen();
  XScreen(const XScreen&) = delete;
  XScreen& operator=(const XScreen&) = delete;

  /// For programs that are to appear here: the display, and a home in the folder.
  const QProcessEnvironment& Environment() const { return environment_; }
  /// Sends real key and mouse events, as the arguments of xdotool tell.
  void Send(const QStringList& acts) const;
  /// Saves what is on the screen as a PNG file.
  bool Save(const QString& path) const;

 private:
  bool IsManaged() const;

  QString folder_;
  QProcessEnvironment environment_;
  QProcess server_, windowManager_;
};

/// Has the program die with this one.
void TieToUs(QProcess& program);

}  // namespace xscreen
