#include <gtest/gtest.h>

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/ReportPages.h"
#include "siblings/NotaPromissoria.h"
#include "siblings/drNotaPromissoria.h"

namespace siblings {
namespace {

NotaPromissoria Note(const Empresa& company) {
  return RedigirNotaPromissoria(company,
                                {.nome = "Eduardo Sampaio Leal",
                                 .documento = "999.000.105-38",
                                 .endereco = "Rua das Acácias, 88 - Vale Claro/SP"},
                                "12-1/2", {2026, 11, 22}, {2026, 12, 1}, base::ToCurrency("350,5"));
}

TEST(NotaPromissoriaTest, WhatIsNotRegisteredLeavesNoGap) {
  const NotaPromissoria whole = Note({.nomeFantasia = "Bicho Contente",
                                      .razaoSocial = "Bicho Contente Ltda.",
                                      .cnpj = "99.000.100/0001-85",
                                      .municipio = "Vale Claro",
                                      .uf = "SP"});
  EXPECT_EQ(
      "Ao primeiro dia do mês de dezembro do ano de dois mil e vinte e seis, pagarei por esta "
      "única via de NOTA PROMISSÓRIA a Bicho Contente Ltda., CNPJ 99.000.100/0001-85, ou à sua "
      "ordem, a quantia de",
      whole.promessa);
  EXPECT_EQ("em moeda corrente deste país, pagável em Vale Claro/SP.", whole.praca);
  EXPECT_EQ("Vale Claro/SP, 22 de novembro de 2026", whole.localEData);

  const NotaPromissoria bare = Note({.nomeFantasia = "Bicho Contente"});
  EXPECT_TRUE(base::Contains(bare.promessa, "a Bicho Contente, ou à sua ordem"));
  EXPECT_EQ("em moeda corrente deste país.", bare.praca);
  EXPECT_EQ("22 de novembro de 2026", bare.localEData);
}

TEST(NotaPromissoriaTest, ItFitsHalfASheetAndTheRollWithoutLosingAWord) {
  const NotaPromissoria note =
      Note({.nomeFantasia = "Bicho",
            .razaoSocial = "Clínica Veterinária e Pet Shop Bicho Contente do Vale Claro Ltda.",
            .cnpj = "99.000.100/0001-85",
            .municipio = "Vale Claro",
            .uf = "SP"});
  for (const platform::Paper& paper : {platform::kA4Paper, platform::kRoll80Paper}) {
    const drNotaPromissoria report(paper, note);
    const platform::ReportPages pages =
        platform::Compose(report, platform::PlainMeasure(), {2026, 11, 22});
    ASSERT_EQ(1U, pages.pages.size());
    std::string printed;
    std::int32_t lowest = 0;
    for (const platform::PrintedText& each : pages.pages[0].texts) {
      printed += each.text + " ";
      lowest = std::max(lowest, each.top + each.height);
      EXPECT_LE(each.left + each.width, pages.paper.width - pages.paper.sideMargin) << each.text;
    }
    // Wrapped lines have lost their blanks; the words are all there.
    const std::string run = base::Replace(printed, " ", "");
    for (const std::string& words :
         {note.numero, note.vencimento, note.valor, note.promessa, "(" + note.quantia + ")",
          note.praca, note.localEData, note.emitente.nome, note.emitente.documento,
          note.emitente.endereco, std::string("Assinatura do emitente")}) {
      EXPECT_TRUE(base::Contains(run, base::Replace(words, " ", ""))) << words;
    }
    if (pages.paper.kind == platform::Paper::Kind::kA4) {
      EXPECT_LT(lowest, pages.paper.height / 2);
    }
  }
}

}  // namespace
}  // namespace siblings
