#include "desktop/Application.h"

#include <QAccessible>
#include <QApplication>

void bench::NeedApplication() {
  static int count = 1;
  static char name[] = "bench";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QApplication kApplication(count, arguments);
  // As if a screen reader listened: what it is told counts too.
  QAccessible::setActive(true);
}
