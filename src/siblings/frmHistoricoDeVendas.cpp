#include "siblings/frmHistoricoDeVendas.h"

#include "base/DateTime.h"
#include "base/Numbers.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "platform/Desktop.h"
#include "siblings/dados/clsHistorico.h"

namespace siblings {
namespace {

using dados::clsHistorico;
using frame::Coluna;
using frame::Ponto;
using platform::Align;

constexpr auto kDireita = Align::kRightCenter;
constexpr auto kEsquerda = Align::kLeftCenter;

/// The columns that the screen itself reads.
enum ColunaDeVenda : std::int32_t { kNumeroDaVenda = 0, kPagamentos = 9, kCupom = 10 };
constexpr Coluna kColunasDeVendas[] = {
    {"Venda", 870, kDireita, frame::kNumero, "Numero"},
    {"Data", 1500, kEsquerda, frame::kData, "DataEHora"},
    {"Hora", 900, kEsquerda, frame::kTexto, "DataEHora"},
    {"Caixa", 870, kDireita, frame::kNumero, "Caixa"},
    {"Operador", 1200, kEsquerda, frame::kTexto, "Operador"},
    {"Bruto", 1125, kDireita, frame::kNumero, "ValorBruto"},
    {"Descontos", 1200, kDireita, frame::kNumero, "Descontos"},
    {"Líquido", 1125, kDireita, frame::kNumero, "ValorLiquido"},
    {"Situação", 1350, kEsquerda, frame::kTexto, "Situacao"},
    {"Pagamentos", 2400, kEsquerda, frame::kTexto, "Pagamentos"},
    {"Cupom", 1050, kEsquerda, frame::kTexto, "ChaveSAT"},
    {"Desc. nos itens", 1350, kDireita, frame::kNumero, "DescontoNosItens"},
    {"Desc. da venda", 1350, kDireita, frame::kNumero, "DescontoDaVenda"},
    {"", 0},
};
constexpr Coluna kColunasDeItens[] = {
    {"Código", 870, kDireita, frame::kNumero, "Codigo"},
    {"Produto ou serviço", 3600, kEsquerda, frame::kTexto, "Nome"},
    {"Animal", 1350, kEsquerda, frame::kTexto, "Animal"},
    {"Profissional", 1350, kEsquerda, frame::kTexto, "Profissional"},
    {"Quantidade", 1125, kDireita, frame::kNumero, "Quantidade"},
    {"Un.", 600, kEsquerda, frame::kTexto, "Unidade"},
    {"Valor unitário", 1275, kDireita, frame::kNumero, "ValorUnitario"},
    {"Desconto", 1125, kDireita, frame::kNumero, "Desconto"},
    {"Total", 1125, kDireita, frame::kNumero, "ValorTotal"},
    {"", 0},
};

bool EstaCancelada(const base::RecordSet& venda) {
  return base::ToText(venda.Fields("Situacao")) == "Cancelada";
}

}  // namespace

frmHistoricoDeVendas::frmHistoricoDeVendas(Cliente cliente, std::string_view dataInicial)
    : Form("frmHistoricoDeVendas"),
      cliente_(std::move(cliente)),
      vendas_(msfgGrade, kColunasDeVendas),
      itens_(msfgItens, kColunasDeItens) {
  zvdtpDataInicial.Text.Assign(std::string(dataInicial));
  for (platform::ZVTextBox* soma : {&zvtxtValorBruto, &zvtxtDescontos, &zvtxtValorLiquido}) {
    soma->Locked.Assign(true);
    soma->tabStop = false;
  }
  defaultButton = &zvcmdPesquisar;
  cancelButton = &zvcmdFechar;
  // What is there to read comes first; the period is one Tab further.
  Activate = [this] { msfgGrade.SetFocus(); };
  zvcmdPesquisar.Click = [this] { zvcmdPesquisar_Click(); };
  zvcmdFechar.Click = [this] { Unload(); };
  vendas_.aoSelecionar = [this] { msfgGrade_SelChange(); };
  Desenhar();
}

void frmHistoricoDeVendas::MontarExibirFormulario() {
  frame::Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    lblCliente.Caption = cliente_.PorExtenso();
    zvdtpDataFinal.Text =
        base::Format(platform::Desktop::Current().Now(), base::DateMask::kDayMonthYear);
    ponto = 2;
    if (!Pesquisar()) return;
    ponto = 3;
    frame::FundoEscuro fundo;
    ShowModal();
    fundo.Remover();
  });
}

void frmHistoricoDeVendas::zvcmdPesquisar_Click() {
  frame::Procedimento(*this, "zvcmdPesquisar_Click", [&](Ponto& ponto) {
    if (!Validar()) return;
    ponto = 2;
    if (Pesquisar()) msfgGrade.SetFocus();
  });
}

