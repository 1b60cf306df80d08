#include "register/frmVendasDoDia.h"

#include <array>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/modArredondarCantosDoObjeto.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "lookup/frmCaixaItensDaVenda.h"
#include "platform/Input.h"

namespace registers {
namespace {

using frame::Ponto;
using frame::Procedimento;
using enum frame::TipoDeColuna;
using platform::Look;
using enum platform::Align;

using Colunas = std::array<frame::Coluna, 15>;

// What the receipt and the search need of the customer stands in the list, unseen.
constexpr Colunas ColunasCom(std::string_view numero, std::string_view codigo) {
  return {{
      {numero, 1250, kRightCenter, kNumero},
      {"Data", 1450, kLeftCenter, kData},
      {"Hora", 1150, kLeftCenter, kTexto},
      {"Operador", 1100, kLeftCenter, kTexto},
      {"Cliente", 1650, kLeftCenter, kTexto},
      {"Valor bruto", 1200, kRightCenter, kNumero},
      {"Valor total de descontos", 1350, kRightCenter, kNumero},
      {"Valor liquido", 1200, kRightCenter, kNumero},
      {"Chave SAT", 1200, kLeftCenter, kTexto},
      {"Valor Recebido", 1450, kRightCenter, kNumero},
      {codigo, 0, kLeftCenter, kNumero},
      {"Nome ou Razão Social do Cliente", 0, kLeftCenter, kTexto},
      {"Endereço completo do cliente", 0, kLeftCenter, kTexto},
      {"Tipos e canais de comunicação do cliente", 0, kLeftCenter, kTexto},
      {"Data invertida", 0, kLeftCenter, kNumero},
  }};
}
constexpr Colunas kColunas = ColunasCom("Número da venda", "Código do cliente");
constexpr Colunas kColunasDeTituloAntigo = ColunasCom("Nº da vendas", "Código do Cliente");

/// While it lives the search itself moves the selection, and what was typed stays.
class TextoMantido {
 public:
  explicit TextoMantido(bool& localizando) : localizando_(localizando), antes_(localizando) {
    localizando_ = true;
  }
  ~TextoMantido() { localizando_ = antes_; }
  TextoMantido(const TextoMantido&) = delete;
  TextoMantido& operator=(const TextoMantido&) = delete;

