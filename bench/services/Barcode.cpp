#include <stdexcept>

#include "base/Numbers.h"
#include "clinic/Goods.h"
#include "clinic/Opened.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "services/Cases.h"
#include "services/RawRows.h"
#include "support/Bench.h"

namespace bench {
namespace {

constexpr const char* kSelect =
    "SELECT codigo_interno, valor_de_custo, valor_de_venda, percentual_de_comissao,"
    " codigo_de_barras, nome, ncm, grupo, subgrupo, unidade_de_compra, unidade_de_venda"
    " FROM produtos WHERE codigo_de_barras = $1 ORDER BY nome_busca, codigo_interno LIMIT 201";

/// As the counter looks a product up: a service for one use.
double Look(std::int64_t place) {
  const std::string barcode = BarcodeAt(place);
  base::RecordSetPtr found;
  const double seconds = SecondsOf([&] {
    std::string name;
    std::string code = barcode;
    double internal = 0;
    const auto products = servicos::CriarServico<servicos::ZOVA_N_Produtos::clsProdutos>();
    Require(!products->Selecionar(2, 0, 1, "", name, code, internal), *products);
    found = products->ResultadoDaSelecaoEmRecordSet();
  });
  if (found->RecordCount() != 1 ||
      base::ToText(found->Fields("CodigoInterno")) != std::to_string(kFirstAdded + place)) {
    throw std::runtime_error("not the product of " + barcode);
  }
  return seconds;
}

double LookRaw(const RawRows::Select& select, std::int64_t place) {
  const std::string barcode = BarcodeAt(place);
  std::int64_t rows = 0;
  const double seconds = SecondsOf([&] { rows = select(barcode); });
  if (rows != 1) throw std::runtime_error("no single product of " + barcode);
  return seconds;
}

}  // namespace

void AddBarcodes(services::Engine engine) {
  constexpr int kRounds = 5'000;
  Add("barcode/" + NameOf(engine), kRounds, [engine](benchmark::State& state) {
    const Database clinic = LargeClinic(engine);
    const Opened opened(clinic);
    const auto raw =
        RawRows::Over(clinic, kSelect, {.numbers = 4, .texts = 7}, RawRows::Plan::kOnce);
    // Both connections have their statements, and none of the rows that are asked for below.
    Look(0);
    LookRaw(raw, 0);
    constexpr std::int64_t kStep = 387'493;
    std::int64_t place = 0;
    std::int64_t turn = 0;
    const auto next = [&] {
      if (turn++ % 2 == 0) place = (place + kStep) % Chosen().rows;
      return place;
    };
    InTurn(
        state, [&] { return Look(next()); }, [&] { return LookRaw(raw, next()); });
  });
}

}  // namespace bench
