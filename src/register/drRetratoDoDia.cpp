#include "register/drRetratoDoDia.h"

#include <algorithm>

#include "base/Numbers.h"
#include "frame/Valores.h"

namespace registers {

using base::Currency;
using platform::ReportAlign;
using platform::ReportFont;

namespace {

constexpr std::int32_t kLargura = platform::kA4SidewaysPaper.InnerWidth();
constexpr std::int32_t kLarguraDoGrupo = 4900;
constexpr std::int32_t kPasso = 255;      // From one bar to the next.
constexpr std::int32_t kMenorBarra = 15;  // Seen all the same.
constexpr ReportFont kTexto{.points = 8};
constexpr ReportFont kForte{.points = 9, .bold = true};

}  // namespace

drRetratoDoDia::drRetratoDoDia(const std::string& empresa, const std::string& titulo,
                               const std::vector<GrupoDeBarras>& grupos)
    : DataReport("drRetratoDoDia") {
  constexpr ReportFont kGrande{.points = 15, .bold = true};
  constexpr ReportFont kDestaque{.points = 11, .bold = true};
  constexpr ReportFont kMiudo{.points = 8};
  Title = "Imprimir retrato do dia";
  platform::ReportLayout desenho{
      .paper = platform::kA4SidewaysPaper,
      .bands = {{CabecalhoDaPagina, 750}, {Barras, 300}, {RodapeDaPagina, 390}},
      .places = {
          {lblNomeFantasiaDaEmpresa, {0, 0, 7500, 345}, "", kGrande},
          {lblTitulo, {7500, 45, kLargura - 7500, 300}, "", kDestaque, ReportAlign::kRight},
          {lblEmissao,
           {7500, 375, kLargura - 7500, 240},
           "Emitido em %d às %t",
           kTexto,
           ReportAlign::kRight},
          {linGrupos, {0, 675, kLargura, 0}},
          {linRodape, {0, 90, kLargura, 0}},
          {lblTituloDoAplicativo, {0, 150, 9000, 240}, "", kMiudo},
      }};
  std::int32_t esquerda = 0;
  for (const GrupoDeBarras& grupo : grupos) {
    Desenhar(grupo, esquerda, desenho);
    esquerda += kLarguraDoGrupo + (kLargura - 3 * kLarguraDoGrupo) / 2;
  }
  Arrange(desenho);
  lblNomeFantasiaDaEmpresa.Caption = empresa;
  lblTitulo.Caption = titulo;
  lblTituloDoAplicativo.Caption = frame::valores().NomeDaAplicacao;
}

void drRetratoDoDia::Desenhar(const GrupoDeBarras& grupo, std::int32_t esquerda,
                              platform::ReportLayout& desenho) {
  constexpr std::int32_t kRotulo = 1500, kValor = 1150, kAltura = 150;
  constexpr std::int32_t kMaiorBarra = kLarguraDoGrupo - kRotulo - kValor - 120;
  const auto escrever = [&](const std::string& palavras, const platform::Place::Box& caixa,
                            const ReportFont& letra, ReportAlign lado) {
    const std::string nome = "lbl" + std::to_string(textos_.size() + 1);
    desenho.places.push_back(
        {textos_.emplace_back(Barras, nome), caixa, palavras_.emplace_back(palavras), letra, lado});
  };
  Currency maior, soma;
  for (const Barra& barra : grupo.barras) {
    maior = std::max(maior, barra.valor);
    soma += barra.valor;
  }
  std::int32_t alto = 90;
  const std::int32_t inicioDoValor = esquerda + kLarguraDoGrupo - kValor;
  escrever(grupo.titulo, {esquerda, alto, kLarguraDoGrupo - kValor, 240}, kForte,
           ReportAlign::kLeft);
  escrever(base::FormatMoney(soma), {inicioDoValor, alto, kValor, 240}, kForte,
           ReportAlign::kRight);
  alto += 360;
  for (const Barra& barra : grupo.barras) {
    escrever(barra.rotulo, {esquerda, alto, kRotulo, 210}, kTexto, ReportAlign::kLeft);
    escrever(base::FormatMoney(barra.valor), {inicioDoValor, alto, kValor, 210}, kTexto,
             ReportAlign::kRight);
    if (barra.valor > Currency()) {
      const double parte = base::ToDouble(barra.valor) / base::ToDouble(maior);
      const auto largura = static_cast<std::int32_t>(parte * kMaiorBarra);
      const std::string nome = "bar" + std::to_string(barras_.size() + 1);
      desenho.places.push_back(
          {barras_.emplace_back(Barras, nome),
           {esquerda + kRotulo + 60, alto + 30, std::max(largura, kMenorBarra), kAltura}});
    }
    alto += kPasso;
  }
}

}  // namespace registers
