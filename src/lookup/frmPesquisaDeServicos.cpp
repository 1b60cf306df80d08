#include "lookup/frmPesquisaDeServicos.h"

#include <array>
#include <utility>

#include "frame/Consultas.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_N_Servicos.clsServicos.h"
#include "frame/servicos/ZOVA_N_TipoDeServ.clsTiposDeServ.h"

namespace lookup {
namespace {

using frame::Ponto;
using frame::Procedimento;
using enum frame::TipoDeColuna;
using enum platform::Align;

constexpr std::array<frame::Coluna, 7> kColunas{{
    {.titulo = "Coluna em branco"},
    {"Código", 1150, kLeftCenter, kNumero, "Codigo"},
    {"Nome", 4600, kLeftCenter, kTexto, "Nome"},
    {"Descrição", 4600, kLeftCenter, kTexto, "Descricao"},
    {"Valor", 1700, kRightCenter, kNumero, "ValorDeVenda"},
    {"Custo", 0, kRightCenter, kNumero, "Custo"},
    {"Número do tipo de serviço", 0, kLeftCenter, kNumero, "NumeroDoTipoDeServico"},
}};

constexpr Pesquisa kPesquisa{.formulario = "frmPesquisaDeServicos",
                             .titulo = "Pesquisa de serviços",
                             .campo = "zvfndCodigoOuNome",
                             .rotulo = "lblCodigoOuNome",
                             .legenda = "Código ou nome*",
                             .rotina = "PesquisarServico",
                             .formularioDaGrade = "frmLista",
                             .formularioDoCampo = "frmLista",
                             .registro = "serviço",
                             .registros = "serviços",
                             .colunas = kColunas};

constexpr std::int32_t kTodosOsTipos = 0;

}  // namespace

frmPesquisaDeServicos::frmPesquisaDeServicos() : frmPesquisa(kPesquisa) {
  zvcmbTiposDeServicos.Click = [this] { zvcmbTiposDeServicos_Click(); };
  Arrange(Desenho({{lblTiposDeServicos, {240, 855, 4200, 210}, "Tipo de serviço*"},
                   {zvcmbTiposDeServicos, {240, 1125, 4200, 450}}},
                  4680));
}

void frmPesquisaDeServicos::CopiarTiposDeServicos(const platform::ZVComboBox& tipos) {
  // The counter's list is read here, which must not pass for a choice made there.
  frame::SupressaoDePesquisa supressao;
  zvcmbTiposDeServicos.Clear();
  for (std::int32_t i = 0; i < tipos.ListCount(); ++i) {
    supressao.Repetir();
    zvcmbTiposDeServicos.AddItem(tipos.List(i), tipos.ItemData(i));
  }
  zvcmbTiposDeServicos.ListIndex = tipos.ListIndex();
}

// A fault of the types is thrown on to the loading, which reports it as its own and ends.
void frmPesquisaDeServicos::Carregar() {
  if (preencherTipos_) PreencherComboboxTiposDeServicos();
  SuprimirProximoClickDoTipoDeServico = true;
  zvcmbTiposDeServicos_Click();
}

void frmPesquisaDeServicos::PreencherComboboxTiposDeServicos() {
  auto tipos = servicos::CriarServico<servicos::ZOVA_N_TipoDeServ::clsTiposDeServ>();
  if (frame::consultas::TiposDeServicos(*tipos) != servicos::kSucesso) {
    throw base::RuntimeError(tipos->NumeroDoErro(), tipos->DescricaoDoErro());
  }
  const base::RecordSetPtr linhas = tipos->ResultadoDaSelecaoEmRecordSet();
  zvcmbTiposDeServicos.Clear();
  if (linhas->RecordCount() == 0) {
    frame::Informar(
        "Nenhum tipo de serviço cadastrado.\nÉ necessário ter no mínimo um tipo de serviço "
        "cadastrado para incluir um agendamento.");
    return;
  }
  zvcmbTiposDeServicos.AddItem("(Todos)", kTodosOsTipos);
  base::ForEachRow(*linhas, [&] {
    zvcmbTiposDeServicos.AddItem(base::ToText(linhas->Fields("Nome")),
                                 base::ToInt32(linhas->Fields("Numero")));
  });
}

void frmPesquisaDeServicos::zvcmbTiposDeServicos_Click() {
  Procedimento(*this, "zvcmbTiposDeServicos_Click", [&](Ponto&) {
    if (std::exchange(SuprimirProximoClickDoTipoDeServico, false)) return;
    std::int16_t falha = 0;
    ConfigurarGrade(falha);
    zvfndCampo.SetFocus();
  });
}

platform::Control& frmPesquisaDeServicos::PrimeiroCampo() {
  if (zvcmbTiposDeServicos.ListIndex() == -1) return zvcmbTiposDeServicos;
  return frmPesquisa::PrimeiroCampo();
}

bool frmPesquisaDeServicos::PodePesquisar() {
  if (zvcmbTiposDeServicos.ListIndex() != -1) return true;
  frame::Informar("Selecione o tipo de serviço.");
  zvcmbTiposDeServicos.SetFocus();
  return false;
}

Selecao frmPesquisaDeServicos::Selecionar(const std::string& texto, frame::Espera& espera) {
  auto catalogo = servicos::CriarServico<servicos::ZOVA_N_Servicos::clsServicos>();
  const std::int32_t tipo = zvcmbTiposDeServicos.ItemData(zvcmbTiposDeServicos.ListIndex());
  const bool falhou = frame::consultas::ServicosDaLista(*catalogo, texto, tipo);
  return Resultado(*catalogo, falhou, espera);
}

std::string frmPesquisaDeServicos::NadaEncontrado(const std::string& texto) const {
  return "Nenhum serviço encontrado  como o valor '" + texto +
         "' informado e com o tipo de serviço '" + zvcmbTiposDeServicos.Text() + "'.";
}

std::optional<ItemEncontrado> EscolherServico(const Selecao& servicos,
                                              const platform::ZVComboBox& tipos) {
  frmPesquisaDeServicos lista;
  lista.CopiarTiposDeServicos(tipos);
  return EscolherItem(lista, servicos, [&] { return lista.Servico(); });
}

}  // namespace lookup
