#include "frame/servicos/Codigos.h"
#include "frame/servicos/LinhaDeVenda.h"
#include "frame/servicos/ZOVA_N_Caixa.clsServicosEProdutos.h"
#include "services/banco/Cells.h"
#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/venda/CodigosNoSql.h"

namespace services {
namespace {

namespace linha = servicos::linha;
using Contrato = servicos::ZOVA_N_Caixa::clsServicosEProdutos;

using Form = Cell::Form;

/// A pre-sale line in the columns of a sale line.
constexpr Cell kCells[] = {
    {linha::kCampos[linha::kTipoOuCodigoDeBarras], Form::kAsIs,
     "CASE WHEN tipo_de_lancamento = {servico} THEN CAST(tipo_de_servico AS text)"
     " ELSE codigo_de_barras END"},
    {linha::kCampos[linha::kCodigo], Form::kAsIs, "codigo_do_item"},
    {linha::kCampos[linha::kNome], Form::kAsIs, "nome_do_item"},
    {linha::kCampos[linha::kCodigoDoAnimal], Form::kAsIs, "codigo_do_animal"},
    {linha::kCampos[linha::kNomeDoAnimal], Form::kAsIs, "nome_do_animal"},
    {linha::kCampos[linha::kCodigoDoFuncionario], Form::kAsIs,
     "coalesce(codigo_do_funcionario, 0)"},
    {linha::kCampos[linha::kNomeDoFuncionario], Form::kAsIs, "nome_do_funcionario"},
    {linha::kCampos[linha::kQuantidade], Form::kQuantity, "quantidade"},
    {linha::kCampos[linha::kValorUnitario], Form::kMoney, "valor_unitario"},
    {linha::kCampos[linha::kDescontoEmPercentual], Form::kDiscount, "desconto_em_percentual"},
    {linha::kCampos[linha::kDescontoEmValor], Form::kDiscount, "desconto_em_valor"},
    {linha::kCampos[linha::kValorTotal], Form::kMoney, "valor_total"},
    {linha::kCampos[linha::kCusto], Form::kMoney, "custo"},
    {linha::kCampos[linha::kPercentualDeComissao], Form::kMoney, "percentual_de_comissao"},
    {linha::kCampos[linha::kValorDaComissao], Form::kMoney, "valor_da_comissao"},
    {linha::kCampos[linha::kNumeroDeLancamento], Form::kAsIs, "numero"},
    {linha::kCampos[linha::kUnidade], Form::kAsIs, "unidade"},
    {linha::kCampos[linha::kNumeroDaVendaCancelada], Form::kAsIs, "0"},
    {linha::kCampos[linha::kColunaTipoDeVenda], Form::kAsIs, "{preVenda}"},
    {linha::kCampos[linha::kColunaTipoDeLancamento], Form::kAsIs, "tipo_de_lancamento"},
};
static_assert(std::size(kCells) == linha::kColunas);

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
          ComCodigos("SELECT " + ColumnsOf(kCells) +
                     " FROM pre_vendas WHERE codigo_do_cliente = $1 AND numero_da_venda IS NULL"
                     " ORDER BY numero"));
      outcome_.rows = SelectCells(sessao(), kCells, open, {CodeIn(codigoDoCliente).value_or(0)},
                                  linha::kColunaTipoDeLancamento);
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
