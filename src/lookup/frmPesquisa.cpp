#include "lookup/frmPesquisa.h"

#include <memory>
#include <utility>

#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/modArredondarCantosDoObjeto.h"
#include "frame/modMensagemDeErro.h"
#include "platform/Input.h"

namespace lookup {

using frame::Ponto;
using frame::Procedimento;
using platform::Look;

frmPesquisa::frmPesquisa(const Pesquisa& pesquisa)
    : Form(pesquisa.formulario),
      lblCampo(*this, pesquisa.rotulo),
      zvfndCampo(*this, pesquisa.campo),
      pesquisa_(pesquisa),
      lista_(msfgGrade, pesquisa.colunas) {
  cancelButton = &zvcmdFechar;
  picMensagem.Visible.Assign(false);
  Load = [this] { Form_Load(); };
  Activate = [this] { Form_Activate(); };
  UnloadEvent = [this](bool& recusar) { Form_Unload(recusar); };
  lista_.aoEscolher = [this] { msfgGrade_Click(); };
  zvfndCampo.Click = [this] { zvfndCampo_Click(); };
  zvcmdFechar.Click = [this] { zvcmdFechar_Click(); };
}

platform::Layout frmPesquisa::Desenho(const std::vector<platform::Place>& acima,
                                      std::int32_t inicioDoCampo) {
  constexpr std::int32_t kLargura = 13200, kAltura = 8670;
  constexpr unsigned kAoLado = platform::kHoldWidth;
  const std::int32_t larguraDoCampo = kLargura - inicioDoCampo - 240;
  platform::Layout desenho{.size = {kLargura, kAltura}, .places = {}};
  std::vector<platform::Place>& lugares = desenho.places;
  lugares.push_back({zvTheme, {0, 0, kLargura, 660}, pesquisa_.titulo, Look::kTitle, kAoLado});
  for (const platform::Place& lugar : acima) lugares.push_back(lugar);
  lugares.push_back({lblCampo,
                     {inicioDoCampo, 855, larguraDoCampo, 210},
                     pesquisa_.legenda,
                     Look::kNormal,
                     kAoLado});
  lugares.push_back(
      {zvfndCampo, {inicioDoCampo, 1125, larguraDoCampo, 450}, "", Look::kNormal, kAoLado});
  lugares.push_back(
      {msfgGrade, {240, 1755, kLargura - 480, 5880}, "", Look::kNormal, platform::kHoldAll});
  lugares.push_back({picRodape,
                     {0, 7815, kLargura, 855},
                     "",
                     Look::kFooter,
                     platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom});
  lugares.push_back({zvcmdFechar,
                     {kLargura - 1350, 195, 1110, 480},
                     "Fechar",
                     Look::kNormal,
                     platform::kHoldTopRight,
                     "Cancelar a pesquisa e fechar"});
  lugares.push_back({lblAvisoDaLista, {240, 300, kLargura - 1830, 255}, "", Look::kHint, kAoLado});
  lugares.push_back({lshpObj, {0, 0, kLargura, kAltura}, "", Look::kNormal, platform::kHoldAll});
  lugares.push_back({picMensagem, {3900, 3300, 5400, 1200}, "", Look::kWait});
  lugares.push_back({lblMensagem, {150, 420, 5100, 360}, "Aguarde, pesquisando", Look::kWait});
  return desenho;
}

void frmPesquisa::ConfigurarGrade(std::int16_t& falha) {
  falha = 1;
  Procedimento(frame::Etiqueta{pesquisa_.formularioDaGrade, "ConfigurarGrade"}, [&](Ponto&) {
    lista_.Esvaziar();
    lblAvisoDaLista.Caption = "";
    falha = 0;
  });
}

void frmPesquisa::PreencherGrade(const base::RecordSetPtr& registros, std::int16_t& falha,
                                 std::string_view aviso) {
  falha = 1;
  Procedimento(frame::Etiqueta{pesquisa_.formularioDaGrade, "PreencherGrade"}, [&](Ponto& ponto) {
    lblAvisoDaLista.Caption = "";
    if (!registros) {
      lista_.Esvaziar();
    } else {
      lista_.Preencher(*registros);
    }
    ponto = 2;
    lblAvisoDaLista.Caption = aviso.empty() ? Quantidade() : std::string(aviso);
    falha = 0;
  });
}

std::string frmPesquisa::Quantidade() const {
  const std::int32_t quantos = lista_.Quantos();
  return base::ToText(quantos) + " " +
         std::string(quantos == 1 ? pesquisa_.registro : pesquisa_.registros);
}

bool frmPesquisa::Escolher(const Selecao& encontrados) {
  std::int16_t falha = 0;
  ConfigurarGrade(falha);
  if (falha == 0) PreencherGrade(encontrados.registros, falha, encontrados.aviso);
  if (falha == 1) return false;
  ShowModal();
  return registroSelecionado_;
}

base::RecordSetPtr frmPesquisa::Escolhido() const {
  std::vector<std::string> nomes;
  std::vector<base::Value> linha;
  for (std::size_t i = 0; i < pesquisa_.colunas.size(); ++i) {
    if (pesquisa_.colunas[i].campo.empty()) continue;
    nomes.emplace_back(pesquisa_.colunas[i].campo);
    const std::string& texto =
        msfgGrade.TextMatrix(msfgGrade.RowSel(), static_cast<std::int32_t>(i));
    linha.push_back(texto.empty() ? base::Value() : base::Value(texto));
  }
  const auto registro = std::make_shared<base::RecordSet>(std::move(nomes));
  registro->Append(std::move(linha));
  registro->MoveFirst();
  return registro;
}

Selecao frmPesquisa::Resultado(servicos::ServicoDeNegocio& servico, bool falhou,
                               frame::Espera& espera) {
  if (falhou) {
    espera.Ocultar();
    frame::ExibirErroDoServico(servico);
    return {};
  }
  const base::RecordSetPtr registros = servico.ResultadoDaSelecaoEmRecordSet();
  return {registros, AvisoDaSelecao(servico, *registros)};
}

std::string frmPesquisa::AvisoDaSelecao(servicos::ServicoDeNegocio& servico,
                                        const base::RecordSet& registros) {
  constexpr std::int32_t kSelecaoLonga = 1'000;
  return registros.RecordCount() < kSelecaoLonga ? std::string() : servico.DescricaoDaFalha();
}

void frmPesquisa::Form_Load() {
  Procedimento(*this, "Form_Load", [&](Ponto& ponto) {
    frame::EmoldurarFormulario(*this, lshpObj);
    ponto = 2;
    Carregar();
  });
}

void frmPesquisa::Form_Activate() {
  registroSelecionado_ = false;
  // What the opener has found already is chosen with the arrows and Enter.
  if (lista_.Quantos() > 0) {
    msfgGrade.SetFocus();
  } else {
    PrimeiroCampo().SetFocus();
  }
}

void frmPesquisa::Form_Unload(bool& recusar) {
  if (!painel_.Visivel()) return;
  // Closed while its search waits: the search still needs the dialog to end, out of sight.
  recusar = true;
  Hide();
}

void frmPesquisa::msfgGrade_Click() {
  Procedimento(*this, "msfgGrade_Click", [&](Ponto&) {
    if (ValidarCampos() == 1) return;
    registroSelecionado_ = true;
    Hide();
  });
}

void frmPesquisa::zvcmdFechar_Click() {
  registroSelecionado_ = false;
  Hide();
}

void frmPesquisa::zvfndCampo_Click() {
  Procedimento(
      frame::Etiqueta{pesquisa_.formularioDoCampo, std::string(pesquisa_.campo) + "_Click"},
      [&](Ponto& ponto) {
        if (std::exchange(suprimirProximoClick_, false)) return;
        if (!PodePesquisar()) return;
        ponto = 2;
        if (!Pesquisar()) {
          frame::SelecionarTudo(zvfndCampo);
        } else if (lista_.Quantos() >= 2) {
          zvfndCampo.SetFocus();
        }
      });
}

bool frmPesquisa::Pesquisar() {
  bool encontrou = false;
  Procedimento(*this, pesquisa_.rotina, [&](Ponto& ponto) {
    frame::Espera espera(painel_);
    // Chosen or left during the wait: the row chosen stands, and nothing is looked for any more.
    if (!IsVisible()) return;
    suprimirProximoClick_ = true;
    // It stands while the dialog writes; the operator's next search is their own.
    const auto baixar = [](bool* suprimir) { *suprimir = false; };
    const std::unique_ptr<bool, decltype(baixar)> escrita(&suprimirProximoClick_, baixar);
    const std::string texto = zvfndCampo.Text();
    ponto = 2;
    const Selecao encontrados = Selecionar(texto, espera);
    if (!encontrados.registros) return;
    ponto = 3;
    if (encontrados.registros->RecordCount() == 0) {
      espera.Ocultar();
      frame::Informar(NadaEncontrado(texto));
      platform::input::SendKeys("+({HOME})");
      return;
    }
    ponto = 4;
    std::int16_t falha = 0;
    PreencherGrade(encontrados.registros, falha, encontrados.aviso);
    espera.Ocultar();
    if (falha == 1) return;
    encontrou = true;
    if (lista_.Quantos() == 1) msfgGrade_Click();
  });
  return encontrou;
}

std::optional<ItemEncontrado> EscolherItem(frmPesquisa& lista, const Selecao& encontrados,
                                           const std::function<ItemEncontrado()>& ler) {
  std::optional<ItemEncontrado> item;
  {
    const frame::FundoEscuro fundo;
    if (lista.Escolher(encontrados)) item = ler();
  }
  lista.Unload();
  return item;
}

}  // namespace lookup
