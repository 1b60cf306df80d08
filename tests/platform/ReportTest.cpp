// Reports: bands filled from rows, laid out on paper, told as text.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "base/Text.h"
#include "platform/ReportPages.h"
#include "platform/ReportTable.h"
#include "support/FakeDesktop.h"
#include "support/Table.h"

namespace {

using namespace platform;

/// Sales by register and customer, on a sheet of the height that a test wants.
class drVendas final : public DataReport {
 public:
  explicit drVendas(Paper paper = kA4Paper) : DataReport("drVendas") {
    using enum ReportAlign;
    Title = "Vendas";
    Arrange({paper,
             {{Cabecalho, 400}, {RodapeDoCaixa, 300}, {RodapeDaPagina, 300}},
             {{lblTitulo, {0, 0, 4050, 400}, "Vendas de %d às %t", {12, true}, kCenter},
              {lblItem, {0, 0, 1800, 220}, "Item"},
              {lblValor, {2250, 0, 1800, 220}, "Valor", {}, kRight},
              {linhaDoTitulo, {0, 220, 4050, 0}},
              {txtCaixa, {0, 0, 2000, 220}, "Caixa", {9, true}},
              {totalAFrente, {2250, 0, 1800, 220}, "Valor", {}, kRight},
              {txtCliente, {180, 0, 2700, 220}, "Cliente"},
              {txtItem, {360, 0, 1800, 220}, "Item", {}, kLeft, true},
              {txtValor, {2250, 0, 1800, 220}, "Valor", {}, kRight},
              {txtObservacao, {540, 220, 2700, 0}, "Observacao", {}, kLeft, true},
              {quadro, {0, 0, 4050, 220}},
              {lblDoCliente, {180, 0, 1800, 220}, "Total do cliente"},
              {rptfCliente, {2250, 0, 1800, 220}, "Valor", {}, kRight},
              {txtDoCaixa, {0, 0, 1800, 220}, "Caixa"},
              {rptfCaixa, {2250, 0, 1800, 220}, "Valor", {}, kRight},
              {rptfTotal, {2250, 0, 1800, 220}, "Valor", {}, kRight},
              {txtDaPagina, {0, 0, 1800, 220}, "Caixa"},
              {lblPagina, {2250, 0, 1800, 220}, "%p/%P", {}, kRight}}});
    txtValor.DataFormat = "#,##0.00";
    quadro.Visible = false;
  }

  ReportSection Cabecalho{*this, "Cabecalho", Band::kReportHeader};
  ReportLabel lblTitulo{Cabecalho, "lblTitulo"};
  ReportSection CabecalhoDaPagina{*this, "CabecalhoDaPagina", Band::kPageHeader};
  ReportLabel lblItem{CabecalhoDaPagina, "lblItem"};
  ReportLabel lblValor{CabecalhoDaPagina, "lblValor"};
  ReportLine linhaDoTitulo{CabecalhoDaPagina, "linhaDoTitulo"};
  ReportSection CabecalhoDoCaixa{*this, "CabecalhoDoCaixa", Band::kGroupHeader, "Caixa"};
  ReportText txtCaixa{CabecalhoDoCaixa, "txtCaixa"};
  ReportSum totalAFrente{CabecalhoDoCaixa, "totalAFrente"};
  ReportSection CabecalhoDoCliente{*this, "CabecalhoDoCliente", Band::kGroupHeader, "Cliente"};
  ReportText txtCliente{CabecalhoDoCliente, "txtCliente"};
  ReportSection Detalhes{*this, "Detalhes", Band::kDetail};
  ReportBox quadro{Detalhes, "quadro"};
  ReportText txtItem{Detalhes, "txtItem"};
  ReportText txtValor{Detalhes, "txtValor"};
  ReportText txtObservacao{Detalhes, "txtObservacao"};
  ReportSection RodapeDoCliente{*this, "RodapeDoCliente", Band::kGroupFooter, "Cliente"};
  ReportLabel lblDoCliente{RodapeDoCliente, "lblDoCliente"};
  ReportSum rptfCliente{RodapeDoCliente, "rptfCliente"};
  ReportSection RodapeDoCaixa{*this, "RodapeDoCaixa", Band::kGroupFooter, "Caixa"};
  ReportText txtDoCaixa{RodapeDoCaixa, "txtDoCaixa"};
  ReportSum rptfCaixa{RodapeDoCaixa, "rptfCaixa"};
  ReportSection RodapeDoRelatorio{*this, "RodapeDoRelatorio", Band::kReportFooter};
  ReportSum rptfTotal{RodapeDoRelatorio, "rptfTotal"};
  ReportSection RodapeDaPagina{*this, "RodapeDaPagina", Band::kPageFooter};
  ReportText txtDaPagina{RodapeDaPagina, "txtDaPagina"};
  ReportLabel lblPagina{RodapeDaPagina, "lblPagina"};

