#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"
#include "base/Record.h"
#include "frame/Grade.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "lookup/PesquisaDeCliente.h"
#include "platform/Form.h"
#include "platform/ImageList.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/Menu.h"
#include "platform/OptionButton.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/Toolbar.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVFind.h"
#include "platform/ZVNumberBox.h"
#include "sale/Aritmetica.h"
#include "sale/LinhaDeVenda.h"

namespace registers {
struct Movimento;
}

namespace lookup {
class frmPesquisa;
}

namespace sale {

/// The sale counter: the operator's one long-lived screen, inside a window of the host. It knows
/// the selected register and its state, takes a customer, rings up the lines and hands the sale to
/// payment.
class frmCaixaOperar final : public platform::Form {
 public:
  frmCaixaOperar();
  ~frmCaixaOperar() override;

  // The strip with the register and the cash menu.
  platform::PictureBox picTituloCaixa{*this, "picTituloCaixa"};
  platform::Label lblCaixa{picTituloCaixa, "lblCaixa"};
  platform::Label lblNomeDoCaixa{picTituloCaixa, "lblNomeDoCaixa"};
  platform::ZVComboBox zvcmbCaixas{picTituloCaixa, "zvcmbCaixas"};
  platform::Label lblSituacaoDoCaixa{picTituloCaixa, "lblSituacaoDoCaixa"};
  platform::Toolbar tbMenuCaixa{picTituloCaixa, "tbMenuCaixa"};

  /// What to do next while there is no open register, where the work area will be.
  platform::Label lblAvisoDoCaixa{*this, "lblAvisoDoCaixa"};
  platform::Shape shpMolduraDaAreaDeTrabalho{*this, "shpMolduraDaAreaDeTrabalho"};
  platform::PictureBox picAreaDeTrabalho{*this, "picAreaDeTrabalho"};

  // The customer box.
  platform::PictureBox picCliente{picAreaDeTrabalho, "picCliente"};
  platform::Label lblNumeroDaFichaClinica{picCliente, "lblNumeroDaFichaClinica"};
  platform::ZVFind zvfNumeroDaFichaClinica{picCliente, "zvfNumeroDaFichaClinica"};
  platform::Label lblCliente{picCliente, "lblCliente"};
  platform::Label lblApelidoOuNomeFantasiaDoCliente{picCliente,
                                                    "lblApelidoOuNomeFantasiaDoCliente"};
  platform::ZVFind zvfApelidoOuNomeFantasiaDoCliente{picCliente,
                                                     "zvfApelidoOuNomeFantasiaDoCliente"};
  platform::Label lblNomeOuRazaoSocialDoCliente{picCliente, "lblNomeOuRazaoSocialDoCliente"};
  platform::ZVFind zvfNomeOuRazaoSocialDoCliente{picCliente, "zvfNomeOuRazaoSocialDoCliente"};
  platform::Label lblCodigoDoCliente{picCliente, "lblCodigoDoCliente"};
  platform::ZVFind zvfCodigoDoCliente{picCliente, "zvfCodigoDoCliente"};

  // The entry fields of a line. Those of a product lie over those of a service.
  platform::PictureBox picItem{picAreaDeTrabalho, "picItem"};
  platform::OptionButton optServico{picItem, "optServico"};
  platform::OptionButton optProduto{picItem, "optProduto"};
  platform::Label lblTipoDeServicoOuCodigoDeBarrasDoProduto{
      picItem, "lblTipoDeServicoOuCodigoDeBarrasDoProduto"};
  platform::ZVComboBox zvcmbTiposDeServicos{picItem, "zvcmbTiposDeServicos"};
  platform::ZVFind zvfCodigoDeBarrasDoProduto{picItem, "zvfCodigoDeBarrasDoProduto"};
  platform::Label lblNomeDoServicoOuNomeDoProduto{picItem, "lblNomeDoServicoOuNomeDoProduto"};
  platform::ZVFind zvfNomeDoServico{picItem, "zvfNomeDoServico"};
  platform::ZVFind zvfNomeDoProduto{picItem, "zvfNomeDoProduto"};
  platform::Label lblCodigoDoServico{picItem, "lblCodigoDoServico"};
  platform::ZVFind zvfCodigoDoServico{picItem, "zvfCodigoDoServico"};
  platform::Label lblNomeDoAnimalOuCodigoInternoDoProduto{
      picItem, "lblNomeDoAnimalOuCodigoInternoDoProduto"};
  platform::ZVComboBox zvcmbAnimal{picItem, "zvcmbAnimal"};
  platform::ZVFind zvfCodigoInternoDoProduto{picItem, "zvfCodigoInternoDoProduto"};
  platform::Label lblComissionado{picItem, "lblComissionado"};
  platform::ZVComboBox zvcmbComissionado{picItem, "zvcmbComissionado"};
  platform::Label lblQuantidade{picItem, "lblQuantidade"};
  platform::ZVNumberBox zvnumQuantidade{picItem, "zvnumQuantidade"};
  platform::Label lblValorUnitario{picItem, "lblValorUnitario"};
  platform::ZVNumberBox zvnumValorUnitario{picItem, "zvnumValorUnitario"};
  platform::Label lblPercentualDeDescontoPorItem{picItem, "lblPercentualDeDescontoPorItem"};
  platform::ZVNumberBox zvnumPercentualDeDescontoPorItem{picItem,
                                                         "zvnumPercentualDeDescontoPorItem"};
  platform::Label lblValorDeDescontoPorItem{picItem, "lblValorDeDescontoPorItem"};
  platform::ZVNumberBox zvnumValorDeDescontoPorItem{picItem, "zvnumValorDeDescontoPorItem"};
  platform::ZVCommandButton zvcmdAdicionar{picItem, "zvcmdAdicionar"};

