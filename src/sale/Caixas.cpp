#include "base/Text.h"
#include "frame/Mensagens.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "platform/Input.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;

void frmCaixaOperar::PreencherComboboxCaixas(std::int16_t& falha) {
  Procedimento(*this, "PreencherComboboxCaixas", [&](Ponto& ponto) {
    auto caixas = servicos::CriarServico<servicos::ZOVA_N_Caixas::clsCaixas>();
    ponto = 2;
    if (caixas->SelecionarParaComboBox() != servicos::kSucesso) {
      frame::ExibirErroDoServico(*caixas);
      falha = 1;
      return;
    }
    ponto = 3;
    const base::RecordSetPtr linhas = caixas->ResultadoDaSelecaoEmRecordSet();
    zvcmbCaixas.Clear();
    if (linhas->RecordCount() == 0) {
      frame::Informar(
          "Nenhum caixa cadastrado ou ativado.\nÉ necessário ter pelo menos um caixa cadastrado ou "
          "ativado para o início de operações.");
      platform::input::SendKeys("+({HOME})");
      falha = 1;
      return;
    }
    ponto = 4;
    base::ForEachRow(*linhas, [&] { caixas_.Acrescentar(*linhas); });
    falha = 0;
  });
}

void frmCaixaOperar::zvcmbCaixas_Click() {
  Procedimento(*this, "zvcmbCaixas_Click", [&](Ponto& ponto) {
    caixas_.Tomar();
    ponto = 2;
    caixas_.GravarArquivo();
    ConfigurarOpcoesDoMenuCaixa();
  });
}

void frmCaixaOperar::zvcmbCaixas_DropDown() {
  Procedimento(*this, "zvcmbCaixas_DropDown", [&](Ponto&) {
    std::int16_t falha = 0;
    PreencherComboboxCaixas(falha);
    if (falha == 1) return;
    zvcmbCaixas.Text = zvcmbCaixas.Tag();
  });
}

void frmCaixaOperar::ConfigurarOpcoesDoMenuCaixa() {
  Procedimento(*this, "ConfigurarOpcoesDoMenuCaixa", [&](Ponto& ponto) {
    const std::int32_t situacao = caixas_.Situacao();
    if (situacao < servicos::kCaixaAberto || situacao > servicos::kCaixaForaDeOperacao) return;
    ponto = 2;
    caixas_.Oferecer(situacao);
  });
}

void frmCaixaOperar::RessincronizarCaixas() {
  const std::int32_t numero = caixas_.Numero();
  std::int16_t falha = 0;
  PreencherComboboxCaixas(falha);
  if (falha == 1) return;
  caixas_.Escolher(numero);
  ConfigurarOpcoesDoMenuCaixa();
}

}  // namespace sale
