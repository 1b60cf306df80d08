#include "siblings/frmOrcamentos.h"

#include "base/Numbers.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "platform/Layout.h"
#include "siblings/ImpressaoDeOrcamento.h"
#include "siblings/dados/clsOrcamentos.h"
#include "siblings/frmOrcamento.h"

namespace siblings {
namespace {

using dados::clsOrcamentos;
using frame::Coluna;
using frame::Ponto;
using platform::Align;
using platform::Look;

constexpr auto kDireita = Align::kRightCenter;
constexpr auto kEsquerda = Align::kLeftCenter;

/// The columns that the screen itself reads.
enum ColunaDeOrcamento : std::int32_t { kNumero = 0, kSituacao = 7, kObservacao = 8 };
constexpr Coluna kColunas[] = {
    {"Número", 960, kDireita, frame::kNumero, "Numero"},
    {"Data", 1500, kEsquerda, frame::kData, "DataEHora"},
    {"Animal", 1500, kEsquerda, frame::kTexto, "Animal"},
    {"Bruto", 1200, kDireita, frame::kNumero, "ValorBruto"},
    {"Desconto", 1200, kDireita, frame::kNumero, "Desconto"},
    {"Total", 1200, kDireita, frame::kNumero, "ValorTotal"},
    {"Validade", 1500, kEsquerda, frame::kData, "Validade"},
    {"Situação", 1350, kEsquerda, frame::kTexto, "Situacao"},
    {"Observação", 2400, kEsquerda, frame::kTexto, "Observacao"},
    {"", 0},
};
constexpr Coluna kColunasDeItens[] = {
    {"Item", 660, kDireita, frame::kNumero, "Item"},
    {"Tipo", 1080, kEsquerda, frame::kTexto, "Tipo"},
    {"Código", 870, kDireita, frame::kNumero, "Codigo"},
    {"Produto ou serviço", 3600, kEsquerda, frame::kTexto, "Nome"},
    {"Quantidade", 1140, kDireita, frame::kNumero, "Quantidade"},
    {"Un.", 600, kEsquerda, frame::kTexto, "Unidade"},
    {"Valor unitário", 1320, kDireita, frame::kNumero, "ValorUnitario"},
    {"Total", 1200, kDireita, frame::kNumero, "ValorTotal"},
    {"", 0},
};

}  // namespace

frmOrcamentos::frmOrcamentos(Cliente cliente, Animal animal)
    : Form("frmOrcamentos"),
      cliente_(std::move(cliente)),
      animal_(std::move(animal)),
      orcamentos_(msfgGrade, kColunas),
      itens_(msfgItens, kColunasDeItens) {
  cancelButton = &zvcmdFechar;
  zvcmdNovo.Click = [this] { zvcmdNovo_Click(); };
  zvcmdImprimir.Click = [this] { zvcmdImprimir_Click(); };
  zvcmdCancelarOrcamento.Click = [this] { zvcmdCancelarOrcamento_Click(); };
  zvcmdFechar.Click = [this] { Unload(); };
  orcamentos_.aoSelecionar = [this] { msfgGrade_SelChange(); };
  Desenhar();
}

void frmOrcamentos::Desenhar() {
  constexpr unsigned kAbaixo = platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom;
  Arrange(
      {.size = {13350, 9000},
       .places = {
           {zvTheme, {0, 0, 13350, 660}, "Orçamentos", Look::kTitle, platform::kHoldWidth},
           {lblCliente, {240, 840, 8400, 450}, "", Look::kTitle, platform::kHoldWidth},
           {lblAnimal, {240, 1260, 8400, 300}, "", Look::kHint},
           {lblOrcamentos, {240, 1695, 6000, 210}, "Orçamentos do cliente"},
           {msfgGrade, {240, 1965, 12870, 2775}, "", Look::kNormal, platform::kHoldAll},
           {lblItens, {240, 4890, 6000, 210}, "Itens do orçamento", Look::kNormal, kAbaixo},
           {msfgItens, {240, 5160, 12870, 2190}, "", Look::kNormal, kAbaixo},
           {lblObservacao, {240, 7485, 12870, 300}, "", Look::kHint, kAbaixo},
           {picRodape, {0, 8145, 13350, 855}, "", Look::kFooter, kAbaixo},
           {zvcmdCancelarOrcamento, {240, 195, 2520, 480}, "Cancelar orçamento"},
           {zvcmdImprimir,
            {7890, 195, 1380, 480},
            "Imprimir",
            Look::kNormal,
            platform::kHoldTopRight,
            "Imprimir o orçamento selecionado"},
           {zvcmdFechar, {9390, 195, 1260, 480}, "Fechar", Look::kNormal, platform::kHoldTopRight},
           {zvcmdNovo,
            {10770, 195, 2340, 480},
            "Novo orçamento",
            Look::kPrimary,
            platform::kHoldTopRight},
       }});
}

void frmOrcamentos::MontarExibirFormulario() {
  frame::Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    lblCliente.Caption = cliente_.PorExtenso();
    lblAnimal.Caption = "Um novo orçamento é para o animal " + animal_.nome + ".";
    ponto = 2;
    if (!Listar()) return;
    ponto = 3;
    frame::FundoEscuro fundo;
    ShowModal();
    fundo.Remover();
  });
}