  // The lines of the sale, and what is done with them.
  platform::MSFlexGrid msfgGrade{picAreaDeTrabalho, "msfgGrade"};
  platform::MSFlexGrid msfgGradeComDescontoAplicado{picAreaDeTrabalho,
                                                    "msfgGradeComDescontoAplicado"};
  platform::ZVCommandButton zvcmdAlterar{picAreaDeTrabalho, "zvcmdAlterar"};
  platform::ZVCommandButton zvcmdRemover{picAreaDeTrabalho, "zvcmdRemover"};
  platform::ZVCommandButton zvcmdDetalhes{picAreaDeTrabalho, "zvcmdDetalhes"};
  platform::Label lblItensDaPreVenda{picAreaDeTrabalho, "lblItensDaPreVenda"};

  // The sums of the sale, and the way to payment.
  platform::Label lblTotal{picAreaDeTrabalho, "lblTotal"};
  platform::ZVNumberBox zvnumTotal{picAreaDeTrabalho, "zvnumTotal"};
  platform::Label lblValorTotalDeDescontoItensDaGrade{picAreaDeTrabalho,
                                                      "lblValorTotalDeDescontoItensDaGrade"};
  platform::ZVNumberBox zvnumValorTotalDeDescontoItensDaGrade{
      picAreaDeTrabalho, "zvnumValorTotalDeDescontoItensDaGrade"};
  platform::Label lblPercentualTotalDeDesconto{picAreaDeTrabalho, "lblPercentualTotalDeDesconto"};
  platform::ZVNumberBox zvnumPercentualTotalDeDesconto{picAreaDeTrabalho,
                                                       "zvnumPercentualTotalDeDesconto"};
  platform::Label lblValorTotalDeDesconto{picAreaDeTrabalho, "lblValorTotalDeDesconto"};
  platform::ZVNumberBox zvnumValorTotalDeDesconto{picAreaDeTrabalho, "zvnumValorTotalDeDesconto"};
  platform::PictureBox picLiquidoAPagar{picAreaDeTrabalho, "picLiquidoAPagar"};
  platform::Label lblLiquidoAPagar{picLiquidoAPagar, "lblLiquidoAPagar"};
  platform::ZVNumberBox zvnumLiquidoAPagar{picLiquidoAPagar, "zvnumLiquidoAPagar"};
  platform::Label lblObservacaoDeCamposObrigatorios{picAreaDeTrabalho,
                                                    "lblObservacaoDeCamposObrigatorios"};
  platform::ZVCommandButton zvcmdLimparCampos{picAreaDeTrabalho, "zvcmdLimparCampos"};
  platform::ZVCommandButton zvcmdPagamento{picAreaDeTrabalho, "zvcmdPagamento"};

  platform::PictureBox picMensagem{*this, "picMensagem"};
  platform::Label lblMensagem{picMensagem, "lblMensagem"};
  platform::ImageList ilClassificacaoDaGrade{
      *this,
      "ilClassificacaoDaGrade",
      {std::string(frame::kClassificacaoCrescente), std::string(frame::kClassificacaoDecrescente)}};

