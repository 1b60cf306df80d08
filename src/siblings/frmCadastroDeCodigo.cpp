#include "siblings/frmCadastroDeCodigo.h"

#include "base/Value.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "platform/Layout.h"

namespace siblings {

using dados::clsCadastroFiscal;
using frame::Ponto;
using platform::Look;

frmCadastroDeCodigo::frmCadastroDeCodigo(const CadastroDeCodigo& cadastro, double codigo,
                                         std::string_view quem, std::string_view nome)
    : Form(cadastro.formulario), cadastro_(cadastro), codigo_(codigo) {
  zvmskCodigo.Mask.Assign(std::string(cadastro.mascara));
  zvmskCodigo.Text.Assign(zvmskCodigo.EmptyText());
  defaultButton = &zvcmdSalvar;
  cancelButton = &zvcmdCancelar;
  zvcmdSalvar.Click = [this] { zvcmdSalvar_Click(); };
  zvcmdCancelar.Click = [this] { zvcmdCancelar_Click(); };
  Arrange({.size = {6900, 4800},
           .places = {
               {zvTheme, {0, 0, 6900, 660}, cadastro.titulo, Look::kTitle, platform::kHoldWidth},
               {picIdentificacao, {240, 855, 6420, 1170}, "", Look::kCard},
               {lblQuem, {180, 135, 6060, 345}, quem, Look::kTitle},
               {lblNome, {180, 495, 6060, 540}, nome, Look::kHint},
               {lblExplicacao, {240, 2130, 6420, 540}, cadastro.explicacao, Look::kHint},
               {lblCodigo, {240, 2745, 2700, 210}, cadastro.rotulo},
               {zvmskCodigo, {240, 3015, 2400, 450}},
               {lblReconhecido, {2820, 3015, 3840, 450}, "", Look::kHint},
               {picRodape, {0, 3945, 6900, 855}, "", Look::kFooter, platform::kHoldWidth},
               {zvcmdCancelar, {4050, 195, 1230, 480}, "Cancelar", Look::kNormal},
               {zvcmdSalvar, {5430, 195, 1230, 480}, "Salvar", Look::kPrimary},
           }});
  zvmskCodigo.Observe(*this);
}

std::int16_t frmCadastroDeCodigo::MontarExibirFormulario() {
  resultado_ = kFalha;
  frame::Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    if (!LerCodigoAtual()) return;
    ponto = 2;
    resultado_ = kSemCadastrar;
    ShowModal();
  });
  return resultado_;
}

bool frmCadastroDeCodigo::LerCodigoAtual() {
  auto cadastro = frame::CriarServicoComSessao<clsCadastroFiscal>();
  if (!frame::Aceitar((*cadastro.*cadastro_.selecionar)(codigo_), *cadastro)) return false;
  const base::RecordSetPtr registro = cadastro->ResultadoDaSelecaoEmRecordSet();
  registro->MoveFirst();
  // The digits fall into the places of the mask.
  const std::string digitos = base::ToText(registro->Fields("Codigo"));
  std::string texto = zvmskCodigo.EmptyText();
  std::size_t lugar = 0;
  for (const char digito : digitos) {
    lugar = texto.find('_', lugar);
    if (lugar == std::string::npos) break;
    texto[lugar] = digito;
  }
  zvmskCodigo.Text = texto;
  return true;
}

void frmCadastroDeCodigo::Changed(platform::Object&, const platform::PropertyBase& property) {
  if (&property != &zvmskCodigo.Text) return;
  lblReconhecido.Caption.Assign(cadastro_.julgar(zvmskCodigo.UnmaskedText()).reconhecido);
}

bool frmCadastroDeCodigo::Validar() {
  frame::RestaurarCorDosRotulos(*this);
  const std::string digitos = zvmskCodigo.UnmaskedText();
  if (digitos.empty()) {
    frame::Recusar(lblCodigo, cadastro_.vazio, zvmskCodigo);
    return false;
  }
  const Julgamento julgamento = cadastro_.julgar(digitos);
  if (!julgamento.recusa.empty()) {
    frame::Recusar(lblCodigo, julgamento.recusa, zvmskCodigo);
    return false;
  }
  if (julgamento.duvida.empty() || frame::Perguntar(julgamento.duvida)) return true;
  zvmskCodigo.SetFocus();
  return false;
}

void frmCadastroDeCodigo::zvcmdSalvar_Click() {
  frame::Procedimento(*this, "zvcmdSalvar_Click", [&](Ponto& ponto) {
    if (!Validar()) return;
    ponto = 2;
    const frame::PonteiroDeEspera espera(*this, platform::kHourglassPointer);
    auto cadastro = frame::CriarServicoComSessao<clsCadastroFiscal>();
    const std::int16_t status = cadastro_.registrar(*cadastro, codigo_, zvmskCodigo.UnmaskedText());
    // After a fault the operator may try again: to give up here would cost the whole sale.
    if (!frame::Aceitar(status, *cadastro)) return;
    ponto = 3;
    resultado_ = kCadastrado;
    Unload();
  });
}

void frmCadastroDeCodigo::zvcmdCancelar_Click() {
  Unload();
}

}  // namespace siblings
