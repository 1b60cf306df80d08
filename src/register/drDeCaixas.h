#pragma once

#include <deque>
#include <span>
#include <string>
#include <string_view>

#include "platform/DataReport.h"

namespace registers {

/// A column of a cash report: its place on the page and its names in the report.
struct ColunaDoRelatorio {
  std::string_view titulo;
  std::int32_t largura = 0;    ///< Twips, the gap to the next column included.
  std::string_view controle;   ///< The text in the details.
  std::string_view campo;      ///< Its field.
  std::string_view soma = {};  ///< The sum in the group's footer; empty for none.
  bool valor = false;          ///< An amount, aligned to the right.
  bool numero = false;         ///< A whole number, aligned likewise.
};

/// What one cash report differs by from the other.
struct RelatorioDeCaixas {
  std::string_view nome, titulo;
  std::string_view rodapeDaPagina;  ///< The name of that section.
  std::int16_t letra = 7;           ///< Points.
  std::int32_t entreColunas = 60;   ///< Twips.
  std::span<const ColunaDoRelatorio> colunas;
  std::string_view legenda;
};

/// The registers' days or entries, a group for each register with its sums, on a sheet on its side.
class drDeCaixas final : public platform::DataReport {
 public:
  explicit drDeCaixas(const RelatorioDeCaixas& relatorio);

  platform::ReportSection CabecalhoDaPagina{*this, "CabecalhoDaPagina",
                                            platform::Band::kPageHeader};
  platform::ReportLabel lblNomeFantasiaDaEmpresa{CabecalhoDaPagina, "lblNomeFantasiaDaEmpresa"};
  platform::ReportLabel lblTitulo{CabecalhoDaPagina, "lblTitulo"};
  platform::ReportLabel lblPeriodo{CabecalhoDaPagina, "lblPeriodo"};
  platform::ReportLabel lblEmissao{CabecalhoDaPagina, "lblEmissao"};
  platform::ReportLine linColunas{CabecalhoDaPagina, "linColunas"};
  platform::ReportLine linDetalhes{CabecalhoDaPagina, "linDetalhes"};
  platform::ReportSection CabecalhoDoGrupo{*this, "CabecalhoDoGrupo", platform::Band::kGroupHeader,
                                           "NumeroENomeDoCaixa"};
  platform::ReportText txtCaixa{CabecalhoDoGrupo, "txtCaixa"};
  platform::ReportSection Detalhes{*this, "Detalhes", platform::Band::kDetail};
  platform::ReportSection RodapeDoGrupo{*this, "RodapeDoGrupo", platform::Band::kGroupFooter,
                                        "NumeroENomeDoCaixa"};
  platform::ReportLine linSomas{RodapeDoGrupo, "linSomas"};
  platform::ReportLabel lblSomas{RodapeDoGrupo, "lblSomas"};
  platform::ReportSection RodapeDoRelatorio{*this, "RodapeDoRelatorio",
                                            platform::Band::kReportFooter};
  /// The sums of all registers, where there are several.
  platform::ReportLine linTotais{RodapeDoRelatorio, "linTotais"};
  platform::ReportLabel lblTotais{RodapeDoRelatorio, "lblTotais"};
  platform::ReportLabel lblLegenda{RodapeDoRelatorio, "lblLegenda"};
  platform::ReportSection RodapeDaPagina;
  platform::ReportLine linRodape{RodapeDaPagina, "linRodape"};
  platform::ReportLabel lblTituloDoAplicativo{RodapeDaPagina, "lblTituloDoAplicativo"};
  platform::ReportLabel lblPagina{RodapeDaPagina, "lblPagina"};

  /// Writes the heads and the rows; `periodo` in its final form.
  void Preencher(const base::RecordSetPtr& linhas, const std::string& empresa,
                 const std::string& periodo);

 private:
  void Desenhar();

  const RelatorioDeCaixas& relatorio_;
  std::deque<platform::ReportLabel> titulos_;
  std::deque<platform::ReportText> textos_;
  std::deque<platform::ReportSum> somas_, totais_;
};

/// A line for each day of a register, with the movement by kind of money.
extern const RelatorioDeCaixas kResumoDeCaixas;
/// A line for each entry.
extern const RelatorioDeCaixas kLancamentosDeCaixas;

}  // namespace registers
