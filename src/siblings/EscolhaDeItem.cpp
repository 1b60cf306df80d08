#include "siblings/EscolhaDeItem.h"

#include <string_view>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/Consultas.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_Servicos.clsServicos.h"
#include "lookup/PesquisaDeCliente.h"
#include "lookup/frmPesquisaDeProdutos.h"
#include "lookup/frmPesquisaDeServicos.h"

namespace siblings {
namespace {

namespace consultas = frame::consultas;
using dados::Orcamento;
using servicos::ZOVA_N_Produtos::clsProdutos;
using servicos::ZOVA_N_Servicos::clsServicos;

constexpr std::size_t kMenorPesquisa = 3;

/// Where a kind of item is found, and what its record calls things.
struct Fonte {
  std::string_view oQue, codigo, codigoDeBarras, unidade;
};
constexpr Fonte kServicos{"serviço", "Codigo", "", ""};
constexpr Fonte kProdutos{"produto", "CodigoInterno", "CodigoDeBarras", "UnidadeDeVenda"};

const Fonte& FonteDe(servicos::TipoDeLancamento tipo) {
  return tipo == servicos::kServico ? kServicos : kProdutos;
}

/// No records after a fault, which has been reported.
lookup::Selecao Resultado(servicos::ServicoDeNegocio& servico, bool falhou) {
  if (falhou) {
    frame::ExibirErroDoServico(servico);
    return {};
  }
  return {servico.ResultadoDaSelecaoEmRecordSet(), servico.DescricaoDaFalha()};
}

Orcamento::Item ItemDe(const base::RecordSet& registro, servicos::TipoDeLancamento tipo) {
  const Fonte& fonte = FonteDe(tipo);
  Orcamento::Item item;
  item.tipoDeLancamento = tipo;
  item.codigo = base::ToInt32(registro.Fields(fonte.codigo));
  item.nome = base::ToText(registro.Fields("Nome"));
  if (!fonte.unidade.empty()) item.unidade = base::ToText(registro.Fields(fonte.unidade));
  item.valorUnitario = base::ToCurrency(registro.Fields("ValorDeVenda"));
  return item;
}

/// Whether the record is the one whose code or barcode was asked for, and no mere likeness.
bool TemOCodigo(const base::RecordSet& registro, const Fonte& fonte, const std::string& texto) {
  if (base::ToText(registro.Fields(fonte.codigo)) == texto) return true;
  return !fonte.codigoDeBarras.empty() &&
         base::ToText(registro.Fields(fonte.codigoDeBarras)) == texto;
}

lookup::Selecao Selecionar(servicos::TipoDeLancamento tipo, const std::string& texto) {
  constexpr std::int32_t kTodosOsTipos = 0;
  if (tipo == servicos::kServico) {
    auto catalogo = frame::CriarServicoComSessao<clsServicos>();
    return Resultado(*catalogo, consultas::ServicosDaLista(*catalogo, texto, kTodosOsTipos));
  }
  auto produtos = frame::CriarServicoComSessao<clsProdutos>();
  return Resultado(*produtos, consultas::ProdutosDaLista(*produtos, texto));
}

/// The code of the one that the operator picks from the list; empty when they leave.
std::string Escolher(lookup::frmPesquisa& lista, const lookup::Selecao& encontrados,
                     std::string_view codigo) {
  std::string escolhido;
  if (lista.Escolher(encontrados)) escolhido = base::ToText(lista.Escolhido()->Fields(codigo));
  lista.Unload();
  return escolhido;
}

std::string Escolher(const lookup::Selecao& encontrados, servicos::TipoDeLancamento tipo) {
  const std::string_view codigo = FonteDe(tipo).codigo;
  if (tipo == servicos::kProduto) {
    lookup::frmPesquisaDeProdutos produtos;
    return Escolher(produtos, encontrados, codigo);
  }
  lookup::frmPesquisaDeServicos servicos;
  servicos.EfetuarOPreenchimentoDaComboboxTiposDeServicos(true);
  return Escolher(servicos, encontrados, codigo);
}

}  // namespace

std::optional<Orcamento::Item> EscolherItem(platform::Form& tela, servicos::TipoDeLancamento tipo,
                                            const std::string& texto) {
  const Fonte& fonte = FonteDe(tipo);
  if (base::Length(texto) < kMenorPesquisa && !base::IsNumeric(texto)) {
    frame::Informar(lookup::kTresCaracteres);
    return std::nullopt;
  }
  lookup::Selecao encontrados;
  {
    const frame::PonteiroDeEspera espera(tela, platform::kHourglassPointer);
    encontrados = Selecionar(tipo, texto);
  }
  if (!encontrados.registros) return std::nullopt;
  encontrados.registros->MoveFirst();
  if (encontrados.registros->RecordCount() == 0) {
    frame::Informar("Nenhum " + std::string(fonte.oQue) + " encontrado com '" + texto +
                    "'. Confira o código ou digite outra parte do nome.");
    return std::nullopt;
  }
  if (encontrados.registros->RecordCount() > 1 &&
      !TemOCodigo(*encontrados.registros, fonte, texto)) {
    // The list has its own search, and so may give what was not among these.
    const std::string codigo = Escolher(encontrados, tipo);
    if (codigo.empty()) return std::nullopt;
    encontrados = Selecionar(tipo, codigo);
    if (!encontrados.registros || encontrados.registros->RecordCount() == 0) return std::nullopt;
    encontrados.registros->MoveFirst();
  }
  return ItemDe(*encontrados.registros, tipo);
}

}  // namespace siblings