bool frmHistoricoDeVendas::Validar() {
  frame::RestaurarCorDosRotulos(*this);
  const auto recusar = [](platform::Label& rotulo, platform::Control& campo, const char* texto) {
    return frame::Recusar(rotulo, texto, campo) == 0;
  };
  if (!base::IsDate(zvdtpDataInicial.Text())) {
    return recusar(lblDataInicial, zvdtpDataInicial,
                   "A data inicial não existe. Informe-a no formato dd/mm/aaaa.");
  }
  if (!base::IsDate(zvdtpDataFinal.Text())) {
    return recusar(lblDataFinal, zvdtpDataFinal,
                   "A data final não existe. Informe-a no formato dd/mm/aaaa.");
  }
  if (base::ToDate(zvdtpDataFinal.Text()) < base::ToDate(zvdtpDataInicial.Text())) {
    return recusar(lblDataFinal, zvdtpDataFinal,
                   "A data final é anterior à inicial. Informe outro período.");
  }
  return true;
}

bool frmHistoricoDeVendas::Pesquisar() {
  const frame::PonteiroDeEspera espera(*this, platform::kHourglassPointer);
  auto historico = frame::CriarServicoComSessao<clsHistorico>();
  const std::int16_t status = historico->SelecionarVendas(
      cliente_.codigo, base::ToDate(zvdtpDataInicial.Text()), base::ToDate(zvdtpDataFinal.Text()));
  if (!frame::Aceitar(status, *historico)) return false;
  const base::RecordSetPtr vendas = historico->ResultadoDaSelecaoEmRecordSet();
  vendas_.Preencher(*vendas);
  Somar(*vendas);
  lblAviso.Caption = historico->DescricaoDaFalha();
  msfgGrade_SelChange();
  return true;
}

void frmHistoricoDeVendas::Somar(base::RecordSet& vendas) {
  base::Currency bruto;
  base::Currency descontos;
  base::Currency liquido;
  base::Currency nosItens;
  base::Currency dasVendas;
  std::int32_t canceladas = 0;
  base::ForEachRow(vendas, [&] {
    if (EstaCancelada(vendas)) {
      ++canceladas;
      return;
    }
    bruto += base::ToCurrency(vendas.Fields("ValorBruto"));
    descontos += base::ToCurrency(vendas.Fields("Descontos"));
    liquido += base::ToCurrency(vendas.Fields("ValorLiquido"));
    nosItens += base::ToCurrency(vendas.Fields("DescontoNosItens"));
    dasVendas += base::ToCurrency(vendas.Fields("DescontoDaVenda"));
  });
  zvtxtValorBruto.Text = base::FormatMoney(bruto);
  zvtxtDescontos.Text = base::FormatMoney(descontos);
  zvtxtValorLiquido.Text = base::FormatMoney(liquido);
  lblDescontosDasVendas.Caption =
      dasVendas.IsZero() ? ""
                         : "Descontos nos itens: " + base::FormatMoney(nosItens) +
                               "   -   Descontos da venda: " + base::FormatMoney(dasVendas);
  const std::int32_t efetuadas = vendas.RecordCount() - canceladas;
  std::string quantas = efetuadas == 0   ? "Nenhuma venda no período"
                        : efetuadas == 1 ? "1 venda no período"
                                         : base::ToText(efetuadas) + " vendas no período";
  if (canceladas > 0) {
    quantas += canceladas == 1 ? ", mais 1 cancelada"
                               : ", mais " + base::ToText(canceladas) + " canceladas";
  }
  lblQuantidade.Caption = quantas;
}

void frmHistoricoDeVendas::msfgGrade_SelChange() {
  frame::Procedimento(*this, "msfgGrade_SelChange", [&](Ponto& ponto) {
    const std::string numero = vendas_.Selecionado(kNumeroDaVenda);
    if (numero.empty()) {
      lblItens.Caption = "Itens da venda";
      itens_.Esvaziar();
      return;
    }
    ponto = 2;
    std::string itens = "Itens da venda " + numero;
    if (const std::string pagamentos = vendas_.Selecionado(kPagamentos); !pagamentos.empty()) {
      itens += ", paga em " + pagamentos;
    }
    if (const std::string cupom = vendas_.Selecionado(kCupom); !cupom.empty()) {
      itens += ", cupom fiscal " + cupom;
    }
    lblItens.Caption = itens;
    auto historico = frame::CriarServicoComSessao<clsHistorico>();
    const std::int16_t status = historico->SelecionarItens(base::ToInt32(base::ToDouble(numero)));
    if (!frame::Aceitar(status, *historico)) return;
    ponto = 3;
    itens_.Preencher(*historico->ResultadoDaSelecaoEmRecordSet());
  });
}

}  // namespace siblings