  void Add(std::string_view caixa, std::string_view cliente, std::string_view item,
           base::Value valor, base::Value observacao = {}) {
    if (!DataSource) {
      DataSource = std::make_shared<base::RecordSet>(
          std::vector<std::string>{"Caixa", "Cliente", "Item", "Valor", "Observacao"});
    }
    DataSource->Append({caixa, cliente, item, std::move(valor), std::move(observacao)});
  }
};

constexpr std::string_view kTable = R"(
 1 | Ana   | Banho                       |   40,00 |
 1 | Ana   | Ração para filhotes Premium | 1234,50 | Entregar na portaria até as 18 h, sem falta.
 1 | Bento | Tosa                        |   60,00 |
 2 | Bento | Paracetamolacetilsalicílico |    0,10 | Uma.\n\nDuas.
 2 | Bento | Coleira                     |         |
)";

void AddTable(drVendas& report) {
  for (const auto& row : support::Table(kTable)) {
    const base::Value valor = row[3].empty() ? base::Value() : base::ToCurrency(row[3]);
    report.Add("Caixa " + row[0], row[1], row[2], valor, base::Replace(row[4], "\\n", "\r\n"));
  }
}

using Texts = std::vector<std::string>;

ReportPages Composed(const DataReport& report) {
  return Compose(report, PlainMeasure(), base::DateTime(2026, 11, 22, 9, 5));
}

/// The pages, parted by "=====" lines, an empty line before them.
std::string Text(const ReportPages& pages) {
  std::string all = "\n";
  for (const std::string& page : AsText(pages)) {
    if (all.size() > 1) all += "=====\n";
    all += page;
  }
  return all;
}

/// The names of the sections in the order printed.
std::string Sections(const ReportPages& pages) {
  std::vector<std::string> names;
  for (const PrintedSection& each : pages.sections) names.push_back(each.name);
  return support::Joined(names);
}

/// What all printings of one control say, in order.
std::vector<std::string> Said(const ReportPages& pages, std::string_view control) {
  std::vector<std::string> all;
  for (const PrintedSection& section : pages.sections) {
    for (const auto& [name, text] : section.controls) {
      if (name == control) all.push_back(text);
    }
  }
  return all;
}

/// The lines on the pages that begin with these words, in order.
Texts OnPages(const ReportPages& pages, std::string_view begin) {
  Texts all;
  for (const ReportPage& page : pages.pages) {
    for (const PrintedText& text : page.texts) {
      if (text.text.starts_with(begin)) all.push_back(text.text);
    }
  }
  return all;
}

/// Every text lies between the margins of its page, and on none of those printed next.
void CheckPage(const ReportPage& page) {
  const std::vector<PrintedText>& texts = page.texts;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const PrintedText& text = texts[i];
    EXPECT_GE(text.top, 200) << text.text;
    EXPECT_LE(text.top + text.height, page.height - 200) << text.text;
    for (std::size_t k = i + 1; k < std::min(i + 30, texts.size()); ++k) {
      const PrintedText& other = texts[k];
      const bool beside =
          text.left + text.width <= other.left || other.left + other.width <= text.left;
      const bool above =
          text.top + text.height <= other.top || other.top + other.height <= text.top;
      if (!beside && !above) ADD_FAILURE() << text.text << " lies on " << other.text;
    }
  }
}

