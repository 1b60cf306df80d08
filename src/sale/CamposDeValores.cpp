#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using base::Currency;
using base::FormatMoney;
using frame::kZeroEmDinheiro;
using frame::LerCurrency;
using frame::LerDouble;
using frame::Ponto;
using frame::Procedimento;
using platform::ZVNumberBox;

namespace {

/// Keeps the operator in a field whose text is refused, with a zero in it.
void Recusar(ZVNumberBox& campo, const std::string& mensagem, bool& cancelar,
             std::string_view zero = kZeroEmDinheiro) {
  frame::Informar(mensagem);
  campo.Text = std::string(zero);
  cancelar = true;
}

}  // namespace

void frmCaixaOperar::LigarCamposDeValores() {
  for (ZVNumberBox* campo : {&zvnumQuantidade, &zvnumValorUnitario,
                             &zvnumPercentualDeDescontoPorItem, &zvnumValorDeDescontoPorItem}) {
    campo->GotFocus = [campo] { frame::SelecionarTudo(*campo); };
  }
  for (ZVNumberBox* campo :
       {&zvnumValorUnitario, &zvnumPercentualDeDescontoPorItem, &zvnumValorDeDescontoPorItem}) {
    campo->KeyPress = [campo](char32_t& tecla) { frame::FiltrarTeclaDeDinheiro(*campo, tecla); };
  }
  zvnumQuantidade.KeyPress = [this](char32_t& tecla) { zvnumQuantidade_KeyPress(tecla); };
  zvnumQuantidade.LostFocus = [this] { zvnumQuantidade_LostFocus(); };
  zvnumQuantidade.Validate = [this](bool& cancelar) { zvnumQuantidade_Validate(cancelar); };
  zvnumValorUnitario.LostFocus = [this] { zvnumValorUnitario_LostFocus(); };
  zvnumPercentualDeDescontoPorItem.LostFocus = [this] {
    zvnumPercentualDeDescontoPorItem_LostFocus();
  };
  zvnumPercentualDeDescontoPorItem.Validate = [this](bool& cancelar) {
    zvnumPercentualDeDescontoPorItem_Validate(cancelar);
  };
  zvnumValorDeDescontoPorItem.LostFocus = [this] { zvnumValorDeDescontoPorItem_LostFocus(); };
  zvnumValorDeDescontoPorItem.Validate = [this](bool& cancelar) {
    zvnumValorDeDescontoPorItem_Validate(cancelar);
  };
  zvnumPercentualTotalDeDesconto.LostFocus = [this] { zvnumPercentualTotalDeDesconto_LostFocus(); };
  zvnumPercentualTotalDeDesconto.Validate = [this](bool& cancelar) {
    zvnumPercentualTotalDeDesconto_Validate(cancelar);
  };
  zvnumValorTotalDeDesconto.LostFocus = [this] { zvnumValorTotalDeDesconto_LostFocus(); };
  zvnumValorTotalDeDesconto.Validate = [this](bool& cancelar) {
    zvnumValorTotalDeDesconto_Validate(cancelar);
  };
}

void frmCaixaOperar::zvnumQuantidade_KeyPress(char32_t& tecla) {
  if (item_.EhServico()) {
    frame::FiltrarTeclaDeInteiro(tecla);
  } else {
    frame::FiltrarTeclaDeDinheiro(zvnumQuantidade, tecla);
  }
}

void frmCaixaOperar::zvnumQuantidade_LostFocus() {
  Procedimento(*this, "zvnumQuantidade_LostFocus", [&](Ponto& ponto) {
    if (item_.EhServico()) {
      frame::Normalizar(zvnumQuantidade, "0", "0", "0");
    } else {
      frame::Normalizar(zvnumQuantidade, "0,000", kZeroEmDinheiro, base::kMoneyMask);
    }
    ponto = 2;
    item_.CalcularValorDoDesconto();
  });
}

void frmCaixaOperar::zvnumQuantidade_Validate(bool& cancelar) {
  Procedimento(*this, "zvnumQuantidade_Validate", [&](Ponto&) {
    if (base::IsNumeric(zvnumQuantidade.Text())) return;
    Recusar(zvnumQuantidade, "Informe um valor numérico para a quantidade.", cancelar,
            item_.EhServico() ? "0" : "0,000");
  });
}

void frmCaixaOperar::zvnumValorUnitario_LostFocus() {
  Procedimento(*this, "zvnumValorUnitario_LostFocus", [&](Ponto& ponto) {
    frame::Normalizar(zvnumValorUnitario);
    ponto = 2;
    item_.CalcularValorDoDesconto();
  });
}

