#include "desktop/host/frmEntrada.h"

#include "base/Text.h"
#include "frame/PainelDeMensagem.h"
#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "platform/Layout.h"

namespace host {

using platform::Look;
using servicos::ZOVA_N_Login::clsLogin;

namespace {

constexpr platform::Color kCorDeRecusa = platform::Rgb(255, 0, 0);
constexpr platform::Color kCorDaFraseDeRecusa = platform::Rgb(180, 35, 24);

}  // namespace

frmEntrada::frmEntrada() : Form("frmEntrada") {
  zvtxtSenha.password = true;
  lblRecusa.ForeColor.Assign(kCorDaFraseDeRecusa);
  defaultButton = &zvcmdEntrar;
  Resize = [this] { Form_Resize(); };
  zvtxtUsuario.KeyDown = [this](platform::KeyStroke& tecla) { zvtxtUsuario_KeyDown(tecla); };
  zvcmdEntrar.Click = [this] { zvcmdEntrar_Click(); };
  Arrange(
      {.size = {15360, 11520},
       .places = {
           {picCartao, {4680, 2700, 6000, 5625}, "", Look::kCard},
           {picMarca, {450, 450, 600, 600}, "", Look::kNormal, platform::kHoldTopLeft, "", "paw"},
           {lblTitulo, {1185, 465, 4350, 330}, "Caixa", Look::kTitle},
           {lblSubtitulo, {1185, 780, 4350, 270}, "Clínica veterinária e pet shop", Look::kHint},
           {lblUsuario, {450, 1395, 5100, 240}, "Usuário*"},
           {zvtxtUsuario, {450, 1695, 5100, 480}},
           {lblSenha, {450, 2355, 5100, 240}, "Senha*"},
           {zvtxtSenha, {450, 2655, 5100, 480}},
           {lblRecusa, {450, 3330, 5100, 720}, "", Look::kHint},
           {zvcmdEntrar, {450, 4500, 5100, 630}, "Entrar", Look::kPrimary},
       }});
}

void frmEntrada::Form_Resize() {
  picCartao.Left = (Width() - picCartao.Width()) / 2;
  picCartao.Top = (Height() - picCartao.Height()) * 2 / 5;
}

void frmEntrada::zvtxtUsuario_KeyDown(platform::KeyStroke& tecla) {
  if (tecla.key != platform::Key::kEnter || !zvtxtSenha.Text->empty()) return;
  tecla.key = platform::Key::kNone;
  zvtxtSenha.SetFocus();
}

void frmEntrada::Recusar(platform::Label& rotulo, const std::string& frase,
                         platform::ZVTextBox& campo) {
  rotulo.ForeColor = kCorDeRecusa;
  lblRecusa.Caption = frase;
  campo.SetFocus();
  campo.SelectAll();
}

void frmEntrada::zvcmdEntrar_Click() {
  for (platform::Label* rotulo : {&lblUsuario, &lblSenha}) {
    rotulo->ForeColor = platform::kDefaultColor;
  }
  lblRecusa.Caption = "";
  if (base::IsBlank(zvtxtUsuario.Text())) {
    return Recusar(lblUsuario, "Informe o nome do usuário.", zvtxtUsuario);
  }
  if (zvtxtSenha.Text->empty()) {
    return Recusar(lblSenha, "Informe a senha do usuário.", zvtxtSenha);
  }
  auto login = servicos::CriarServico<clsLogin>();
  login->NomeDeUsuario(base::Trim(zvtxtUsuario.Text()));
  login->SenhaDoUsuario(base::Trim(zvtxtSenha.Text()));
  const auto resultado = [&] {
    const frame::PonteiroDeEspera espera(*this);
    return login->Autenticar();
  }();
  if (resultado != servicos::kSucesso) {
    const bool erro = resultado == servicos::kErro;
    return Recusar(erro ? lblUsuario : lblSenha,
                   erro ? login->DescricaoDoErro() : login->DescricaoDaFalha(), zvtxtSenha);
  }
  zvtxtSenha.Text = "";
  aoEntrar(login->ResultadoDaSelecaoEmRecordSet());
}

}  // namespace host
