#include "desktop/reports/Printing.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <algorithm>
#include <stdexcept>

#include "desktop/Convert.h"
#include "desktop/reports/Painting.h"
#include "desktop/reports/Pdf.h"

namespace desktop::reports {
namespace {

constexpr int kTwipsPerInch = 1440;
constexpr std::string_view kPdfPrefix = "pdf:";

/// The name of a document's file: its title without the command that it may begin with, and a blank
/// for what some file systems do not take.
QString Plain(const std::string& title) {
  static const QRegularExpression kUnfit(QStringLiteral(R"([\\/:*?"<>|\x00-\x1f]+)"));
  constexpr int kLongest = 80;
  QString name = ToQt(title);
  const QString command = QStringLiteral("Imprimir ");
  if (name.startsWith(command)) name.remove(0, command.size());
  name = name.replace(kUnfit, QStringLiteral(" ")).simplified().left(kLongest);
  return name.left(1).toUpper() + name.mid(1);
}

/// The next free file of the folder, held by an empty file so that two cash desks that print into
/// the same folder do not take the same number.
QString NextFile(const QDir& folder, const QString& title) {
  int last = 0;
  for (const QString& name : folder.entryList({QStringLiteral("*.pdf")}, QDir::Files)) {
    last = std::max(last, name.section(u' ', 0, 0).toInt());
  }
  constexpr int kTries = 100;
  for (int number = last + 1; number <= last + kTries; ++number) {
    QString path =
        folder.filePath(QStringLiteral("%1 %2.pdf").arg(number, 4, 10, QChar(u'0')).arg(title));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return path;
    if (!file.exists()) break;
  }
  throw std::runtime_error(
      FromQt(QStringLiteral("A pasta \"%1\", em que o caixa imprime, não permite gravar.")
                 .arg(QDir::toNativeSeparators(folder.path()))));
}

void PrintIntoFolder(const platform::ReportPages& report, const QDir& folder) {
  if (!folder.mkpath(QStringLiteral("."))) {
    throw std::runtime_error(
        FromQt(QStringLiteral("A pasta \"%1\", em que o caixa imprime, não pôde ser criada.")
                   .arg(QDir::toNativeSeparators(folder.path()))));
  }
  const QString path = NextFile(folder, Plain(report.title));
  try {
    WritePdf(report, FromQt(path));
  } catch (const std::runtime_error&) {
    QFile::remove(path);
    throw;
  }
}

/// The printer of that name, or the default one for an empty name.
QPrinterInfo PrinterNamed(const std::string& name) {
  if (!name.empty()) {
    const QPrinterInfo named = QPrinterInfo::printerInfo(ToQt(name));
    if (!named.isNull()) return named;
    throw std::runtime_error("A impressora \"" + name + "\" não foi encontrada neste computador.");
  }
  const QPrinterInfo usual = QPrinterInfo::defaultPrinter();
  if (!usual.isNull()) return usual;
  // A system with printers and no default one: the only one there is will be meant.
  const QList<QPrinterInfo> all = QPrinterInfo::availablePrinters();
  if (all.size() == 1) return all.front();
  throw std::runtime_error(all.isEmpty() ? "Não há impressora instalada neste computador."
                                         : "Nenhuma impressora deste computador é a padrão.");
}

void PrintOn(const QPrinterInfo& chosen, const platform::ReportPages& report) {
  QPrinter printer(chosen, QPrinter::HighResolution);
  printer.setDocName(ToQt(report.title));
  printer.setCreator(QStringLiteral("Caixa"));
  printer.setFullPage(true);
  QPainter painter;
  bool printed = true;
  for (const platform::ReportPage& page : report.pages) {
    printer.setPageLayout(LayoutOf(report.paper, page));
    printed = painter.isActive() ? printer.newPage() : painter.begin(&printer);
    if (!printed) break;
    PaintPage(painter, page, static_cast<double>(printer.resolution()) / kTwipsPerInch);
  }
  if (printed) printed = painter.end();
  if (!printed || printer.printerState() == QPrinter::Error) {
    printer.abort();
    throw std::runtime_error("A impressora \"" + FromQt(chosen.printerName()) +
                             "\" não aceitou o documento.");
  }
}

}  // namespace

void Print(const platform::ReportPages& report, const std::string& printer,
           const std::string& baseFolder) {
  if (printer.starts_with(kPdfPrefix)) {
    const QDir base(ToQt(baseFolder));
    const QString told = ToQt(printer.substr(kPdfPrefix.size()));
    return PrintIntoFolder(report, QDir(QDir::cleanPath(base.absoluteFilePath(told))));
  }
  PrintOn(PrinterNamed(printer), report);
}

std::string FileNameOf(const platform::ReportPages& report, base::DateTime now) {
  const auto two = [](int number) { return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0')); };
  return FromQt(QStringLiteral("%1 %2-%3-%4 %5h%6m%7")
                    .arg(Plain(report.title))
                    .arg(now.Year())
                    .arg(two(now.Month()), two(now.Day()), two(now.Hour()), two(now.Minute()),
                         two(now.Second())));
}

}  // namespace desktop::reports