  // Menus.
  platform::MenuItem mnuAdicionarCreditoParaOCliente{*this, "mnuAdicionarCreditoParaOCliente",
                                                     "Adicionar crédito para o cliente"};
  platform::MenuItem mnuEstornarCreditoDoCliente{*this, "mnuEstornarCreditoDoCliente",
                                                 "Estornar crédito do cliente"};
  platform::MenuItem mnuHistoricoDeCreditoParaOCliente{*this, "mnuHistoricoDeCreditoParaOCliente",
                                                       "Histórico de crédito para o cliente"};
  platform::Menu mnuCreditoDoCliente{
      *this,
      "mnuCreditoDoCliente",
      {&mnuAdicionarCreditoParaOCliente, &mnuEstornarCreditoDoCliente,
       &mnuHistoricoDeCreditoParaOCliente}};
  platform::MenuItem mnuConsultarPrecosProdutos{*this, "mnuConsultarPrecosProdutos", "Produtos"};
  platform::MenuItem mnuConsultarPrecosServicos{*this, "mnuConsultarPrecosServicos", "Serviços"};
  platform::Menu mnuConsultarPrecos{
      *this, "mnuConsultarPrecos", {&mnuConsultarPrecosProdutos, &mnuConsultarPrecosServicos}};
  platform::MenuItem mnuAlterar{*this, "mnuAlterar", "Alterar"};
  platform::MenuItem mnuExcluir{*this, "mnuExcluir", "Remover"};
  platform::Menu mnuAlterarExcluir{*this, "mnuAlterarExcluir", {&mnuAlterar, &mnuExcluir}};
  /// "Lista de colunas", one entry a column; nothing on this screen shows it.
  platform::Menu mnuGrade{*this, "mnuGrade"};
  std::vector<std::unique_ptr<platform::MenuItem>> mnuListaDeColunas;

  /// Starts the screen inside a window of the host.
  void MontarExibirFormulario(platform::WindowHandle conteiner);

  // What other screens and the host may ask. A failure flag of 1 means that the operator was told.
  void Grade_Configurar(std::int16_t& falha);
  void Grade_Classificar(std::int16_t coluna, bool alternar, std::int16_t& falha);
  void ConfigurarObjetos(bool exibir);
  void ConfigurarOpcoesDoMenuCaixa();
  void ExibirOcultarpicAreaDeTrabalho(std::int16_t opcao);
  void ExibirOcultarOpcoesDoMenuCaixa();
  void PermissaoDoUsuario();
  void HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(bool habilitar);
  void CentralizarpicMensagem();
  void ExibirOcultarpicMensagem(bool exibir, bool somenteCursor);
  void PesquisarDebitosDoCliente(double codigo);
  /// True when a customer was found, accepted and placed on the screen.
  bool PesquisarCliente(const std::string& apelido, const std::string& nome, double codigo);
  bool PesquisarProduto(const std::string& nome, const std::string& codigoDeBarras,
                        double codigoInterno);
  bool PesquisarServico(std::int16_t tipo, const std::string& nome, double codigo);
  void CalcularValoresDosItensDaGrade();
  /// The column list's entry: shows a column in its kept width, or hides it.
  void mnuListaDeColunas_Click(std::int16_t indice);

 private:
  // Start and frame of the screen (Inicio.cpp, Desenho.cpp).
  void LigarEventos();
  void Desenhar();
  void Form_Load();
  void Form_Resize();
  void MostrarFaixa();
  void RecomecarGrade(std::int16_t& falha);
  void IniciarClassificacao();
  void GuardarTamanhoDopicMensagem();

  // Registers (Caixas.cpp).
  void PreencherComboboxCaixas(std::int16_t& falha);
  void SelecionarCaixa(std::int32_t numero);
  void RessincronizarCaixas();
  void zvcmbCaixas_Click();
  void zvcmbCaixas_DropDown();

  // The cash menu (MenuCaixa.cpp).
  void tbMenuCaixa_ButtonClick(platform::ToolbarButton& botao);
  void AbrirOuFechar(const registers::Movimento& movimento);
  void Movimentar(const registers::Movimento& movimento, std::string_view mensagem);
  void CreditoDoCliente();
  void ConsultarHistoricoDeVendas();
  void Orcamentos();
  void TratarFalha(std::int32_t numeroDaFalha);
  void TelaIndisponivel(std::string_view tela);
  bool ClienteInformado();
  void mnuAdicionarCreditoParaOCliente_Click();
  void mnuEstornarCreditoDoCliente_Click();
  void mnuHistoricoDeCreditoParaOCliente_Click();
  void mnuConsultarPrecosProdutos_Click();
  void mnuConsultarPrecosServicos_Click();
  void mnuAlterar_Click();
  void ConsultarPrecos(lookup::frmPesquisa& lista);

