#include "fiscal/frmCaixaInformarCPFCNPJ.h"

#include "base/Text.h"
#include "fiscal/CPFCNPJ.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "platform/Input.h"
#include "platform/Layout.h"

namespace fiscal {

using frame::Ponto;
using platform::Look;

namespace {

/// One of the choices: what the dialog is called while it is on, and how its document is written.
struct Tipo {
  std::string_view legenda, titulo, mascara;
};

constexpr std::array<Tipo, 3> kTipos{{
    {"Informar CPF / CNPJ  do cliente cadastrado", "Envio de CPF/CNPJ para o SAT", ""},
    {"Informar outro CPF", "Envio de CPF para o SAT", "###.###.###-##"},
    {"Informar outro CNPJ", "Envio de CNPJ para o SAT", "##.###.###/####-##"},
}};

}  // namespace

frmCaixaInformarCPFCNPJ::frmCaixaInformarCPFCNPJ() : Form("frmCaixaInformarCPFCNPJ") {
  // Until a kind of document is chosen there is nothing to type.
  zvmskCpfCnpj.Enabled.Assign(false);
  defaultButton = &zvcmdEnviar;
  for (std::size_t indice = 0; indice < optTipo.size(); ++indice) {
    optTipo[indice].Click = [this, indice] { optTipo_Click(indice); };
  }
  zvcmdEnviar.Click = [this] { zvcmdEnviar_Click(); };
  zvcmdNaoEnviar.Click = [this] { zvcmdNaoEnviar_Click(); };
  // Esc leaves as the close box does: not sending is an answer, and no button's Esc.
  for (platform::Control* controle : Controls()) {
    controle->KeyDown = [this](platform::KeyStroke& tecla) {
      if (tecla.key == platform::Key::kEscape) Unload();
    };
  }
  Arrange(
      {.size = {6300, 3990},
       .places = {
           {zvTheme, {0, 0, 6300, 660}, kTipos[0].titulo, Look::kTitle, platform::kHoldWidth},
           {optTipo[0], {240, 825, 5820, 420}, kTipos[0].legenda},
           {optTipo[1], {240, 1245, 5820, 420}, kTipos[1].legenda},
           {optTipo[2], {240, 1665, 5820, 420}, kTipos[2].legenda},
           {lblCpfCnpj, {240, 2205, 5820, 210}, "CPF / CNPJ"},
           {zvmskCpfCnpj, {240, 2475, 5820, 450}, "", Look::kNormal, platform::kHoldWidth},
           {picRodape,
            {0, 3135, 6300, 855},
            "",
            Look::kFooter,
            platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom},
           {zvcmdNaoEnviar,
            {3330, 195, 1380, 480},
            "Não enviar",
            Look::kNormal,
            platform::kHoldTopRight},
           {zvcmdEnviar, {4830, 195, 1230, 480}, "Enviar", Look::kPrimary, platform::kHoldTopRight},
       }});
}

std::int16_t frmCaixaInformarCPFCNPJ::MontarExibirFormulario() {
  frame::Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    zvcmdEnviar.ToolTipText = "Enviar o CPF/CNPJ para o SAT";
    zvcmdNaoEnviar.ToolTipText = "Não enciar o CPF/CNPJ para o SAT";
    ponto = 2;
    ShowModal();
  });
  return respondido_ ? std::int16_t{0} : kFechado;
}

void frmCaixaInformarCPFCNPJ::optTipo_Click(std::size_t indice) {
  frame::Procedimento(*this, "optTipo_Click", [&](Ponto&) {
    const Tipo& tipo = kTipos[indice];
    zvTheme.Titulo = std::string(tipo.titulo);
    if (!tipo.mascara.empty()) zvmskCpfCnpj.Mask = std::string(tipo.mascara);
    zvmskCpfCnpj.Text = "";
    zvmskCpfCnpj.Enabled = !tipo.mascara.empty();
    zvmskCpfCnpj.SetFocus();
  });
}

void frmCaixaInformarCPFCNPJ::zvcmdNaoEnviar_Click() {
  TipoDeEnvio = kNaoEnviar;
  respondido_ = true;
  Unload();
}

void frmCaixaInformarCPFCNPJ::zvcmdEnviar_Click() {
  frame::Procedimento(*this, "zvcmdEnviar_Click", [&](Ponto& ponto) {
    if (ValidarCampos() == 1) return;
    ponto = 2;
    TipoDeEnvio = kNaoEnviar;
    if (optTipo[0].Value()) TipoDeEnvio = kDoCliente;
    if (optTipo[1].Value()) TipoDeEnvio = kOutroCPF;
    if (optTipo[2].Value()) TipoDeEnvio = kOutroCNPJ;
    const bool vazio = zvmskCpfCnpj.UnmaskedText().empty();
    CPFCNPJInformado = vazio ? std::string() : zvmskCpfCnpj.Text();
    ponto = 3;
    respondido_ = true;
    Unload();
  });
}

std::int16_t frmCaixaInformarCPFCNPJ::ValidarCampos() {
  constexpr std::size_t kDigitosDoCPF = 11;
  constexpr std::size_t kDigitosDoCNPJ = 14;
  const std::size_t digitos = zvmskCpfCnpj.UnmaskedText().size();
  if (optTipo[1].Value()) {
    if (digitos == 0) return Recusar("Informe o CPF.");
    if (digitos < kDigitosDoCPF) return Recusar("CPF incompleto.");
    if (digitos == kDigitosDoCPF) return ValidarCPF();
  } else if (optTipo[2].Value()) {
    if (digitos == 0) return Recusar("Informe o CNPJ.");
    if (digitos < kDigitosDoCNPJ) return Recusar("CNPJ incompleto.");
    if (digitos == kDigitosDoCNPJ) return ValidarCNPJ();
  }
  return 0;
}

std::int16_t frmCaixaInformarCPFCNPJ::ValidarCPF() {
  if (DigitosDoCPFConferem(zvmskCpfCnpj.UnmaskedText())) return 0;
  return RecusarDigitos("CPF incorreto. Por favor verifique e digite novamente.");
}

std::int16_t frmCaixaInformarCPFCNPJ::ValidarCNPJ() {
  if (DigitosDoCNPJConferem(zvmskCpfCnpj.UnmaskedText())) return 0;
  return RecusarDigitos("CNPJ incorreto. Por favor verifique.");
}

std::int16_t frmCaixaInformarCPFCNPJ::Recusar(std::string_view texto) {
  frame::Informar(texto);
  zvmskCpfCnpj.SetFocus();
  return 1;
}

std::int16_t frmCaixaInformarCPFCNPJ::RecusarDigitos(std::string_view texto) {
  frame::Informar(texto);
  platform::input::SendKeys("+({HOME})");
  zvmskCpfCnpj.SetFocus();
  return 1;
}

}  // namespace fiscal
