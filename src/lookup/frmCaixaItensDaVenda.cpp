#include "lookup/frmCaixaItensDaVenda.h"

#include <string>

#include "base/Numbers.h"
#include "frame/ArquivoIni.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "frame/modArredondarCantosDoObjeto.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "platform/Layout.h"

namespace lookup {
namespace {

using frame::Ponto;
using frame::Procedimento;
using enum frame::TipoDeColuna;
using platform::Look;
using enum platform::Align;

constexpr frame::Coluna kColunas[] = {
    {"Item no.", 1150, kLeftCenter, kNumero},
    {"Serviço ou produto", 2500, kLeftCenter, kTexto},
    {"Animal", 2000, kLeftCenter, kTexto},
    {"Comissionado", 2000, kLeftCenter, kTexto},
    {"Quantidade", 1500, kLeftCenter, kNumero},
    {"Unidade", 1500, kLeftCenter, kNumero},
    {"Valor unitário", 1700, kLeftCenter, kNumero},
    {"(%) de desconto", 1900, kLeftCenter, kNumero},
    {"Valor de desconto", 2000, kLeftCenter, kNumero},
    {"Valor liquido", 1600, kLeftCenter, kNumero},
    {"Data invertida", 0, kLeftCenter, kNumero},
};

constexpr std::string_view kLetra = "Tahoma";
constexpr std::string_view kTamanhoUsual = "8,25";

}  // namespace

frmCaixaItensDaVenda::frmCaixaItensDaVenda()
    : Form("frmCaixaItensDaVenda"), lista_(msfgGrade, kColunas) {
  for (platform::ZVTextBox* campo : {&zvtxtNumeroDaVenda, &zvtxDadosDoNomeDoCliente}) {
    campo->Locked.Assign(true);
    campo->tabStop = false;
  }
  defaultButton = &zvcmdFechar;
  cancelButton = &zvcmdFechar;
  Load = [this] {
    Procedimento(*this, "Form_Load", [&](Ponto&) { frame::EmoldurarFormulario(*this, lshpObj); });
  };
  Activate = [this] { msfgGrade.SetFocus(); };
  zvcmdFechar.Click = [this] { Hide(); };
  constexpr unsigned kNoPe = platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom;
  Arrange(
      {.size = {14700, 8100},
       .places = {
           {zvTheme, {0, 0, 14700, 660}, "Detalhes da venda", Look::kTitle, platform::kHoldWidth},
           {lblNumeroDaVenda, {240, 855, 2400, 210}, "Número da venda*"},
           {zvtxtNumeroDaVenda, {240, 1125, 2400, 450}},
           {lblDadosDoNomeDoCliente,
            {2880, 855, 11580, 210},
            "Cliente*",
            Look::kNormal,
            platform::kHoldWidth},
           {zvtxDadosDoNomeDoCliente,
            {2880, 1125, 11580, 450},
            "",
            Look::kNormal,
            platform::kHoldWidth},
           {msfgGrade, {240, 1800, 14220, 5250}, "", Look::kNormal, platform::kHoldAll},
           {picRodape, {0, 7245, 14700, 855}, "", Look::kFooter, kNoPe},
           {zvcmdFechar,
            {13080, 195, 1380, 480},
            "Fechar",
            Look::kPrimary,
            platform::kHoldTopRight,
            "Fechar"},
           {lblResultadoDaSelecao, {240, 300, 12600, 255}, "", Look::kHint},
           {lshpObj, {0, 0, 14700, 8100}, "", Look::kNormal, platform::kHoldAll},
       }});
}

void frmCaixaItensDaVenda::Grade_Configurar(std::int16_t& falha) {
  falha = 1;
  Procedimento(*this, "Grade_Configurar", [&](Ponto& ponto) {
    lista_.Esvaziar();
    ponto = 2;
    std::string tamanho = frame::LerValorDoArquivoIni("Grade", "FontSize");
    if (tamanho == frame::kNenhumValorLido) {
      tamanho = kTamanhoUsual;
      frame::GravarValorNoArquivoIni("Grade", "FontSize", tamanho);
    }
    ponto = 3;
    msfgGrade.fontName = std::string(kLetra);
    msfgGrade.fontSize = base::ToInt32(base::ToDouble(base::ToCurrency(tamanho)));
    falha = 0;
  });
}

void frmCaixaItensDaVenda::Grade_Preencher(base::RecordSet& itens, std::int16_t& falha) {
  falha = 1;
  Procedimento(*this, "Grade_Preencher", [&](Ponto& ponto) {
    lista_.PreencherPorPosicao(itens);
    ponto = 2;
    lblResultadoDaSelecao.Caption = "Exibindo lista completa com " +
                                    base::ToText(itens.RecordCount()) + " registros encontrados.";
    falha = 0;
  });
}

void frmCaixaItensDaVenda::Grade_Classificar(std::int16_t coluna, bool alternar,
                                             std::int16_t& falha) {
  falha = 1;
  Procedimento(*this, "Grade_Classificar", [&](Ponto&) {
    lista_.Classificar(coluna, alternar);
    falha = 0;
  });
}

void ExibirItensDaVenda(double numeroDaVenda, std::string_view cliente) {
  auto caixa = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
  if (!frame::Aceitar(caixa->PesquisarItensDaVenda(numeroDaVenda), *caixa)) return;
  const base::RecordSetPtr itens = caixa->ResultadoDaSelecaoEmRecordSet();
  if (itens->RecordCount() == 0) {
    frame::Informar(
        "Nenhum item de vendas encontrado.\nÉ necessário ter pelo menos um item de venda.");
    return;
  }
  frmCaixaItensDaVenda tela;
  tela.zvtxtNumeroDaVenda.Text = base::ToText(numeroDaVenda);
  tela.zvtxDadosDoNomeDoCliente.Text = std::string(cliente);
  std::int16_t falha = 0;
  tela.Grade_Configurar(falha);
  if (falha == 0) tela.Grade_Preencher(*itens, falha);
  if (falha == 0) tela.Grade_Classificar(0, false, falha);
  if (falha == 0) tela.ShowModal();
  tela.Unload();
}

}  // namespace lookup
