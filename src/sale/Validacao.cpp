#include "base/Text.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::kZeroEmDinheiro;
using frame::LerCurrency;
using frame::LerDouble;
using frame::Ponto;
using frame::Procedimento;
using frame::Recusar;

void frmCaixaOperar::RestaurarRotulos() {
  frame::RestaurarCorDosRotulos(
      *this, {"lblCliente", "lblItensDaPreVenda", "lblSituacaoDoCaixa", "lblAvisoDoCaixa"});
}

std::int16_t frmCaixaOperar::RecusarSemCliente() {
  if (!SemCliente()) return 0;
  return Recusar(lblApelidoOuNomeFantasiaDoCliente, "Selecione o cliente.",
                 zvfApelidoOuNomeFantasiaDoCliente);
}

std::int16_t frmCaixaOperar::ValidarCamposDaGrade() {
  std::int16_t resultado = 0;
  Procedimento(", frmCaixaOperar, ValidarCamposDaGrade, Ponto: ", [&](Ponto& ponto) {
    resultado = 1;
    RestaurarRotulos();
    ponto = 2;
    if (RecusarSemCliente() == 1) return;
    ponto = 3;
    if (ValidarItem() == 1) return;
    ponto = 4;
    resultado = ValidarValores();
  });
  return resultado;
}

std::int16_t frmCaixaOperar::ValidarItem() {
  const auto ambosVazios = [](const platform::ZVFind& a, const platform::ZVFind& b) {
    return base::IsBlank(a.Text()) && base::IsBlank(b.Text());
  };
  if (!item_.EhServico()) {
    if (!ambosVazios(zvfNomeDoProduto, zvfCodigoInternoDoProduto)) return 0;
    return Recusar(lblNomeDoServicoOuNomeDoProduto, "Selecione o produto.", zvfNomeDoProduto);
  }
  if (zvcmbTiposDeServicos.Text->empty()) {
    zvcmbTiposDeServicos.Enabled = true;
    return Recusar(lblTipoDeServicoOuCodigoDeBarrasDoProduto, "Selecione o tipo de serviço.",
                   zvcmbTiposDeServicos);
  }
  if (ambosVazios(zvfNomeDoServico, zvfCodigoDoServico)) {
    return Recusar(lblNomeDoServicoOuNomeDoProduto, "Selecione o serviço.", zvfNomeDoServico);
  }
  if (zvcmbAnimal.Text->empty()) {
    return Recusar(lblNomeDoAnimalOuCodigoInternoDoProduto, "Selecione o animal.", zvcmbAnimal);
  }
  return 0;
}

std::int16_t frmCaixaOperar::ValidarValores() {
  frame::PreencherSeVazio(zvnumQuantidade, item_.EhServico() ? "0,00" : "0,000");
  if (LerCurrency(zvnumQuantidade).IsZero()) {
    return Recusar(lblQuantidade, "Informe a quantidade.", zvnumQuantidade);
  }
  frame::PreencherSeVazio(zvnumValorUnitario, kZeroEmDinheiro);
  if (LerDouble(zvnumValorUnitario) <= 0) {
    return Recusar(lblValorUnitario, "Informe um valor unitário maior que 0,00 (zero).",
                   zvnumValorUnitario);
  }
  frame::PreencherSeVazio(zvnumValorDeDescontoPorItem, kZeroEmDinheiro);
  // By Val, which stops at the comma: only the whole numbers are compared.
  const std::string totalDoItem =
      base::ToText(LerDouble(zvnumValorUnitario) * LerDouble(zvnumQuantidade));
  if (base::Val(zvnumValorDeDescontoPorItem.Text()) > base::Val(totalDoItem)) {
    return Recusar(lblValorDeDescontoPorItem,
                   "Valor de desconto não pode ser maior que o valor total do item.",
                   zvnumValorDeDescontoPorItem);
  }
  frame::PreencherSeVazio(zvnumPercentualDeDescontoPorItem, kZeroEmDinheiro);
  constexpr double kTudo = 100;
  if (LerDouble(zvnumPercentualDeDescontoPorItem) > kTudo) {
    return Recusar(lblPercentualDeDescontoPorItem,
                   "Percentual de desconto do item não pode ser maior que 100%.",
                   zvnumPercentualDeDescontoPorItem);
  }
  return 0;
}

std::int16_t frmCaixaOperar::ValidarCampos() {
  std::int16_t resultado = 0;
  Procedimento(", frmCaixaOperar, ValidarCampos, Ponto: ", [&](Ponto& ponto) {
    resultado = 1;
    RestaurarRotulos();
    if (!caixas_.Escolhido()) {
      Recusar(lblApelidoOuNomeFantasiaDoCliente, "É preciso selecionar um caixa.", zvcmbCaixas);
      return;
    }
    ponto = 2;
    if (RecusarSemCliente() == 1) return;
    ponto = 3;
    if (!GradeComItens()) {
      frame::Informar("É preciso adicionar um item na lista.");
      zvcmdAdicionar.SetFocus();
      return;
    }
    ponto = 4;
    frame::PreencherSeVazio(zvnumPercentualTotalDeDesconto, kZeroEmDinheiro);
    if (regras_.AcimaDoLimite(totais_.Percentual()) &&
        VerificaPercDeDescontoLimiteDaVendaNoCaixa() == 1) {
      Recusar(lblPercentualTotalDeDesconto,
              "Percentual de desconto não autorizado. - Favor comunicar o 'Administrador'.",
              zvnumPercentualTotalDeDesconto);
      return;
    }
    ponto = 5;
    frame::PreencherSeVazio(zvnumTotal, kZeroEmDinheiro);
    if (LerCurrency(zvnumValorTotalDeDesconto) > totais_.Bruto()) {
      Recusar(lblValorTotalDeDesconto, "Valor de desconto não pode ser maior que o valor total.",
              zvnumValorTotalDeDesconto);
      return;
    }
    resultado = 0;
  });
  return resultado;
}

}  // namespace sale
