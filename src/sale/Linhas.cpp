#include <algorithm>

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

namespace {

constexpr std::string_view kSelecioneOCliente = "Selecione o cliente.";

/// But for the labels that name no field and never turn red.
void RestaurarRotulos(frmCaixaOperar& tela) {
  frame::RestaurarCorDosRotulos(
      tela, {"lblCliente", "lblItensDaPreVenda", "lblSituacaoDoCaixa", "lblAvisoDoCaixa"});
}

bool AmbosVazios(const platform::ZVFind& um, const platform::ZVFind& outro) {
  return base::IsBlank(um.Text()) && base::IsBlank(outro.Text());
}

}  // namespace

void frmCaixaOperar::zvcmdAdicionar_Click() {
  Procedimento(*this, "zvcmdAdicionar_Click", [&](Ponto& ponto) {
    if (regras_.AcimaDoLimite(LerCurrency(zvnumPercentualDeDescontoPorItem)) &&
        VerificaPercDeDescontoLimiteDaVendaNoCaixa() == 1) {
      frame::Informar(
          "Percentual de desconto não autorizado. - Favor comunicar o 'Administrador'.");
      zvnumPercentualTotalDeDesconto.SetFocus();
      return;
    }
    ponto = 2;
    if (ValidarCamposDaGrade() == 1) return;
    ponto = 3;
    const NovaLinha linha = item_.MontarLinha();
    ponto = 4;
    if (!ConfirmarRepetida(linha)) return;
    ponto = 5;
    if (VerificaDescMaximoAutomaticoDeVenda() == 1) return;
    ponto = 6;
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
    item_.Encerrar();
    if (item_.EhServico()) {
      zvcmbTiposDeServicos.SetFocus();
    } else {
      zvfCodigoDeBarrasDoProduto.SetFocus();
    }
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(false);
  });
}

std::int16_t frmCaixaOperar::ValidarCamposDaGrade() {
  std::int16_t resultado = 1;
  Procedimento(*this, "ValidarCamposDaGrade", [&](Ponto& ponto) {
    RestaurarRotulos(*this);
    ponto = 2;
    const bool servico = item_.EhServico();
    if (SemCliente()) {
      Recusar(lblApelidoOuNomeFantasiaDoCliente, kSelecioneOCliente,
              zvfApelidoOuNomeFantasiaDoCliente);
    } else if (servico && zvcmbTiposDeServicos.Text->empty()) {
      zvcmbTiposDeServicos.Enabled = true;
      Recusar(lblTipoDeServicoOuCodigoDeBarrasDoProduto, "Selecione o tipo de serviço.",
              zvcmbTiposDeServicos);
    } else if (servico && AmbosVazios(zvfNomeDoServico, zvfCodigoDoServico)) {
      Recusar(lblNomeDoServicoOuNomeDoProduto, "Selecione o serviço.", zvfNomeDoServico);
    } else if (servico && zvcmbAnimal.Text->empty()) {
      Recusar(lblNomeDoAnimalOuCodigoInternoDoProduto, "Selecione o animal.", zvcmbAnimal);
    } else if (!servico && AmbosVazios(zvfNomeDoProduto, zvfCodigoInternoDoProduto)) {
      Recusar(lblNomeDoServicoOuNomeDoProduto, "Selecione o produto.", zvfNomeDoProduto);
    } else {
      ponto = 4;
      resultado = ValidarValores();
    }
  });
  return resultado;
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

bool frmCaixaOperar::ConfirmarRepetida(const NovaLinha& linha) {
  for (std::int32_t i = 1; i <= msfgGrade.Rows() - 1; ++i) {
    const std::string chave =
        msfgGrade.TextMatrix(i, kTipoOuCodigoDeBarras) + msfgGrade.TextMatrix(i, kCodigo) +
        msfgGrade.TextMatrix(i, kCodigoDoAnimal) + msfgGrade.TextMatrix(i, kCodigoDoFuncionario);
    if (chave != linha.chave) continue;
    if (!frame::Perguntar("Este item já consta em sua lista de itens de pré-venda.\nIncluí-lo mais "
                          "uma vez?")) {
      return false;
    }
  }
  return true;
}

void frmCaixaOperar::CalcularValoresDosItensDaGrade() {
  Procedimento(*this, "CalcularValoresDosItensDaGrade", [&](Ponto& ponto) {
    const SomaDasLinhas soma = SomarLinhas(msfgGrade);
    ponto = 2;
    totais_.Exibir(soma);
    zvnumPercentualTotalDeDesconto_LostFocus();
    ponto = 3;
    totais_.Apurar(soma);
  });
}

std::int16_t frmCaixaOperar::ValidarCampos() {
  std::int16_t resultado = 0;
  Procedimento(*this, "ValidarCampos", [&](Ponto& ponto) {
    resultado = 1;
    RestaurarRotulos(*this);
    if (!caixas_.Escolhido()) {
      Recusar(lblApelidoOuNomeFantasiaDoCliente, "É preciso selecionar um caixa.", zvcmbCaixas);
      return;
    }
    ponto = 2;
    if (SemCliente()) {
      Recusar(lblApelidoOuNomeFantasiaDoCliente, kSelecioneOCliente,
              zvfApelidoOuNomeFantasiaDoCliente);
      return;
    }
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
