#include "frame/ArquivoIni.h"
#include "frame/Valores.h"
#include "frame/modToolbarCores.h"
#include "platform/Colors.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;
using frame::valores;

namespace {

constexpr std::int32_t kLarguraDaFaixa = 2850;
constexpr std::int32_t kFaixaRecolhida = 1000;
constexpr std::int32_t kLarguraDoNomeDoProduto = 8355;
constexpr std::string_view kColunaInicial = "Nome do serviço";

void Sobrepor(platform::Control& campo, const platform::Control& sobre) {
  campo.Top = sobre.Top();
  campo.Left = sobre.Left();
}

}  // namespace

void frmCaixaOperar::Form_Load() {
  Procedimento(*this, "Form_Load", [&](Ponto& ponto) {
    frame::PintarFundoDaToolbar(tbMenuCaixa, platform::kWhite, frame::kFundoDaToolbar);
    ponto = 2;
    caixas_.LerArquivo();
  });
}

void frmCaixaOperar::MontarExibirFormulario(platform::WindowHandle conteiner) {
  Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    SetParent(conteiner);
    ponto = 2;
    ExibirOcultarpicMensagem(true, true);
    ponto = 3;
    if (AtualizarIndicativosDeImpressaoDeDocumentos() == 1) return;
    AtualizarPercDeDescontoLimiteDaVendaNoCaixa();
    ponto = 4;
    ConfigurarObjetos(false);
    ponto = 5;
    Sobrepor(zvfCodigoDeBarrasDoProduto, zvcmbTiposDeServicos);
    zvfCodigoDeBarrasDoProduto.Width = zvcmbTiposDeServicos.Width();
    Sobrepor(zvfNomeDoProduto, zvfNomeDoServico);
    zvfNomeDoProduto.Width = kLarguraDoNomeDoProduto;
    Sobrepor(zvfCodigoInternoDoProduto, zvcmbAnimal);
    zvfCodigoInternoDoProduto.Width = zvcmbAnimal.Width();
    zvnumValorTotalDeDesconto.Enabled = false;
    zvnumPercentualTotalDeDesconto.Enabled = false;
    valores().AlturaOriginalDopicMensagem = alturaDopicMensagem_;
    valores().LarguraOriginalDopicMensagem = larguraDopicMensagem_;
    ponto = 6;
    optServico_Click();
    ponto = 7;
    Show();
    ponto = 8;
    std::int16_t falha = 0;
    PreencherComboboxTiposDeServicos(falha);
    if (falha != 1) PreencherComboboxCaixas(falha);
    if (falha == 1) {
      ExibirOcultarpicMensagem(false, false);
      return;
    }
    ponto = 10;
    RecomecarGrade(falha);
    if (falha == 1) return;
    ponto = 11;
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(false);
    zvnumTotal.Locked = true;
    zvnumValorTotalDeDescontoItensDaGrade.Locked = true;
    zvnumLiquidoAPagar.Locked = true;
    HabilitarDesabilitarCampos(false);
    ponto = 14;
    for (std::int32_t i = 0; i < zvcmbCaixas.ListCount(); ++i) {
      if (zvcmbCaixas.ItemData(i) == valores().NumeroDoCaixa) zvcmbCaixas.ListIndex = i;
    }
    ponto = 15;
    lblNomeDoCaixa.Visible = true;
    zvcmbCaixas.Visible = true;
    ConfigurarOpcoesDoMenuCaixa();
    ponto = 16;
    ExibirOcultarpicMensagem(false, false);
    ponto = 17;
    if (picAreaDeTrabalho.Visible() && caixas_.Escolhido()) {
      zvfApelidoOuNomeFantasiaDoCliente.SetFocus();
    } else {
      zvcmbCaixas.SetFocus();
    }
  });
}

void frmCaixaOperar::Form_Resize() {
  Procedimento(*this, "Form_Resize", [&](Ponto&) {
    // Once: what the host does to the window later, the controls follow by the edges they hold to.
    if (redimensionado_) return;
    redimensionado_ = true;
    MostrarFaixa();
  });
}

void frmCaixaOperar::MostrarFaixa() {
  picTituloCaixa.Left = 0;
  picTituloCaixa.Top = 0;
  picTituloCaixa.Width = kLarguraDaFaixa;
  picTituloCaixa.Height = Height();
  picTituloCaixa.Visible = true;
  picAreaDeTrabalho.Left = kLarguraDaFaixa;
  picAreaDeTrabalho.Top = 0;
  picAreaDeTrabalho.Width = Width() - kLarguraDaFaixa;
  picAreaDeTrabalho.Height = Height();
  shpMolduraDaAreaDeTrabalho.Left = kLarguraDaFaixa;
  shpMolduraDaAreaDeTrabalho.Top = 0;
  shpMolduraDaAreaDeTrabalho.Width = Width() - kLarguraDaFaixa;
  shpMolduraDaAreaDeTrabalho.Height = Height();
}

