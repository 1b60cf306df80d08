#include "services/banco/Preenchimento.h"
#include "services/banco/Search.h"
#include "services/demonstracao/ClinicaDeDemonstracao.h"
#include "services/demonstracao/DadosDeDemonstracao.h"

namespace services::demonstracao {
namespace {

constexpr std::int64_t kCentavo = base::Currency::kScale / 100;
constexpr std::int64_t kPercent = base::Currency::kScale;

/// What goods cost the clinic, of what it sells them for.
constexpr std::int64_t kCostPercent = 62;

/// A barcode of thirteen digits, the last of which checks the others.
std::string Checked(const std::string& twelve) {
  int sum = 0;
  for (std::size_t i = 0; i < twelve.size(); ++i) sum += (twelve[i] - '0') * (i % 2 == 0 ? 1 : 3);
  return twelve + std::to_string((10 - sum % 10) % 10);
}

std::string Barcode(std::size_t product) {
  return Checked("78900000" + std::to_string(1000 + product));
}

/// What the scale prints, before it has weighed: 2, six digits of code, five of weight.
std::string EmptyLabel(std::int32_t code) {
  constexpr std::int32_t kSixDigits = 1'000'000;
  return Checked("2" + std::to_string(kSixDigits + code).substr(1) + "00000");
}

void AddPackedGoods(std::vector<Params>& rows) {
  for (const Linha& line : Linhas()) {
    std::int64_t dearer = 0;
    for (const std::string_view brand : Marcas()) {
      for (std::size_t size = 0; size < std::size(line.tamanhos); ++size) {
        const std::string name = std::string(line.nome) + ' ' + std::string(brand) + ' ' +
                                 std::string(line.tamanhos[size]);
        const std::int64_t price = (line.precos[size] + dearer) * kCentavo;
        constexpr std::int64_t kCommission = 3;
        rows.push_back({rows.size() + 1, Barcode(rows.size() + 1), name, SearchForm(name), line.ncm,
                        line.grupo, line.subgrupo, "CX", "UN",
                        price * kCostPercent / 100 / kCentavo * kCentavo, price,
                        kCommission * kPercent});
      }
      dearer += 150;
    }
  }
}

/// The sand is no feed, and nobody has looked up yet what it is: its first coupon will ask.
constexpr std::int32_t kGoodsWithoutNcm = 100206;

void AddBulkGoods(std::vector<Params>& rows) {
  for (const Granel& goods : Graneis()) {
    const std::int64_t price = goods.preco * kCentavo;
    rows.push_back({goods.codigo, EmptyLabel(goods.codigo), goods.nome, SearchForm(goods.nome),
                    goods.codigo == kGoodsWithoutNcm ? Param() : Param("23099010"), "A granel",
                    "Balança", "SC", "KG", price * kCostPercent / 100 / kCentavo * kCentavo, price,
                    0});
  }
}

void WriteServices(Session& session) {
  std::vector<Params> types;
  for (const TipoDeServico& type : TiposDeServico()) types.push_back({type.numero, type.nome});
  InsertRows(session, "tipos_de_servico", "numero, nome", types);
  std::vector<Params> services;
  for (const Servico& service : Servicos()) {
    constexpr std::int64_t kCostOfWork = 30;
    const std::int64_t price = service.preco * kCentavo;
    services.push_back({services.size() + 1, service.tipo, service.nome, SearchForm(service.nome),
                        "", price * kCostOfWork / 100, price});
  }
  InsertRows(session, "servicos",
             "codigo, tipo, nome, nome_busca, descricao, custo, valor_de_venda", services);
}

}  // namespace

void EscreverItens(Session& session) {
  std::vector<Params> products;
  AddPackedGoods(products);
  AddBulkGoods(products);
  InsertRows(session, "produtos",
             "codigo_interno, codigo_de_barras, nome, nome_busca, ncm, grupo, subgrupo,"
             " unidade_de_compra, unidade_de_venda, valor_de_custo, valor_de_venda,"
             " percentual_de_comissao",
             products);
  WriteServices(session);
  ContinueKeys(session, "produtos", "codigo_interno");
  ContinueKeys(session, "tipos_de_servico", "numero");
  ContinueKeys(session, "servicos", "codigo");
}

}  // namespace services::demonstracao
