#include "lookup/frmExibirDetalhesDoItemDaVenda.h"

#include <string_view>

#include "base/Numbers.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/frmMensagem.h"
#include "frame/modArredondarCantosDoObjeto.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/LinhaDeVenda.h"
#include "frame/servicos/ZOVA_N_Caixa.clsServicosEProdutos.h"
#include "platform/Desktop.h"
#include "platform/Layout.h"

namespace lookup {

using frame::Ponto;
using frame::Procedimento;
using platform::Look;
using servicos::ZOVA_N_Caixa::clsServicosEProdutos;
namespace linha = servicos::linha;

namespace {

/// What a box shows: a column of the line, a field of its record, or today.
struct Detalhe {
  std::string_view rotulo;
  std::int32_t coluna = 0;
  std::string_view campo = {};
};
constexpr std::int32_t kHoje = -1;
constexpr int kDetalhes = 6;
using Detalhes = std::array<Detalhe, kDetalhes>;

constexpr Detalhes kVendaDeServico{{{"Data da venda", kHoje},
                                    {"Código do serviço", linha::kCodigo},
                                    {"Nome do serviço", linha::kNome},
                                    {"Valor unitário", linha::kValorUnitario},
                                    {"Código do animal", linha::kCodigoDoAnimal},
                                    {"Nome do animal", linha::kNomeDoAnimal}}};
constexpr Detalhes kVendaDeProduto{{{"Data da venda", kHoje},
                                    {"Código de barras do produto", linha::kTipoOuCodigoDeBarras},
                                    {"Código interno do produto", linha::kCodigo},
                                    {"Nome do produto", linha::kNome},
                                    {"Valor unitário", linha::kValorUnitario},
                                    {"Unidade", linha::kUnidade}}};
constexpr Detalhes kAtendimentoClinico{{{"Número da ficha clínica", 0, "NumeroDaFichaClinica"},
                                        {"Data do atendimento", 0, "DataDeLancamento"},
                                        {"Codigo do veterinário(a)", 0, "CodigoDoFuncionario"},
                                        {"Nome do veterinário(a)", 0, "NomeDoFuncionario"},
                                        {"Código do animal", 0, "CodigoDoAnimal"},
                                        {"Nome do animal", 0, "NomeDoAnimal"}}};
constexpr Detalhes kPreVendaDeProduto{
    {{"Número do lançamento", 0, "NumeroDeLancamento"},
     {"Data do lançamento", 0, "DataDeLancamento"},
     {"Código de barras do produto", 0, "CodigoDeBarrasDoProduto"},
     {"Código interno do produto", 0, "CodigoInternoDoProduto"},
     {"Nome do produto", 0, "NomeDoProduto"},
     {"Usuário da inclusão", 0, "UsuarioDaInclusao"}}};
constexpr Detalhes kPreVendaDeServico{{{"Número da pré-venda", 0, "NumeroDeLancamento"},
                                       {"Data do lançamento", 0, "DataDeLancamento"},
                                       {"Código do animal", 0, "CodigoDoAnimal"},
                                       {"Nome do animal", 0, "NomeDoAnimal"},
                                       {"Usuário da inclusão", 0, "UsuarioDaInclusao"},
                                       {"Data e hora da inclusão", 0, "DataEHoraDaInclusao"}}};

/// The rows of a selection of one record; null without it or after a failure, which has been told.
base::RecordSetPtr Registro(clsServicosEProdutos& servico, std::int16_t resultado,
                            std::string_view semRegistro) {
  if (!frame::Aceitar(resultado, servico)) return nullptr;
  base::RecordSetPtr registro = servico.ResultadoDaSelecaoEmRecordSet();
  registro->MoveFirst();
  if (registro->RecordCount() > 0) return registro;
  frame::Informar(semRegistro);
  return nullptr;
}

}  // namespace

/// What the viewer shows of one kind of line, and where that is read.
struct frmExibirDetalhesDoItemDaVenda::Caso {
  std::string_view titulo;
  Origem origem;
  const Detalhes& detalhes;
};

frmExibirDetalhesDoItemDaVenda::frmExibirDetalhesDoItemDaVenda()
    : Form("frmExibirDetalhesDoItemDaVenda") {
  defaultButton = &zvcmdFechar;
  cancelButton = &zvcmdFechar;
  Load = [this] {
    Procedimento(frame::etiquetas::kCarregarDetalhes,
                 [&](Ponto&) { frame::EmoldurarFormulario(*this, lshpObj); });
  };
  Activate = [this] { zvcmdFechar.SetFocus(); };
  zvcmdFechar.Click = [this] { Hide(); };
  platform::Layout desenho{
      .size = {9000, 4860},
      .places = {{zvTheme, {0, 0, 9000, 660}, "Detalhes ", Look::kTitle, platform::kHoldWidth}}};
  std::int32_t numero = 0;
  for (const Campo& campo : campos_) {
    campo.texto.Locked.Assign(true);
    campo.texto.tabStop = false;
    const std::int32_t esquerda = numero % 2 == 0 ? 240 : 4620;
    const std::int32_t alto = 855 + numero / 2 * 960;
    desenho.places.push_back({campo.rotulo, {esquerda, alto, 4140, 210}});
    desenho.places.push_back({campo.texto, {esquerda, alto + 270, 4140, 450}});
    ++numero;
  }
  desenho.places.push_back({picRodape,
                            {0, 4005, 9000, 855},
                            "",
                            Look::kFooter,
                            platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom});
  desenho.places.push_back({zvcmdFechar,
                            {7380, 195, 1380, 480},
                            "Fechar",
                            Look::kPrimary,
                            platform::kHoldTopRight,
                            "Fecha a tela e retorna ao caixa."});
  desenho.places.push_back({lshpObj, {0, 0, 9000, 4860}, "", Look::kNormal, platform::kHoldAll});
  Arrange(desenho);
}

const std::string& frmExibirDetalhesDoItemDaVenda::Celula(std::int32_t coluna) const {
  return grade_->TextMatrix(grade_->Row(), coluna);
}

const frmExibirDetalhesDoItemDaVenda::Caso& frmExibirDetalhesDoItemDaVenda::CasoDaLinha() const {
  static constexpr Caso kAtendimento{"do atend. clínico", Origem::kServicosEfetuados,
                                     kAtendimentoClinico};
  static constexpr Caso kServico{"da venda de serviços", Origem::kGrade, kVendaDeServico};
  static constexpr Caso kProduto{"da venda de produto", Origem::kGrade, kVendaDeProduto};
  static constexpr Caso kAtendimentoDePreVenda{"da pré-venda do atend. clínico",
                                               Origem::kServicosEfetuados, kAtendimentoClinico};
  static constexpr Caso kServicoDePreVenda{"da pré-venda de serviços", Origem::kServicosEfetuados,
                                           kPreVendaDeServico};
  static constexpr Caso kProdutoDePreVenda{"da pré-venda de produto", Origem::kProdutosReservados,
                                           kPreVendaDeProduto};
  const auto numero = [this](std::int32_t coluna) {
    return base::ToInt32(base::Val(Celula(coluna)));
  };
  const bool preVenda = numero(linha::ColunaDoTipoDeVenda(*grade_)) == servicos::kPreVenda;
  if (numero(linha::ColunaDoTipoDeLancamento(*grade_)) == servicos::kProduto) {
    return preVenda ? kProdutoDePreVenda : kProduto;
  }
  if (servicos::EhClinicoOuCirurgico(numero(linha::kTipoOuCodigoDeBarras))) {
    return preVenda ? kAtendimentoDePreVenda : kAtendimento;
  }
  return preVenda ? kServicoDePreVenda : kServico;
}

void frmExibirDetalhesDoItemDaVenda::MontarExibirFormulario(std::int16_t& resultado) {
  resultado = kNaoExibido;
  Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    {
      frame::frmMensagem mensagem;
      mensagem.lblMensagem.Caption = "Aguarde, reorganizando dados.";
      std::int16_t falha = 0;
      mensagem.MontarExibirFormulario(falha);
      ponto = 2;
      const Caso& caso = CasoDaLinha();
      zvTheme.Titulo = "Detalhes " + std::string(caso.titulo);
      ponto = 3;
      const bool lido = Preencher(caso);
      mensagem.Unload();
      if (!lido) return Unload();
    }
    ponto = 4;
    ShowModal();
    resultado = 0;
  });
}

