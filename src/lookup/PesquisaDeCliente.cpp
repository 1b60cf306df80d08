#include "lookup/PesquisaDeCliente.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/Consultas.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "lookup/frmPesquisaDeClientes.h"
#include "platform/Input.h"

namespace lookup {
namespace {

using frame::Informar;
using platform::ZVFind;
using servicos::ZOVA_N_ClientAnim::clsClientes;

constexpr std::size_t kMenorPesquisa = 3;

std::string NinguemEncontrado(const ProcuraDeCliente& procura) {
  if (!procura.apelido.empty()) {
    return "Nenhum cliente encontrado com o apelido ou nome fantasia '" + procura.apelido + "'.";
  }
  if (!procura.nome.empty()) {
    return "Nenhum cliente encontrado com o nome ou razão social '" + procura.nome + "'.";
  }
  return "Nenhum cliente encontrado com o código '" + base::ToText(procura.codigo) + "' informado.";
}

/// The record of the customer whom the operator picks; null when none is picked. The list itself
/// lets nobody through who cannot be served.
base::RecordSetPtr EscolherDaLista(const Selecao& encontrados) {
  const frame::FundoEscuro fundo;
  frmPesquisaDeClientes lista;
  base::RecordSetPtr cliente = lista.Escolher(encontrados) ? lista.Escolhido() : nullptr;
  lista.Unload();
  return cliente;
}

}  // namespace

base::RecordSetPtr ProcurarCliente(const ProcuraDeCliente& procura,
                                   frame::PainelDeMensagem& painel) {
  frame::Espera espera(painel);
  auto clientes = frame::CriarServicoComSessao<clsClientes>();
  const std::int16_t resultado = frame::consultas::Clientes(
      *clientes, procura.apelido.empty() ? procura.nome : procura.apelido, procura.codigo);
  espera.Ocultar();
  if (resultado != servicos::kSucesso) {
    frame::ExibirErroDoServico(*clientes);
    return nullptr;
  }
  base::RecordSetPtr encontrados = clientes->ResultadoDaSelecaoEmRecordSet();
  if (encontrados->RecordCount() == 0) {
    Informar(NinguemEncontrado(procura));
    platform::input::SendKeys("+({HOME})");
    return nullptr;
  }
  if (encontrados->RecordCount() > 1) {
    return EscolherDaLista({encontrados, frmPesquisa::AvisoDaSelecao(*clientes, *encontrados)});
  }
  encontrados->MoveFirst();
  const auto recusa = RecusaDaSituacao(base::ToInt32(encontrados->Fields("Situacao")));
  if (!recusa) return encontrados;
  Informar(*recusa);
  return nullptr;
}

std::optional<std::string> RecusaDaSituacao(std::int32_t situacao) {
  const char* estado = nullptr;
  switch (situacao) {
    case servicos::kClienteInativo:
      estado = "inativo";
      break;
    case servicos::kClienteBloqueado:
      estado = "bloqueado";
      break;
    case servicos::kClienteExcluido:
      estado = "excluído";
      break;
    default:
      return std::nullopt;
  }
  return std::string("Cliente ") + estado +
         ". Para mais informações, entre em contato com o departamento financeiro.";
}

std::string SufixoDoRotulo(const std::string& vip, const std::string& categoriaDaCurvaABC) {
  return std::string(" [ ") + (base::Upper(vip) == "SIM" ? "VIP - " : "") + categoriaDaCurvaABC +
         " ]";
}

void CaixaDoCliente::KeyDown(ZVFind& campo) {
  if (frame::TomarSupressaoDePesquisa()) return;
  for (ZVFind* outro : campos_) {
    if (outro != &campo) outro->DisplayText = "";
  }
}

void CaixaDoCliente::Click(ZVFind& campo) {
  switch (campo.Status()) {
    case ZVFind::kTyped:
      if (PesquisaCurtaDemais(campo)) return;
      for (ZVFind* outro : campos_) {
        if (outro != &campo) outro->Text = "";
      }
      if (acoes_.pesquisar()) {
        acoes_.aceitar(campo);
        return;
      }
      Recomecar(campo);
      campo.Enabled = true;
      campo.SetFocus();
      return;
    case ZVFind::kEmpty:
      Recomecar(campo);
      campo.SetFocus();
      return;
    default:
      return;
  }
}

void CaixaDoCliente::Recomecar(ZVFind& campo) {
  for (ZVFind* outro : campos_) {
    if (outro == &campo) continue;
    outro->Status = ZVFind::kEmpty;
    outro->Text = "";
    outro->Enabled = true;
  }
  RestaurarRotulo();
  if (acoes_.esvaziar) acoes_.esvaziar();
}

ProcuraDeCliente CaixaDoCliente::Procura() const {
  return {base::Trim(Apelido().Text()), base::Trim(Nome().Text()), CodigoDoCliente()};
}

bool CaixaDoCliente::Informado() const {
  for (const ZVFind* campo : campos_) {
    if (base::IsBlank(campo->Text())) return false;
  }
  return true;
}

double CaixaDoCliente::CodigoDoCliente() const {
  return base::Val(Codigo().Text());
}

void CaixaDoCliente::Receber(ClienteEncontrado cliente) {
  cliente_ = std::move(cliente);
  for (ZVFind* campo : campos_) campo->Status = ZVFind::kFound;
  Codigo().Text = cliente_.codigo;
  Apelido().Text = cliente_.apelido;
  Nome().Text = cliente_.nome;
  Rotular(cliente_.sufixoDoRotulo);
}

void CaixaDoCliente::Esvaziar() {
  for (ZVFind* campo : campos_) campo->Text = "";
}

void CaixaDoCliente::Habilitar(bool habilitar) {
  for (ZVFind* campo : campos_) campo->Enabled = habilitar;
}

void CaixaDoCliente::Rotular(std::string_view sufixo) {
  lblCliente_.Caption = "Cliente*" + std::string(sufixo);
}

bool PesquisaCurtaDemais(ZVFind& campo) {
  if (campo.Style() != ZVFind::kTextStyle || base::Length(campo.Text()) >= kMenorPesquisa) {
    return false;
  }
  campo.Enabled = true;
  Informar(kTresCaracteres);
  return true;
}

}  // namespace lookup
