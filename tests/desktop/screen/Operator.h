#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <functional>

#include "desktop/screen/XScreen.h"

namespace xscreen {

/// Someone at the cash desk: the program `caixa` on a screen of its own, seen through the file in
/// which it tells what is on the screen, and worked with the keyboard and the mouse. Every wait is
/// for something that is to be seen, and ends in std::runtime_error when it does not come.
class Operator {
 public:
  Operator(const XScreen& screen, const QString& folder, const QString& database);
  ~Operator();
  Operator(const Operator&) = delete;
  Operator& operator=(const Operator&) = delete;

  /// Waits until the system rests with nothing but this screen in front.
  void See(const char* screen);
  /// Waits until a control of the screen in front shows this text, at rest.
  void See(const char* control, const char* text);
  /// Waits for a box that contains the text.
  void SeeBox(const char* text);

  // Each of these waits until what it needs can be used.
  void Click(const char* target);
  void DoubleClick(const char* target);
  /// Goes to the control with the Tab key alone.
  void TabTo(const char* control);
  /// Opens a combo's list with the mouse and clicks on the item.
  void Pick(const char* combo, const char* item);
  /// Clicks into a field and types over what it holds.
  void Fill(const char* field, const char* text);

  /// At once, wherever the keyboard is; but the window has to have it.
  void Type(const char* text);
  void Key(const char* key);
  /// As a barcode scanner does: the digits and Enter, as fast as the keyboard goes.
  void Scan(const char* digits);

  /// Has the program end, and returns its exit status.
  int End(const std::function<void(QProcess&)>& how);
  /// What is on the screen, for the report of a failure.
  QString Told() const;

 private:
  QJsonObject Look() const;
  /// Waits until `seen` holds of what is told, at rest if it has to be.
  QJsonObject Await(const QString& what, const std::function<bool(const QJsonObject&)>& seen,
                    bool atRest = true);
  /// What is typed before the window system has made the window the active one goes nowhere.
  void AwaitKeyboard();
  void Point(const char* target, const QStringList& act);

  const XScreen& screen_;
  QString file_;
  QProcess program_;
};

}  // namespace xscreen
