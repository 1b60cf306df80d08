#include "sale/frmCaixaOperar.h"

#include "frame/CamposNumericos.h"
#include "frame/Valores.h"
#include "frame/modRolagemComMouse.h"

namespace sale {

using platform::ZVFind;

frmCaixaOperar::frmCaixaOperar()
    : caixaDoCliente_(lblCliente, zvfApelidoOuNomeFantasiaDoCliente, zvfNomeOuRazaoSocialDoCliente,
                      zvfCodigoDoCliente,
                      {.pesquisar =
                           [this] {
                             const lookup::ProcuraDeCliente procura = caixaDoCliente_.Procura();
                             return PesquisarCliente(procura.apelido, procura.nome, procura.codigo);
                           },
                       .aceitar = [this](ZVFind& campo) { AceitarCliente(campo); },
                       .esvaziar = [this] { zvcmbAnimal.Clear(); }}) {
  LigarEventos();
  Desenhar();
}

frmCaixaOperar::~frmCaixaOperar() {
  if (msfgGrade.HasFocus()) frame::DesativarRolagemComMouse();
  if (frame::valores().frmCaixaOperarAtual == this) {
    frame::valores().frmCaixaOperarAtual = nullptr;
  }
}

void frmCaixaOperar::LigarEventos() {
  Load = [this] { Form_Load(); };
  Resize = [this] { Form_Resize(); };
  zvcmbCaixas.Click = [this] { zvcmbCaixas_Click(); };
  zvcmbCaixas.DropDown = [this] { zvcmbCaixas_DropDown(); };
  tbMenuCaixa.ButtonClick = [this](platform::ToolbarButton& b) { tbMenuCaixa_ButtonClick(b); };

  using platform::KeyStroke;
  zvfApelidoOuNomeFantasiaDoCliente.KeyDown = [this](KeyStroke&) {
    zvfApelidoOuNomeFantasiaDoCliente_KeyDown();
  };
  zvfApelidoOuNomeFantasiaDoCliente.Click = [this] { zvfApelidoOuNomeFantasiaDoCliente_Click(); };
  zvfNomeOuRazaoSocialDoCliente.KeyDown = [this](KeyStroke&) {
    zvfNomeOuRazaoSocialDoCliente_KeyDown();
  };
  zvfNomeOuRazaoSocialDoCliente.Click = [this] { zvfNomeOuRazaoSocialDoCliente_Click(); };
  zvfCodigoDoCliente.KeyDown = [this](KeyStroke&) { zvfCodigoDoCliente_KeyDown(); };
  zvfCodigoDoCliente.Click = [this] { zvfCodigoDoCliente_Click(); };
  for (ZVFind* codigo :
       {&zvfNumeroDaFichaClinica, &zvfCodigoInternoDoProduto, &zvfCodigoDoServico}) {
    codigo->KeyPress = [](char32_t& tecla) { frame::FiltrarTeclaDeInteiro(tecla); };
  }

  optServico.Click = [this] { optServico_Click(); };
  optProduto.Click = [this] { optProduto_Click(); };
  zvcmbTiposDeServicos.Click = [this] { zvcmbTiposDeServicos_Click(); };
  zvfCodigoDeBarrasDoProduto.KeyDown = [this](KeyStroke&) { zvfCodigoDeBarrasDoProduto_KeyDown(); };
  zvfCodigoDeBarrasDoProduto.Click = [this] { zvfCodigoDeBarrasDoProduto_Click(); };
  zvfCodigoInternoDoProduto.KeyDown = [this](KeyStroke&) { zvfCodigoInternoDoProduto_KeyDown(); };
  zvfCodigoInternoDoProduto.Click = [this] { zvfCodigoInternoDoProduto_Click(); };
  zvfNomeDoProduto.KeyDown = [this](KeyStroke&) { zvfNomeDoProduto_KeyDown(); };
  zvfNomeDoProduto.Click = [this] { zvfNomeDoProduto_Click(); };
  zvfCodigoDoServico.KeyDown = [this](KeyStroke&) { zvfCodigoDoServico_KeyDown(); };
  zvfCodigoDoServico.Click = [this] { zvfCodigoDoServico_Click(); };
  zvfNomeDoServico.KeyDown = [this](KeyStroke&) { zvfNomeDServico_KeyDown(); };
  zvfNomeDoServico.Click = [this] { zvfNomeDoServico_Click(); };
  LigarCamposDeValores();

  zvcmdAdicionar.Click = [this] { zvcmdAdicionar_Click(); };
  zvcmdAlterar.Click = [this] { zvcmdAlterar_Click(); };
  zvcmdRemover.Click = [this] { zvcmdRemover_Click(); };
  zvcmdDetalhes.Click = [this] { zvcmdDetalhes_Click(); };
  zvcmdLimparCampos.Click = [this] { zvcmdLimparCampos_Click(); };
  zvcmdPagamento.Click = [this] { zvcmdPagamento_Click(); };

  // The lines of a sale are not sorted by the operator: a plain click does nothing here.
  msfgGrade.MouseDown = [this](platform::MouseButton b) { msfgGrade_MouseDown(b); };
  msfgGrade.DblClick = [this] { msfgGrade_DblClick(); };
  msfgGrade.SelChange = [this] { msfgGrade_SelChange(); };
  msfgGrade.KeyDown = [this](platform::KeyStroke& tecla) { msfgGrade_KeyDown(tecla); };
  msfgGrade.GotFocus = [this] { msfgGrade_GotFocus(); };
  msfgGrade.LostFocus = [this] { msfgGrade_LostFocus(); };

  mnuAdicionarCreditoParaOCliente.Click = [this] { mnuAdicionarCreditoParaOCliente_Click(); };
  mnuEstornarCreditoDoCliente.Click = [this] { mnuEstornarCreditoDoCliente_Click(); };
  mnuHistoricoDeCreditoParaOCliente.Click = [this] { mnuHistoricoDeCreditoParaOCliente_Click(); };
  mnuConsultarPrecosProdutos.Click = [this] { mnuConsultarPrecosProdutos_Click(); };
  mnuConsultarPrecosServicos.Click = [this] { mnuConsultarPrecosServicos_Click(); };
  mnuAlterar.Click = [this] { Registros_Alterar(); };
  mnuExcluir.Click = [this] { zvcmdRemover_Click(); };
  for (std::size_t i = 0; i < mnuListaDeColunas.size(); ++i) {
    mnuListaDeColunas[i]->Click = [this, i] {
      mnuListaDeColunas_Click(static_cast<std::int16_t>(i));
    };
  }
}

}  // namespace sale
