#include "tools/vitrine/ScreenFile.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QSaveFile>
#include <utility>

#include "desktop/Convert.h"
#include "desktop/DesktopQt.h"
#include "desktop/MessageBoxView.h"
#include "desktop/views/ComboList.h"
#include "desktop/views/Toolbar.h"
#include "desktop/views/ZVComboBox.h"
#include "tools/vitrine/InFront.h"

namespace vitrine {
namespace {

constexpr int kTickMilliseconds = 20;

QJsonObject Target(const QWidget& widget, const QRect& box, const QString& text, bool usable) {
  const QPointF middle = QPointF(widget.mapToGlobal(box.center())) * widget.devicePixelRatioF();
  return {{QStringLiteral("x"), qRound(middle.x())},
          {QStringLiteral("y"), qRound(middle.y())},
          {QStringLiteral("text"), text},
          {QStringLiteral("usable"), usable}};
}

QString Indexed(const QString& name, int index) {
  return QStringLiteral("%1[%2]").arg(name).arg(index);
}

void TellButtons(const desktop::ToolbarView& view, QJsonObject& targets) {
  const auto& bar = static_cast<const platform::Toolbar&>(*view.Shows());
  for (const auto& button : bar.All()) {
    if (!button->Visible()) continue;
    targets[view.objectName() + u'.' + desktop::ToQt(button->Key())] =
        Target(view, view.ButtonBox(button.get()), desktop::ToQt(button->Caption()),
               bar.IsUsable() && button->Enabled());
  }
}

void TellItems(const desktop::ZVComboBoxView& view, QJsonObject& targets) {
  const desktop::ComboList* const list = view.List();
  if (list == nullptr) return;
  const auto& combo = static_cast<const platform::ZVComboBox&>(*view.Shows());
  for (int i = 0; i < combo.ListCount(); ++i) {
    const QRect box = list->ItemBox(i);
    if (!list->rect().contains(box.center())) continue;
    targets[Indexed(view.objectName(), i)] =
        Target(*list, box, desktop::ToQt(platform::ZVComboBox::ShownForm(combo.List(i))), true);
  }
}

void TellMenu(QJsonObject& targets) {
  const auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (menu == nullptr) return;
  int index = 0;
  for (QAction* action : menu->actions()) {
    targets[Indexed(QStringLiteral("menu"), index++)] =
        Target(*menu, menu->actionGeometry(action), action->text(), action->isEnabled());
  }
}

}  // namespace

ScreenFile::ScreenFile(const desktop::DesktopQt& desktop, const std::string& path)
    : desktop_(desktop), path_(desktop::ToQt(path)) {
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { Follow(); });
  timer_.start(kTickMilliseconds);
}

void ScreenFile::Follow() {
  QByteArray now = Tell();
  if (now == told_) return;
  QSaveFile file(path_);
  if (!file.open(QIODevice::WriteOnly)) return;
  // What is typed is told there.
  file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  file.write(now);
  if (file.commit()) told_ = std::move(now);
}

void ScreenFile::TellControls(QJsonObject& targets) const {
  for (const platform::Control* control : InFront()->Controls()) {
    const desktop::View* const view = desktop_.ViewOf(*control);
    if (view == nullptr || !view->isVisible()) continue;
    targets[view->objectName()] = Target(*view, view->rect(), view->Spoken(), control->IsUsable());
    if (const auto* bar = dynamic_cast<const desktop::ToolbarView*>(view)) {
      TellButtons(*bar, targets);
    } else if (const auto* combo = dynamic_cast<const desktop::ZVComboBoxView*>(view)) {
      TellItems(*combo, targets);
    }
  }
}

void ScreenFile::TellBox(QJsonObject& targets) const {
  const desktop::MessageBoxView& box = *desktop_.Box();
  using platform::Answer;
  constexpr std::pair<Answer, QStringView> kButtons[] = {
      {Answer::kYes, u"box.Sim"}, {Answer::kNo, u"box.Não"}, {Answer::kOk, u"box.OK"}};
  for (const auto& [answer, name] : kButtons) {
    const QRect button = box.ButtonBox(answer);
    if (!button.isEmpty()) targets[name] = Target(box, button, {}, true);
  }
}

QByteArray ScreenFile::Tell() const {
  const platform::Form* const form = InFront();
  const desktop::MessageBoxView* const box = desktop_.Box();
  const bool popup = QApplication::activePopupWidget() != nullptr;
  QJsonObject targets;
  if (box != nullptr) {
    TellBox(targets);
  } else if (form != nullptr) {
    TellControls(targets);
    TellMenu(targets);
  }
  // Null as long as the window system gives the keyboard to another window.
  const QWidget* const focus = QApplication::focusWidget();
  const QJsonObject screen{
      {QStringLiteral("screen"), form == nullptr ? QString() : desktop::ToQt(form->Name())},
      {QStringLiteral("resting"), desktop_.IsResting() || popup},
      {QStringLiteral("keyboard"), focus != nullptr},
      {QStringLiteral("focus"), focus == nullptr ? QString() : focus->objectName()},
      {QStringLiteral("box"), box == nullptr ? QJsonValue() : QJsonValue(box->Text())},
      {QStringLiteral("targets"), targets}};
  return QJsonDocument(screen).toJson(QJsonDocument::Compact);
}

}  // namespace vitrine
