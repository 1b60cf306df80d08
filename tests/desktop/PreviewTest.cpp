#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <cstdint>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "desktop/Convert.h"
#include "desktop/Stage.h"
#include "desktop/reports/Pdf.h"
#include "desktop/reports/QtMeasure.h"
#include "desktop/reports/Spreadsheet.h"
#include "desktop/reports/frmSalvarDocumento.h"
#include "desktop/reports/frmVisualizacao.h"
#include "platform/Screens.h"
#include "register/drDeCaixas.h"
#include "support/Receipt.h"
#include "support/TemporaryFolder.h"

namespace {

using desktop::ToQt;
using desktop::reports::frmSalvarDocumento;
using desktop::reports::frmVisualizacao;

/// What a program of the outside tells of a PDF.
QString Told(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  process.waitForFinished();
  return QString::fromUtf8(process.readAllStandardOutput());
}
QString InfoOf(const QString& path, const QString& name) {
  const QString info = Told(QStringLiteral("pdfinfo"), {path});
  return QRegularExpression(name + QStringLiteral(":\\s+(.*)")).match(info).captured(1).trimmed();
}
QString TextOf(const QString& path) {
  return Told(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
}

class PreviewTest : public stage::Stage {
 protected:
  static frmVisualizacao& Preview() {
    return dynamic_cast<frmVisualizacao&>(*platform::screens::Modal());
  }
  static frmSalvarDocumento& Saving() {
    return dynamic_cast<frmSalvarDocumento&>(*platform::screens::Modal());
  }
  static bool IsUp(std::string_view name) {
    return platform::screens::Modal() != nullptr && platform::screens::Modal()->Name() == name;
  }
  static std::string Page() { return Preview().lblPagina.Caption(); }
  static std::string Zoom() { return Preview().lblTamanho.Caption(); }
  void Show(platform::DataReport& report) {
    platform::input::Run([&] { report.Show(); });
    EXPECT_TRUE(AllDone());
    EXPECT_EQ(platform::screens::Modal(), nullptr);
    EXPECT_EQ(desktop->DimCount(handle), 0);
  }
  QStringList Files() const {
    return QDir(ToQt(folder.Path().string())).entryList(QDir::Files, QDir::Name);
  }
  QString PathOf(const QString& name) const { return ToQt(folder.Path().string()) + u'/' + name; }

  support::TemporaryFolder folder;
};

TEST_F(PreviewTest, TheKeyboardPagesZoomsAndCloses) {
  const auto receipt = support::ReceiptOf(100);
  Then({[&] {
          EXPECT_EQ(Preview().Title(), "Imprimir comprovante de pagamento de venda");
          EXPECT_EQ(desktop->DimCount(handle), 1);
          EXPECT_EQ(Focus().objectName(), QStringLiteral("zvcmdImprimir"));
          EXPECT_EQ(Page(), "Página 1 de 3");
          EXPECT_EQ(Zoom(), "100%");
          for (const platform::Control* control : Preview().Controls()) {
            if (control->GetKind() != platform::Kind::kCommandButton) continue;
            EXPECT_FALSE(WidgetOf(*control).accessibleName().isEmpty()) << control->Name();
          }
        },
        [] { Key(Qt::Key_PageDown); }, [] { Key(Qt::Key_PageDown); },
        [] {
          EXPECT_EQ(Page(), "Página 2 de 3");
          Key(Qt::Key_End);
        },
        [] {
          EXPECT_EQ(Page(), "Página 3 de 3");
          Type("+");
        },
        [] {
          EXPECT_EQ(Zoom(), "110%");
          EXPECT_EQ(Page(), "Página 3 de 3");
          Type("--");
        },
        [&] {
          EXPECT_EQ(Zoom(), "90%");
          Click(Preview().zvcmdAnterior);
        },
        [] {
          EXPECT_EQ(Page(), "Página 2 de 3");
          Key(Qt::Key_Home);
        },
        [&] {
          EXPECT_EQ(Page(), "Página 1 de 3");
          Click(Preview().zvcmdPaginaInteira);
          EXPECT_LT(WidgetOf(Preview().picPaginas).height(), 768);
        },
        [&] {
          // All of a sheet is in sight: it is no longer read at its full size.
          EXPECT_LT(base::ToDouble(Zoom().substr(0, 2)), 70);
          host->resize(800, 600);
          EXPECT_EQ(Preview().Width(), (800 - 36) * 15);
          EXPECT_FALSE(Preview().lblTamanho.Visible());
          Key(Qt::Key_Escape);
        }});
  Show(*receipt);
}

TEST_F(PreviewTest, PrintsIntoNumberedFilesOfAFolder) {
  desktop->UsePrinting({.paper = platform::kRoll80Paper,
                        .printer = "pdf:" + folder.File("impressos"),
                        .saveAs = {}});
  const auto receipt = support::ReceiptOf(12, desktop->ReceiptPaper());
  receipt->PrintReport();
  Then({[] { Key(Qt::Key_Return); }});
  Show(*receipt);
  const QString path = PathOf(QStringLiteral("impressos/"));
  EXPECT_EQ(QDir(path).entryList(QDir::Files, QDir::Name),
            (QStringList{QStringLiteral("0001 Comprovante de pagamento de venda.pdf"),
                         QStringLiteral("0002 Comprovante de pagamento de venda.pdf")}));
  const QString last = path + QStringLiteral("0002 Comprovante de pagamento de venda.pdf");
  EXPECT_EQ(InfoOf(last, QStringLiteral("Pages")), QStringLiteral("1"));
  EXPECT_TRUE(InfoOf(last, QStringLiteral("Page size")).startsWith(QStringLiteral("227 x ")));
  const QString text = TextOf(last);
  EXPECT_TRUE(text.contains(QStringLiteral("Vacina múltipla 11"))) << desktop::FromQt(text);
  EXPECT_TRUE(text.contains(QStringLiteral("935,22")));  // The sum of all lines.
}

TEST_F(PreviewTest, SavesAPdfWhereTheOperatorSays) {
  const auto receipt = support::ReceiptOf(100);
  Then({[] { Key(Qt::Key_S, Qt::ControlModifier); },
        [&] {
          EXPECT_EQ(Focus().objectName(), QStringLiteral("zvtxtNome"));
          Saving().zvtxtPasta.Text = folder.File("não existe");
          Type("venda 1024");
          Key(Qt::Key_Return);
        },
        [&] {
          EXPECT_TRUE(desktop->Box()->Text().contains(QStringLiteral("pasta não existe")));
          Reply(platform::Answer::kOk);
        },
        [&] {
          Saving().zvtxtPasta.Text = folder.Path().string();
          Click(Saving().zvcmdSalvar);
        },
        [] {
          EXPECT_TRUE(IsUp("frmVisualizacao"));
          Key(Qt::Key_Escape);
        }});
  Show(*receipt);
  ASSERT_EQ(Files(), QStringList{QStringLiteral("venda 1024.pdf")});
  const QString path = PathOf(Files().front());
  EXPECT_EQ(InfoOf(path, QStringLiteral("Title")),
            QStringLiteral("Imprimir comprovante de pagamento de venda"));
  EXPECT_EQ(InfoOf(path, QStringLiteral("Pages")), QStringLiteral("3"));
  EXPECT_TRUE(InfoOf(path, QStringLiteral("Page size")).endsWith(QStringLiteral("(A4)")));
  const QString text = TextOf(path);
  for (int line = 1; line <= 100; ++line) {
    if (line % 10 == 2) continue;
    EXPECT_TRUE(text.contains(QStringLiteral("Vacina múltipla %1 ").arg(line))) << line;
  }
}

TEST_F(PreviewTest, WithoutItsPrinterADocumentComesOnTheScreen) {
  desktop->UsePrinting({.paper = platform::kA4Paper, .printer = "Balcão", .saveAs = {}});
  const auto receipt = support::ReceiptOf(1);
  const auto told = [&] {
    ASSERT_NE(desktop->Box(), nullptr);
    EXPECT_TRUE(desktop->Box()->Text().startsWith(
        QStringLiteral("A impressora \"Balcão\" não foi encontrada")));
    Key(Qt::Key_Return);
  };
  Then({told, [] { Key(Qt::Key_P, Qt::ControlModifier); }, told,
        [] {
          EXPECT_TRUE(IsUp("frmVisualizacao"));
          Key(Qt::Key_Escape);
        }});
  platform::input::Run([&] { receipt->PrintReport(); });
  EXPECT_TRUE(AllDone());
  EXPECT_EQ(platform::screens::Modal(), nullptr);
}

TEST_F(PreviewTest, AFileThatCannotBeReplacedStaysWhole) {
  const auto pages = platform::Compose(*support::ReceiptOf(1), desktop::reports::QtMeasure(),
                                       base::DateTime(2026, 11, 22));
  const auto fault = [&](const std::string& file) -> std::string {
    try {
      desktop::reports::WritePdf(pages, folder.File(file));
    } catch (const std::runtime_error& failure) {
      return failure.what();
    }
    return "";
  };
  EXPECT_TRUE(base::Contains(fault("falta/venda.pdf"), "A pasta não existe"));
  // A folder of that name cannot be replaced, and nothing else is left beside it.
  QDir().mkpath(PathOf(QStringLiteral("venda.pdf")));
  EXPECT_TRUE(base::Contains(fault("venda.pdf"), "Já existe uma pasta com este nome"));
  EXPECT_TRUE(Files().isEmpty());
}

/// Nothing on the first page is cut, leaves the paper or comes nearer to its neighbour than `gap`
/// twips, in the faces that it is printed in.
void ExpectAllIsSeen(const platform::DataReport& report, std::int32_t gap) {
  const desktop::reports::QtMeasure measure;
  const auto pages = platform::Compose(report, measure, base::DateTime(2026, 11, 22));
  const platform::Paper& paper = pages.paper;
  const auto left = [&](const platform::PrintedText& text) {
    const std::int32_t spare = text.width - measure.Width(text.text, text.font);
    if (text.align == platform::ReportAlign::kLeft) return text.left;
    return text.left + (text.align == platform::ReportAlign::kRight ? spare : spare / 2);
  };
  const auto right = [&](const platform::PrintedText& text) {
    return left(text) + measure.Width(text.text, text.font);
  };
  const std::vector<platform::PrintedText>& texts = pages.pages.front().texts;
  for (const platform::PrintedText& text : texts) {
    EXPECT_FALSE(base::Contains(text.text, "…")) << text.text;
    EXPECT_GE(left(text), paper.sideMargin) << text.text;
    EXPECT_LE(right(text), paper.width - paper.sideMargin) << text.text;
    for (const platform::PrintedText& other : texts) {
      if (other.top + other.height <= text.top || text.top + text.height <= other.top) continue;
      const bool apart = right(text) + gap <= left(other) || right(other) + gap <= left(text);
      EXPECT_TRUE(&other == &text || apart) << text.text << " touches " << other.text;
    }
  }
}

// A line of the longest names and the highest amounts.
TEST_F(PreviewTest, OnAReceiptNothingIsCutTouchesOrLeavesThePaper) {
  for (const platform::Paper& paper : {platform::kA4Paper, platform::kRoll80Paper}) {
    const auto receipt = support::ReceiptOf(1, paper);
    const base::Currency much = base::ToCurrency("1234567,89");
    receipt->DataSource->Append({base::DateTime(2026, 11, 22), std::string(60, 'W'),
                                 std::string(90, 'W'), base::ToCurrency("0,255"), "FRASCO", much,
                                 much, much});
    receipt->lblNomeFantasiaDaEmpresa.Caption = "Clínica " + std::string(90, 'W');
    receipt->lblCodigoENomeOuRazaoSocialDoCliente.Caption = std::string(120, 'W');
    receipt->txtTotalDosServicosEProdutos.Caption = base::FormatMoney(much);
    constexpr std::int32_t kMillimetre = 57;
    ExpectAllIsSeen(*receipt, kMillimetre);
  }
}

/// A summary of one day whose every amount is the largest, as rows of the report.
base::RecordSetPtr LargestDay() {
  std::vector<std::string> names{"NumeroENomeDoCaixa"};
  std::vector<base::Value> day{"1 - =Recepção"};
  const registers::drDeCaixas report(registers::kResumoDeCaixas);
  for (const platform::ReportColumn& column : report.columns) {
    if (column.field == names.front()) continue;
    names.push_back(column.field);
    day.push_back(day.size() == 1 ? base::Value(base::DateTime(2026, 11, 22))
                                  : base::Value(base::ToCurrency("-9999999,99")));
  }
  auto rows = std::make_shared<base::RecordSet>(names);
  rows->Append(std::move(day));
  return rows;
}

TEST_F(PreviewTest, OnTheSummaryNothingIsCutTouchesOrLeavesThePaper) {
  registers::drDeCaixas summary(registers::kResumoDeCaixas);
  summary.Preencher(LargestDay(), "Clínica", "Período");
  ExpectAllIsSeen(summary, 1);
}

TEST_F(PreviewTest, ATableIsSavedWholeOrNotAtAll) {
  registers::drDeCaixas summary(registers::kResumoDeCaixas);
  summary.DataSource = LargestDay();
  const platform::ReportTable table = platform::TableOf(summary);
  const auto save = [&](const QString& file) -> std::string {
    try {
      desktop::reports::WriteTable(table, PathOf(file).toStdString());
    } catch (const std::runtime_error& failure) {
      return failure.what();
    }
    return "";
  };
  const auto read = [&](const QString& file) {
    QFile saved(PathOf(file));
    EXPECT_TRUE(saved.open(QIODevice::ReadOnly));
    return saved.readAll();
  };
  for (const QString& file : {QStringLiteral("dia.xlsx"), QStringLiteral("dia.csv")}) {
    EXPECT_EQ("", save(file));
    EXPECT_EQ("", save(file)) << "in place of the one before";
    EXPECT_TRUE(base::Contains(save("falta/" + file), "A pasta não existe"));
    QDir().mkpath(PathOf("pasta." + file));
    EXPECT_TRUE(base::Contains(save("pasta." + file), "Já existe uma pasta com este nome"));
  }
  EXPECT_TRUE(read(QStringLiteral("dia.xlsx")).startsWith("PK"));
  EXPECT_TRUE(read(QStringLiteral("dia.csv"))
                  .startsWith("\xEF\xBB\xBF"
                              "Caixa;Data;Abertura;"));
  EXPECT_TRUE(read(QStringLiteral("dia.csv"))
                  .contains("\r\n1 - =Recepção;22/11/2026;-9999999,99;-9999999,99;"));
}

TEST_F(PreviewTest, TheHostMayCloseMeanwhile) {
  const auto receipt = support::ReceiptOf(1);
  int unwound = 0;
  bool wentOn = false;
  Then({[&] { Click(Preview().zvcmdSalvar); },
        [&] {
          EXPECT_TRUE(IsUp("frmSalvarDocumento"));
          desktop->ShutDown([&] { ++unwound; });
        }});
  platform::input::Run([&] {
    receipt->Show();
    wentOn = true;
  });
  Settle();
  EXPECT_EQ(unwound, 1);
  EXPECT_FALSE(wentOn);
  EXPECT_EQ(platform::screens::Front(), nullptr);
}

}  // namespace