std::string Numbered(std::size_t last) {
  return std::to_string(last) + "/" + std::to_string(last);
}

Paper Sheet(std::int32_t height) {
  return {Paper::Kind::kA4, 4950, height, 450, 200};
}

TEST(Report, PrintsGroupsSumsAndGrowingTextsOnARoll) {
  drVendas report(kRoll80Paper);
  AddTable(report);
  EXPECT_EQ(Text(Composed(report)), R"(
        Vendas de 22/11/2026 às 09:05

Item                                    Valor
---------------------------------------------
Caixa 1                              1.334,50
  Ana
    Banho                               40,00
    Ração para filhotes              1.234,50
    Premium
      Entregar na portaria até as 18
      h, sem falta.
  Total do cliente                   1.274,50
  Bento
    Tosa                                60,00
  Total do cliente                      60,00
Caixa 1                              1.334,50
Caixa 2                                  0,10
  Bento
    Paracetamolacetilsal                 0,10
    icílico
      Uma.

      Duas.
    Coleira
  Total do cliente                       0,10
Caixa 2                                  0,10
                                     1.334,60
Caixa 1                                   1/1
)");
}

TEST(Report, BreaksAcrossPages) {
  drVendas report(Sheet(3000));
  AddTable(report);
  EXPECT_EQ(Text(Composed(report)), R"(
        Vendas de 22/11/2026 às 09:05

Item                                    Valor
---------------------------------------------
Caixa 1                              1.334,50
  Ana
    Banho                               40,00
    Ração para filhotes              1.234,50
    Premium
      Entregar na portaria até as 18
      h, sem falta.

Caixa 1                                   1/4
=====
Item                                    Valor
---------------------------------------------
  Total do cliente                   1.274,50
  Bento
    Tosa                                60,00
  Total do cliente                      60,00
Caixa 1                              1.334,50

Caixa 1                                   2/4
=====
Item                                    Valor
---------------------------------------------
Caixa 2                                  0,10
  Bento
    Paracetamolacetilsal                 0,10
    icílico
      Uma.

      Duas.
    Coleira
  Total do cliente                       0,10

Caixa 2                                   3/4
=====
Item                                    Valor
---------------------------------------------
Caixa 2                                  0,10
                                     1.334,60

Caixa 2                                   4/4
)");
}

TEST(Report, SaysWhatItPrintedInOrder) {
  drVendas report(kRoll80Paper);
  AddTable(report);
  report.RodapeDoCaixa.Visible = false;
  report.lblDoCliente.Visible = false;
  const ReportPages pages = Composed(report);
  EXPECT_EQ(Sections(pages),
            "Cabecalho, CabecalhoDaPagina, CabecalhoDoCaixa, CabecalhoDoCliente, Detalhes, "
            "Detalhes, RodapeDoCliente, CabecalhoDoCliente, Detalhes, RodapeDoCliente, "
            "CabecalhoDoCaixa, CabecalhoDoCliente, Detalhes, Detalhes, RodapeDoCliente, "
            "RodapeDoRelatorio, RodapeDaPagina");
  EXPECT_EQ(Said(pages, "totalAFrente"), (Texts{"1.334,50", "0,10"}));
  EXPECT_EQ(Said(pages, "txtValor"), (Texts{"40,00", "1.234,50", "60,00", "0,10", ""}));
  EXPECT_EQ(Said(pages, "rptfCliente"), (Texts{"1.274,50", "60,00", "0,10"}));
  EXPECT_EQ(Said(pages, "lblDoCliente"), Texts());
  EXPECT_EQ(Said(pages, "txtObservacao")[3], "Uma.\n\nDuas.");
  EXPECT_EQ(pages.pages.size(), 1U);
  EXPECT_TRUE(report.DataSource->Eof());
}