 private:
  bool& localizando_;
  const bool antes_;
};

constexpr std::string_view kNenhumaVenda = "Nenhuma venda efetuada no dia de hoje por este caixa.";

}  // namespace

frmVendasDoDia::frmVendasDoDia(const VendasDoDia& tela)
    : Form(tela.formulario),
      zvcmdComando(picRodape, tela.comando),
      tela_(tela),
      lista_(msfgGrade, tela.tituloAntigo ? kColunasDeTituloAntigo : kColunas) {
  cancelButton = &zvcmdFechar;
  defaultButton = &zvcmdComando;
  Load = [this] {
    Procedimento(*this, "Form_Load", [&](Ponto&) { frame::EmoldurarFormulario(*this, lshpObj); });
  };
  Activate = [this] { zvtxtLocalizar.SetFocus(); };
  lista_.aoAbrir = [this] { zvcmdExibirItensDaVenda_Click(); };
  lista_.aoSelecionar = [this] { msfgGrade_SelChange(); };
  // A press on the row that is selected already changes nothing, and chooses it all the same.
  msfgGrade.MouseDown = [this](platform::MouseButton) { msfgGrade_SelChange(); };
  zvtxtLocalizar.Edited = [this] { zvtxtLocalizar_Edited(); };
  zvtxtLocalizar.KeyDown = [this](platform::KeyStroke& tecla) { zvtxtLocalizar_KeyDown(tecla); };
  zvcmdExibirItensDaVenda.Click = [this] { zvcmdExibirItensDaVenda_Click(); };
  zvcmdFechar.Click = [this] { Hide(); };
}

platform::Layout frmVendasDoDia::Desenho(std::int32_t altura,
                                         const std::vector<platform::Place>& abaixo) {
  constexpr std::int32_t kLargura = 14700, kAltura = 9300, kPe = kAltura - 855;
  constexpr std::int32_t kInicioDaGrade = 1800;
  constexpr unsigned kNoPe = platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom;
  constexpr unsigned kADireita = platform::kHoldTopRight;
  platform::Layout desenho{
      .size = {kLargura, kAltura},
      .places = {{zvTheme, {0, 0, kLargura, 660}, tela_.titulo, Look::kTitle, platform::kHoldWidth},
                 {lblLocalizar, {240, 855, 6000, 210}, "Localizar por número ou cliente"},
                 {zvtxtLocalizar,
                  {240, 1125, 6000, 450},
                  "",
                  Look::kNormal,
                  platform::kHoldTopLeft,
                  "Digite o número da venda ou parte do nome do cliente; as setas vão à próxima"},
                 {msfgGrade,
                  {240, kInicioDaGrade, kLargura - 480, kPe - 195 - altura - kInicioDaGrade},
                  "",
                  Look::kNormal,
                  platform::kHoldAll}}};
  std::vector<platform::Place>& lugares = desenho.places;
  for (const platform::Place& lugar : abaixo) lugares.push_back(lugar);
  const platform::Place pe[] = {
      {picRodape, {0, kPe, kLargura, 855}, "", Look::kFooter, kNoPe},
      {zvcmdExibirItensDaVenda,
       {8310, 195, 2100, 480},
       "Itens da venda",
       Look::kNormal,
       kADireita,
       "Exibir itens da venda"},
      {zvcmdFechar, {10560, 195, 1230, 480}, "Fechar", Look::kNormal, kADireita},
      {zvcmdComando, {11940, 195, 2520, 480}, tela_.legenda, Look::kPrimary, kADireita},
      {lblResultadoDaSelecao, {240, 300, 7800, 255}, "", Look::kHint},
      {lshpObj, {0, 0, kLargura, kAltura}, "", Look::kNormal, platform::kHoldAll}};
  for (const platform::Place& lugar : pe) lugares.push_back(lugar);
  return desenho;
}

std::int16_t frmVendasDoDia::MontarExibirFormulario() {
  std::int16_t resultado = 1;
  Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    zvTheme.Titulo = std::string(tela_.titulo);
    zvcmdComando.ToolTipText = std::string(tela_.dica);
    zvcmdFechar.ToolTipText = std::string(tela_.dicaFechar);
    ponto = 2;
    lista_.Esvaziar();
    PesquisarVenda();
    ponto = 3;
    ShowModal();
    resultado = 0;
  });
  return resultado;
}

void frmVendasDoDia::PesquisarVenda() {
  Procedimento(*this, "PesquisarVenda", [&](Ponto& ponto) {
    auto caixa = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
    ponto = 2;
    std::int32_t numero = frame::valores().NumeroDoCaixa;
    if (!frame::Aceitar(caixa->PesquisarVendaDoDia(tela_.situacao, numero, 0, 1), *caixa)) return;
    ponto = 3;
    const base::RecordSetPtr vendas = caixa->ResultadoDaSelecaoEmRecordSet();
    if (vendas->RecordCount() > 0) return Grade_Preencher(*vendas);
    frame::Informar(kNenhumaVenda);
    if (tela_.enviaHome) platform::input::SendKeys("+({HOME})");
  });
}

void frmVendasDoDia::Grade_Preencher(base::RecordSet& vendas) {
  Procedimento(*this, "Grade_Preencher", [&](Ponto&) {
    lista_.PreencherPorPosicao(vendas);
    Localizar(1, 1);
  });
}

void frmVendasDoDia::zvcmdExibirItensDaVenda_Click() {
  Procedimento(*this, "zvcmdExibirItensDaVenda_Click", [&](Ponto&) {
    double numero = 0;
    if (HaVenda(numero)) lookup::ExibirItensDaVenda(numero, DaVenda(kColunaCliente));
  });
}

