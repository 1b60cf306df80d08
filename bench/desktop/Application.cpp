#include "desktop/Application.h"

#include <QAccessible>
#include <QApplication>

void bench::NeedApplication() {
  static int count = 1;
  static char name[] = "bench";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // It is never taken down: at the end of the process Qt's own statics may have gone before.
  static const auto* const kApplication = new QApplication(count, arguments);
  Q_UNUSED(kApplication);
  // As if a screen reader listened: what it is told counts too.
  QAccessible::setActive(true);
}