TEST(Report, AGroupThatIsHiddenPartsThoseWithinIt) {
  drVendas report;
  report.Add("1", "Bento", "Tosa", 60.0);
  report.Add("2", "Bento", "Coleira", 25.0);
  report.CabecalhoDoCaixa.Visible = report.RodapeDoCaixa.Visible = false;
  EXPECT_EQ(Said(Composed(report), "rptfCliente"), (Texts{"60,00", "25,00"}));
}

TEST(Report, WithoutRowsPrintsTheHeadersAndFootersAlone) {
  drVendas report;
  constexpr std::string_view kBare =
      "Cabecalho, CabecalhoDaPagina, RodapeDoRelatorio, RodapeDaPagina";
  EXPECT_EQ(Sections(Composed(report)), kBare);
  report.DataSource = std::make_shared<base::RecordSet>(std::vector<std::string>{"Item"});
  EXPECT_EQ(Sections(Composed(report)), kBare);
  EXPECT_EQ(Said(Composed(report), "rptfTotal"), Texts{"0,00"});
}

// Whatever the rows are and wherever the pages end, each row is printed once, nothing is cut by a
// page's end or lies on something else, and no header of a group is the last of its page.
TEST(Report, LosesAndDoublesNothingAtTheEndOfAPage) {
  for (std::size_t rows = 0; rows <= 200; rows += rows < 12 ? 1 : 47) {
    for (const std::int32_t height : {2400, 3000, 3777, 16838, 0}) {
      SCOPED_TRACE(std::to_string(rows) + " rows, height " + std::to_string(height));
      drVendas report(Sheet(height));
      Texts items;
      for (std::size_t i = 0; i < rows; ++i) {
        items.push_back("Item " + std::to_string(i));
        const std::string note(i * 31 % 97, 'x');
        report.Add(std::to_string(i / 9), std::to_string(i / 4), items.back(), 1.0, note);
      }
      const ReportPages pages = Composed(report);
      EXPECT_EQ(Said(pages, "txtItem"), items);
      EXPECT_EQ(OnPages(pages, "Item "), items);
      EXPECT_EQ(Said(pages, "rptfTotal"), Texts{base::FormatMoney(double(rows))});
      for (std::size_t i = 0; i + 1 < pages.sections.size(); ++i) {
        if (!pages.sections[i].name.starts_with("CabecalhoDoC")) continue;
        EXPECT_NE(pages.sections[i + 1].name, "RodapeDaPagina");
      }
      for (const ReportPage& page : pages.pages) CheckPage(page);
      EXPECT_EQ(Said(pages, "lblPagina").back(), Numbered(pages.pages.size()));
    }
  }
}

TEST(Report, BreaksASectionThatIsHigherThanAPageBetweenItsLines) {
  drVendas report(Sheet(3000));
  Texts lines;
  for (int i = 0; i < 40; ++i) lines.push_back("Linha " + std::to_string(i));
  std::string note;
  for (const std::string& line : lines) note += line + "\n";
  report.Add("1", "Ana", "Banho", 40.0, note);
  report.quadro.Visible = true;
  report.quadro.Height = 440;
  const ReportPages pages = Composed(report);
  EXPECT_EQ(OnPages(pages, "Linha "), lines);
  EXPECT_EQ(Said(pages, "txtItem"), Texts{"Banho"});
  EXPECT_GT(pages.pages.size(), 3U);
  EXPECT_EQ(pages.pages[0].texts.back().text, "1/" + std::to_string(pages.pages.size()));
  EXPECT_GT(pages.pages[0].texts.size(), 10U) << "no page is wasted";
  std::int32_t framed = 0;
  for (const ReportPage& page : pages.pages) {
    CheckPage(page);
    for (const PrintedRule& rule : page.rules)
      framed += rule.kind == platform::PrintedRule::Kind::kBox ? rule.height : 0;
  }
  EXPECT_EQ(framed, 440 + 41 * 216) << "the frame goes on over the pages";
}

