#include "desktop/reports/Pdf.h"

#include <QMarginsF>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "desktop/Convert.h"
#include "desktop/reports/Painting.h"
#include "desktop/reports/Saving.h"

namespace desktop::reports {
namespace {

constexpr int kTwipsPerInch = 1440;
constexpr double kTwipsPerPoint = 20;

}  // namespace

QPageLayout LayoutOf(const platform::Paper& paper, const platform::ReportPage& page) {
  const QPageSize size =
      paper.kind == platform::Paper::Kind::kA4
          ? QPageSize(QPageSize::A4)
          : QPageSize(QSizeF(page.width, page.height) / kTwipsPerPoint, QPageSize::Point,
                      QStringLiteral("Bobina 80 mm"), QPageSize::ExactMatch);
  const bool isSideways = page.width > page.height && paper.kind == platform::Paper::Kind::kA4;
  QPageLayout layout(size, isSideways ? QPageLayout::Landscape : QPageLayout::Portrait,
                     QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

void WritePdf(const platform::ReportPages& report, const std::string& path) {
  const QString name = ToQt(path);
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly)) FailToSave("o PDF", name);
  {
    QPdfWriter writer(&file);
    // A unit is a twip: nothing is scaled, so text keeps the widths that it was laid out with.
    writer.setResolution(kTwipsPerInch);
    writer.setTitle(ToQt(report.title));
    writer.setCreator(QStringLiteral("Caixa"));
    QPainter painter;
    for (const platform::ReportPage& page : report.pages) {
      writer.setPageLayout(LayoutOf(report.paper, page));
      if (!painter.isActive() ? !painter.begin(&writer) : !writer.newPage()) {
        file.cancelWriting();
        break;
      }
      PaintPage(painter, page, 1);
    }
  }
  if (!file.commit()) FailToSave("o PDF", name);
}

}  // namespace desktop::reports
