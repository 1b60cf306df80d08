#include "desktop/PopUpMenu.h"

#include <utility>

#include "desktop/Fonts.h"

namespace desktop {
namespace {

constexpr auto kStyle =
    "QMenu { background: #ffffff; border: 1px solid #c3ccd0; padding: 4px; color: #1b262a; }"
    "QMenu::item { padding: 7px 22px 7px 14px; border-radius: 3px; }"
    "QMenu::item:selected { background: #e3f1ee; color: #0b6b5d; }"
    "QMenu::item:disabled { color: #97a2a7; background: transparent; }"
    "QMenu::indicator { width: 14px; height: 14px; margin-left: 6px; }";

}  // namespace

PopUpMenu::PopUpMenu(QWidget& over) : menu_(&over) {
  menu_.setStyleSheet(QString::fromLatin1(kStyle));
  menu_.setFont(fonts::Text());
  menu_.setCursor(Qt::ArrowCursor);
}

void PopUpMenu::Add(const QString& words, bool enabled, std::function<void()> act, bool ticked) {
  QString shown = words;
  QAction* const action = menu_.addAction(shown.replace(u'&', QStringLiteral("&&")));
  action->setEnabled(enabled);
  action->setCheckable(ticked);
  action->setChecked(ticked);
  action->setData(static_cast<int>(acts_.size()));
  acts_.push_back(std::move(act));
}

std::function<void()> PopUpMenu::Choose(const QPoint& at) {
  const QAction* const chosen = menu_.exec(at);
  if (chosen == nullptr) return {};
  return std::move(acts_[static_cast<std::size_t>(chosen->data().toInt())]);
}

}  // namespace desktop
