#include "desktop/reports/Painting.h"

#include <QFontMetricsF>
#include <optional>

#include "desktop/Convert.h"
#include "desktop/reports/QtMeasure.h"

namespace desktop::reports {
namespace {

/// Half a point: thin, and still there on a receipt printer of 203 dots an inch.
constexpr double kRule = 10;

/// Whether a place shows in what is exposed; a rule may have no height of its own.
bool Shows(const QRectF& place, const QRectF& exposed) {
  if (exposed.isEmpty()) return true;
  return place.adjusted(-kRule, -kRule, kRule, kRule).intersects(exposed);
}

template <class Printed>
QRectF PlaceOf(const Printed& each) {
  return QRectF(each.left, each.top, each.width, each.height);
}

/// Sets texts one after the other, and the font only where it changes.
class Setter {
 public:
  explicit Setter(QPainter& painter) : painter_(painter) {}

  void Set(const platform::PrintedText& text) {
    if (!metrics_ || !(font_ == text.font)) {
      font_ = text.font;
      painter_.setFont(OnPaper(font_));
      metrics_.emplace(painter_.font());
    }
    const QString words = ToQt(text.text);
    const QRectF place = PlaceOf(text);
    const double spare = place.width() - metrics_->horizontalAdvance(words);
    double left = place.left();
    if (text.align == platform::ReportAlign::kRight) left += spare;
    if (text.align == platform::ReportAlign::kCenter) left += spare / 2;
    const double above = (place.height() - metrics_->height()) / 2;
    painter_.drawText(QPointF(left, place.top() + above + metrics_->ascent()), words);
  }

 private:
  QPainter& painter_;
  platform::ReportFont font_;
  std::optional<QFontMetricsF> metrics_;
};

void Draw(QPainter& painter, const platform::PrintedRule& rule) {
  const QRectF place = PlaceOf(rule);
  switch (rule.kind) {
    case platform::PrintedRule::Kind::kBox:
      return painter.drawRect(place);
    case platform::PrintedRule::Kind::kBar:
      // Dark enough on any printer, and apart from the black of the words.
      return painter.fillRect(place, QColor(90, 90, 90));
    case platform::PrintedRule::Kind::kLine:
      return painter.drawLine(place.topLeft(), place.bottomRight());
  }
}

}  // namespace

void PaintPage(QPainter& painter, const platform::ReportPage& page, double unitsPerTwip,
               const QRectF& exposed) {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(unitsPerTwip, unitsPerTwip);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::black, kRule, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  for (const platform::PrintedRule& rule : page.rules) {
    if (Shows(PlaceOf(rule), exposed)) Draw(painter, rule);
  }
  Setter setter(painter);
  for (const platform::PrintedText& text : page.texts) {
    if (Shows(PlaceOf(text), exposed)) setter.Set(text);
  }
  painter.restore();
}

}  // namespace desktop::reports
