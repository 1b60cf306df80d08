#include "register/frmCaixaMovimento.h"

#include "consent/Autorizar.h"
#include "frame/CampoDeValor.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/modArredondarCantosDoObjeto.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/Pagamento.h"
#include "platform/Desktop.h"
#include "platform/Layout.h"

namespace registers {

using frame::Ponto;
using platform::Look;
using servicos::ZOVA_N_Caixa::clsCaixa;

frmCaixaMovimento::frmCaixaMovimento(const Movimento& movimento)
    : Form(movimento.formulario), movimento_(movimento) {
  zvtxtObservacao.multiline = true;
  cancelButton = &zvcmdCancelar;
  lblExplicacao.Visible.Assign(!movimento.explicacao.empty());
  lblObservacaoDeCamposObrigatorios.Visible.Assign(movimento.valorObrigatorio);
  Load = [this] { Form_Load(); };
  frame::LigarCampoDeValor(zvnumValorEmDinheiro);
  zvcmdSalvar.Click = [this] { zvcmdSalvar_Click(); };
  zvcmdCancelar.Click = [this] { zvcmdCancelar_Click(); };

  // The fields stand lower where an explanation stands above them.
  const std::int32_t y = movimento.explicacao.empty() ? 0 : 780;
  Arrange({.size = {6300, 4005 + y},
           .places = {
               {zvTheme, {0, 0, 6300, 660}, "", Look::kTitle, platform::kHoldWidth},
               {lblExplicacao,
                {240, 780, 5820, 690},
                movimento.explicacao,
                Look::kHint,
                platform::kHoldWidth},
               {lblValor, {240, 855 + y, 5820, 210}, "Valor em dinheiro"},
               {zvnumValorEmDinheiro,
                {240, 1125 + y, 5820, 450},
                "",
                Look::kNormal,
                platform::kHoldWidth},
               {lblObservacao, {240, 1710 + y, 5820, 210}, "Observação"},
               {zvtxtObservacao, {240, 1980 + y, 5820, 960}, "", Look::kNormal, platform::kHoldAll},
               {picRodape,
                {0, 3150 + y, 6300, 855},
                "",
                Look::kFooter,
                platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom},
               {zvcmdCancelar, {3480, 195, 1230, 480}, "", Look::kNormal, platform::kHoldTopRight},
               {zvcmdSalvar, {4830, 195, 1230, 480}, "", Look::kPrimary, platform::kHoldTopRight},
               {lshpObj, {0, 0, 6300, 4005 + y}, "", Look::kNormal, platform::kHoldAll},
               {lblObservacaoDeCamposObrigatorios,
                {240, 300, 2700, 255},
                "O valor é obrigatório",
                Look::kHint},
           }});
}

std::int16_t frmCaixaMovimento::MontarExibirFormulario() {
  std::int16_t resultado = 1;
  frame::Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    zvTheme.Titulo = std::string(movimento_.titulo);
    zvcmdSalvar.Caption = "Salvar";
    zvcmdSalvar.ToolTipText = std::string(movimento_.dicaSalvar);
    zvcmdCancelar.Caption = "Cancelar";
    zvcmdCancelar.ToolTipText = std::string(movimento_.dicaCancelar);
    ponto = 2;
    for (platform::Control* controle : Controls()) controle->Enabled = true;
    zvnumValorEmDinheiro.Text = std::string(frame::kZeroEmDinheiro);
    zvtxtObservacao.Text = "";
    ponto = 3;
    frame::FundoEscuro fundo;
    ShowModal();
    ponto = 4;
    platform::Desktop::Current().ProcessEvents();
    if (frame::valores().frmCaixaOperarAtual != nullptr) {
      frame::valores().frmCaixaOperarAtual->Refresh();
    }
    fundo.Remover();
    resultado = 0;
  });
  return resultado;
}

void frmCaixaMovimento::Form_Load() {
  frame::Procedimento(*this, "Form_Load",
                      [&](Ponto&) { frame::EmoldurarFormulario(*this, lshpObj); });
}

void frmCaixaMovimento::zvcmdCancelar_Click() {
  operacaoConcluida_ = false;
  Unload();
}

void frmCaixaMovimento::zvcmdSalvar_Click() {
  const CommandsHeld semComandos(*this);
  frame::Procedimento(*this, "zvcmdSalvar_Click", [&](Ponto& ponto) {
    frame::RestaurarCorDosRotulos(*this);
    frame::PreencherSeVazio(zvnumValorEmDinheiro, frame::kZeroEmDinheiro);
    ponto = 2;
    if (!Permitido()) return;
    ponto = 3;
    const frame::PonteiroDeEspera espera(*this, platform::kHourglassPointer);
    Registrar();
    ponto = 4;
    Unload();
  });
}

bool frmCaixaMovimento::Permitido() {
  if (movimento_.valorObrigatorio && frame::LerCurrency(zvnumValorEmDinheiro).IsZero()) {
    frame::Recusar(lblValor, "Informe o valor.", zvnumValorEmDinheiro);
    return false;
  }
  if (movimento_.direito.empty() || frame::Direito(movimento_.direito)) return true;
  return consent::Autorizar(*movimento_.autorizacao, *this, consent::Chamador::kDesaparece);
}

void frmCaixaMovimento::Registrar() {
  auto caixa = servicos::CriarServico<clsCaixa>();
  caixa->NumeroDoCaixa(frame::valores().NumeroDoCaixa);
  caixa->LocalDeAtendimentoDoCaixa(frame::valores().LocalDeAtendimentoDoCaixa);
  if (!movimento_.descricao.empty()) caixa->Descricao(movimento_.descricao);
  caixa->MOEDA(servicos::pagamento::kDinheiro);
  if (movimento_.valorNegado) {
    caixa->ValorDoLancamento(frame::LerDouble(zvnumValorEmDinheiro) * -1.0);
  } else {
    caixa->ValorDoLancamento(zvnumValorEmDinheiro.Text());
  }
  caixa->Operador(base::ToText(frame::CampoDaSessao("NomeDeUsuario")));
  caixa->Situacao(servicos::kEfetuada);
  caixa->Observacao(zvtxtObservacao.Text());
  caixa->DadosDoUsuario(frame::valores().DadosDoUsuario);
  caixa->GradeDeItensDaVenda(nullptr);

  const std::int16_t resultado = (*caixa.*movimento_.registrar)();
  operacaoConcluida_ = frame::Aceitar(resultado, *caixa);
  if (resultado < servicos::kSucesso || resultado > servicos::kRecusaGrave) {
    numeroDaFalha_ = resultado;
    descricaoDaFalha_ = caixa->DescricaoDaFalha();
  }
}

}  // namespace registers
