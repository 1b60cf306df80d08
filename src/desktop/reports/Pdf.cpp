#include "desktop/reports/Pdf.h"

#include <QDir>
#include <QFileInfo>
#include <QMarginsF>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <stdexcept>

#include "desktop/Convert.h"
#include "desktop/reports/Painting.h"

namespace desktop::reports {
namespace {

constexpr int kTwipsPerInch = 1440;
constexpr double kTwipsPerPoint = 20;

[[noreturn]] void Fail(const QString& path, const QSaveFile& file) {
  const QFileInfo folder(QFileInfo(path).absolutePath());
  QString why = QStringLiteral(
      "Confira se há espaço no disco e se a pasta ainda está disponível, e tente de novo.");
  if (!folder.isDir()) {
    why = QStringLiteral("A pasta não existe: escolha outra.");
  } else if (file.error() == QFileDevice::PermissionsError ||
             file.error() == QFileDevice::OpenError) {
    why = QStringLiteral("A pasta não permite gravar: escolha outra.");
  }
  throw std::runtime_error(FromQt(QStringLiteral("Não foi possível gravar o PDF em \"%1\". %2")
                                      .arg(QDir::toNativeSeparators(path), why)));
}

}  // namespace

QPageLayout LayoutOf(const platform::Paper& paper, const platform::ReportPage& page) {
  const QPageSize size =
      paper.kind == platform::Paper::Kind::kA4
          ? QPageSize(QPageSize::A4)
          : QPageSize(QSizeF(page.width, page.height) / kTwipsPerPoint, QPageSize::Point,
                      QStringLiteral("Bobina 80 mm"), QPageSize::ExactMatch);
  QPageLayout layout(size, QPageLayout::Portrait, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

void WritePdf(const platform::ReportPages& report, const std::string& path) {
  const QString name = ToQt(path);
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly)) Fail(name, file);
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
  if (!file.commit()) Fail(name, file);
}

}  // namespace desktop::reports
