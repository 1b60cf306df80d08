#include "siblings/dados/clsDocumentos.h"

#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/contrato/CamposDaEmpresa.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"

namespace services {
namespace {

using Contrato = siblings::dados::clsDocumentos;
using enum Field::Kind;

constexpr Field kCustomer[] = {
    {"Codigo", kNumber, "codigo"},
    {"Nome", kText, "nome"},
    {"CPFCNPJ", kText, "cpf_cnpj"},
    {"Endereco", kText, "endereco_completo"},
    {"Contato", kText, "canais_de_comunicacao"},
};

constexpr Field kInstalment[] = {
    {"NumeroDaVenda", kNumber, "numero_da_venda"},
    {"NumeroDaParcela", kNumber, "numero_da_parcela"},
    {"NumeroDeParcelas", kNumber, "numero_de_parcelas"},
};

class clsDocumentos : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t SelecionarEmpresa() override {
    return Numerado("SelecionarEmpresa", [&] {
      static const Statement select("SELECT " + ColumnsOf(kEmpresaNosDocumentos) +
                                    " FROM empresa ORDER BY codigo LIMIT 1");
      outcome_.rows = SelectRows(sessao(), kEmpresaNosDocumentos, select, {}).rows;
    });
  }

  std::int16_t SelecionarCliente(double codigoDoCliente) override {
    return Numerado("SelecionarCliente", [&] {
      static const Statement select("SELECT " + ColumnsOf(kCustomer) +
                                    " FROM clientes WHERE codigo = $1");
      outcome_.rows =
          SelectRows(sessao(), kCustomer, select, {CodeIn(codigoDoCliente).value_or(0)}).rows;
    });
  }

  std::int16_t SelecionarParcela(double codigoDoCliente, base::DateTime emissao,
                                 base::DateTime vencimento, base::Currency valor) override {
    return Numerado("SelecionarParcela", [&] {
      static const Statement select(
          "SELECT " + ColumnsOf(kInstalment) +
          " FROM contas_a_receber WHERE codigo_do_cliente = $1 AND data_de_vencimento = $2"
          " AND valor_do_documento = $3 AND incluido_em >= $4 AND incluido_em < $5"
          " AND numero_da_venda IS NOT NULL ORDER BY numero DESC LIMIT 1");
      const base::DateTime dia = emissao.Date();
      outcome_.rows = SelectRows(sessao(), kInstalment, select,
                                 {CodeIn(codigoDoCliente).value_or(0), Param::Date(vencimento),
                                  valor, dia, dia.PlusDays(1)})
                          .rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsDocumentos(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsDocumentos>(banco);
}

}  // namespace services
