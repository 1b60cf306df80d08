#include "register/frmCaixaRelatoriosDeCaixas.h"

#include <array>
#include <map>
#include <vector>

#include "base/Text.h"
#include "frame/Caixas.h"
#include "frame/Empresa.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/frmMensagem.h"
#include "frame/modArredondarCantosDoObjeto.h"
#include "platform/Desktop.h"
#include "platform/Layout.h"
#include "register/drRetratoDoDia.h"

namespace registers {

using frame::Ponto;
using frame::Procedimento;
using platform::Look;
using servicos::ZOVA_N_RelFin::clsRelFin;

namespace {

/// The screen steps aside for a report, a word of waiting in its place; both are as they were when
/// this ends.
class AguardandoRelatorio {
 public:
  explicit AguardandoRelatorio(platform::Form& tela) : tela_(tela), ponteiro_(tela) {
    tela_.Hide();
    std::int16_t falha = 0;
    mensagem_.lblMensagem.Caption = "Aguarde, reorganizando dados.";
    mensagem_.MontarExibirFormulario(falha);
  }
  ~AguardandoRelatorio() {
    Concluir();
    tela_.Show();
  }
  AguardandoRelatorio(const AguardandoRelatorio&) = delete;
  AguardandoRelatorio& operator=(const AguardandoRelatorio&) = delete;

  void Concluir() { mensagem_.Unload(); }

 private:
  platform::Form& tela_;
  frame::PonteiroDeEspera ponteiro_;
  frame::frmMensagem mensagem_;
};

std::string Dia(base::DateTime dia) {
  return base::Format(dia, base::DateMask::kDayMonthYear);
}

std::string DiaDaCondicao(base::DateTime dia) {
  return "#" + base::Format(dia, base::DateMask::kMonthDayYear) + "#";
}

/// The sum of a field over the rows, by what another one says of each row.
template <class Chave>
GrupoDeBarras Somar(const std::string& titulo, base::RecordSet& linhas, std::string_view campo,
                    std::vector<std::string> rotulos, Chave chave) {
  std::map<std::string, base::Currency> somas;
  base::ForEachRow(linhas, [&] {
    const base::Value& valor = linhas.Fields(campo);
    if (!base::IsNull(valor)) somas[chave()] += base::ToCurrency(valor);
  });
  GrupoDeBarras grupo{titulo, {}};
  if (rotulos.empty()) {
    for (const auto& [rotulo, valor] : somas) rotulos.push_back(rotulo);
  }
  for (const std::string& rotulo : rotulos) grupo.barras.push_back({rotulo, somas[rotulo]});
  return grupo;
}

}  // namespace

frmCaixaRelatoriosDeCaixas::frmCaixaRelatoriosDeCaixas() : Form("frmCaixaRelatoriosDeCaixas") {
  cancelButton = &zvcmdFechar;
  defaultButton = &zvcmdImprimir;
  optTipoDeRelatorio0.Preset();
  Load = [this] {
    Procedimento(*this, "Form_Load", [&](Ponto&) { frame::EmoldurarFormulario(*this, lshpObj); });
  };
  zvcmdImprimir.Click = [this] { zvcmdImprimir_Click(); };
  zvcmdRetratoDoDia.Click = [this] { zvcmdRetratoDoDia_Click(); };
  zvcmdFechar.Click = [this] { Hide(); };
  constexpr unsigned kNoPe = platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom;
  constexpr unsigned kADireita = platform::kHoldTopRight;
  Arrange(
      {.size = {8100, 4725},
       .places = {
           {zvTheme, {0, 0, 8100, 660}, "Relatórios de caixas", Look::kTitle, platform::kHoldWidth},
           {lblTipoDeRelatorio, {240, 855, 7620, 210}, "Tipo de relatório*"},
           {optTipoDeRelatorio0, {240, 1125, 3600, 390}, "Resumo de caixas"},
           {optTipoDeRelatorio1, {4080, 1125, 3780, 390}, "Lançamentos de caixas"},
           {lblCaixa, {240, 1725, 7620, 210}, "Caixa*"},
           {zvcmbCaixas, {240, 1995, 7620, 450}, "", Look::kNormal, platform::kHoldWidth},
           {lblPeriodo, {240, 2640, 7620, 210}, "Período*"},
           {zvPeriodo, {240, 2910, 3600, 450}},
           {picRodape, {0, 3870, 8100, 855}, "", Look::kFooter, kNoPe},
           {zvcmdRetratoDoDia,
            {2790, 195, 1950, 480},
            "Retrato do dia",
            Look::kNormal,
            kADireita,
            "O último dia do período, por forma e por hora, ao lado dos 30 dias até ele"},
           {zvcmdFechar, {4890, 195, 1230, 480}, "Fechar", Look::kNormal, kADireita},
           {zvcmdImprimir, {6270, 195, 1590, 480}, "Imprimir", Look::kPrimary, kADireita},
           {lblObservacaoDeCamposObrigatorios,
            {240, 300, 2400, 255},
            "* Campos obrigatórios",
            Look::kHint},
           {lshpObj, {0, 0, 8100, 4725}, "", Look::kNormal, platform::kHoldAll},
       }});
}

std::int16_t frmCaixaRelatoriosDeCaixas::MontarExibirFormulario() {
  std::int16_t falha = 1;
  Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    zvcmdImprimir.ToolTipText = "Imprimir e fechar";
    zvcmdFechar.ToolTipText = "Fechar";
    ponto = 2;
    PreencherComboboxCaixas(falha);
    if (falha == 1) return;
    ponto = 3;
    const std::string hoje = Dia(platform::Desktop::Current().Now());
    zvPeriodo.DataInicial = hoje;
    zvPeriodo.DataFinal = hoje;
    ShowModal();
  });
  return falha;
}