void frmCaixaOperar::ExibirOcultarOpcoesDoMenuCaixa() {
  const bool recolhida = picTituloCaixa.Width() < kFaixaRecolhida;
  zvcmbCaixas.Visible = recolhida;
  tbMenuCaixa.Visible = recolhida;
  if (recolhida) {
    MostrarFaixa();
    return;
  }
  picTituloCaixa.Width = 0;
  picAreaDeTrabalho.Left = 0;
  picAreaDeTrabalho.Width = Width();
}

void frmCaixaOperar::ExibirOcultarpicAreaDeTrabalho(std::int16_t opcao) {
  constexpr std::int16_t kExibir = 2;
  picAreaDeTrabalho.Visible = opcao == kExibir;
}

void frmCaixaOperar::ConfigurarObjetos(bool exibir) {
  Procedimento(*this, "ConfigurarObjetos", [&](Ponto& ponto) {
    zvcmbCaixas.Visible = exibir;
    picTituloCaixa.Visible = exibir;
    picAreaDeTrabalho.Visible = exibir;
    shpMolduraDaAreaDeTrabalho.Visible = exibir;
    ponto = 2;
    for (const auto& botao : tbMenuCaixa.All()) {
      if (botao->Key() == "Relatorios") {
        botao->Visible = frame::Direito("PermissaoDoModuloCaixaRelatorios");
      } else {
        botao->Enabled = exibir;
      }
    }
    msfgGrade.Visible = true;
  });
}

void frmCaixaOperar::Grade_Configurar(std::int16_t& falha) {
  Procedimento(*this, "Grade_Configurar", [&](Ponto&) {
    frame::ConfigurarColunas(msfgGrade, kColunasDaVenda);
    lblItensDaPreVenda.Visible = false;
    falha = 0;
  });
}

// Sorted at first by the services' names, for as long as there is such a column.
void frmCaixaOperar::RecomecarGrade(std::int16_t& falha) {
  Grade_Configurar(falha);
  if (falha == 1) return;
  const std::int32_t coluna = frame::ColunaComTitulo(msfgGrade, kColunaInicial);
  if (coluna != -1) {
    classificacao_.ColunaDeClassificacao = static_cast<std::int16_t>(coluna);
    classificacao_.OrdemDeClassificacao = static_cast<std::int16_t>(msfgGrade.ColAlignment(coluna));
    msfgGrade.Row(0);
    msfgGrade.Col(coluna);
    msfgGrade.CellPicture(frame::kClassificacaoCrescente);
  }
  Grade_Classificar(classificacao_.ColunaDeClassificacao, false, falha);
}

void frmCaixaOperar::Grade_Classificar(std::int16_t coluna, bool alternar, std::int16_t& falha) {
  Procedimento(*this, "Grade_Classificar", [&](Ponto&) {
    frame::Classificar(msfgGrade, coluna, alternar, classificacao_);
    falha = 0;
  });
}

void frmCaixaOperar::mnuListaDeColunas_Click(std::int16_t indice) {
  Procedimento(frame::etiquetas::kListaDeColunas, [&](Ponto& ponto) {
    platform::MenuItem& entrada = *mnuListaDeColunas.at(static_cast<std::size_t>(indice));
    const std::string numero = base::ToText(indice);
    entrada.Checked = !entrada.Checked();
    frame::GravarValorNoArquivoIni("Grade", "ColVisible_" + numero,
                                   base::ToText(entrada.Checked()));
    ponto = 2;
    const frame::SemRedesenho semRedesenho(msfgGrade);
    if (!entrada.Checked()) {
      msfgGrade.ColWidth(indice, 0);
      return;
    }
    ponto = 3;
    const std::string largura = frame::LerValorDoArquivoIni("Grade", "ColWidth_" + numero);
    msfgGrade.ColWidth(indice, base::ToInt32(base::ToDouble(largura)));
  });
}

void frmCaixaOperar::CentralizarpicMensagem() {
  Procedimento(*this, "CentralizarpicMensagem", [&](Ponto&) { painelDeMensagem_.Centralizar(); });
}

void frmCaixaOperar::ExibirOcultarpicMensagem(bool exibir, bool somenteCursor) {
  Procedimento(*this, "ExibirOcultarpicMensagem",
               [&](Ponto&) { painelDeMensagem_.ExibirOcultar(exibir, somenteCursor); });
}

}  // namespace sale
