#include "desktop/ScrollBar.h"

namespace desktop {
namespace {

constexpr auto kStyle =
    "QScrollBar { background: transparent; margin: 0; border: none; }"
    "QScrollBar:vertical { width: 12px; }"
    "QScrollBar:horizontal { height: 12px; }"
    "QScrollBar::handle { background: #b7c2c6; border-radius: 3px; margin: 3px; }"
    "QScrollBar::handle:vertical { min-height: 30px; }"
    "QScrollBar::handle:horizontal { min-width: 30px; }"
    "QScrollBar::handle:hover, QScrollBar::handle:pressed { background: #8b999e; }"
    "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
    "QScrollBar::add-page, QScrollBar::sub-page { background: none; }";

}  // namespace

ScrollBar::ScrollBar(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent) {
  setFocusPolicy(Qt::NoFocus);
  setCursor(Qt::ArrowCursor);
  setStyleSheet(QString::fromLatin1(kStyle));
}

}  // namespace desktop