TEST(Report, GoesOnWhereNothingFitsOnAPage) {
  drVendas report(Sheet(700));
  AddTable(report);
  const ReportPages pages = Composed(report);
  EXPECT_EQ(Said(pages, "txtValor").size(), 5U);
  EXPECT_LT(pages.pages.size(), 60U);
}

/// One section with what a test puts in it.
struct drNota : DataReport {
  drNota() : DataReport("drNota") {}
  ReportSection Folha{*this, "Folha", Band::kReportHeader};
};

/// What one label makes of a text in a place of ten characters by two lines; "/" for a line break.
std::string Lines(const std::string& words, ReportAlign align, bool canGrow) {
  drNota report;
  ReportLabel label(report.Folha, "label");
  label.Width = 900;
  label.Height = 432;
  label.align = align;
  label.canGrow = canGrow;
  label.Caption = base::Replace(words, "/", "\n");
  Texts lines;
  for (const ReportPage& page : Composed(report).pages) {
    for (const PrintedText& text : page.texts) lines.push_back(text.text);
  }
  return base::Replace(support::Joined(lines), ", ", "/");
}

TEST(Report, BringsTextsIntoTheirWidth) {
  for (const auto& row : support::Table(R"(
    cut   | Ração                     | Ração
    cut   | Ração seca                | Ração seca
    cut   | Ração secas               | Ração sec…
    cut   | Um/dois                   | Um/dois
    cut   | Um/dois/três              | Um/dois…
    cut   | Um/mais de nove/três      | Um/mais de n…
    grow  | Ração seca para gatos     | Ração seca/para gatos
    grow  | ãõçáéíóúâêôã é            | ãõçáéíóúâê/ôã é
    grow  | Um/dois/três              | Um/dois/três
    grow  | a  b         c            | a  b/c
    grow  | "            abc"          | abc
    right | 123.456.789,00            | 123.456.789,00
    right | R$ 123.456.789,00         | R$/123.456.789,00)")) {
    const bool isRight = row[0] == "right";
    EXPECT_EQ(Lines(row[1], isRight ? ReportAlign::kRight : ReportAlign::kLeft, row[0] != "cut"),
              row[2])
        << row[1];
  }
  EXPECT_EQ(Lines("123.456.789,00", ReportAlign::kRight, false), "123.456.789,00");
}

TEST(Report, KeepsNeighboursApartInItsText) {
  drNota report;
  ReportLabel name(report.Folha, "name"), amount(report.Folha, "amount");
  ReportLabel after(report.Folha, "after");
  amount.Left = 1000;
  after.Left = 1900;
  name.Width = amount.Width = after.Width = 900;
  amount.align = ReportAlign::kRight;
  name.Caption = "Fortaleza";
  amount.Caption = "1.234.567.890,00";
  after.Caption = "x";
  EXPECT_EQ(Text(Composed(report)), "\nFortaleza 1.234.567.890,00 x\n");
}