void frmCaixaOperar::zvnumPercentualDeDescontoPorItem_LostFocus() {
  Procedimento(*this, "zvnumPercentualDeDescontoPorItem_LostFocus", [&](Ponto& ponto) {
    frame::Normalizar(zvnumPercentualDeDescontoPorItem);
    ponto = 2;
    item_.CalcularValorDoDesconto();
  });
}

void frmCaixaOperar::zvnumValorDeDescontoPorItem_LostFocus() {
  Procedimento(*this, "zvnumValorDeDescontoPorItem_LostFocus", [&](Ponto& ponto) {
    frame::Normalizar(zvnumValorDeDescontoPorItem);
    ponto = 2;
    item_.CalcularPercentualDoDesconto();
  });
}

void frmCaixaOperar::zvnumPercentualDeDescontoPorItem_Validate(bool& cancelar) {
  Procedimento(*this, "zvnumPercentualDeDescontoPorItem_Validate",
               [&](Ponto&) { ValidarDescontoPorItem(zvnumPercentualDeDescontoPorItem, cancelar); });
}

void frmCaixaOperar::zvnumValorDeDescontoPorItem_Validate(bool& cancelar) {
  Procedimento(*this, "zvnumValorDeDescontoPorItem_Validate",
               [&](Ponto&) { ValidarDescontoPorItem(zvnumValorDeDescontoPorItem, cancelar); });
}

void frmCaixaOperar::ValidarDescontoPorItem(ZVNumberBox& campo, bool& cancelar) {
  if (!base::IsNumeric(campo.Text())) campo.Text = std::string(kZeroEmDinheiro);
  if (LerCurrency(campo).IsZero()) return;
  if (LerCurrency(zvnumQuantidade).IsZero()) {
    Recusar(campo, "Informe a quantidade antes do desconto.", cancelar);
  } else if (LerCurrency(zvnumValorUnitario).IsZero()) {
    Recusar(campo, "Informe o valor unitário antes do desconto.", cancelar);
  }
}

void frmCaixaOperar::zvnumPercentualTotalDeDesconto_LostFocus() {
  Procedimento(*this, "zvnumPercentualTotalDeDesconto_LostFocus", [&](Ponto& ponto) {
    frame::Normalizar(zvnumPercentualTotalDeDesconto);
    ponto = 2;
    if (!totais_.Bruto().IsZero()) totais_.CalcularValorDoDesconto();
    ponto = 3;
    totais_.CalcularLiquido();
  });
}

void frmCaixaOperar::zvnumValorTotalDeDesconto_LostFocus() {
  Procedimento(*this, "zvnumValorTotalDeDesconto_LostFocus", [&](Ponto& ponto) {
    frame::Normalizar(zvnumValorTotalDeDesconto);
    ponto = 2;
    if (!totais_.Bruto().IsZero()) {
      totais_.CalcularPercentualDoDesconto();
      zvnumPercentualTotalDeDesconto_LostFocus();
    }
    ponto = 3;
    totais_.CalcularLiquido();
  });
}

void frmCaixaOperar::zvnumPercentualTotalDeDesconto_Validate(bool& cancelar) {
  Procedimento(*this, "zvnumPercentualTotalDeDesconto_Validate", [&](Ponto& ponto) {
    ZVNumberBox& campo = zvnumPercentualTotalDeDesconto;
    constexpr double kTudo = 100;
    if (!base::IsNumeric(campo.Text())) {
      Recusar(campo, "Informe um valor numérico para o percentual do desconto.", cancelar);
      return;
    }
    ponto = 2;
    const double percentual = LerDouble(campo);
    if (percentual != 0 && totais_.Bruto().IsZero()) {
      Recusar(campo,
              "Adicione um item de venda na grade antes do informar o percentual do "
              "desconto.",
              cancelar);
    } else if (percentual > kTudo) {
      Recusar(campo, "O percentual de desconto da venda não pode ser maior que 100,00%.", cancelar);
    }
  });
}

void frmCaixaOperar::zvnumValorTotalDeDesconto_Validate(bool& cancelar) {
  Procedimento(*this, "zvnumValorTotalDeDesconto_Validate", [&](Ponto& ponto) {
    ZVNumberBox& campo = zvnumValorTotalDeDesconto;
    if (!base::IsNumeric(campo.Text())) {
      Recusar(campo, "Informe um valor numérico para o valor do desconto.", cancelar);
      return;
    }
    ponto = 2;
    const Currency desconto = LerCurrency(campo);
    const Currency maximo = totais_.BaseDoDesconto();
    if (!desconto.IsZero() && totais_.Bruto().IsZero()) {
      Recusar(campo,
              "Adicione um item de venda na grade antes do informar o valor do "
              "desconto.",
              cancelar);
    } else if (desconto > maximo) {
      Recusar(campo,
              "Valor de desconto da venda não pode ser maior que " + FormatMoney(maximo) + ".",
              cancelar);
    }
  });
}

}  // namespace sale
