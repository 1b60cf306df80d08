#pragma once

#include "desktop/views/View.h"
#include "platform/ZVComboBox.h"

namespace desktop {

class ComboList;

/// A list to choose from, closed: its text and an arrow. Open, it is a ComboList.
class ZVComboBoxView final : public View {
 public:
  ZVComboBoxView(platform::ZVComboBox& combo, QWidget& parent);
  ~ZVComboBoxView() override;

  void LetGo() override;
  QString Spoken() const override;
  /// The open list, or null.
  ComboList* List() const;

 private:
  platform::ZVComboBox& Combo() const { return static_cast<platform::ZVComboBox&>(*Shows()); }
  void Open();
  void Follow(const platform::PropertyBase& property) override;
  bool TakeKey(QKeyEvent& event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent*) override { update(); }
  void leaveEvent(QEvent*) override { update(); }

  ComboList* list_ = nullptr;
};

}  // namespace desktop
