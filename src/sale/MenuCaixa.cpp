#include "base/Text.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/modFuncoes.h"
#include "frame/servicos/ZOVA_A_ClientHist.clsHistDeVendas.h"
#include "frame/servicos/ZOVA_A_Orcamentos.clsOrcamentos.h"
#include "lookup/frmPesquisaDeProdutos.h"
#include "lookup/frmPesquisaDeServicos.h"
#include "platform/Desktop.h"
#include "register/Movimentos.h"
#include "register/frmCaixaComprovanteDeVenda.h"
#include "register/frmCaixaMovimento.h"
#include "register/frmCaixaRelatoriosDeCaixas.h"
#include "register/frmCaixaReverterVenda.h"
#include "sale/Menu.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;
using frame::valores;

void frmCaixaOperar::tbMenuCaixa_ButtonClick(platform::ToolbarButton& botao) {
  Procedimento(*this, "tbMenuCaixas", [&](Ponto&) {
    struct Entrada {
      std::string_view chave;
      void (*abrir)(frmCaixaOperar&);
    };
    static constexpr Entrada kEntradas[] = {
        {"Abertura", [](frmCaixaOperar& f) { f.AbrirOuFechar(registers::kCaixaAbrir); }},
        {"Fechamento", [](frmCaixaOperar& f) { f.AbrirOuFechar(registers::kCaixaFechar); }},
        {"Entradas",
         [](frmCaixaOperar& f) { f.Movimentar(registers::kCaixaEntradas, "Entrada efetuada."); }},
        {"Saidas",
         [](frmCaixaOperar& f) { f.Movimentar(registers::kCaixaSaidas, "Saída efetuada."); }},
        {"CancelarVenda",
         [](frmCaixaOperar& f) { f.Reverter(registers::kCancelarVenda, "Venda cancelada."); }},
        {"DesfazerCancelamento",
         [](frmCaixaOperar& f) {
           f.Reverter(registers::kDesfazerCancelamento, "Desfeito o cancelamento da venda.");
         }},
        {"CreditoDoCliente", [](frmCaixaOperar& f) { f.CreditoDoCliente(); }},
        {"DebitosDoCliente", [](frmCaixaOperar&) { TelaIndisponivel("Débitos do cliente"); }},
        {"ConsultarHistoricoDeVendas", [](frmCaixaOperar& f) { f.ConsultarHistoricoDeVendas(); }},
        {"ConsultarPrecos", [](frmCaixaOperar& f) { f.mnuConsultarPrecos.PopUp(f.tbMenuCaixa); }},
        {"Orcamentos", [](frmCaixaOperar& f) { f.Orcamentos(); }},
        {"Relatorios", [](frmCaixaOperar& f) { f.Relatorios(); }},
        {"Comprovantes", [](frmCaixaOperar& f) { f.Comprovantes(); }}};
    for (const Entrada& entrada : kEntradas) {
      if (entrada.chave == botao.Key()) entrada.abrir(*this);
    }
  });
}

void TelaIndisponivel(std::string_view tela) {
  frame::Informar("A tela '" + std::string(tela) +
                  "' ainda não está disponível nesta versão do caixa.");
}

void frmCaixaOperar::TratarFalha(std::int32_t numeroDaFalha) {
  std::int16_t falha = 0;
  switch (numeroDaFalha) {
    case servicos::kCaixaInexistente:
    case servicos::kCaixaDesativado:
      PreencherComboboxCaixas(falha);
      zvcmbCaixas_Click();
      return;
    case servicos::kCaixaJaAberto:
    case servicos::kCaixaNaoAberto:
      RessincronizarCaixas();
      return;
    default:
      return;
  }
}

template <class Formulario>
void frmCaixaOperar::Concluir(Formulario& formulario, std::string_view mensagem) {
  if (formulario.OperacaoConcluida()) {
    frame::Informar(mensagem);
    zvfApelidoOuNomeFantasiaDoCliente.SetFocus();
  } else {
    TratarFalha(formulario.NumeroDaFalha());
  }
  formulario.Unload();
}

void frmCaixaOperar::Movimentar(const registers::Movimento& movimento, std::string_view mensagem) {
  registers::frmCaixaMovimento formulario(movimento);
  formulario.MontarExibirFormulario();
  Concluir(formulario, mensagem);
}

void frmCaixaOperar::Reverter(const registers::ReversaoDeVenda& reversao,
                              std::string_view mensagem) {
  registers::frmCaixaReverterVenda formulario(reversao);
  frame::FundoEscuro fundo;
  formulario.MontarExibirFormulario();
  fundo.Remover();
  Concluir(formulario, mensagem);
}

void frmCaixaOperar::Comprovantes() {
  frame::FundoEscuro fundo;
  Refresh();
  registers::frmCaixaComprovanteDeVenda formulario;
  formulario.MontarExibirFormulario();
  formulario.Unload();
  fundo.Remover();
  VoltarAoAtendimento();
}

void frmCaixaOperar::Relatorios() {
  Refresh();
  registers::frmCaixaRelatoriosDeCaixas formulario;
  const std::int16_t falha = formulario.MontarExibirFormulario();
  formulario.Unload();
  if (falha == 0) VoltarAoAtendimento();
}

/// Where the operator goes on after a look at something else.
void frmCaixaOperar::VoltarAoAtendimento() {
  if (zvfApelidoOuNomeFantasiaDoCliente.Enabled()) {
    zvfApelidoOuNomeFantasiaDoCliente.SetFocus();
  } else {
    optServico.SetFocus();
  }
}

