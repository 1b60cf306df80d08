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

/// What stood in the way, as far as it can be told, and what to do about it.
QString Reason(const QFileInfo& file) {
  const QFileInfo folder(file.absolutePath());
  if (!folder.isDir()) return QStringLiteral("A pasta não existe: escolha outra.");
  if (file.isDir()) return QStringLiteral("Já existe uma pasta com este nome: escolha outro.");
  if (!folder.isWritable()) return QStringLiteral("A pasta não permite gravar: escolha outra.");
  if (file.exists() && !file.isWritable()) {
    return QStringLiteral("O arquivo que já existe está protegido: escolha outro nome.");
  }
  return QStringLiteral(
      "Confira se há espaço no disco e se a pasta ainda está disponível, e tente de novo.");
}

[[noreturn]] void Fail(const QString& path) {
  throw std::runtime_error(
      FromQt(QStringLiteral("Não foi possível gravar o PDF em \"%1\". %2")
                 .arg(QDir::toNativeSeparators(path), Reason(QFileInfo(path)))));
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
  if (!file.open(QIODevice::WriteOnly)) Fail(name);
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
  if (!file.commit()) Fail(name);
}

}  // namespace desktop::reports
