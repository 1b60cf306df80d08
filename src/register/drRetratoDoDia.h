#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"
#include "platform/DataReport.h"

namespace registers {

/// A bar: what it is for, and how much.
struct Barra {
  std::string rotulo;
  base::Currency valor;
};

/// Bars under one title, in the order in which they are told.
struct GrupoDeBarras {
  std::string titulo;
  std::vector<Barra> barras;
};

/// The takings of a day by tender and by hour, and those of the last 30 days beside them: bars in
/// one ink, each with its amount in figures.
class drRetratoDoDia final : public platform::DataReport {
 public:
  /// Three groups; each stands in a column of its own, and its longest bar is the largest amount of
  /// it. What is below zero has no bar.
  drRetratoDoDia(const std::string& empresa, const std::string& titulo,
                 const std::vector<GrupoDeBarras>& grupos);

  platform::ReportSection CabecalhoDaPagina{*this, "CabecalhoDaPagina",
                                            platform::Band::kPageHeader};
  platform::ReportLabel lblNomeFantasiaDaEmpresa{CabecalhoDaPagina, "lblNomeFantasiaDaEmpresa"};
  platform::ReportLabel lblTitulo{CabecalhoDaPagina, "lblTitulo"};
  platform::ReportLabel lblEmissao{CabecalhoDaPagina, "lblEmissao"};
  platform::ReportLine linGrupos{CabecalhoDaPagina, "linGrupos"};
  platform::ReportSection Barras{*this, "Barras", platform::Band::kReportFooter};
  platform::ReportSection RodapeDaPagina{*this, "RodapeDaPagina", platform::Band::kPageFooter};
  platform::ReportLine linRodape{RodapeDaPagina, "linRodape"};
  platform::ReportLabel lblTituloDoAplicativo{RodapeDaPagina, "lblTituloDoAplicativo"};

 private:
  void Desenhar(const GrupoDeBarras& grupo, std::int32_t esquerda, platform::ReportLayout& desenho);

  std::deque<std::string> palavras_;
  std::deque<platform::ReportLabel> textos_;
  std::deque<platform::ReportBar> barras_;
};

}  // namespace registers