  // Clearing and enabling (Limpeza.cpp).
  void HabilitarDesabilitarCampos(bool habilitar);
  void LimparCampos(std::int16_t& falha);
  void RestaurarCaptionOriginalDalblCliente();
  void LimparCamposDeQuantidadeEValoresDoItemDaVenda();
  void zvcmdLimparCampos_Click();
  void EsperarCliente();
  void zvcmdDetalhes_Click();

  // The customer (Cliente.cpp).
  void zvfApelidoOuNomeFantasiaDoCliente_KeyDown();
  void zvfApelidoOuNomeFantasiaDoCliente_Click();
  void zvfNomeOuRazaoSocialDoCliente_KeyDown();
  void zvfNomeOuRazaoSocialDoCliente_Click();
  void zvfCodigoDoCliente_KeyDown();
  void zvfCodigoDoCliente_Click();
  void AceitarCliente(platform::ZVFind& campo);
  void PreencherCliente(const base::RecordSet& cliente);
  void PreencherComboboxAnimal(double codigo, std::int16_t& falha);
  void RecuperaDescontoDoCliente();

  // Items (Itens.cpp, Produtos.cpp, CodigoDeBarras.cpp, Comissionados.cpp).
  void optServico_Click();
  void optProduto_Click();
  void zvcmbTiposDeServicos_Click();
  void PreencherComboboxTiposDeServicos(std::int16_t& falha);
  bool PreencherComboboxComissionados(std::int16_t tipo);
  void zvfCodigoDeBarrasDoProduto_KeyDown();
  void zvfCodigoDeBarrasDoProduto_Click();
  void zvfCodigoInternoDoProduto_KeyDown();
  void zvfCodigoInternoDoProduto_Click();
  void zvfNomeDoProduto_KeyDown();
  void zvfNomeDoProduto_Click();
  void zvfCodigoDoServico_KeyDown();
  void zvfCodigoDoServico_Click();
  void zvfNomeDServico_KeyDown();
  void zvfNomeDoServico_Click();
  void EsvaziarCompanheiros(const platform::ZVFind& campo);
  void PesquisarOuLimparItem(platform::ZVFind& campo);
  void PesquisarPorCodigoDeBarras();
  void RecusarCodigoDeBarras();
  void PesquisarPorCodigoDeBalanca(const std::string& codigo);
  std::optional<base::Currency> QuantidadeDaBalanca(std::int32_t formato);
  bool ProcurarProdutoDosCampos();
  bool ProcurarServicoDosCampos();
  bool ReceberProduto(const base::RecordSet& produto);
  bool ReceberServico(const base::RecordSet& servico);
  /// `aviso`, where given, becomes what the service says of a selection that is not whole.
  base::RecordSetPtr SelecionarProduto(const std::string& nome, const std::string& codigoDeBarras,
                                       double codigoInterno, std::string* aviso = nullptr);
  void AbrirCamposDoProdutoEncontrado();
  std::vector<platform::ZVFind*> Companheiros(const platform::ZVFind& campo);
  void RecomecarItem(platform::ZVFind& campo);
  void VoltarAoCampo(platform::ZVFind& campo);

  // Lines (Linhas.cpp, Alteracao.cpp, Validacao.cpp).
  struct NovaLinha;
  void zvcmdAdicionar_Click();
  NovaLinha MontarLinha();
  bool ConfirmarRepetida(const NovaLinha& linha);
  void LimparItemAdicionado();
  void zvcmdAlterar_Click();
  void zvcmdRemover_Click();
  std::int16_t Registros_Alterar();
  void DevolverAosCampos(std::int16_t tipoDeLancamento);
  bool SemCliente() const;
  bool RecusarSemCliente();
  std::int16_t ValidarCamposDaGrade();
  std::int16_t ValidarItem();
  std::int16_t ValidarValores();
  std::int16_t ValidarCampos();
  void RestaurarRotulos();
  void msfgGrade_MouseDown(platform::MouseButton botao);
  void msfgGrade_DblClick();
  void msfgGrade_SelChange();
  void msfgGrade_KeyDown(platform::KeyStroke& tecla);
  void msfgGrade_GotFocus();
  void msfgGrade_LostFocus();