void frmCaixaOperar::AbrirOuFechar(const registers::Movimento& movimento) {
  registers::frmCaixaMovimento formulario(movimento);
  formulario.MontarExibirFormulario();
  formulario.Unload();
  if (!formulario.OperacaoConcluida()) {
    TratarFalha(formulario.NumeroDaFalha());
    return;
  }
  // The fields are cleared next: who was being served is asked for first.
  const double codigo = caixaDoCliente_.CodigoDoCliente();
  std::int16_t falha = 0;
  LimparCampos(falha);
  if (falha == 1) return;
  RessincronizarCaixas();
  if (codigo > 0) {
    frame::BloquearOuDesbloquearClienteParaOperacoesNosCaixas(codigo, frame::kDesbloquear);
  }
  if (!msfgGrade.Visible()) {
    zvcmbCaixas.SetFocus();
    return;
  }
  EsperarCliente();
}

void frmCaixaOperar::CreditoDoCliente() {
  mnuCreditoDoCliente.PopUp(tbMenuCaixa);
  // The last choice stands: a menu that is dismissed repeats it.
  switch (OpcaoDoMenuCreditoDoCliente) {
    case 1:
      TelaIndisponivel("Adicionar crédito para o cliente");
      return;
    case 2:
      TelaIndisponivel("Estornar crédito do cliente");
      return;
    case 3:
      TelaIndisponivel("Histórico de crédito para o cliente");
      return;
    default:
      return;
  }
}

bool frmCaixaOperar::ClienteInformado() {
  if (caixaDoCliente_.Informado()) return true;
  frame::Informar("Informe um cliente.");
  zvfApelidoOuNomeFantasiaDoCliente.SetFocus();
  return false;
}

void frmCaixaOperar::ConsultarHistoricoDeVendas() {
  if (!ClienteInformado()) return;
  auto historico = servicos::CriarServico<servicos::ZOVA_A_ClientHist::clsHistDeVendas>();
  historico->CodigoDoCliente(caixaDoCliente_.CodigoDoCliente());
  historico->ApelidoOuNomeFantasiaDoCliente(zvfApelidoOuNomeFantasiaDoCliente.Text());
  historico->NomeOuRazaoSocialDoCliente(zvfNomeOuRazaoSocialDoCliente.Text());
  constexpr int kMesesDeHistorico = 12;
  historico->DataInicialDoHistorico(
      base::Format(platform::Desktop::Current().Now().PlusMonths(-kMesesDeHistorico),
                   base::DateMask::kDayMonthYear));
  historico->NomeDaAplicacao(valores().NomeDaAplicacao);
  historico->DadosDoUsuario(valores().DadosDoUsuario);
  historico->AbrirFichaExibicao();
}

void frmCaixaOperar::Orcamentos() {
  if (!ClienteInformado()) return;
  const std::int32_t animal = zvcmbAnimal.ListIndex();
  if (animal == -1) {
    frame::Informar("Selecione o animal.");
    zvcmbAnimal.SetFocus();
    return;
  }
  auto orcamentos = servicos::CriarServico<servicos::ZOVA_A_Orcamentos::clsOrcamentos>();
  orcamentos->CodigoDoCliente(caixaDoCliente_.CodigoDoCliente());
  orcamentos->ApelidoOuNomeFantasiaDoCliente(zvfApelidoOuNomeFantasiaDoCliente.Text());
  orcamentos->NomeOuRazaoSocialDoCliente(zvfNomeOuRazaoSocialDoCliente.Text());
  orcamentos->CodigoDoAnimal(zvcmbAnimal.ItemData(animal));
  orcamentos->NomeDoAnimal(zvcmbAnimal.Text());
  orcamentos->NomeDaAplicacao(valores().NomeDaAplicacao);
  orcamentos->DadosDoUsuario(valores().DadosDoUsuario);
  orcamentos->AbrirFicha();
}

void frmCaixaOperar::mnuAdicionarCreditoParaOCliente_Click() {
  OpcaoDoMenuCreditoDoCliente = 1;
}
void frmCaixaOperar::mnuEstornarCreditoDoCliente_Click() {
  OpcaoDoMenuCreditoDoCliente = 2;
}
void frmCaixaOperar::mnuHistoricoDeCreditoParaOCliente_Click() {
  OpcaoDoMenuCreditoDoCliente = 3;
}

void frmCaixaOperar::mnuConsultarPrecosProdutos_Click() {
  Procedimento(*this, "mnuConsultarPrecosProdutos_Click", [&](Ponto&) {
    lookup::frmPesquisaDeProdutos lista;
    lista.FormularioDeConsultaDePreco(true);
    ConsultarPrecos(lista);
  });
}
void frmCaixaOperar::mnuConsultarPrecosServicos_Click() {
  Procedimento(*this, "mnuConsultarPrecosServicos_Click", [&](Ponto&) {
    lookup::frmPesquisaDeServicos lista;
    lista.FormularioDeConsultaDePreco(true);
    lista.EfetuarOPreenchimentoDaComboboxTiposDeServicos(true);
    ConsultarPrecos(lista);
  });
}

// Only looked at: whatever is chosen from the list, the sale stays as it is.
void frmCaixaOperar::ConsultarPrecos(lookup::frmPesquisa& lista) {
  if (!caixas_.Escolhido()) {
    frame::Informar("Selecione o caixa.");
    zvcmbCaixas.SetFocus();
    return;
  }
  frame::FundoEscuro fundo;
  std::int16_t falha = 0;
  lista.ConfigurarGrade(falha);
  lista.Refresh();
  if (falha == 0) lista.ShowModal();
  lista.Unload();
  fundo.Remover();
  VoltarAoAtendimento();
}

}  // namespace sale
