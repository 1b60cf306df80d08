#include "base/Numbers.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/LinhaDeVenda.h"
#include "frame/servicos/ZOVA_N_Caixa.clsServicosEProdutos.h"
#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/venda/CodigosNoSql.h"

namespace services {
namespace {

namespace linha = servicos::linha;
using Contrato = servicos::ZOVA_N_Caixa::clsServicosEProdutos;

/// How a column of a pre-sale line becomes the text of a cell in the counter's grid.
enum class Form {
  kAsIs,
  kMoney,     ///< "#,##0.00"
  kDiscount,  ///< the same, negative
  kQuantity,  ///< a service's in whole numbers, a product's like money
  kFixed,     ///< `column` is the text itself
};

struct Cell {
  Form form;
  std::string_view column;
};

/// In the order of servicos::linha::Coluna.
constexpr Cell kCells[] = {
    {Form::kAsIs,
     "CASE WHEN tipo_de_lancamento = {servico} THEN CAST(tipo_de_servico AS text)"
     " ELSE codigo_de_barras END"},
    {Form::kAsIs, "codigo_do_item"},
    {Form::kAsIs, "nome_do_item"},
    {Form::kAsIs, "codigo_do_animal"},
    {Form::kAsIs, "nome_do_animal"},
    {Form::kAsIs, "coalesce(codigo_do_funcionario, 0)"},
    {Form::kAsIs, "nome_do_funcionario"},
    {Form::kQuantity, "quantidade"},
    {Form::kMoney, "valor_unitario"},
    {Form::kDiscount, "desconto_em_percentual"},
    {Form::kDiscount, "desconto_em_valor"},
    {Form::kMoney, "valor_total"},
    {Form::kMoney, "custo"},
    {Form::kMoney, "percentual_de_comissao"},
    {Form::kMoney, "valor_da_comissao"},
    {Form::kAsIs, "numero"},
    {Form::kAsIs, "unidade"},
    {Form::kFixed, "0"},
    {Form::kFixed, "{preVenda}"},
    {Form::kAsIs, "tipo_de_lancamento"},
};
static_assert(std::size(kCells) == linha::kColunas);

std::string TextOf(const Row& row, int column) {
  const Cell& cell = kCells[column];
  switch (cell.form) {
    case Form::kMoney:
      return base::FormatMoney(row.Money(column));
    case Form::kDiscount:
      return base::FormatMoney(-row.Money(column));
    case Form::kQuantity:
      return base::Format(row.Money(column),
                          row.Integer(linha::kColunaTipoDeLancamento) == servicos::kServico
                              ? "0"
                              : base::kMoneyMask);
    case Form::kAsIs:
    case Form::kFixed:
      return row.Text(column);
  }
  return {};
}

std::string SelectLines() {
  std::string columns;
  for (const Cell& cell : kCells) {
    if (!columns.empty()) columns += ", ";
    columns += cell.column;
  }
  return ComCodigos("SELECT " + columns + " FROM pre_vendas");
}

using enum Field::Kind;

/// What a viewer shows of one line, whichever kind it is of.
constexpr Field kDetails[] = {
    {"NumeroDeLancamento", kNumber, "numero"},
    {"NumeroDaFichaClinica", kNumber, "numero_da_ficha_clinica"},
    {"DataDeLancamento", kMoment, "data_de_lancamento"},
    {"CodigoDoFuncionario", kNumber, "codigo_do_funcionario"},
    {"NomeDoFuncionario", kText, "nome_do_funcionario"},
    {"CodigoDoAnimal", kNumber, "codigo_do_animal"},
    {"NomeDoAnimal", kText, "nome_do_animal"},
    {"CodigoDeBarrasDoProduto", kText, "codigo_de_barras"},
    {"CodigoInternoDoProduto", kNumber, "codigo_do_item"},
    {"NomeDoProduto", kText, "nome_do_item"},
    {"UsuarioDaInclusao", kText, "incluido_por"},
    {"DataEHoraDaInclusao", kMoment, "incluido_em"},
};

class clsServicosEProdutos : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t ServicosEfetuadosEProdutosReservados(double& codigoDoCliente) override {
    return Numerado("ServicosEfetuadosEProdutosReservados", [&] {
      static const Statement open(
          SelectLines() +
          " WHERE codigo_do_cliente = $1 AND numero_da_venda IS NULL ORDER BY numero");
      const auto rows = std::make_shared<base::RecordSet>(
          std::vector<std::string>(linha::kCampos.begin(), linha::kCampos.end()));
      sessao().Select(open, {CodeIn(codigoDoCliente).value_or(0)}, [&](const Row& row) {
        std::vector<base::Value> texts;
        texts.reserve(std::size(kCells));
        for (int i = 0; i < rows->FieldCount(); ++i) texts.emplace_back(TextOf(row, i));
        rows->Append(std::move(texts));
      });
      outcome_.rows = rows;
    });
  }

  std::int16_t SelecionarServicosEfetuados(std::int16_t, std::int16_t,
                                           std::string_view condicao) override {
    return Numerado("SelecionarServicosEfetuados", [&] {
      Detalhar(CodeInCondition(condicao, "ServicosEfetuados.NumeroDeLancamento"),
               servicos::kServico);
    });
  }

  std::int16_t SelecionarProdutosReservados(std::int16_t, std::int16_t,
                                            std::string_view condicao) override {
    return Numerado("SelecionarProdutosReservados", [&] {
      Detalhar(CodeInCondition(condicao, "ProdutosReservados.NumeroDeLancamento"),
               servicos::kProduto);
    });
  }

 private:
  void Detalhar(std::int32_t numero, std::int32_t tipo) {
    static const Statement one("SELECT " + ColumnsOf(kDetails) +
                               " FROM pre_vendas WHERE numero = $1 AND tipo_de_lancamento = $2");
    outcome_.rows = SelectRows(sessao(), kDetails, one, {numero, tipo}).rows;
  }
};

}  // namespace

ServicoNovo NovoClsServicosEProdutos(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsServicosEProdutos>(banco);
}

}  // namespace services
