#include "consent/frmCaixaAutorizar.h"

#include "base/Text.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "frame/modArredondarCantosDoObjeto.h"
#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "platform/Layout.h"

namespace consent {

using frame::Ponto;
using platform::Look;

frmCaixaAutorizar::frmCaixaAutorizar(const Autorizacao& autorizacao)
    : Form(autorizacao.formulario), autorizacao_(autorizacao) {
  zvtxtSenha.password = true;
  defaultButton = &zvcmdOk;
  cancelButton = &zvcmdFechar;
  Load = [this] { Form_Load(); };
  Resize = [this] { Form_Resize(); };
  UnloadEvent = [this](bool&) { Form_Unload(); };
  zvcmdOk.Click = [this] { zvcmdOk_Click(); };
  zvcmdFechar.Click = [this] { zvcmdFechar_Click(); };
  Arrange(
      {.size = {6300, 3495},
       .places = {
           {zvTheme, {0, 0, 6300, 660}, autorizacao.titulo, Look::kTitle, platform::kHoldWidth},
           {lblUsuario, {240, 855, 5820, 210}, "Supervisor*", Look::kNormal, platform::kHoldWidth},
           {zvtxtUsuario, {240, 1125, 5820, 450}, "", Look::kNormal, platform::kHoldWidth},
           {lblSenha, {240, 1710, 5820, 210}, "Senha*", Look::kNormal, platform::kHoldWidth},
           {zvtxtSenha, {240, 1980, 5820, 450}, "", Look::kNormal, platform::kHoldWidth},
           {picRodape,
            {0, 2640, 6300, 855},
            "",
            Look::kFooter,
            platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom},
           {zvcmdFechar, {3720, 195, 1110, 480}, "Fechar", Look::kNormal, platform::kHoldTopRight},
           {zvcmdOk, {4950, 195, 1110, 480}, "Ok", Look::kPrimary, platform::kHoldTopRight},
           {lshpObj, {0, 0, 6300, 3495}},
           {lblObservacaoDeCamposObrigatorios,
            {240, 300, 2700, 255},
            "* Campos obrigatórios",
            Look::kHint},
       }});
}

void frmCaixaAutorizar::MontarExibirFormulario(std::int16_t& resultado) {
  resultado = kNaoAutorizado;
  frame::Procedimento(frame::Etiqueta{autorizacao_.nomeNaAbertura, "MontarExibirFormulario"},
                      [&](Ponto& ponto) {
                        zvcmdOk.ToolTipText = std::string(autorizacao_.dica);
                        zvcmdFechar.ToolTipText = "Fechar formulário";
                        ponto = 2;
                        ShowModal();
                        resultado = Autorizado ? std::int16_t{0} : kNaoAutorizado;
                      });
}

void frmCaixaAutorizar::Form_Load() {
  frame::Procedimento(*this, "Form_Load",
                      [&](Ponto&) { frame::EmoldurarFormulario(*this, lshpObj); });
}

void frmCaixaAutorizar::Form_Resize() {
  frame::Procedimento(frame::Etiqueta{autorizacao_.nomeNoRedimensionamento, "Form_Resize"},
                      [&](Ponto&) {
                        lshpObj.Width = Width();
                        lshpObj.Height = Height();
                      });
}

void frmCaixaAutorizar::Form_Unload() {
  Cancelado = !Autorizado;
}

void frmCaixaAutorizar::zvcmdFechar_Click() {
  Cancelado = true;
  Unload();
}

std::int16_t frmCaixaAutorizar::ValidarCampos() {
  frame::RestaurarCorDosRotulos(*this);
  if (zvtxtUsuario.Text->empty()) {
    return frame::Recusar(lblUsuario, "Informe o nome do usuário.", zvtxtUsuario);
  }
  if (zvtxtSenha.Text->empty()) {
    return frame::Recusar(lblSenha, "Informe o senha do usuário.", zvtxtSenha);
  }
  return 0;
}

void frmCaixaAutorizar::zvcmdOk_Click() {
  // Whatever fails after the fields were filled, the dialog ends: there is no second attempt in it.
  struct Encerramento {
    ~Encerramento() {
      if (encerrar) formulario.Unload();
    }
    frmCaixaAutorizar& formulario;
    bool encerrar = true;
  } encerramento{*this};
  frame::Procedimento(*this, "zvcmdOk_Click", [&](Ponto& ponto) {
    if (ValidarCampos() == 1) {
      encerramento.encerrar = false;
      return;
    }
    ponto = 2;
    const frame::PonteiroDeEspera espera(*this);
    if (Autenticar(ponto) && !Cancelado) Autorizado = true;
  });
}

bool frmCaixaAutorizar::Autenticar(Ponto& ponto) {
  ponto = 3;
  auto login = servicos::CriarServico<servicos::ZOVA_N_Login::clsLogin>();
  login->NomeDeUsuario(base::Trim(zvtxtUsuario.Text()));
  login->SenhaDoUsuario(base::Trim(zvtxtSenha.Text()));
  if (!frame::Aceitar(login->Autenticar(), *login)) return false;
  ponto = 4;
  const base::RecordSetPtr supervisor = login->ResultadoDaSelecaoEmRecordSet();
  supervisor->MoveFirst();
  if (base::ToBool(supervisor->Field(autorizacao_.direito))) return true;
  frame::Informar(autorizacao_.recusa);
  return false;
}

}  // namespace consent
