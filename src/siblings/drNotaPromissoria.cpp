#include "siblings/drNotaPromissoria.h"

namespace siblings {

using platform::ReportAlign;
using platform::ReportFont;
using platform::ReportLayout;

namespace {

constexpr auto kAEsquerda = ReportAlign::kLeft;
constexpr auto kAoCentro = ReportAlign::kCenter;
constexpr bool kCresce = true;
constexpr std::string_view kTitulo = "NOTA PROMISSÓRIA";
constexpr std::string_view kAssinatura = "Assinatura do emitente";

}  // namespace

drNotaPromissoria::drNotaPromissoria(const platform::Paper& papel, const NotaPromissoria& nota)
    : DataReport("drNotaPromissoria") {
  Arrange(papel.kind == platform::Paper::Kind::kRoll80 ? EmBobina() : EmFolha());
  Title = "Nota promissória";
  lblNumero.Caption = nota.numero;
  lblVencimento.Caption = nota.vencimento;
  lblValor.Caption = nota.valor;
  lblPromessa.Caption = nota.promessa;
  lblQuantia.Caption = "(" + nota.quantia + ")";
  lblPraca.Caption = nota.praca;
  lblEmitente.Caption = nota.emitente.nome;
  lblDocumento.Caption = nota.emitente.documento;
  lblEndereco.Caption = nota.emitente.endereco;
  lblLocalEData.Caption = nota.localEData;
}

// Half a sheet, so that two notes can be cut out of one.
ReportLayout drNotaPromissoria::EmFolha() {
  constexpr ReportFont kGrande{.points = 18, .bold = true};
  constexpr ReportFont kForte{.points = 12, .bold = true};
  constexpr ReportFont kTexto{.points = 12};
  constexpr ReportFont kRotulo{.points = 10};
  return {.paper = platform::kA4Paper,
          .bands = {{Nota, 7200}},
          .places = {
              {boxNota, {0, 0, 10206, 7140}},
              {lblTitulo, {300, 270, 6000, 450}, kTitulo, kGrande},
              {boxValor, {6906, 225, 3000, 570}},
              {lblValor, {7006, 345, 2800, 360}, "", {.points = 14, .bold = true}, kAoCentro},
              {lblNumero, {300, 870, 3000, 300}, "", kForte},
              {lblVencimento, {4506, 870, 5400, 300}, "", kForte, ReportAlign::kRight},
              {linTitulo, {300, 1260, 9606, 0}},
              {lblPromessa, {300, 1440, 9606, 870}, "", kTexto, kAEsquerda, kCresce},
              {lblQuantia, {300, 2430, 9606, 330}, "", kForte, kAEsquerda, kCresce},
              {lblPraca, {300, 2850, 9606, 300}, "", kTexto, kAEsquerda, kCresce},
              {lblLocalEData, {300, 3540, 9606, 300}, "", kTexto, kAEsquerda, kCresce},
              {lblRotuloDoEmitente, {300, 4200, 1500, 285}, "Emitente:", kRotulo},
              {lblEmitente, {1800, 4170, 8106, 300}, "", kForte, kAEsquerda, kCresce},
              {lblRotuloDoDocumento, {300, 4575, 1500, 285}, "CPF/CNPJ:", kRotulo},
              {lblDocumento, {1800, 4545, 8106, 300}, "", kTexto},
              {lblRotuloDoEndereco, {300, 4950, 1500, 285}, "Endereço:", kRotulo},
              {lblEndereco, {1800, 4920, 8106, 300}, "", kTexto, kAEsquerda, kCresce},
              {linAssinatura, {2703, 6330, 4800, 0}},
              {lblAssinatura, {2703, 6390, 4800, 285}, kAssinatura, kRotulo, kAoCentro},
          }};
}

ReportLayout drNotaPromissoria::EmBobina() {
  // The roll is its own frame.
  boxNota.Visible = false;
  constexpr ReportFont kGrande{.points = 12, .bold = true};
  constexpr ReportFont kForte{.points = 9, .bold = true};
  constexpr ReportFont kTexto{.points = 9};
  constexpr ReportFont kRotulo{.points = 8};
  return {.paper = platform::kRoll80Paper,
          .bands = {{Nota, 6480}},
          .places = {
              {lblTitulo, {0, 0, 4081, 300}, kTitulo, kGrande, kAoCentro},
              {lblNumero, {0, 360, 4081, 240}, "", kForte, kAoCentro},
              {lblVencimento, {0, 630, 4081, 240}, "", kForte, kAoCentro, kCresce},
              {boxValor, {540, 960, 3001, 450}},
              {lblValor, {540, 1050, 3001, 285}, "", kGrande, kAoCentro},
              {linTitulo, {0, 1530, 4081, 0}},
              {lblPromessa, {0, 1620, 4081, 210}, "", kTexto, kAEsquerda, kCresce},
              {lblQuantia, {0, 1920, 4081, 240}, "", kForte, kAEsquerda, kCresce},
              {lblPraca, {0, 2220, 4081, 240}, "", kTexto, kAEsquerda, kCresce},
              {lblLocalEData, {0, 2730, 4081, 240}, "", kTexto, kAEsquerda, kCresce},
              {lblRotuloDoEmitente, {0, 3180, 4081, 210}, "Emitente", kRotulo},
              {lblEmitente, {0, 3390, 4081, 240}, "", kForte, kAEsquerda, kCresce},
              {lblRotuloDoDocumento, {0, 3720, 4081, 210}, "CPF/CNPJ", kRotulo},
              {lblDocumento, {0, 3930, 4081, 240}, "", kTexto},
              {lblRotuloDoEndereco, {0, 4260, 4081, 210}, "Endereço", kRotulo},
              {lblEndereco, {0, 4470, 4081, 240}, "", kTexto, kAEsquerda, kCresce},
              {linAssinatura, {240, 5850, 3601, 0}},
              {lblAssinatura, {240, 5910, 3601, 240}, kAssinatura, kRotulo, kAoCentro},
          }};
}

}  // namespace siblings
