#include "desktop/views/EditLayout.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

#include "desktop/Fonts.h"

namespace desktop {

EditLayout::EditLayout() = default;
EditLayout::~EditLayout() = default;

void EditLayout::Set(const QString& text, const Setting& setting) {
  if (lines_ != nullptr && text == text_ && setting == setting_) return;
  text_ = text;
  setting_ = setting;
  edges_.clear();
  QString shown = text;
  // A line break within a field is laid out as Qt's own line separator, or as a blank.
  shown.replace(u'\n', setting.wraps ? QChar(QChar::LineSeparator) : QChar(u' '));
  lines_ = std::make_unique<QTextLayout>(shown, setting.font);
  QTextOption option;
  option.setWrapMode(setting.wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                   : QTextOption::NoWrap);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  lines_->setTextOption(option);
  lines_->setCacheEnabled(true);
  lines_->beginLayout();
  double top = 0;
  for (QTextLine line = lines_->createLine(); line.isValid(); line = lines_->createLine()) {
    line.setLineWidth(setting.wraps ? setting.width : 1e6);
    line.setPosition({0, top});
    top += line.height();
  }
  lines_->endLayout();
  if (setting.figures) Measure();
}

void EditLayout::Measure() {
  double at = setting_.width - fonts::figures::Advance(setting_.font, text_);
  edges_.push_back(at);
  for (const QChar each : std::as_const(text_)) {
    at += fonts::figures::Advance(setting_.font, QStringView(&each, 1));
    edges_.push_back(at);
  }
}

double EditLayout::LineHeight() const {
  return QFontMetricsF(setting_.font).height();
}

double EditLayout::Height() const {
  const int count = lines_->lineCount();
  if (count == 0) return LineHeight();
  const QTextLine last = lines_->lineAt(count - 1);
  return last.y() + last.height();
}

double EditLayout::Right() const {
  if (!edges_.empty()) return edges_.back();
  double right = 0;
  for (int i = 0; i < lines_->lineCount(); ++i) {
    right = std::max(right, lines_->lineAt(i).naturalTextWidth());
  }
  return right;
}

double EditLayout::Left() const {
  return edges_.empty() ? 0 : edges_.front();
}

std::pair<int, int> EditLayout::Line(int position) const {
  for (int i = 0; i < lines_->lineCount(); ++i) {
    const QTextLine line = lines_->lineAt(i);
    const int end = line.textStart() + line.textLength();
    const bool last = i + 1 == lines_->lineCount();
    if (position < end || last) return {line.textStart(), last ? end : end - 1};
  }
  return {0, 0};
}

QRectF EditLayout::Caret(int position) const {
  position = std::clamp(position, 0, static_cast<int>(text_.size()));
  if (!edges_.empty()) return {edges_[static_cast<std::size_t>(position)], 0, 1, LineHeight()};
  QTextLine line = lines_->lineForTextPosition(position);
  if (!line.isValid()) return {0, 0, 1, LineHeight()};
  return {line.cursorToX(position), line.y(), 1, line.height()};
}

int EditLayout::PositionAt(QPointF place) const {
  if (!edges_.empty()) {
    std::size_t at = 0;
    while (at + 1 < edges_.size() && place.x() > (edges_[at] + edges_[at + 1]) / 2) ++at;
    return static_cast<int>(at);
  }
  for (int i = 0; i < lines_->lineCount(); ++i) {
    const QTextLine line = lines_->lineAt(i);
    if (place.y() < line.y() + line.height() || i + 1 == lines_->lineCount()) {
      return std::min(line.xToCursor(place.x()), Line(line.textStart()).second);
    }
  }
  return 0;
}

std::vector<QRectF> EditLayout::Area(int from, int to) const {
  std::vector<QRectF> area;
  if (from >= to) return area;
  if (!edges_.empty()) {
    const QRectF first = Caret(from);
    area.emplace_back(first.left(), 0, Caret(to).left() - first.left(), LineHeight());
    return area;
  }
  for (int i = 0; i < lines_->lineCount(); ++i) {
    const QTextLine line = lines_->lineAt(i);
    const int begin = std::max(from, line.textStart());
    const int end = std::min(to, line.textStart() + line.textLength());
    if (begin >= end) continue;
    const double left = line.cursorToX(begin);
    area.emplace_back(left, line.y(), line.cursorToX(end) - left, line.height());
  }
  return area;
}

void EditLayout::Draw(QPainter& painter, QPointF origin) const {
  painter.setFont(setting_.font);
  if (edges_.empty()) {
    lines_->draw(&painter, origin);
  } else {
    const double ascent = QFontMetricsF(setting_.font).ascent();
    fonts::figures::Draw(painter, origin + QPointF(edges_.front(), ascent), text_);
  }
}

}  // namespace desktop
