#include <algorithm>

#include "base/Text.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using base::Currency;
using base::FormatMoney;
using frame::Ponto;
using frame::Procedimento;

namespace {

constexpr std::string_view kLugarDoLancamento = "EspacoReservadoParaONumeroDoLancamento";
constexpr std::size_t kLarguraDaComissao = 50;

/// A cell holds no tab: it would begin the next cell.
std::string Celula(std::string texto) {
  std::replace(texto.begin(), texto.end(), '\t', ' ');
  return texto;
}

/// The unit cost that the lookup left in the tag of the item's name.
std::string CustoDa(const std::string& etiqueta) {
  return FormatMoney(etiqueta.empty() ? Currency() : base::ToCurrency(etiqueta));
}

}  // namespace

/// A line about to be added: its cells joined by tabs, and what it has in common with an equal
/// line.
struct frmCaixaOperar::NovaLinha {
  std::string chave;
  std::string celulas;
};

void frmCaixaOperar::zvcmdAdicionar_Click() {
  Procedimento(", frmCaixaOperar, zvcmdAdicionar_Click, Ponto: ", [&](Ponto& ponto) {
    if (frame::LerCurrency(zvnumPercentualDeDescontoPorItem) > PercentualDeDescontoLimite &&
        VerificaPercDeDescontoLimiteDaVendaNoCaixa() == 1) {
      frame::Informar(
          "Percentual de desconto não autorizado. - Favor comunicar o 'Administrador'.");
      zvnumPercentualTotalDeDesconto.SetFocus();
      return;
    }
    ponto = 2;
    if (ValidarCamposDaGrade() == 1) return;
    ponto = 3;
    NovaLinha linha = MontarLinha();
    ponto = 4;
    if (!ConfirmarRepetida(linha)) return;
    ponto = 5;
    if (VerificaDescMaximoAutomaticoDeVenda() == 1) return;
    ponto = 6;
    linha.celulas =
        base::Replace(linha.celulas, kLugarDoLancamento, base::ToText(NumeroDoLancamentoDoItem));
    NumeroDoLancamentoDoItem = 0;
    const bool primeira = !GradeComItens();
    msfgGrade.AddItem(linha.celulas);
    if (primeira) msfgGrade.RemoveItem(1);
    // A long sale scrolls on, so that the operator sees what was added.
    msfgGrade.TopRow(std::max(msfgGrade.Rows() - msfgGrade.RowsInView(), 1));
    ponto = 7;
    CalcularValoresDosItensDaGrade();
    ponto = 8;
    caixaDoCliente_.Habilitar(false);
    optServico.Enabled = zvcmbAnimal.ListCount() > 0;
    LimparItemAdicionado();
  });
}

