#pragma once

#include <QAbstractScrollArea>
#include <functional>
#include <memory>
#include <vector>

#include "platform/ReportPages.h"

namespace desktop::reports {

/// The sheets of a report one below the other, in any size. Only what is in sight is painted.
class PageArea final : public QAbstractScrollArea {
 public:
  /// How the size is chosen: kept as it was set, or following the room that there is.
  enum class Fit { kNone, kWidth, kPage };

  PageArea(std::shared_ptr<const platform::ReportPages> report, QWidget* parent);

  /// Another page is in the middle, or the size changed.
  std::function<void()> onChange;

  int PageCount() const { return static_cast<int>(tops_.size()); }
  /// The page that the operator looks at, counted from 0.
  int Page() const { return page_; }
  /// Shows a page from its top; beyond either end, the one at that end.
  void GoTo(int page);

  /// Of the size on paper, 1 being 96 pixels to an inch.
  double Zoom() const { return zoom_; }
  void SetZoom(double zoom);
  /// One step larger or smaller.
  void Step(bool larger);
  void SetFit(Fit fit);
  /// As a document is best read: the width of the area, but not much larger than on paper.
  void ShowReadable();

  /// Up and down by parts of what is in sight: 1 is a whole screenful, below 0 is up.
  void ScrollBy(double screenfuls);
  void ScrollToEnd(bool last);

 private:
  void resizeEvent(QResizeEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void Paint(const QRect& exposed);

  const platform::ReportPage& At(int page) const;
  /// The size of a page on the screen.
  QSize SizeOf(int page) const;
  /// The place of a page in the viewport.
  QRect BoxOf(int page) const;
  double FittingZoom(Fit fit) const;
  /// Takes on a size, keeping what is at `anchor` in the viewport where it is.
  void Resize(double zoom, const QPoint& anchor);
  void Arrange();
  void FindPage();
  void TellPage();

  std::shared_ptr<const platform::ReportPages> report_;
  double zoom_ = 1;
  Fit fit_ = Fit::kNone;
  bool readable_ = true;   ///< Nobody has chosen a size yet.
  std::vector<int> tops_;  ///< Of the pages, from the top of all that can be scrolled.
  QSize whole_;            ///< Of all pages, the ground around them included.
  int page_ = 0;
  bool going_ = false;  ///< The page is told, not found by what is in the middle.
  bool dragging_ = false;
  QPoint draggedAt_;
};

}  // namespace desktop::reports