  // Discounts (Descontos.cpp) and the fields of values (CamposDeValores.cpp).
  std::int16_t AtualizarIndicativosDeImpressaoDeDocumentos();
  void AtualizarPercDeDescontoLimiteDaVendaNoCaixa();
  std::int16_t VerificaDescontoPromocionalDeVenda();
  std::int16_t VerificaDescMaximoAutomaticoDeVenda();
  std::int16_t VerificaPercDeDescontoLimiteDaVendaNoCaixa();
  std::int16_t AplicarDescontoERecalcularValoresDosItensDaNovaGradeDuplicada();
  void zvnumQuantidade_KeyPress(char32_t& tecla);
  void zvnumQuantidade_LostFocus();
  void zvnumQuantidade_Validate(bool& cancelar);
  void zvnumValorUnitario_LostFocus();
  void zvnumPercentualDeDescontoPorItem_LostFocus();
  void zvnumValorDeDescontoPorItem_LostFocus();
  void zvnumPercentualDeDescontoPorItem_Validate(bool& cancelar);
  void zvnumValorDeDescontoPorItem_Validate(bool& cancelar);
  void ValidarDescontoPorItem(platform::ZVNumberBox& campo, bool& cancelar);
  void zvnumPercentualTotalDeDesconto_LostFocus();
  void zvnumPercentualTotalDeDesconto_Validate(bool& cancelar);
  void zvnumValorTotalDeDesconto_LostFocus();
  void zvnumValorTotalDeDesconto_Validate(bool& cancelar);
  void CalcularValorDaLinha();
  void CalcularPercentualDaLinha();
  void CalcularLiquidoAPagar();
  base::Currency BaseDoDescontoDaVenda();
  void LigarCamposDeValores();

  // Pre-sale and payment (PreVenda.cpp, Pagamento.cpp, DadosFiscais.cpp).
  std::int16_t PreencherGradeComServicosEfetuadosEProdutosReservados(double codigo);
  void zvcmdPagamento_Click();
  void EncerrarVenda();
  std::int16_t MontarExibirFormulario_Caixa_Pagar();
  enum class DadosFiscais { kCompletos, kFaltam, kFalhaNaExportacao };
  DadosFiscais CompletarDadosFiscais();
  DadosFiscais CompletarDadosFiscaisDaLinha(std::int32_t linha, frame::Espera& espera);
  bool ValidarDadosDoCliente(double codigo);
  bool ValidarDadosDoProduto(const std::string& nome, const std::string& codigoDeBarras,
                             double codigoInterno);
  std::int16_t CadastrarCodigoIBGEDoMunicipioDoCliente_Click();
  std::int16_t CadastrarNCMDoProduto_Click(double codigoInterno, const std::string& nome);

  /// True while the grid holds at least one line; otherwise it has exactly one data row, blank.
  bool GradeComItens() const { return !frame::SomenteLinhaEmBranco(msfgGrade); }
  bool EhServico() { return optServico.Value(); }
  double CodigoDoCliente() const;

  frame::PainelDeMensagem painelDeMensagem_{*this, picMensagem};
  lookup::CaixaDoCliente caixaDoCliente_;
  std::int16_t alturaDopicMensagem_ = 0;
  std::int16_t larguraDopicMensagem_ = 0;
  bool redimensionado_ = false;

  // The state of the counter.
  frame::Classificacao classificacao_;
  /// 1 add, 2 refund, 3 history; the last choice stands until the next.
  std::int16_t OpcaoDoMenuCreditoDoCliente = 0;
  std::string EnderecoDoCliente, CanalDeComunicacaoDoCliente;
  /// "Sim" when one discount of the customer's applies to all categories.
  std::string DescontoUnico;
  std::int32_t PercentualUnicoDeDescontos = 0;
  std::int32_t PercentualDeDescontoEmClinicos = 0;
  std::int32_t PercentualDeDescontoEmCirurgiaSimples = 0;
  std::int32_t PercentualDeDescontoEmCirurgiaMedia = 0;
  std::int32_t PercentualDeDescontoEmCirurgiaComplexa = 0;
  std::int32_t PercentualDeDescontoEmBanhosTosasEEsteticas = 0;
  std::int32_t PercentualDeDescontoEmHospedagens = 0;
  std::int32_t PercentualDeDescontoEmAdestramentos = 0;
  std::int32_t PercentualDeDescontoEmOutros = 0;
  /// The ledger entry that the next added line takes; 0 for a new line.
  std::int32_t NumeroDoLancamentoDoItem = 0;
  std::string UnidadeDeVendaDoProduto;
  base::Currency PercentualDeComissaoDoProduto;
  /// Above this percentage a discount needs a supervisor.
  base::Currency PercentualDeDescontoLimite;
  base::Currency Custo;
  base::Currency Comissao, LucroEmValor, LucroEmPercentual;
  /// The same three, of the lines with the sale's discount spread over them.
  base::Currency ComissaoComDesconto, LucroEmValorComDesconto, LucroEmPercentualComDesconto;
};

}  // namespace sale