frmCaixaOperar::NovaLinha frmCaixaOperar::MontarLinha() {
  const bool servico = EhServico();
  const double quantidade = frame::LerDouble(zvnumQuantidade);
  const Currency total = TotalDaLinha(quantidade, frame::LerDouble(zvnumValorUnitario),
                                      frame::LerDouble(zvnumValorDeDescontoPorItem));
  const std::string& comissionado = zvcmbComissionado.Text();
  const std::string funcionario =
      comissionado.empty()
          ? "0"
          : base::ToText(zvcmbComissionado.ItemData(zvcmbComissionado.ListIndex()));
  Currency percentual, comissao;
  if (!base::IsBlank(comissionado)) {
    percentual = Arredondar(base::ToCurrency(base::Right(comissionado, kLarguraDaComissao)));
    comissao = ComissaoDaLinha(percentual, total);
  }
  const std::string tipoOuBarras =
      servico ? base::ToText(zvcmbTiposDeServicos.ItemData(zvcmbTiposDeServicos.ListIndex()))
              : zvfCodigoDeBarrasDoProduto.Text();
  const std::string codigo = servico ? zvfCodigoDoServico.Text() : zvfCodigoInternoDoProduto.Text();
  const std::string animal =
      servico ? base::ToText(zvcmbAnimal.ItemData(zvcmbAnimal.ListIndex())) : std::string();
  const std::string celulas[] = {
      tipoOuBarras,
      codigo,
      servico ? zvfNomeDoServico.Text() : zvfNomeDoProduto.Text(),
      animal,
      servico ? zvcmbAnimal.Text() : std::string(),
      funcionario,
      comissionado,
      servico ? base::Format(quantidade, "0") : FormatMoney(quantidade),
      FormatMoney(frame::LerCurrency(zvnumValorUnitario)),
      FormatMoney(frame::LerDouble(zvnumPercentualDeDescontoPorItem) * -1.0),
      FormatMoney(frame::LerDouble(zvnumValorDeDescontoPorItem) * -1.0),
      FormatMoney(total),
      CustoDa(servico ? zvfNomeDoServico.Tag() : zvfNomeDoProduto.Tag()),
      FormatMoney(percentual),
      FormatMoney(comissao),
      std::string(kLugarDoLancamento),
      servico ? std::string() : UnidadeDeVendaDoProduto,
      "0",
      base::ToText(static_cast<std::int32_t>(kVendaDeBalcao)),
      base::ToText(static_cast<std::int32_t>(servico ? kServico : kProduto))};
  NovaLinha linha;
  linha.chave = tipoOuBarras + codigo + animal + funcionario;
  for (const std::string& celula : celulas) linha.celulas += Celula(celula) + '\t';
  return linha;
}

bool frmCaixaOperar::ConfirmarRepetida(const NovaLinha& linha) {
  for (std::int32_t i = 1; i <= msfgGrade.Rows() - 1; ++i) {
    if (ChaveDaLinha(msfgGrade, i) != linha.chave) continue;
    if (!frame::Perguntar("Este item já consta em sua lista de itens de pré-venda.\nIncluí-lo mais "
                          "uma vez?")) {
      return false;
    }
  }
  return true;
}

void frmCaixaOperar::LimparItemAdicionado() {
  const bool servico = EhServico();
  const frame::SupressaoDePesquisa supressao;
  if (servico) {
    zvcmbTiposDeServicos.ListIndex = -1;
    zvfCodigoDoServico.Text = "";
    zvfNomeDoServico.Text = "";
  } else {
    zvfCodigoDeBarrasDoProduto.Text = "";
    zvfNomeDoProduto.Text = "";
    zvfCodigoInternoDoProduto.Text = "";
  }
  zvcmbComissionado.ListIndex = -1;
  zvnumQuantidade.Text = servico ? "0" : "0,000";
  zvnumValorUnitario.Text = std::string(frame::kZeroEmDinheiro);
  zvnumPercentualDeDescontoPorItem.Text = std::string(frame::kZeroEmDinheiro);
  zvnumValorDeDescontoPorItem.Text = std::string(frame::kZeroEmDinheiro);
  if (servico) {
    zvcmbTiposDeServicos.SetFocus();
  } else {
    zvfCodigoDeBarrasDoProduto.SetFocus();
  }
  HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(false);
}

void frmCaixaOperar::CalcularValoresDosItensDaGrade() {
  Procedimento(", frmCaixaOperar, CalcularValoresDosItensDaGrade, Ponto: ", [&](Ponto& ponto) {
    const SomaDasLinhas soma = SomarLinhas(msfgGrade);
    Comissao = soma.comissaoArredondada;
    ponto = 2;
    zvnumTotal.Text = FormatMoney(soma.bruto);
    zvnumValorTotalDeDescontoItensDaGrade.Text = FormatMoney(soma.descontos);
    zvnumPercentualTotalDeDesconto_LostFocus();
    ponto = 3;
    Custo = Arredondar(soma.custo);
    const Lucro lucro =
        CalcularLucro(frame::LerCurrency(zvnumLiquidoAPagar), soma.custo, soma.comissoes);
    LucroEmValor = lucro.valor;
    LucroEmPercentual = lucro.percentual;
  });
}

}  // namespace sale
