#include "register/frmCaixaReverterVenda.h"

#include "base/Text.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/servicos/Codigos.h"
#include "register/CupomDaVenda.h"

namespace registers {

using frame::Ponto;
using frame::Procedimento;
using platform::Look;
using servicos::ZOVA_N_Caixa::clsCaixa;

const ReversaoDeVenda kCancelarVenda{.lista = {.formulario = "frmCaixaCancelarVenda",
                                               .titulo = "Cancelar venda",
                                               .situacao = servicos::kEfetuada,
                                               .tituloAntigo = true,
                                               .comando = "zvcmdConfirmar",
                                               .legenda = "Confirmar",
                                               .dica = "Confirmar o cancelamento da venda",
                                               .dicaFechar = "Fechar e não cancelar a venda"},
                                     .campo = "zvtxtMotivoDoCancelamento",
                                     .rotulo = "lblMotivoDoCancelamento",
                                     .legenda = "Motivo do cancelamento*",
                                     .semMotivo = "Informe o motivo do cancelamento",
                                     .autorizacao = &consent::kAutorizarCancelarVendas,
                                     .chamador = consent::Chamador::kAfastaSe,
                                     .cancelaCupom = true,
                                     .operacao = &clsCaixa::CancelarVenda};

const ReversaoDeVenda kDesfazerCancelamento{
    .lista = {.formulario = "frmCaixaDesfazerCancelamento",
              .titulo = "Desfazer cancelamento da venda",
              .situacao = servicos::kCancelada,
              .tituloAntigo = true,
              .enviaHome = true,
              .comando = "zvcmdConfirmar",
              .legenda = "Confirmar",
              .dica = "Confirmar o cancelamento da venda",
              .dicaFechar = "Fechar e não desfazer o cancelamendo da venda"},
    .campo = "zvtxtMotivoParaDesfazerOCancelamento",
    .rotulo = "lblMotivoParaDesfazerOCancelamento",
    .legenda = "Motivo para desfazer o cancelamento*",
    .semMotivo = "Informe o motivo para desfazer o cancelamento",
    .autorizacao = &consent::kAutorizarDesfazerCancelamento,
    .chamador = consent::Chamador::kRecolhe,
    .operacao = &clsCaixa::DesfazerCancelamento,
    .contaParada = true};

frmCaixaReverterVenda::frmCaixaReverterVenda(const ReversaoDeVenda& reversao)
    : frmVendasDoDia(reversao.lista),
      lblMotivo(*this, reversao.rotulo),
      zvtxtMotivo(*this, reversao.campo),
      reversao_(reversao) {
  constexpr std::int32_t kMaiorMotivo = 2'000;
  zvtxtMotivo.MaxLength.Assign(kMaiorMotivo);
  zvcmdComando.Click = [this] { zvcmdConfirmar_Click(); };
  constexpr unsigned kEmbaixo = platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom;
  Arrange(
      Desenho(975, {{lblMotivo, {240, 7470, 9000, 210}, reversao.legenda, Look::kNormal, kEmbaixo},
                    {zvtxtMotivo, {240, 7740, 14220, 450}, "", Look::kNormal, kEmbaixo},
                    {lblObservacaoDeCamposObrigatorios,
                     {12360, 7470, 2100, 210},
                     "* Campos obrigatórios",
                     Look::kHint,
                     platform::kHoldBottomRight}}));
}

std::int16_t frmCaixaReverterVenda::ValidarCampos() {
  frame::RestaurarCorDosRotulos(*this);
  if (!base::Trim(zvtxtMotivo.Text()).empty()) return 0;
  return frame::Recusar(lblMotivo, reversao_.semMotivo, zvtxtMotivo);
}

bool frmCaixaReverterVenda::Permitido() {
  // The right to undo is that to cancel: there is no other one.
  if (frame::Direito("PermissaoDoModuloCaixaCancelarVendas")) return true;
  return consent::Autorizar(*reversao_.autorizacao, *this, reversao_.chamador);
}

void frmCaixaReverterVenda::zvcmdConfirmar_Click() {
  Procedimento(*this, "zvcmdConfirmar_Click", [&](Ponto& ponto) {
    double numero = 0;
    if (!HaVenda(numero) || ValidarCampos() == 1) return;
    ponto = 2;
    if (!Permitido()) return;
    ponto = 3;
    const std::string chave = DaVenda(kColunaChaveSAT);
    if (reversao_.cancelaCupom && !chave.empty() &&
        !PrepararCancelamentoDoCupom(DaVenda(kColunaData), DaVenda(kColunaHora))) {
      return;
    }
    ponto = 4;
    Registrar(numero);
    Hide();
  });
}

void frmCaixaReverterVenda::Registrar(double numero) {
  const CommandsHeld semComandos(*this);
  const frame::PonteiroDeEspera espera(*this);
  auto caixa = servicos::CriarServico<clsCaixa>();
  caixa->NumeroDoCaixa(frame::valores().NumeroDoCaixa);
  caixa->LocalDeAtendimentoDoCaixa(frame::valores().LocalDeAtendimentoDoCaixa);
  caixa->DadosDoUsuario(frame::valores().DadosDoUsuario);
  const std::int16_t resultado =
      (*caixa.*reversao_.operacao)(numero, base::Trim(zvtxtMotivo.Text()));
  operacaoConcluida_ = frame::Aceitar(resultado, *caixa);
  if (operacaoConcluida_) return AtualizaGrade();
  const bool parada = resultado == servicos::kRecusaGrave && reversao_.contaParada;
  if (parada || resultado < servicos::kSucesso || resultado > servicos::kRecusaGrave) {
    numeroDaFalha_ = resultado;
    descricaoDaFalha_ = caixa->DescricaoDaFalha();
  }
}

}  // namespace registers