bool frmOrcamentos::Listar() {
  const frame::PonteiroDeEspera espera(*this, platform::kHourglassPointer);
  auto orcamentos = frame::CriarServicoComSessao<clsOrcamentos>();
  if (!frame::Aceitar(orcamentos->Selecionar(cliente_.codigo), *orcamentos)) return false;
  orcamentos_.Preencher(*orcamentos->ResultadoDaSelecaoEmRecordSet());
  const bool algum = orcamentos_.Quantos() > 0;
  zvcmdImprimir.Enabled = algum;
  msfgGrade_SelChange();
  return true;
}

std::int32_t frmOrcamentos::NumeroSelecionado() const {
  return base::ToInt32(base::Val(orcamentos_.Selecionado(kNumero)));
}

void frmOrcamentos::msfgGrade_SelChange() {
  frame::Procedimento(*this, "msfgGrade_SelChange", [&](Ponto& ponto) {
    const std::int32_t numero = NumeroSelecionado();
    const std::string observacao = orcamentos_.Selecionado(kObservacao);
    const std::string situacao = orcamentos_.Selecionado(kSituacao);
    zvcmdCancelarOrcamento.Enabled = numero != 0 && situacao != "Cancelado";
    lblObservacao.Caption = observacao.empty() ? "" : "Observação: " + observacao;
    if (numero == 0) {
      lblItens.Caption = "Este cliente ainda não tem orçamentos";
      itens_.Esvaziar();
      return;
    }
    ponto = 2;
    lblItens.Caption = "Itens do orçamento " + base::ToText(numero);
    auto orcamentos = frame::CriarServicoComSessao<clsOrcamentos>();
    if (!frame::Aceitar(orcamentos->SelecionarItens(numero), *orcamentos)) return;
    itens_.Preencher(*orcamentos->ResultadoDaSelecaoEmRecordSet());
  });
}

void frmOrcamentos::zvcmdNovo_Click() {
  frame::Procedimento(*this, "zvcmdNovo_Click", [&](Ponto& ponto) {
    std::int32_t numero = 0;
    {
      frmOrcamento novo(cliente_, animal_);
      numero = novo.MontarExibirFormulario();
    }
    if (numero == 0) return;
    ponto = 2;
    if (!Listar()) return;
    msfgGrade.SetFocus();
    ponto = 3;
    if (frame::Perguntar("Orçamento " + base::ToText(numero) +
                         " registrado.\nDeseja imprimir o orçamento?")) {
      ImprimirOrcamento(cliente_, numero);
    }
  });
}

void frmOrcamentos::zvcmdImprimir_Click() {
  frame::Procedimento(*this, "zvcmdImprimir_Click",
                      [&](Ponto&) { ImprimirOrcamento(cliente_, NumeroSelecionado()); });
}

void frmOrcamentos::zvcmdCancelarOrcamento_Click() {
  frame::Procedimento(*this, "zvcmdCancelarOrcamento_Click", [&](Ponto& ponto) {
    const std::int32_t numero = NumeroSelecionado();
    if (!frame::Perguntar("Deseja cancelar o orçamento " + base::ToText(numero) +
                          "?\nEle continua na lista, mas deixa de valer.")) {
      return;
    }
    ponto = 2;
    auto orcamentos = frame::CriarServicoComSessao<clsOrcamentos>();
    if (!frame::Aceitar(orcamentos->Cancelar(numero, NomeDoOperador()), *orcamentos)) return;
    ponto = 3;
    if (!Listar()) return;
    orcamentos_.SelecionarOnde(kNumero, base::ToText(numero));
    msfgGrade.SetFocus();
  });
}

}  // namespace siblings
