#include "frame/Caixas.h"

#include "frame/Procedimento.h"
#include "frame/servicos/Codigos.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;

void frmCaixaOperar::PreencherComboboxCaixas(std::int16_t& falha) {
  Procedimento(*this, "PreencherComboboxCaixas", [&](Ponto& ponto) {
    const base::RecordSetPtr linhas = frame::LerCaixas(zvcmbCaixas, ponto);
    falha = linhas ? 0 : 1;
    if (!linhas) return;
    ponto = 4;
    base::ForEachRow(*linhas, [&] { caixas_.Acrescentar(*linhas); });
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
