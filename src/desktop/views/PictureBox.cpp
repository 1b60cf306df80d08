#include "desktop/views/PictureBox.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "desktop/Convert.h"
#include "desktop/Icons.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "platform/Form.h"

namespace desktop {

using platform::Look;

PictureBoxView::PictureBoxView(platform::PictureBox& panel, QWidget& parent)
    : ClickView(panel, parent) {}

double PictureBoxView::RingRadius() const {
  // The module tells the whole width of a corner.
  const double told = Panel().CornerRadius() / 2.0;
  const bool round = Panel().look == Look::kCard || Panel().look == Look::kWait ||
                     Panel().look == Look::kMainAmount || Panel().look == Look::kAmount;
  return std::min(
      {std::max(told, round ? paint::kPanelRadius : 0.0), width() / 2.0, height() / 2.0});
}

int PictureBoxView::TitleBand() const {
  for (const platform::Control* child : Panel().Children()) {
    // As much room below the title as above it.
    if (child->look == Look::kTitle && child->Visible()) {
      return ToPixels(2 * child->Top() + child->Height());
    }
  }
  return 0;
}

void PictureBoxView::Follow(const platform::PropertyBase& property) {
  if (&property == &Panel().ZOrder) raise();
}

void PictureBoxView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool own = Panel().BackColor() != platform::kDefaultColor;
  const QColor fill = own ? ToQt(Panel().BackColor()) : palette::kPanel;
  switch (Panel().look) {
    case Look::kCard:
    case Look::kAmount:
    case Look::kWait:
      paint::Box(painter, rect(), RingRadius(), fill, palette::kPanelBorder);
      break;
    case Look::kMainAmount:
      paint::Box(painter, rect(), RingRadius(), own ? fill : palette::kDeep);
      break;
    case Look::kStrip:
      painter.fillRect(rect(), fill);
      if (const int band = TitleBand(); band > 0) {
        painter.fillRect(0, 0, width(), band, palette::kAccent);
      }
      painter.fillRect(width() - 1, 0, 1, height(), palette::kPanelBorder);
      break;
    case Look::kFooter: {
      // At the foot of a dialog it takes the dialog's round corners.
      const auto& form = Panel().OwnerForm();
      const bool foot = Panel().Parent().AsControl() == nullptr &&
                        Panel().Top() + Panel().Height() >= form.Height() - 15;
      painter.setRenderHint(QPainter::Antialiasing);
      painter.fillPath(paint::Outline(rect(), foot ? paint::kDialogRadius : 0,
                                      {.topLeft = false, .topRight = false}),
                       own ? fill : palette::kBand);
      painter.fillRect(QRectF(0, 0, width(), 1), palette::kPanelBorder);
      break;
    }
    default:
      if (own) paint::Box(painter, rect(), RingRadius(), fill);
  }
  icons::Draw(painter, Panel().icon, rect(), palette::kAccent);
}

}  // namespace desktop
