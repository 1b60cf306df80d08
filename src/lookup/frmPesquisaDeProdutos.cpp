#include "lookup/frmPesquisaDeProdutos.h"

#include <array>

#include "frame/Consultas.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"

namespace lookup {
namespace {

using enum frame::TipoDeColuna;
using enum platform::Align;

constexpr std::array<frame::Coluna, 10> kColunas{{
    {.titulo = "Coluna em branco"},
    {"Código", 1150, kLeftCenter, kNumero, "CodigoInterno"},
    {"Código de barras", 2050, kLeftCenter, kTexto, "CodigoDeBarras"},
    {"Nome", 4300, kLeftCenter, kTexto, "Nome"},
    {"Grupo", 1700, kLeftCenter, kTexto, "NomeDoGrupo"},
    {"Subgrupo", 0, kLeftCenter, kTexto, "NomeDoSubgrupo"},
    {"Valor de custo", 0, kRightCenter, kNumero, "ValorDeCusto"},
    {"Unidade", 1150, kLeftCenter, kTexto, "UnidadeDeCompra"},
    {"Valor de venda", 1700, kRightCenter, kNumero, "ValorDeVenda"},
    {"Percentual de comissão", 0, kRightCenter, kNumero, "PercentualDeComissao"},
}};

constexpr Pesquisa kPesquisa{.formulario = "frmPesquisaDeProdutos",
                             .titulo = "Pesquisa de produtos",
                             .campo = "zvfndCodigoInternoOuNome",
                             .rotulo = "lblCodigoInternoOuNome",
                             .legenda = "Código interno ou nome*",
                             .rotina = "PesquisarProduto",
                             .formularioDaGrade = "frmLista",
                             .formularioDoCampo = "frmLista",
                             .registro = "produto",
                             .registros = "produtos",
                             .colunas = kColunas};

}  // namespace

frmPesquisaDeProdutos::frmPesquisaDeProdutos() : frmPesquisa(kPesquisa) {
  Arrange(Desenho());
}

// The unit of purchase stands for that of sale in a product that was picked from the list.
ItemEncontrado frmPesquisaDeProdutos::Produto() const {
  return ProdutoDe(*Escolhido(), "UnidadeDeCompra");
}

std::optional<ItemEncontrado> EscolherProduto(const Selecao& produtos) {
  frmPesquisaDeProdutos lista;
  return EscolherItem(lista, produtos, [&] { return lista.Produto(); });
}

Selecao frmPesquisaDeProdutos::Selecionar(const std::string& texto, frame::Espera& espera) {
  auto produtos = servicos::CriarServico<servicos::ZOVA_N_Produtos::clsProdutos>();
  const bool falhou = frame::consultas::ProdutosDaLista(*produtos, texto);
  return Resultado(*produtos, falhou, espera);
}

std::string frmPesquisaDeProdutos::NadaEncontrado(const std::string& texto) const {
  return "Nenhum produto encontrado  como o valor '" + texto + "' informado.";
}

}  // namespace lookup