bool frmVendasDoDia::HaVenda(double& numero) {
  numero = base::Val(DaVenda(kColunaNumero));
  if (lista_.Quantos() == 0) {
    frame::Informar(kNenhumaVenda);
    return false;
  }
  if (EAProcurada(msfgGrade.Row())) return true;
  // The row that is selected is not the one that the operator means.
  frame::Informar("Nenhuma venda da lista é '" + base::Trim(zvtxtLocalizar.Text()) +
                  "'. Digite outro número ou cliente, ou selecione a venda na lista.");
  zvtxtLocalizar.SetFocus();
  zvtxtLocalizar.SelectAll();
  return false;
}

void frmVendasDoDia::AtualizaGrade() {
  msfgGrade.TextMatrix(msfgGrade.Row(), kColunaLiquido, "Cancelada");
}

bool frmVendasDoDia::Corresponde(std::int32_t linha) const {
  const std::string procurado = base::Trim(zvtxtLocalizar.Text());
  return msfgGrade.TextMatrix(linha, kColunaNumero).starts_with(procurado) || EDoCliente(linha);
}

/// A number that only begins as what was typed is found while it is being typed, and is not meant
/// when the typing is over.
bool frmVendasDoDia::EAProcurada(std::int32_t linha) const {
  const std::string procurado = base::Trim(zvtxtLocalizar.Text());
  return procurado.empty() || msfgGrade.TextMatrix(linha, kColunaNumero) == procurado ||
         EDoCliente(linha);
}

bool frmVendasDoDia::EDoCliente(std::int32_t linha) const {
  const std::string procurado = base::Fold(base::Trim(zvtxtLocalizar.Text()));
  return base::Contains(base::Fold(msfgGrade.TextMatrix(linha, kColunaCliente)), procurado) ||
         base::Contains(base::Fold(msfgGrade.TextMatrix(linha, kColunaNomeDoCliente)), procurado);
}

/// Goes to the next sale that fits, from a row on and by steps of 1 or -1; beyond the end begins
/// the list again.
void frmVendasDoDia::Localizar(std::int32_t apartir, std::int32_t passo) {
  const std::int32_t quantos = lista_.Quantos();
  const std::string contagem =
      base::ToText(quantos) + (quantos == 1 ? " venda" : " vendas") + " no dia";
  lblResultadoDaSelecao.Caption = contagem;
  const TextoMantido mantido(localizando_);
  std::int32_t linha = apartir;
  for (std::int32_t visitadas = 0; visitadas < quantos; ++visitadas, linha += passo) {
    linha = (linha + quantos - 1) % quantos + 1;
    if (Corresponde(linha)) return lista_.SelecionarA(linha);
  }
  if (quantos == 0) return;
  lblResultadoDaSelecao.Caption =
      "Nenhuma das " + contagem + " é '" + base::Trim(zvtxtLocalizar.Text()) + "'.";
}

/// What was typed: a whole number is that sale, wherever it stands.
void frmVendasDoDia::zvtxtLocalizar_Edited() {
  const TextoMantido mantido(localizando_);
  const std::string procurado = base::Trim(zvtxtLocalizar.Text());
  Localizar(1, 1);
  lista_.SelecionarOnde(kColunaNumero, procurado);
}

/// The operator has chosen a row by themselves: what they had typed does not count any more.
void frmVendasDoDia::msfgGrade_SelChange() {
  if (localizando_) return;
  zvtxtLocalizar.Text = "";
}

void frmVendasDoDia::zvtxtLocalizar_KeyDown(platform::KeyStroke& tecla) {
  switch (tecla.key) {
    case platform::Key::kDown:
      Localizar(msfgGrade.Row() + 1, 1);
      break;
    case platform::Key::kUp:
      Localizar(msfgGrade.Row() - 1, -1);
      break;
    case platform::Key::kEnter: {
      tecla.key = platform::Key::kNone;
      double numero = 0;
      if (HaVenda(numero)) Encontrada();
      return;
    }
    default:
      return;
  }
  tecla.key = platform::Key::kNone;
}

}  // namespace registers
