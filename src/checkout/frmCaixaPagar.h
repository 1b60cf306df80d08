#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Currency.h"
#include "base/GradeLida.h"
#include "fiscal/TrocaDeArquivosCFeSAT.h"
#include "frame/PainelDeMensagem.h"
#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/PictureBox.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVDateBox.h"
#include "platform/ZVNumberBox.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"

namespace servicos::ZOVA_N_Caixa {
class clsCaixa;
}

namespace checkout {

class drComprovanteDePagamentoDeVenda;

/// The checkout: tenders, change, credit kept or spent, and the registration of the sale. The
/// counter fills its values, opens it and learns whether the sale stands. One instance serves one
/// checkout.
class frmCaixaPagar : public platform::Form {
 public:
  /// What MontarExibirFormulario answers when the operator left without confirming.
  static constexpr std::int16_t kNaoConfirmado = 99;

  frmCaixaPagar();

  platform::ZVTheme zvTheme{*this, "zvTheme"};

  platform::Label lblCliente{*this, "lblCliente"};
  platform::ZVTextBox zvtxtApelidoOuNomeFantasiaDoCliente{*this,
                                                          "zvtxtApelidoOuNomeFantasiaDoCliente"};
  platform::Label lblNomeOuRazaoSocialDoCliente{*this, "lblNomeOuRazaoSocialDoCliente"};
  platform::ZVTextBox zvtxtNomeOuRazaoSocialDoCliente{*this, "zvtxtNomeOuRazaoSocialDoCliente"};
  platform::Label lblCodigoDoCliente{*this, "lblCodigoDoCliente"};
  platform::ZVTextBox zvtxtCodigoDoCliente{*this, "zvtxtCodigoDoCliente"};
  platform::Label lblCreditoDoCliente{*this, "lblCreditoDoCliente"};
  platform::ZVNumberBox zvnumCreditoDoCliente{*this, "zvnumCreditoDoCliente"};

  platform::Label lblInformacoesDaVenda{*this, "lblInformacoesDaVenda"};
  platform::PictureBox picValorDaVenda{*this, "picValorDaVenda"};
  platform::Label lblValorDaVenda{picValorDaVenda, "lblValorDaVenda"};
  platform::ZVTextBox zvtxtValorDaVenda{picValorDaVenda, "zvtxtValorDaVenda"};
  platform::PictureBox picValorPago{*this, "picValorPago"};
  platform::Label lblValorPago{picValorPago, "lblValorPago"};
  platform::ZVTextBox zvtxtValorPago{picValorPago, "zvtxtValorPago"};
  platform::PictureBox picSaldoDevedorOuTroco{*this, "picSaldoDevedorOuTroco"};
  platform::Label lblSaldoOuTroco{picSaldoDevedorOuTroco, "lblSaldoOuTroco"};
  /// Its tag is the change that the last tender left, the bound for what the operator types.
  platform::ZVTextBox zvtxtSaldoDevedorOuTroco{picSaldoDevedorOuTroco, "zvtxtSaldoDevedorOuTroco"};

  platform::Label lblFormaDePagamento{*this, "lblFormaDePagamento"};
  platform::ZVComboBox zvcmbFormaDePagamento{*this, "zvcmbFormaDePagamento"};
  platform::Label lblValor{*this, "lblValor"};
  platform::ZVNumberBox zvnumValor{*this, "zvnumValor"};
  platform::Label lblDataDeVencimento{*this, "lblDataDeVencimento"};
  platform::ZVDateBox zvdtpDataDeVencimento{*this, "zvdtpDataDeVencimento"};
  platform::ZVCommandButton zvcmdAdicionar{*this, "zvcmdAdicionar"};
  platform::Label lblPagamentos{*this, "lblPagamentos"};
  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
  platform::ZVCommandButton zvcmdAlterar{*this, "zvcmdAlterar"};
  platform::ZVCommandButton zvcmdRemover{*this, "zvcmdRemover"};
  /// Its tag is the part of the change that the customer keeps as credit.
  platform::Label lblCreditoParaOCliente{*this, "lblCreditoParaOCliente"};

  platform::PictureBox picRodape{*this, "picRodape"};
  platform::Label lblObservacaoDeCamposObrigatorios{picRodape, "lblObservacaoDeCamposObrigatorios"};
  platform::ZVCommandButton zvcmdCancelar{picRodape, "zvcmdCancelar"};
  platform::ZVCommandButton zvcmdConfirmar{picRodape, "zvcmdConfirmar"};

  platform::PictureBox picMensagem{*this, "picMensagem"};
  platform::Label lblMensagem{picMensagem, "lblMensagem"};

  // The sale, as the counter hands it over; all of it before MontarExibirFormulario.
  void NumeroDaFichaClinica(std::int32_t numero);
  void ApelidoOuNomeFantasiaDoCliente(std::string_view apelido);
  void NomeOuRazaoSocialDoCliente(std::string_view nome);
  void CodigoDoCliente(std::int32_t codigo);
  void CreditoDoCliente(base::Currency credito);
  void ValorBruto(base::Currency valor);
  void ValorTotalDeDescontos(base::Currency valor);
  void ValorLiquido(base::Currency valor);
  void EnderecoDoCliente(std::string_view endereco);
  void CanalDeComunicacaoDoCliente(std::string_view canal);
  /// The lines of the sale, which live as long as this screen.
  void GradeDeItensDaVendas(const base::GradeLida& grade);
  void PercentualTotalDeDesconto(base::Currency percentual);
  void Custo(base::Currency valor);
  void Comissao(base::Currency valor);
  void LucroEmValor(base::Currency valor);
  void LucroEmPercentual(base::Currency valor);
  void NumeroDeAnimais(std::int16_t numero);
  /// Error 13 for a text that is no number. The animals that the sale names come from its lines.
  void Animais(std::string_view animais);