TEST(Report, WhatGrowsPushesDownWhatStandsBelowAndTheFrameAroundIt) {
  drNota report;
  ReportLabel tall(report.Folha, "tall"), beside(report.Folha, "beside");
  ReportLabel below(report.Folha, "below"), hidden(report.Folha, "hidden");
  ReportBox box(report.Folha, "box");
  ReportLine flat(report.Folha, "flat"), upright(report.Folha, "upright");
  const auto place = [](ReportControl& control, const Place::Box& at) {
    control.Left = at.left;
    control.Top = at.top;
    control.Width = at.width;
    control.Height = at.height;
  };
  place(tall, {0, 50, 900, 200});
  place(beside, {1000, 100, 900, 150});
  place(hidden, {2000, 50, 900, 200});
  place(below, {1000, 300, 900, 200});
  place(box, {0, 0, 3000, 280});
  place(flat, {0, 290, 3000, 0});
  place(upright, {950, 0, 0, 280});
  report.Folha.Height = 600;
  tall.canGrow = hidden.canGrow = true;
  tall.Caption = "1\n2\n3";
  hidden.Caption = "1\n2\n3\n4\n5";
  hidden.Visible = false;
  beside.Caption = below.Caption = "x";
  const ReportPage page = Composed(report).pages.front();
  constexpr std::int32_t kTop = 850;
  constexpr std::int32_t kGrowth = 3 * 216 - 200;
  ASSERT_EQ(page.texts.size(), 5U);
  EXPECT_EQ(page.texts[3].top, kTop + 100);
  EXPECT_EQ(page.texts[4].top, kTop + 300 + kGrowth);
  ASSERT_EQ(page.rules.size(), 3U);
  EXPECT_EQ(page.rules[0].height, 280 + kGrowth);
  EXPECT_EQ(page.rules[1].height, 280 + kGrowth);
  EXPECT_EQ(page.rules[2].top, kTop + 290 + kGrowth);
}

TEST(Report, ReadsCodesInTheWordsOfItsLayoutAlone) {
  drVendas report(Sheet(0));
  report.lblPagina.DesignWords("%p de %P, 5%, 100%%, %d %t %x%");
  EXPECT_EQ(Said(Composed(report), "lblPagina"), Texts{"1 de 1, 5%, 100%, 22/11/2026 09:05 %x%"});
  report.lblPagina.Caption = "Desconto de 10%do total";
  EXPECT_EQ(Said(Composed(report), "lblPagina"), Texts{"Desconto de 10%do total"});
}

TEST(Report, IsSavedAsTextThatNoSpreadsheetTakesForAFormula) {
  const auto rows = std::make_shared<base::RecordSet>(std::vector<std::string>{"a", "b"});
  rows->Append({"=1+1", base::ToCurrency("-28,1")});
  rows->Append({"-2", base::Null{}});
  rows->Append({"diz \"oi\";\nsai", base::DateTime(2026, 11, 22)});
  EXPECT_EQ(AsCsv({{{"@A", "a"}, {"B", "b"}}, rows}),
            "\xEF\xBB\xBF'@A;B\r\n'=1+1;-28,1\r\n'-2;\r\n\"diz \"\"oi\"\";\nsai\";22/11/2026\r\n");
}

TEST(Report, FailsOnAFieldThatTheRowsDoNotHave) {
  drVendas report;
  report.Add("1", "Ana", "Banho", "caro");
  const auto compose = [&] { return support::ResultOf([&] { return Composed(report).name; }); };
  EXPECT_EQ(compose(), "error 13") << "no sum of words";
  for (ReportSum* sum : {&report.totalAFrente, &report.rptfCliente, &report.rptfCaixa}) {
    sum->Visible = false;
  }
  report.rptfTotal.DataField = "Nada";
  EXPECT_EQ(compose(), "error 9");
  report.rptfTotal.Visible = false;
  EXPECT_EQ(compose(), "drVendas");
  EXPECT_EQ(Said(Composed(report), "txtValor"), Texts{"caro"}) << "a mask is for numbers";
  report.txtItem.DataField = "Nada";
  EXPECT_EQ(compose(), "error 9");
}

TEST(Report, GoesToTheDesktopToBeShownOrPrinted) {
  support::FakeDesktop desktop;
  desktop.paper = kRoll80Paper;
  drVendas report(Desktop::Current().ReceiptPaper());
  report.Show();
  report.PrintReport();
  const auto reports = desktop.TakeReports();
  ASSERT_EQ(reports.size(), 2U);
  EXPECT_FALSE(reports[0].isPrinted);
  EXPECT_TRUE(reports[1].isPrinted);
  EXPECT_EQ(reports[0].pages.title, "Vendas");
  EXPECT_EQ(reports[0].pages.paper.kind, Paper::Kind::kRoll80);
}

}  // namespace