bool frmExibirDetalhesDoItemDaVenda::Preencher(const Caso& caso) {
  base::RecordSetPtr registro;
  const std::string& lancamento = Celula(linha::kNumeroDeLancamento);
  if (caso.origem == Origem::kServicosEfetuados) registro = PreencherServicosEfetuados(lancamento);
  if (caso.origem == Origem::kProdutosReservados) {
    registro = PreencherProdutosReservados(lancamento);
  }
  if (caso.origem != Origem::kGrade && !registro) return false;
  auto campo = campos_.begin();
  for (const Detalhe& detalhe : caso.detalhes) {
    campo->rotulo.Caption = std::string(detalhe.rotulo);
    if (registro) {
      campo->texto.Text = base::ToText(registro->Fields(detalhe.campo));
    } else if (detalhe.coluna == kHoje) {
      campo->texto.Text =
          base::Format(platform::Desktop::Current().Now(), base::DateMask::kDayMonthYear);
    } else {
      campo->texto.Text = Celula(detalhe.coluna);
    }
    ++campo;
  }
  return true;
}

base::RecordSetPtr frmExibirDetalhesDoItemDaVenda::PreencherServicosEfetuados(
    const std::string& lancamento) {
  auto servico = servicos::CriarServico<clsServicosEProdutos>();
  const std::int16_t resultado = servico->SelecionarServicosEfetuados(
      2, 0, " WHERE ServicosEfetuados.NumeroDeLancamento = " + lancamento + " ");
  return Registro(*servico, resultado,
                  "Não foi possível encontrar o lançamento do serviço efetuado.");
}

base::RecordSetPtr frmExibirDetalhesDoItemDaVenda::PreencherProdutosReservados(
    const std::string& lancamento) {
  auto servico = servicos::CriarServico<clsServicosEProdutos>();
  const std::int16_t resultado = servico->SelecionarProdutosReservados(
      2, 0, " WHERE ProdutosReservados.NumeroDeLancamento = " + lancamento + " ");
  return Registro(*servico, resultado,
                  "Não foi possível encontrar o lançamento do produto reservado.");
}

}  // namespace lookup
