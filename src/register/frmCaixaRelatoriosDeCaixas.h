#pragma once

#include <cstdint>
#include <string>

#include "base/DateTime.h"
#include "frame/Procedimento.h"
#include "frame/servicos/ZOVA_N_RelFin.clsRelFin.h"
#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/OptionButton.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVPeriodBox.h"
#include "platform/ZVTheme.h"
#include "register/drDeCaixas.h"

namespace registers {

/// Prints what the registers did over a period: their days, or their entries. Besides, a page that
/// shows the last day of the period as bars.
class frmCaixaRelatoriosDeCaixas final : public platform::Form {
 public:
  frmCaixaRelatoriosDeCaixas();

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblTipoDeRelatorio{*this, "lblTipoDeRelatorio"};
  platform::OptionButton optTipoDeRelatorio0{*this, "optTipoDeRelatorio(0)"};
  platform::OptionButton optTipoDeRelatorio1{*this, "optTipoDeRelatorio(1)"};
  platform::Label lblCaixa{*this, "lblCaixa"};
  platform::ZVComboBox zvcmbCaixas{*this, "zvcmbCaixas"};
  platform::Label lblPeriodo{*this, "lblPeriodo"};
  platform::ZVPeriodBox zvPeriodo{*this, "zvPeriodo"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::Label lblObservacaoDeCamposObrigatorios{picRodape, "lblObservacaoDeCamposObrigatorios"};
  platform::ZVCommandButton zvcmdRetratoDoDia{picRodape, "zvcmdRetratoDoDia"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};
  platform::ZVCommandButton zvcmdImprimir{picRodape, "zvcmdImprimir"};
  platform::Shape lshpObj{*this, "lshpObj"};

  /// Shows the form until the operator is done. 0, or 1 after a fault of its own or without
  /// registers, which has been told.
  std::int16_t MontarExibirFormulario();

 private:
  using Selecao = std::int16_t (servicos::ZOVA_N_RelFin::clsRelFin::*)(std::string&, std::string&);

  void PreencherComboboxCaixas(std::int16_t& falha);
  std::int16_t ValidarCampos();
  /// Whether the two dates exist and are in order; the operator is told.
  bool PeriodoValido();
  std::int16_t CaixaSelecionado() const;
  void zvcmdImprimir_Click();
  void zvcmdRetratoDoDia_Click();

  void ImprimirResumoDeCaixas(std::int16_t numeroDoCaixa, const std::string& dataInicial,
                              const std::string& dataFinal);
  void ImprimirLancamentosDeCaixas(std::int16_t numeroDoCaixa, const std::string& dataInicial,
                                   const std::string& dataFinal);
  void Imprimir(std::string_view rotina, const RelatorioDeCaixas& relatorio, Selecao selecao,
                std::int16_t numeroDoCaixa, const std::string& dataInicial,
                const std::string& dataFinal);
  void ImprimirRetratoDoDia(std::int16_t numeroDoCaixa, base::DateTime dia);
  /// The rows of a report; null without any or after a failure, which has been told.
  static base::RecordSetPtr Selecionar(Selecao selecao, std::int16_t numeroDoCaixa,
                                       base::DateTime de, base::DateTime ate);
};

}  // namespace registers
