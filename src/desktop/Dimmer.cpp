#include "desktop/Dimmer.h"

#include <QEvent>
#include <QPainter>
#include <utility>

#include "desktop/Palette.h"

namespace desktop {

namespace {

class Veil final : public QWidget {
 public:
  Veil(QWidget& window, std::function<QPainterPath()> waiting)
      : QWidget(&window), waiting_(std::move(waiting)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(window.rect());
    window.installEventFilter(this);
    hide();
  }

  bool leavesOutPanels = false;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize && watched == parent()) {
      setGeometry(parentWidget()->rect());
    }
    return false;
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.addRect(rect());
    if (leavesOutPanels) path -= waiting_();
    painter.fillPath(path, palette::kDim);
  }

  std::function<QPainterPath()> waiting_;
};

}  // namespace

Dimmer::Dimmer(QWidget& window, std::function<QPainterPath()> waiting)
    : veil_(new Veil(window, std::move(waiting))) {}

Dimmer::~Dimmer() {
  delete veil_.data();
}

void Dimmer::Apply(int intensity, const platform::Form* inFront) {
  veils_.push_back({intensity, inFront});
  Update();
}

void Dimmer::Remove() {
  if (!veils_.empty()) veils_.pop_back();
  Update();
}

void Dimmer::Clear() {
  veils_.clear();
  Update();
}

void Dimmer::PlaceBeneath(QWidget* screen) {
  if (veil_ == nullptr) return;
  if (screen == nullptr) {
    veil_->raise();
  } else {
    veil_->stackUnder(screen);
  }
  veil_->update();
}

void Dimmer::Update() {
  if (veil_ == nullptr) return;
  static_cast<Veil*>(veil_.data())->leavesOutPanels = IsForWait();
  veil_->setVisible(!veils_.empty());
  veil_->update();
}

}  // namespace desktop
