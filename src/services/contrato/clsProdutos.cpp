#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "services/banco/NameSearch.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Produtos::clsProdutos;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"CodigoInterno", kNumber, "codigo_interno"},
    {"CodigoDeBarras", kText, "codigo_de_barras"},
    {"Nome", kText, "nome"},
    {"NCM", kText, "ncm"},
    {"NomeDoGrupo", kText, "grupo"},
    {"NomeDoSubgrupo", kText, "subgrupo"},
    {"ValorDeCusto", kMoney, "valor_de_custo"},
    {"UnidadeDeCompra", kText, "unidade_de_compra"},
    {"UnidadeDeVenda", kText, "unidade_de_venda"},
    {"ValorDeVenda", kMoney, "valor_de_venda"},
    {"PercentualDeComissao", kMoney, "percentual_de_comissao"},
};

constexpr NameSearch::Table kTable{"produtos", "codigo_interno"};

std::string SelectProducts(std::string_view where) {
  return "SELECT " + ColumnsOf(kFields) + " FROM produtos WHERE " + std::string(where);
}

/// The label of a scale has the product's code, and then its weight or price: the row gives back
/// the label as it was read, so that the counter can weigh from it.
constexpr std::string_view kReadLabel =
    "CASE WHEN CAST($2 AS text) <> '' THEN CAST($2 AS text) ELSE codigo_de_barras END";

class clsProdutos : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  bool Selecionar(std::int32_t, std::int16_t, std::int32_t, std::string_view, std::string& nome,
                  std::string& codigoDeBarras, double& codigoInterno) override {
    return ComFalha("Selecionar", [&] {
      const std::string barras = base::Trim(codigoDeBarras);
      if (codigoInterno != 0) {
        PorCodigo(codigoInterno, barras);
      } else if (!barras.empty()) {
        PorCodigoDeBarras(barras);
      } else {
        PorNome(nome);
      }
    });
  }

  bool Selecionar(std::int32_t, std::int16_t, std::int32_t, std::string_view codigoOuNome,
                  std::string_view) override {
    return ComFalha("Selecionar", [&] { PorCodigoOuNome(base::Trim(codigoOuNome)); });
  }

 private:
  Listing Lista() { return {sessao(), outcome_, kFields, "produtos"}; }

  void PorCodigo(double codigo, const std::string& barras) {
    static const Statement select(
        base::Replace(SelectProducts("codigo_interno = $1"), "codigo_de_barras", kReadLabel));
    const std::string label = barras.starts_with('2') ? barras : "";
    Lista().Show(select, {CodeIn(codigo).value_or(0), label});
  }

  void PorCodigoDeBarras(const std::string& barras) {
    static const Statement select(
        SelectProducts("codigo_de_barras = $1 ORDER BY nome_busca, codigo_interno") +
        std::string(kLimit));
    Lista().Show(select, {barras});
  }

  void PorNome(const std::string& nome) {
    static const NameSearch search(
        SelectProducts("codigo_interno IN ({named}) ORDER BY nome_busca, codigo_interno"), kTable,
        0, kLimit);
    static const Statement none(SelectProducts("1 = 0"));
    Lista().ShowNamed(search, none, nome, {});
  }

  /// What stands in the search field of a pick list; a code read by the scanner counts too. What
  /// has the code comes first, so that the cap on rows never leaves it out.
  void PorCodigoOuNome(const std::string& texto) {
    static const std::string byCode =
        "codigo_interno IN (SELECT CAST($1 AS integer) UNION ALL"
        " SELECT codigo_interno FROM produtos WHERE codigo_de_barras = $2{or})"
        " ORDER BY CASE WHEN codigo_interno = $1 OR codigo_de_barras = $2 THEN 0 ELSE 1 END,"
        " nome_busca, codigo_interno";
    static const NameSearch search(
        SelectProducts(base::Replace(byCode, "{or}", " UNION ALL SELECT * FROM ({named}) n")),
        kTable, 2, kLimit);
    static const Statement code(SelectProducts(base::Replace(byCode, "{or}", "")));
    const Params codes{CodeIn(texto) ? Param(*CodeIn(texto)) : Param(), texto};
    Lista().ShowNamed(search, code, texto, codes);
  }
};

}  // namespace

ServicoNovo NovoClsProdutos(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsProdutos>(banco);
}

}  // namespace services
