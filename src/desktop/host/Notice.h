#pragma once

#include <QString>
#include <QWidget>

namespace host {

/// A sentence of the host's at the foot of its window, over whatever is there. It takes neither the
/// keyboard nor the mouse from the screens and boxes beneath.
class Notice final : public QWidget {
 public:
  Notice(QWidget& window, const QString& sentence);

 private:
  void Place();
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

  QString sentence_;
};

}  // namespace host
