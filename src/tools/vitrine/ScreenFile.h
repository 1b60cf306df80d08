#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <string>

class QJsonObject;
class QPoint;
class QRect;
class QWidget;

namespace desktop {
class DesktopQt;
}

namespace vitrine {

/// Keeps a file that tells what is on the screen, for whoever drives the cash desk from outside
/// with keys and mouse and must know where to point and when something has come. The file is
/// replaced as a whole whenever it changes, and holds one JSON object:
///   "screen"   the name of the form in front
///   "resting"  whether the system waits for the operator, with or without an open list or menu
///   "keyboard" whether keys arrive here: false while the window system has not yet made the window
///              the active one, when they would be lost
///   "focus"    the name of the control that the keyboard writes to, empty without it
///   "box"      the text of the message box that is up, or null
///   "targets"  by name, what can be seen and pointed at: {"x", "y"} the middle in pixels of the
///              screen, "usable", and "text" as it is shown; a password has none. Beside the
///              controls of the form in front these are "box.Sim", "box.Não" and "box.OK", the
///              buttons of a toolbar as "toolbar.Key", the items of an open list as "combo[0]" and
///              the entries of an open menu as "menu[0]".
class ScreenFile final : public QObject {
 public:
  ScreenFile(const desktop::DesktopQt& desktop, const std::string& path);

 private:
  void Follow();
  QByteArray Tell() const;
  void TellControls(QJsonObject& targets) const;
  void TellBox(QJsonObject& targets) const;

  const desktop::DesktopQt& desktop_;
  QString path_;
  QByteArray told_;
  QTimer timer_;
};

}  // namespace vitrine
