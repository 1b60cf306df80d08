#include "desktop/views/ZVComboBox.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/Icons.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "desktop/views/ComboList.h"
#include "platform/Colors.h"
#include "platform/Input.h"
#include "platform/Label.h"

namespace desktop {

ZVComboBoxView::ZVComboBoxView(platform::ZVComboBox& combo, QWidget& parent) : View(combo, parent) {
  setFocusPolicy(Qt::TabFocus);
}

ZVComboBoxView::~ZVComboBoxView() = default;

void ZVComboBoxView::LetGo() {
  if (list_ != nullptr) {
    // Hidden, it reads no item any more; it may itself have brought this about.
    list_->hide();
    std::exchange(list_, nullptr)->deleteLater();
  }
  View::LetGo();
}

ComboList* ZVComboBoxView::List() const {
  return list_ != nullptr && list_->isVisible() ? list_ : nullptr;
}

QString ZVComboBoxView::Spoken() const {
  return Shows() == nullptr ? QString() : ToQt(Combo().Words());
}

void ZVComboBoxView::Follow(const platform::PropertyBase& property) {
  if (List() == nullptr) return;
  if (&property == &Combo().Revision || &property == &Combo().ListIndex) List()->Reload();
}

void ZVComboBoxView::Open() {
  if (List() != nullptr) return;
  if (platform::input::DropDown(Combo()) != platform::input::Outcome::kDone) return;
  // Opening may have been refused by the field that was left, or have closed the screen.
  if (Shows() == nullptr || !Shows()->HasFocus() || !IsWarm()) return;
  if (list_ == nullptr) {
    list_ = new ComboList(Combo(), *this);
    list_->onPick = [this](int index) {
      if (Shows() != nullptr) platform::input::Pick(Combo(), index);
    };
    list_->onKey = [this](QKeyEvent& event) {
      if (Shows() != nullptr) TakeKey(event);
    };
  }
  list_->Open();
}

bool ZVComboBoxView::TakeKey(QKeyEvent& event) {
  const bool alt = event.modifiers() & Qt::AltModifier;
  const bool opens = event.key() == Qt::Key_F4 || (alt && event.key() == Qt::Key_Down);
  if (!opens) return View::TakeKey(event);
  Open();
  return true;
}

void ZVComboBoxView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Open();
}

void ZVComboBoxView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool usable = IsUsable();
  QColor fill = usable ? palette::kPanel : palette::kLockedField;
  if (IsHovered()) fill = palette::kHover;
  if (Combo().BackColor() != platform::kDefaultColor) fill = ToQt(Combo().BackColor());
  QColor border = usable ? palette::kFieldBorder : palette::kPanelBorder;
  if (Combo().label != nullptr && Combo().label->ForeColor() == platform::Rgb(255, 0, 0)) {
    border = palette::kRefused;
  }
  paint::Box(painter, rect(), paint::kFieldRadius, fill, border);
  painter.setFont(fonts::Text());
  painter.setPen(palette::kText);
  WordsCut(paint::Words(painter, QRectF(rect()).adjusted(9, 0, -28, 0),
                        Qt::AlignLeft | Qt::AlignVCenter, ToQt(Combo().Words())));
  icons::Draw(painter, "chevron", QRectF(width() - 25, height() / 2.0 - 8, 16, 16),
              usable ? palette::kQuietText : palette::kPaleText);
}

}  // namespace desktop
