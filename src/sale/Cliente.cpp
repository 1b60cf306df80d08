#include "frame/CamposNumericos.h"
#include "frame/Consultas.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/modFuncoes.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_N_Caixa.clsDebitosVencCliente.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsAnimais.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;
using frame::valores;
using platform::ZVFind;

void frmCaixaOperar::zvfApelidoOuNomeFantasiaDoCliente_KeyDown() {
  caixaDoCliente_.KeyDown(zvfApelidoOuNomeFantasiaDoCliente);
}
void frmCaixaOperar::zvfNomeOuRazaoSocialDoCliente_KeyDown() {
  caixaDoCliente_.KeyDown(zvfNomeOuRazaoSocialDoCliente);
}
void frmCaixaOperar::zvfCodigoDoCliente_KeyDown() {
  caixaDoCliente_.KeyDown(zvfCodigoDoCliente);
}

void frmCaixaOperar::zvfApelidoOuNomeFantasiaDoCliente_Click() {
  Procedimento(*this, "zvfApelidoOuNomeFantasiaDoCliente_Click",
               [&](Ponto&) { caixaDoCliente_.Click(zvfApelidoOuNomeFantasiaDoCliente); });
}
void frmCaixaOperar::zvfNomeOuRazaoSocialDoCliente_Click() {
  Procedimento(*this, "zvfNomeOuRazaoSocialDoCliente_Click",
               [&](Ponto&) { caixaDoCliente_.Click(zvfNomeOuRazaoSocialDoCliente); });
}
void frmCaixaOperar::zvfCodigoDoCliente_Click() {
  Procedimento(*this, "zvfCodigoDoCliente_Click_",
               [&](Ponto&) { caixaDoCliente_.Click(zvfCodigoDoCliente); });
}

bool frmCaixaOperar::PesquisarCliente(const std::string& apelido, const std::string& nome,
                                      double codigo) {
  bool encontrado = false;
  Procedimento(*this, "PesquisarCliente", [&](Ponto& ponto) {
    const base::RecordSetPtr registro =
        lookup::ProcurarCliente({apelido, nome, codigo}, painelDeMensagem_);
    if (!registro) return;
    ponto = 2;
    const frame::SupressaoDePesquisa supressao;
    caixaDoCliente_.Receber(lookup::ClienteDe(*registro));
    valores().CPFCNPJDoCliente = caixaDoCliente_.Cliente().cpfCnpj;
    valores().SufixoDoRotuloDoCliente = caixaDoCliente_.Cliente().sufixoDoRotulo;
    zvnumPercentualDeDescontoPorItem.Text = std::string(frame::kZeroEmDinheiro);
    encontrado = true;
  });
  return encontrado;
}

// The order is part of the design: the lock is tested when the customer is on the screen already,
// and taken only after the warning of debts.
void frmCaixaOperar::AceitarCliente(ZVFind& campo) {
  campo.Enabled = true;
  const double codigo = caixaDoCliente_.CodigoDoCliente();
  if (frame::VerificarBloqueioDoClienteParaOperacoesNosCaixas(codigo) == 1) {
    caixaDoCliente_.Esvaziar();
    campo.SetFocus();
    return;
  }
  zvfNumeroDaFichaClinica.Enabled = false;
  caixaDoCliente_.Habilitar(false);
  zvcmbTiposDeServicos.Enabled = true;
  PermissaoDoUsuario();
  // The operator may clear the counter during a wait: then nobody is left to warn of or to lock.
  PreencherGradeComServicosEfetuadosEProdutosReservados(codigo);
  if (caixaDoCliente_.CodigoDoCliente() != codigo) return;
  PesquisarDebitosDoCliente(codigo);
  if (caixaDoCliente_.CodigoDoCliente() != codigo) return;
  frame::BloquearOuDesbloquearClienteParaOperacoesNosCaixas(codigo, frame::kBloquear);
  std::int16_t falha = 0;
  PreencherComboboxAnimal(codigo, falha);
  if (falha == 0 && zvcmbAnimal.ListCount() > 0) {
    optServico.Enabled = true;
    optServico.Value = true;
    optProduto.Enabled = true;
    if (zvcmbAnimal.ListCount() == 1) zvcmbAnimal.ListIndex = 0;
    // The next thing that the operator does is to choose the service.
    zvcmbTiposDeServicos.SetFocus();
    return;
  }
  optServico.Enabled = false;
  optServico.Value = false;
  optProduto.Enabled = true;
  // Left set by the sale before, the option clicks no more, but that sale's end closed the fields.
  const bool jaEraProduto = optProduto.Value();
  optProduto.Value = true;
  if (jaEraProduto) optProduto_Click();
  optProduto.SetFocus();
}

void frmCaixaOperar::PesquisarDebitosDoCliente(double codigo) {
  Procedimento(*this, "PesquisarDebitosDoCliente", [&](Ponto& ponto) {
    frame::Espera espera(painelDeMensagem_);
    ponto = 2;
    auto debitos = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsDebitosVencCliente>();
    const std::int16_t resultado = frame::consultas::DebitosVencidos(*debitos, codigo);
    espera.Ocultar();
    ponto = 3;
    if (!frame::Aceitar(resultado, *debitos)) return;
    const std::int32_t quantos = debitos->ResultadoDaSelecaoEmRecordSet()->RecordCount();
    if (quantos == 1) frame::Informar("Cliente com débito vencido.");
    if (quantos > 1) frame::Informar("Cliente com débitos vencidos.");
  });
}

void frmCaixaOperar::PreencherComboboxAnimal(double codigo, std::int16_t& falha) {
  Procedimento(*this, "PreencherComboboxAnimal", [&](Ponto& ponto) {
    frame::Espera espera(painelDeMensagem_, true);
    ponto = 2;
    auto animais = servicos::CriarServico<servicos::ZOVA_N_ClientAnim::clsAnimais>();
    if (frame::consultas::AnimaisDoCliente(*animais, codigo) != servicos::kSucesso) {
      espera.Ocultar();
      frame::ExibirErroDoServico(*animais);
      falha = 1;
      return;
    }
    ponto = 3;
    const base::RecordSetPtr linhas = animais->ResultadoDaSelecaoEmRecordSet();
    zvcmbAnimal.Clear();
    if (linhas->RecordCount() == 0) {
      espera.Ocultar();
      frame::Informar(
          "Nenhum animal cadastrado.\nÉ necessário ter ao menos um animal cadastrado com as "
          "especificações informadas para incluir ou alterar uma ficha clínica.");
      falha = 1;
      return;
    }
    ponto = 4;
    base::ForEachRow(*linhas, [&] {
      zvcmbAnimal.AddItem(base::ToText(linhas->Fields("Nome")),
                          base::ToInt32(linhas->Fields("Codigo")));
    });
    falha = 0;
  });
}

}  // namespace sale