void frmCaixaRelatoriosDeCaixas::PreencherComboboxCaixas(std::int16_t& falha) {
  falha = 1;
  Procedimento(*this, "PreencherComboboxCaixas", [&](Ponto& ponto) {
    const base::RecordSetPtr caixas = frame::LerCaixas(zvcmbCaixas, ponto);
    if (!caixas) return;
    ponto = 4;
    zvcmbCaixas.AddItem("Todos", 0);
    base::ForEachRow(*caixas, [&] {
      zvcmbCaixas.AddItem(base::ToText(caixas->Fields("LocalDeAtendimento")),
                          base::ToInt32(base::Val(caixas->Fields("Numero"))));
    });
    falha = 0;
  });
}

std::int16_t frmCaixaRelatoriosDeCaixas::ValidarCampos() {
  // The label of a register that was missing stays red, as it always has.
  frame::RestaurarCorDosRotulos(*this, {"lblTipoDeRelatorio", "lblCaixa"});
  if (optTipoDeRelatorio0.Value() && zvcmbCaixas.ListIndex() == -1) {
    return frame::Recusar(lblCaixa, "Selecione o caixa ", zvcmbCaixas);
  }
  return PeriodoValido() ? 0 : 1;
}

bool frmCaixaRelatoriosDeCaixas::PeriodoValido() {
  const bool existem = base::IsDate(zvPeriodo.DataInicial()) && base::IsDate(zvPeriodo.DataFinal());
  if (existem && base::ToDate(zvPeriodo.DataInicial()) <= base::ToDate(zvPeriodo.DataFinal())) {
    return true;
  }
  frame::Recusar(lblPeriodo,
                 existem ? "A data final é anterior à inicial. Informe outro período."
                         : "O período tem uma data que não existe. Informe outro período.",
                 zvPeriodo);
  return false;
}

/// 0 stands for all, also where nothing is selected.
std::int16_t frmCaixaRelatoriosDeCaixas::CaixaSelecionado() const {
  const std::int32_t indice = zvcmbCaixas.ListIndex();
  return indice == -1 ? std::int16_t{0} : base::ToInt16(zvcmbCaixas.ItemData(indice));
}

void frmCaixaRelatoriosDeCaixas::zvcmdImprimir_Click() {
  Procedimento(*this, "zvcmdImprimir_Click", [&](Ponto& ponto) {
    if (ValidarCampos() == 1) return;
    ponto = 2;
    const auto imprimir = optTipoDeRelatorio0.Value()
                              ? &frmCaixaRelatoriosDeCaixas::ImprimirResumoDeCaixas
                              : &frmCaixaRelatoriosDeCaixas::ImprimirLancamentosDeCaixas;
    (this->*imprimir)(CaixaSelecionado(), zvPeriodo.DataInicial(), zvPeriodo.DataFinal());
  });
}

void frmCaixaRelatoriosDeCaixas::zvcmdRetratoDoDia_Click() {
  Procedimento(*this, "zvcmdRetratoDoDia_Click", [&](Ponto& ponto) {
    frame::RestaurarCorDosRotulos(*this, {"lblTipoDeRelatorio", "lblCaixa"});
    if (!PeriodoValido()) return;
    ponto = 2;
    ImprimirRetratoDoDia(CaixaSelecionado(), base::ToDate(zvPeriodo.DataFinal()));
  });
}

void frmCaixaRelatoriosDeCaixas::ImprimirResumoDeCaixas(std::int16_t numeroDoCaixa,
                                                        const std::string& dataInicial,
                                                        const std::string& dataFinal) {
  Imprimir("ImprimirResumoDeCaixas", kResumoDeCaixas, &clsRelFin::SelecionarResumoDeCaixas,
           numeroDoCaixa, dataInicial, dataFinal);
}

