#include "base/Text.h"
#include "frame/ArquivoIni.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "platform/Input.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;
using frame::valores;

namespace {

/// An item of the register list: the name in the first hundred characters, the status behind it.
constexpr std::size_t kLarguraDoNome = 100;

enum Situacao : std::int32_t { kAberto = 1, kFechado = 2, kForaDeOperacao = 3 };

struct AspectoDaSituacao {
  std::string_view palavra;
  platform::Color cor;
  std::string_view aviso;
};

AspectoDaSituacao Aspecto(std::int32_t situacao) {
  switch (situacao) {
    case kAberto:
      return {"Aberto", platform::Rgb(11, 107, 93), ""};
    case kFechado:
      return {"Fechado", platform::Rgb(146, 84, 0),
              "O caixa está fechado. Para vender, escolha 'Abertura' no menu ao lado."};
    default:
      return {"Fora de operação", platform::Rgb(163, 32, 32),
              "Este caixa está fora de operação. Selecione outro caixa."};
  }
}

}  // namespace

void frmCaixaOperar::PreencherComboboxCaixas(std::int16_t& falha) {
  Procedimento(", frmCaixaOperar, PreencherComboboxCaixas, Ponto: ", [&](Ponto& ponto) {
    auto caixas = servicos::CriarServico<servicos::ZOVA_N_Caixas::clsCaixas>();
    ponto = 2;
    if (caixas->SelecionarParaComboBox() != 0) {
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
    base::ForEachRow(*linhas, [&] {
      zvcmbCaixas.AddItem(
          base::PadRight(base::ToText(linhas->Fields("LocalDeAtendimento")), kLarguraDoNome) +
              base::ToText(linhas->Fields("Status")),
          base::ToInt32(base::Val(linhas->Fields("Numero"))));
    });
    falha = 0;
  });
}

void frmCaixaOperar::zvcmbCaixas_Click() {
  Procedimento(", frmCaixaOperar, zvcmbCaixas_Click, Ponto: ", [&](Ponto& ponto) {
    const std::int32_t escolhido = zvcmbCaixas.ListIndex();
    if (escolhido != -1) {
      valores().NumeroDoCaixa = zvcmbCaixas.ItemData(escolhido);
      valores().LocalDeAtendimentoDoCaixa =
          base::Trim(base::Left(zvcmbCaixas.Text(), kLarguraDoNome));
    } else {
      valores().NumeroDoCaixa = -1;
    }
    ponto = 2;
    frame::GravarValorNoArquivoIni("Caixa", "NumeroDoCaixa", base::ToText(valores().NumeroDoCaixa));
    ConfigurarOpcoesDoMenuCaixa();
  });
}

void frmCaixaOperar::zvcmbCaixas_DropDown() {
  Procedimento(", frmCaixaOperar, zvcmbCaixas_DropDown, Ponto: ", [&](Ponto&) {
    std::int16_t falha = 0;
    PreencherComboboxCaixas(falha);
    if (falha == 1) return;
    zvcmbCaixas.Text = zvcmbCaixas.Tag();
  });
}

void frmCaixaOperar::ConfigurarOpcoesDoMenuCaixa() {
  Procedimento(", frmCaixaOperar, ConfigurarOpcoesDoMenuCaixa, Ponto: ", [&](Ponto& ponto) {
    std::int32_t situacao = kForaDeOperacao;
    if (zvcmbCaixas.ListIndex() != -1) {
      situacao = base::ToInt32(base::ToDouble(base::Mid(zvcmbCaixas.Text(), kLarguraDoNome + 1)));
    }
    if (situacao < kAberto || situacao > kForaDeOperacao) return;
    ponto = 2;
    for (const auto& botao : tbMenuCaixa.All()) {
      botao->Enabled = situacao == (botao->Key() == "Abertura" ? kFechado : kAberto);
    }
    const AspectoDaSituacao aspecto = Aspecto(situacao);
    const bool escolhido = zvcmbCaixas.ListIndex() != -1;
    lblSituacaoDoCaixa.Visible = escolhido;
    lblSituacaoDoCaixa.Caption = std::string(aspecto.palavra);
    lblSituacaoDoCaixa.ForeColor = aspecto.cor;
    lblAvisoDoCaixa.Caption =
        std::string(escolhido ? aspecto.aviso : "Selecione um caixa para começar.");
    lblAvisoDoCaixa.Visible = situacao != kAberto;
    ponto = 3;
    picAreaDeTrabalho.Visible = situacao == kAberto;
  });
}

void frmCaixaOperar::SelecionarCaixa(std::int32_t numero) {
  const std::int32_t indice = zvcmbCaixas.IndexOfData(numero);
  if (indice != -1) zvcmbCaixas.ListIndex = indice;
}

void frmCaixaOperar::RessincronizarCaixas() {
  const std::int32_t escolhido = zvcmbCaixas.ListIndex();
  const std::int32_t numero = escolhido == -1 ? -1 : zvcmbCaixas.ItemData(escolhido);
  std::int16_t falha = 0;
  PreencherComboboxCaixas(falha);
  if (falha == 1) return;
  SelecionarCaixa(numero);
  ConfigurarOpcoesDoMenuCaixa();
}

}  // namespace sale
