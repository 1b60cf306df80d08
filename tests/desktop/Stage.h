#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "desktop/DesktopQt.h"
#include "desktop/MessageBoxView.h"
#include "desktop/views/View.h"
#include "platform/Form.h"
#include "platform/Input.h"
#include "platform/Label.h"
#include "platform/Layout.h"
#include "platform/MSFlexGrid.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTextBox.h"

namespace stage {

/// Two fields and a button, on a container or as a dialog.
class SmallForm : public platform::Form {
 public:
  explicit SmallForm(std::string_view name = "frm") : Form(name) {
    Caption.Assign("Pequena");
    Arrange({{6000, 3000},
             {{label, {300, 150, 3000, 240}, "Primeiro*"},
              {first, {300, 450, 3000, 450}},
              {second, {300, 1050, 3000, 450}},
              {button, {300, 1800, 1500, 480}, "Botão"}}});
  }

  platform::Label label{*this, "label"};
  platform::ZVTextBox first{*this, "first"};
  platform::ZVTextBox second{*this, "second"};
  platform::ZVCommandButton button{*this, "button"};

  std::string Active() const {
    return ActiveControl() == nullptr ? "none" : ActiveControl()->Name();
  }
};

/// A grid over the whole form: five columns in sight and one that is hidden.
class GridForm : public platform::Form {
 public:
  GridForm() : Form("frmGrade") {
    Arrange({{12000, 9000}, {{msfgGrade, {0, 0, 12000, 9000}, "", {}, platform::kHoldAll}}});
  }
  void Fill(int lines) {
    msfgGrade.Cols(6);
    for (int col = 0; col < 6; ++col) {
      msfgGrade.ColWidth(col, col == 0 ? 4300 : col == 5 ? 0 : 1300);
      msfgGrade.TextMatrix(0, col, "Coluna " + std::to_string(col));
    }
    for (int i = 0; i < lines; ++i) msfgGrade.AddItem("Banho\tRex\tTati\t1\t80,00\t2");
    if (lines > 0) msfgGrade.RemoveItem(1);
  }

  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
};

/// A host's window with the real renderer on Qt's offscreen platform. Acts go in as key and mouse
/// events, as the operator's do.
class Stage : public testing::Test {
 protected:
  Stage() {
    desktop = std::make_unique<desktop::DesktopQt>(".");
    platform::Desktop::Install(desktop.get());
    host = std::make_unique<QWidget>();
    host->resize(1024, 768);
    host->show();
    host->activateWindow();
    handle = desktop->Register(*host);
    Settle();
  }
  ~Stage() override {
    host.reset();
    Settle();
    desktop.reset();
    platform::Desktop::Install(nullptr);
  }

  static void Settle() {
    for (int i = 0; i < 3; ++i) {
      QCoreApplication::processEvents();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

  void Embed(platform::Form& form) {
    form.SetParent(handle);
    form.Show();
    Settle();
  }

  /// Runs acts one after the other, each when the system next waits for the operator: within the
  /// loops that the earlier ones opened.
  void Then(std::initializer_list<std::function<void()>> acts) {
    for (const auto& act : acts) acts_.push_back(act);
    Schedule();
  }
  /// Every act of Then had its turn.
  bool AllDone() const { return acts_.empty(); }

  QWidget& WidgetOf(const platform::Control& control) {
    desktop::View* const view = desktop->ViewOf(control);
    if (view == nullptr) throw std::runtime_error(control.Name() + " has no view");
    return *view;
  }
  void Press(const platform::Control& control, QPoint at = {}) {
    QTest::mousePress(&WidgetOf(control), Qt::LeftButton, {}, at);
  }
  void Click(const platform::Control& control, QPoint at = {}) {
    QTest::mouseClick(&WidgetOf(control), Qt::LeftButton, {}, at);
  }
  /// Whoever has the keyboard; a window that was just shown may still be getting it.
  static QWidget& Focus() {
    const auto focus = [] {
      QWidget* const popup = QApplication::activePopupWidget();
      return popup != nullptr ? popup : QApplication::focusWidget();
    };
    if (!QTest::qWaitFor([&] { return focus() != nullptr; })) {
      throw std::runtime_error("nothing has the keyboard");
    }
    return *focus();
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&Focus(), key, modifiers);
  }
  static void Type(const char* text) {
    for (const QChar each : QString::fromUtf8(text)) {
      QKeyEvent event(QEvent::KeyPress, 0, {}, QString(each));
      QCoreApplication::sendEvent(&Focus(), &event);
    }
  }
  /// What a key sends that is held down.
  static void Hold(Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, {}, QString(), true);
    QCoreApplication::sendEvent(&Focus(), &event);
  }
  void Reply(platform::Answer answer) {
    ASSERT_NE(desktop->Box(), nullptr);
    QTest::mouseClick(desktop->Box(), Qt::LeftButton, {},
                      desktop->Box()->ButtonBox(answer).center());
  }
  platform::Answer Ask(const char* text, platform::Buttons buttons = platform::Buttons::kOk,
                       platform::Answer preset = platform::Answer::kOk) {
    return desktop->Ask({text, "Caixa", platform::Icon::kInformation, buttons, preset});
  }

  std::unique_ptr<desktop::DesktopQt> desktop;
  std::unique_ptr<QWidget> host;
  platform::WindowHandle handle = 0;

 private:
  void Schedule() {
    QTimer::singleShot(1, host.get(), [this] {
      if (acts_.empty()) return;
      if (!desktop->IsResting() && QApplication::activePopupWidget() == nullptr) return Schedule();
      const std::function<void()> act = std::move(acts_.front());
      acts_.erase(acts_.begin());
      if (!acts_.empty()) Schedule();
      act();
    });
  }

  std::vector<std::function<void()>> acts_;
};

}  // namespace stage
