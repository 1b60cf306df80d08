#include "desktop/views/Label.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "platform/Colors.h"
#include "platform/Form.h"

namespace desktop {
namespace {

using platform::Look;

constexpr platform::Color kRed = platform::Rgb(255, 0, 0);

Look LookOfPanel(const platform::Control& control) {
  const platform::Control* const panel = control.Parent().AsControl();
  return panel == nullptr ? Look::kNormal : panel->look;
}

}  // namespace

bool LabelView::NamesAmount() const {
  const auto& controls = Shows()->OwnerForm().Controls();
  return std::ranges::any_of(controls, [&](const platform::Control* each) {
    return each->label == Shows() &&
           (each->look == Look::kAmount || each->look == Look::kMainAmount);
  });
}

Look LabelView::LookOfWords() const {
  // The words above an amount are no amount.
  const Look own = Shows()->look;
  return (own == Look::kAmount || own == Look::kMainAmount) && NamesAmount() ? Look::kNormal : own;
}

LabelView::Style LabelView::StyleOf() const {
  const Look panel = LookOfPanel(*Shows());
  Style style{fonts::Sized(fonts::kLabelSize), palette::kLabel, Qt::AlignLeft | Qt::AlignBottom};
  switch (LookOfWords()) {
    case Look::kTitle:
      style = {fonts::Sized(fonts::kTitleSize, QFont::DemiBold), palette::kText,
               Qt::AlignLeft | Qt::AlignVCenter};
      break;
    case Look::kHint:
      style = {fonts::Sized(12), palette::kQuietText, Qt::AlignLeft | Qt::AlignVCenter};
      break;
    case Look::kAmount:
    case Look::kMainAmount: {
      const double most = Shows()->look == Look::kMainAmount ? 34 : 22;
      style = {fonts::Sized(std::min(most, height() * 0.85), QFont::Bold), palette::kText,
               Qt::AlignRight | Qt::AlignVCenter};
      break;
    }
    case Look::kWait:
      style = {fonts::Sized(14, QFont::Medium), palette::kText, Qt::AlignCenter};
      break;
    default:
      if (panel == Look::kWait) {
        style = {fonts::Sized(14, QFont::Medium), palette::kText, Qt::AlignCenter};
      } else if (NamesAmount()) {
        style.alignment = Qt::AlignRight | Qt::AlignBottom;
      }
  }
  if (panel == Look::kMainAmount) {
    style.ink = LookOfWords() == Look::kNormal ? palette::kOnDeepQuiet : palette::kPanel;
  } else if (panel == Look::kStrip && Shows()->look == Look::kTitle) {
    style.font = fonts::Sized(fonts::kTextSize, QFont::Bold);
    style.font.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
    style.ink = palette::kPanel;
  } else if (Shows()->ForeColor() != platform::kDefaultColor) {
    style.ink = ToQt(Shows()->ForeColor());
  }
  // Not by colour alone.
  if (Shows()->ForeColor() == kRed) style.font.setWeight(QFont::DemiBold);
  return style;
}

void LabelView::PaintBadge(QPainter& painter) {
  const QString words = ToQt(Caption().Caption());
  if (words.isEmpty()) return;
  const bool own = Caption().ForeColor() != platform::kDefaultColor;
  const QColor ink = own ? ToQt(Caption().ForeColor()) : palette::kAccent;
  const bool ground = Caption().BackColor() != platform::kDefaultColor;
  painter.setFont(fonts::Sized(12, QFont::DemiBold));
  const double wide = QFontMetricsF(painter.font()).horizontalAdvance(words);
  const double tall = std::min(height(), 22);
  const QRectF pill(0, (height() - tall) / 2.0, std::min(wide + 32, width() * 1.0), tall);
  paint::Box(painter, pill, tall / 2, ground ? ToQt(Caption().BackColor()) : palette::kPale);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  painter.drawEllipse(QPointF(pill.left() + 12, pill.center().y()), 4, 4);
  painter.setPen(ink);
  WordsCut(
      paint::Words(painter, pill.adjusted(21, 0, -8, 0), Qt::AlignLeft | Qt::AlignVCenter, words));
}

void LabelView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Look look = LookOfWords();
  if (look == Look::kBadge) return PaintBadge(painter);
  if (Caption().BackColor() != platform::kDefaultColor) {
    painter.fillRect(rect(), ToQt(Caption().BackColor()));
  }
  Style style = StyleOf();
  const QString words = ToQt(Caption().Caption());
  if (look == Look::kAmount || look == Look::kMainAmount) {
    const double wide = fonts::figures::Advance(style.font, words);
    if (wide > width()) style.font.setPointSizeF(style.font.pointSizeF() * width() / wide);
    painter.setFont(style.font);
    painter.setPen(style.ink);
    const QFontMetricsF metrics(style.font);
    const double top = (height() - metrics.height()) / 2 + metrics.ascent();
    fonts::figures::Draw(painter, {width() - std::min(wide, width() * 1.0), top}, words);
    return;
  }
  painter.setFont(style.font);
  painter.setPen(style.ink);
  WordsCut(paint::WrappedWords(painter, rect(), style.alignment, words));
}

}  // namespace desktop
