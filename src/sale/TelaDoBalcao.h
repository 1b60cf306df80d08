#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "frame/Grade.h"
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

namespace sale {

/// What stands on the sale counter, in tab order: the controls and their places, without a rule.
/// The counter's components share it; what happens to them is the counter's own (frmCaixaOperar).
class TelaDoBalcao : public platform::Form {
 public:
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

 protected:
  TelaDoBalcao();
  /// Puts everything in its place; ends the constructor of the counter.
  void Desenhar();

  /// The size that the wait panel was designed with, in twips: a wait takes it away.
  std::int16_t alturaDopicMensagem_ = 0;
  std::int16_t larguraDopicMensagem_ = 0;
};

}  // namespace sale