void frmCaixaRelatoriosDeCaixas::ImprimirLancamentosDeCaixas(std::int16_t numeroDoCaixa,
                                                             const std::string& dataInicial,
                                                             const std::string& dataFinal) {
  Imprimir("ImprimirLancamentosDeCaixas", kLancamentosDeCaixas,
           &clsRelFin::SelecionarLancamentosDeCaixas, numeroDoCaixa, dataInicial, dataFinal);
}

void frmCaixaRelatoriosDeCaixas::Imprimir(std::string_view rotina,
                                          const RelatorioDeCaixas& relatorio, Selecao selecao,
                                          std::int16_t numeroDoCaixa,
                                          const std::string& dataInicial,
                                          const std::string& dataFinal) {
  Procedimento(*this, rotina, [&](Ponto& ponto) {
    AguardandoRelatorio espera(*this);
    ponto = 2;
    const auto empresa = frame::EmpresaParaImprimir();
    if (!empresa) return;
    ponto = 3;
    const base::RecordSetPtr linhas =
        Selecionar(selecao, numeroDoCaixa, base::ToDate(dataInicial), base::ToDate(dataFinal));
    if (!linhas) return;
    ponto = 4;
    drDeCaixas papel(relatorio);
    papel.Preencher(linhas, *empresa, "Período: " + dataInicial + " à " + dataFinal);
    ponto = 5;
    espera.Concluir();
    papel.Show();
  });
}

base::RecordSetPtr frmCaixaRelatoriosDeCaixas::Selecionar(Selecao selecao,
                                                          std::int16_t numeroDoCaixa,
                                                          base::DateTime de, base::DateTime ate) {
  const std::string numero = base::ToText(numeroDoCaixa);
  std::string doCaixa = numeroDoCaixa == 0 ? "" : " Caixas.Numero = " + numero;
  std::string doPeriodo = " LancamentosDeCaixas.DataDoLancamento Between " + DiaDaCondicao(de) +
                          " And " + DiaDaCondicao(ate) + " ";
  if (numeroDoCaixa != 0) {
    doPeriodo.pop_back();
    doPeriodo += " AND LancamentosDeCaixas.NumeroDoCaixa=" + numero + " ";
  }
  auto relatorios = servicos::CriarServico<clsRelFin>();
  if (!frame::Aceitar(((*relatorios).*selecao)(doCaixa, doPeriodo), *relatorios)) return nullptr;
  base::RecordSetPtr linhas = relatorios->ResultadoDaSelecaoEmRecordSet();
  if (linhas->RecordCount() > 0) return linhas;
  frame::Informar(frame::kSemDadosParaImprimir);
  return nullptr;
}

void frmCaixaRelatoriosDeCaixas::ImprimirRetratoDoDia(std::int16_t numeroDoCaixa,
                                                      base::DateTime dia) {
  constexpr int kDias = 30;
  Procedimento(*this, "ImprimirRetratoDoDia", [&](Ponto& ponto) {
    AguardandoRelatorio espera(*this);
    ponto = 2;
    const auto empresa = frame::EmpresaParaImprimir();
    if (!empresa) return;
    ponto = 3;
    const base::DateTime primeiro = dia.PlusDays(1 - kDias);
    const base::RecordSetPtr resumo =
        Selecionar(&clsRelFin::SelecionarResumoDeCaixas, numeroDoCaixa, primeiro, dia);
    if (!resumo) return;
    const base::RecordSetPtr doDia =
        Selecionar(&clsRelFin::SelecionarLancamentosDeCaixas, numeroDoCaixa, dia, dia);
    if (!doDia) return;
    ponto = 4;
    std::vector<std::string> dias;
    dias.reserve(kDias);
    for (int i = 0; i < kDias; ++i) dias.push_back(Dia(primeiro.PlusDays(i)));
    constexpr std::string_view kRecebido = "ValorRecebido";
    constexpr std::size_t kHora = 2;
    drRetratoDoDia papel(
        *empresa, "Retrato do dia " + Dia(dia),
        {Somar("Recebido por forma", *doDia, kRecebido, {},
               [&] { return base::ToText(doDia->Fields("Moeda")); }),
         Somar("Recebido por hora", *doDia, kRecebido, {},
               [&] {
                 return base::Left(base::ToText(doDia->Fields("HoraDoLancamento")), kHora) + " h";
               }),
         Somar("Recebido nos últimos 30 dias", *resumo, "TotalDePagamentos", dias,
               [&] { return base::ToText(resumo->Fields("DataDoLancamento")); })});
    ponto = 5;
    espera.Concluir();
    papel.Show();
  });
}

}  // namespace registers
