#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Grade.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "lookup/PesquisaDeCliente.h"
#include "sale/FaixaDeCaixas.h"
#include "sale/ItemEmEdicao.h"
#include "sale/RegrasDeDesconto.h"
#include "sale/TelaDoBalcao.h"
#include "sale/TotaisDaVenda.h"

namespace registers {
struct Movimento;
struct ReversaoDeVenda;
}  // namespace registers
namespace lookup {
class frmPesquisa;
struct Selecao;
}  // namespace lookup

namespace sale {

/// The sale counter: the operator's one long-lived screen, inside a window of the host. It takes a
/// customer, rings up the lines and hands the sale to payment. Its controls stand in TelaDoBalcao,
/// its state in the components at the end; here are the events and the order of their steps.
class frmCaixaOperar final : public TelaDoBalcao {
 public:
  frmCaixaOperar();
  ~frmCaixaOperar() override;

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
  // Start and frame of the screen (frmCaixaOperar.cpp, Inicio.cpp).
  void LigarEventos();
  void Form_Load();
  void Form_Resize();
  void MostrarFaixa();
  void RecomecarGrade(std::int16_t& falha);

  // Registers (Caixas.cpp).
  void PreencherComboboxCaixas(std::int16_t& falha);
  void RessincronizarCaixas();
  void zvcmbCaixas_Click();
  void zvcmbCaixas_DropDown();

  // The cash menu (MenuCaixa.cpp).
  void tbMenuCaixa_ButtonClick(platform::ToolbarButton& botao);
  void AbrirOuFechar(const registers::Movimento& movimento);
  void Movimentar(const registers::Movimento& movimento, std::string_view mensagem);
  void Reverter(const registers::ReversaoDeVenda& reversao, std::string_view mensagem);
  template <class Formulario>
  void Concluir(Formulario& formulario, std::string_view mensagem);
  void Comprovantes();
  void Relatorios();
  void VoltarAoAtendimento();
  void CreditoDoCliente();
  void ConsultarHistoricoDeVendas();
  void Orcamentos();
  void TratarFalha(std::int32_t numeroDaFalha);
  bool ClienteInformado();
  void mnuAdicionarCreditoParaOCliente_Click();
  void mnuEstornarCreditoDoCliente_Click();
  void mnuHistoricoDeCreditoParaOCliente_Click();
  void mnuConsultarPrecosProdutos_Click();
  void mnuConsultarPrecosServicos_Click();
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
  void PreencherComboboxAnimal(double codigo, std::int16_t& falha);
  /// Nobody to sell to: neither kind of item is open.
  bool SemCliente() const { return !optServico.Enabled() && !optProduto.Enabled(); }

  // Items (Itens.cpp, Produtos.cpp, Comissionados.cpp).
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
  void PesquisarOuLimparItem(platform::ZVFind& campo);
  void RecomecarItem(platform::ZVFind& campo);
  void VoltarAoCampo(platform::ZVFind& campo);
  bool PesarNaBalanca();
  void AbrirCamposDoProdutoEncontrado();
  lookup::Selecao SelecionarProdutos(const std::string& nome, const std::string& codigoDeBarras,
                                     double codigoInterno);

  // Lines (Linhas.cpp, Alteracao.cpp).
  void zvcmdAdicionar_Click();
  bool ConfirmarRepetida(const NovaLinha& linha);
  void zvcmdAlterar_Click();
  void zvcmdRemover_Click();
  std::int16_t Registros_Alterar();
  std::int16_t ValidarCamposDaGrade();
  std::int16_t ValidarValores();
  std::int16_t ValidarCampos();
  /// True while the grid holds at least one line; otherwise it has exactly one data row, blank.
  bool GradeComItens() const { return !frame::SomenteLinhaEmBranco(msfgGrade); }
  void msfgGrade_MouseDown(platform::MouseButton botao);
  void msfgGrade_DblClick();
  void msfgGrade_SelChange();
  void msfgGrade_KeyDown(platform::KeyStroke& tecla);
  void msfgGrade_GotFocus();
  void msfgGrade_LostFocus();

  // Discounts (Descontos.cpp) and the fields of values (CamposDeValores.cpp).
  std::int16_t AtualizarIndicativosDeImpressaoDeDocumentos();
  void AtualizarPercDeDescontoLimiteDaVendaNoCaixa();
  void RecuperaDescontoDoCliente();
  std::int16_t VerificaDescontoPromocionalDeVenda();
  std::int16_t VerificaDescMaximoAutomaticoDeVenda();
  std::int16_t VerificaPercDeDescontoLimiteDaVendaNoCaixa();
  std::int16_t AplicarDescontoERecalcularValoresDosItensDaNovaGradeDuplicada();
  void LigarCamposDeValores();
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

  frame::PainelDeMensagem painelDeMensagem_{*this, picMensagem};
  FaixaDeCaixas caixas_{*this};
  lookup::CaixaDoCliente caixaDoCliente_;
  ItemEmEdicao item_{*this};
  RegrasDeDesconto regras_;
  TotaisDaVenda totais_{*this};
  frame::Classificacao classificacao_;
  /// 1 add, 2 refund, 3 history; the last choice stands until the next.
  std::int16_t OpcaoDoMenuCreditoDoCliente = 0;
  bool redimensionado_ = false;
};

}  // namespace sale
