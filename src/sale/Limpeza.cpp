#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/modFuncoes.h"
#include "lookup/frmExibirDetalhesDoItemDaVenda.h"
#include "platform/CheckBox.h"
#include "platform/Colors.h"
#include "platform/ZVTextBox.h"
#include "sale/Menu.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::kZeroEmDinheiro;
using frame::Ponto;
using frame::Procedimento;
using frame::valores;
using platform::Kind;
using platform::ZVComboBox;
using platform::ZVFind;

namespace {

constexpr platform::Color kCinzaClaro = platform::Rgb(249, 249, 249);

}  // namespace

void frmCaixaOperar::PermissaoDoUsuario() {
  Procedimento(*this, "PermissaoDoUsuario", [&](Ponto&) {
    const bool administrador = frame::Direito("Administrador");
    const bool descontos =
        administrador || frame::Direito("PermissaoDoModuloCaixaAlterarDescontosDeVendas");
    zvnumValorUnitario.Enabled = administrador;
    if (!administrador) {
      zvnumPercentualDeDescontoPorItem.Enabled = descontos;
      zvnumValorDeDescontoPorItem.Enabled = descontos;
    }
    zvnumPercentualTotalDeDesconto.Enabled = descontos;
    zvnumValorTotalDeDesconto.Enabled = descontos;
  });
}

void frmCaixaOperar::HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(bool habilitar) {
  Procedimento(*this, "HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda",
               [&](Ponto& ponto) {
                 zvnumQuantidade.Enabled = habilitar;
                 zvnumValorUnitario.Enabled = habilitar;
                 zvnumPercentualDeDescontoPorItem.Enabled = habilitar;
                 zvnumValorDeDescontoPorItem.Enabled = habilitar;
                 ponto = 2;
                 if (habilitar) PermissaoDoUsuario();
               });
}

void frmCaixaOperar::HabilitarDesabilitarCampos(bool habilitar) {
  Procedimento(*this, "HabilitarDesabilitarCampos", [&](Ponto&) {
    platform::Control* const campos[] = {&optServico,           &optProduto,
                                         &zvcmbTiposDeServicos, &zvfCodigoDoServico,
                                         &zvfNomeDoServico,     &zvfCodigoDeBarrasDoProduto,
                                         &zvfNomeDoProduto,     &zvfCodigoInternoDoProduto,
                                         &zvcmbComissionado};
    for (platform::Control* campo : campos) campo->Enabled = habilitar;
    if (!habilitar) {
      zvcmbAnimal.Enabled = false;
    } else if (zvcmbAnimal.ListCount() >= 2) {
      zvcmbAnimal.Enabled = true;
    }
    platform::ZVNumberBox* const valoresDaLinha[] = {&zvnumQuantidade, &zvnumValorUnitario,
                                                     &zvnumPercentualDeDescontoPorItem,
                                                     &zvnumValorDeDescontoPorItem};
    for (platform::ZVNumberBox* campo : valoresDaLinha) {
      campo->BackColor = habilitar ? platform::kWhite : kCinzaClaro;
    }
  });
}

void frmCaixaOperar::LimparCampos(std::int16_t& falha) {
  Procedimento(*this, "LimparCampos", [&](Ponto& ponto) {
    for (platform::Control* controle : Controls()) {
      switch (controle->GetKind()) {
        case Kind::kFind:
          ItemEmEdicao::Esvaziar(static_cast<ZVFind&>(*controle));
          break;
        case Kind::kNumberBox:
        case Kind::kTextBox:
          static_cast<platform::EditBox&>(*controle).Text = "";
          break;
        case Kind::kComboBox:
          if (controle != &zvcmbCaixas && controle != &zvcmbTiposDeServicos) {
            static_cast<ZVComboBox&>(*controle).Clear();
          }
          break;
        case Kind::kCheckBox:
          static_cast<platform::CheckBox&>(*controle).Value = false;
          break;
        default:
          break;
      }
    }
    ponto = 2;
    item_.ZerarValores(item_.EhServico() ? "0" : "0,000");
    for (platform::ZVNumberBox* campo :
         {&zvnumTotal, &zvnumValorTotalDeDescontoItensDaGrade, &zvnumLiquidoAPagar,
          &zvnumPercentualTotalDeDesconto, &zvnumValorTotalDeDesconto}) {
      campo->Text = std::string(kZeroEmDinheiro);
    }
    const bool tiposHabilitado = zvcmbTiposDeServicos.Enabled();
    zvcmbTiposDeServicos.Enabled = true;
    zvcmbTiposDeServicos.ListIndex = -1;
    zvcmbTiposDeServicos.Enabled = tiposHabilitado;
    ponto = 3;
    PermissaoDoUsuario();
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(false);
    RestaurarCaptionOriginalDalblCliente();
    falha = 0;
  });
}

void frmCaixaOperar::RestaurarCaptionOriginalDalblCliente() {
  caixaDoCliente_.RestaurarRotulo();
}

void frmCaixaOperar::LimparCamposDeQuantidadeEValoresDoItemDaVenda() {
  item_.ZerarValores("1,000");
}

void frmCaixaOperar::zvcmdLimparCampos_Click() {
  Procedimento(*this, "zvcmdLimparCampos_Click", [&](Ponto& ponto) {
    zvfNumeroDaFichaClinica.Enabled = true;
    caixaDoCliente_.Habilitar(true);
    ponto = 2;
    // A code that was typed and not searched for names nobody who is being served.
    if (zvfCodigoDoCliente.Status() == ZVFind::kFound && caixaDoCliente_.CodigoDoCliente() > 0) {
      frame::BloquearOuDesbloquearClienteParaOperacoesNosCaixas(caixaDoCliente_.CodigoDoCliente(),
                                                                frame::kDesbloquear);
    }
    ponto = 3;
    optServico.Value = true;
    std::int16_t falha = 0;
    LimparCampos(falha);
    if (falha == 1) return;
    ponto = 4;
    ExibirOcultarpicMensagem(true, true);
    PreencherComboboxCaixas(falha);
    ExibirOcultarpicMensagem(false, false);
    if (zvcmbCaixas.ListCount() > 0) caixas_.Escolher(valores().NumeroDoCaixa);
    ponto = 5;
    EsperarCliente();
  });
}

// Nobody is being served: an empty sale, and only the customer box open.
void frmCaixaOperar::EsperarCliente() {
  std::int16_t falha = 0;
  RecomecarGrade(falha);
  if (falha == 1) return;
  HabilitarDesabilitarCampos(false);
  zvfNumeroDaFichaClinica.Enabled = true;
  caixaDoCliente_.Habilitar(true);
  zvfApelidoOuNomeFantasiaDoCliente.SetFocus();
}

void frmCaixaOperar::zvcmdDetalhes_Click() {
  Procedimento(*this, " zvcmdDetalhes_Click", [&](Ponto&) {
    // A line without a code has nothing to look its details up by.
    if (msfgGrade.Rows() == 2 && msfgGrade.TextMatrix(1, kCodigo).empty()) {
      frame::Informar("Nenhum item para ser detalhado da grade.");
      return;
    }
    frame::FundoEscuro fundo;
    lookup::frmExibirDetalhesDoItemDaVenda detalhes;
    detalhes.GradeDeItensDaVendas(msfgGrade);
    std::int16_t resultado = 0;
    detalhes.MontarExibirFormulario(resultado);
    fundo.Remover();
    if (resultado == lookup::frmExibirDetalhesDoItemDaVenda::kNaoExibido) {
      frame::Informar("Operação cancelada");
    }
    detalhes.Unload();
  });
}

}  // namespace sale
