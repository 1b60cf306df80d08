#include "register/frmCaixaComprovanteDeVenda.h"

#include "base/Numbers.h"
#include "checkout/DadosDoComprovante.h"
#include "checkout/drComprovante.h"
#include "frame/Procedimento.h"
#include "frame/servicos/Codigos.h"
#include "platform/Desktop.h"

namespace registers {

using frame::Ponto;
using frame::Procedimento;
using platform::Look;

namespace {

constexpr VendasDoDia kTela{.formulario = "frmCaixaComprovanteDeVenda",
                            .titulo = "Comprovante de venda",
                            .situacao = servicos::kEfetuada,
                            .enviaHome = true,
                            .comando = "zvcmdEmitirComprovanteDeVenda",
                            .legenda = "Emitir comprovante",
                            .dica = "Emitir comprovante da venda",
                            .dicaFechar = "Fechar"};

}  // namespace

frmCaixaComprovanteDeVenda::frmCaixaComprovanteDeVenda() : frmVendasDoDia(kTela) {
  picMensagem.Visible.Assign(false);
  zvcmdComando.Click = [this] { zvcmdEmitirComprovanteDeVenda_Click(); };
  platform::Layout desenho = Desenho();
  desenho.places.push_back({picMensagem, {4650, 3600, 5400, 1200}, "", Look::kWait});
  desenho.places.push_back(
      {lblMensagem, {150, 420, 5100, 360}, "Aguarde, reorganizando dados.", Look::kWait});
  Arrange(desenho);
}

void frmCaixaComprovanteDeVenda::zvcmdEmitirComprovanteDeVenda_Click() {
  Procedimento(*this, "zvcmdEmitirComprovanteDeVenda_Click", [&](Ponto&) {
    double numero = 0;
    if (!HaVenda(numero)) return;
    const frame::PonteiroDeEspera espera(*this);
    Imprimir2aViaDoComprovanteDePagamentoDeVenda(numero);
  });
}

void frmCaixaComprovanteDeVenda::Imprimir2aViaDoComprovanteDePagamentoDeVenda(
    double numeroDaVenda) {
  Procedimento(frame::etiquetas::kImprimir2aVia, [&](Ponto& ponto) {
    const frame::Espera espera(painel_);
    ponto = 2;
    const auto dados = checkout::LerDadosDoComprovante(numeroDaVenda);
    if (!dados) return;
    ponto = 3;
    checkout::dr2aViaDoComprovanteDePagamentoDeVenda comprovante(
        platform::Desktop::Current().ReceiptPaper());
    comprovante.DataSource = dados->itens;
    comprovante.Preencher(
        {.empresa = dados->empresa,
         .venda = base::ToText(numeroDaVenda),
         .cliente = DaVenda(kColunaCodigoDoCliente) + " - " + DaVenda(kColunaNomeDoCliente),
         .endereco = DaVenda(kColunaEndereco),
         .canais = DaVenda(kColunaCanais),
         .total = DaVenda(kColunaLiquido),
         .rotuloDoPago = "Valor Pago:",
         .pago = DaVenda(kColunaRecebido)});
    const double saldo =
        base::ToDouble(DaVenda(kColunaLiquido)) - base::ToDouble(DaVenda(kColunaRecebido));
    comprovante.lblSaldoDevedor.Visible = saldo != 0;
    comprovante.txtSaldoDevedor.Visible = saldo != 0;
    comprovante.txtSaldoDevedor.Caption = base::Format(saldo, base::kMoneyMask);
    ponto = 4;
    checkout::EmitirComprovante(comprovante, painel_);
  });
}

}  // namespace registers