  /// Shows the checkout until the operator is done: 0 when the sale stands, 99 otherwise.
  std::int16_t MontarExibirFormulario();
  /// 1 when the due date is refused, the operator having been told; 0 when it passes.
  std::int16_t ValidarData(std::string_view texto);
  void ExibirOcultarpicMensagem(bool exibir, bool somenteCursor);
  void CentralizarpicMensagem();

 private:
  /// What the counter hands over and no control shows.
  struct Venda {
    std::int32_t NumeroDaFichaClinica = 0;
    base::Currency ValorBruto, ValorTotalDeDescontos, ValorLiquido;
    std::string EnderecoDoCliente, CanalDeComunicacaoDoCliente;
    const base::GradeLida* GradeDeItensDaVendas = nullptr;
    base::Currency PercentualTotalDeDesconto;
    base::Currency Custo, Comissao, LucroEmValor, LucroEmPercentual;
    std::int16_t NumeroDeAnimais = 0;
    std::int16_t Animais = 0;
  };

  /// Whom the coupon is issued to, fiscal::Identificacao, and the document told at the register.
  struct Consumidor {
    std::int16_t tipoDeIdentificacao = 0;
    std::string documento;
  };

  static constexpr std::string_view kSaldoAPagar = "Saldo a pagar";
  static constexpr std::string_view kTroco = "Troco";

  // Desenho.cpp: where everything stands.
  platform::Layout Desenho();

  // frmCaixaPagar.cpp: opening and closing.
  void LigarEventos();
  void Form_Unload();
  void zvcmdCancelar_Click();
  void PreencherzvcmbFormaDePagamento(std::int16_t& falha);
  void Grade_Configurar(std::int16_t& falha);

  // Pagamentos.cpp: choosing and adding a tender.
  void zvcmbFormaDePagamento_Click();
  void zvcmbFormaDePagamento_LostFocus();
  void zvdtpDataDeVencimento_KeyPress(char32_t tecla);
  void zvcmdAdicionar_Click();
  /// 1 when the tenders do not pay the sale, the operator having been told.
  std::int16_t ValidarCampos();
  void RestaurarRotulos();
  void ExibirOcultarDataDeVencimento(bool exibir);
  void RecusarValor(std::string_view texto);
  bool PermitirVendaACredito(base::Currency valor);
  bool UsarCreditoDoCliente(base::Currency valor);
  bool FormaJaEstaNaGrade(std::int16_t codigo) const;
  void AtualizarTotais();
  void RotularSaldoOuTroco(base::Currency saldo);
  void LimparPagamento();

  // Remocao.cpp: taking a tender out again.
  void zvcmdRemover_Click();
  void zvcmdAlterar_Click();
  void AtualizarSaldoSemPagamento();
  void RetirarDoCreditoParaOCliente(base::Currency valor);

  // Troco.cpp: giving less change.
  void zvtxtSaldoDevedorOuTroco_KeyPress(char32_t& tecla);
  void zvtxtSaldoDevedorOuTroco_Validate(bool& cancelar);
  void zvtxtSaldoDevedorOuTroco_LostFocus();
  void RotularCreditoParaOCliente();

  // Confirmacao.cpp: the sale is registered.
  void zvcmdConfirmar_Click();
  void PreencherVenda(servicos::ZOVA_N_Caixa::clsCaixa& caixa);

  // DocumentoFiscal.cpp: the coupon is issued.
  bool EmitirDocumentoFiscal(frame::Espera& espera);
  Consumidor PerguntarConsumidor();
  bool ImprimirCFeSAT(frame::Espera& espera);
  base::Currency MontarRegistrosSAT();
  void MontarCabecalhoSAT(std::int16_t tipoDeIdentificacaoDoConsumidor,
                          std::string_view documentoDoConsumidor, std::string_view imprimirCFeSAT);
  void MontarRegistroDeItensDeProdutosSAT(std::string_view sequencia, std::string_view codigo,
                                          std::string_view quantidade,
                                          std::string_view valorUnitario, std::string_view desconto,
                                          std::string_view valorTotal);
  void MontarRegistroDeFormasDePagamentosSAT(std::string_view sequencia,
                                             std::int16_t formaDePagamento, std::string_view valor,
                                             std::string_view vencimento,
                                             std::string_view numeroDoLancamento,
                                             base::Currency totalDeProdutos);
  bool ExportarDadosCFeSATParaArquivo(std::string_view cabecalho, std::string_view itens,
                                      std::string_view pagamentos);

  // Comprovante.cpp: the papers of the sale.
  void ImprimirComprovante(frame::Espera& espera, std::int32_t numeroDaVenda);
  void ImprimirComprovanteDePagamentoDeVenda(std::int32_t numeroDaVenda);
  void PreencherComprovante(drComprovanteDePagamentoDeVenda& comprovante,
                            const std::string& empresa, std::int32_t numeroDaVenda);
  void ImprimirNotasPromissorias(frame::Espera& espera);
  void ImprimirNotaPromissoria(std::int32_t linha);

  frame::PainelDeMensagem painel_{*this, picMensagem};
  Venda venda_;
  bool GradeComPagamentos = false;
  bool PagamentoCancelado = false;
  bool PagamentoConfirmado = false;

  fiscal::TrocaDeArquivosCFeSAT troca_;
  /// The records of the coupon: the header is made anew at each try, items and payments are added
  /// to those of the tries before.
  std::string CabecalhoCFeSAT, ItensCFeSAT, PagamentosCFeSAT;
};

}  // namespace checkout
