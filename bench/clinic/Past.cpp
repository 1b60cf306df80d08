#include "clinic/Past.h"

#include <algorithm>
#include <filesystem>

#include "base/DateTime.h"
#include "clinic/Clock.h"
#include "clinic/Kept.h"
#include "clinic/Loading.h"
#include "support/Options.h"
#include "support/Server.h"

namespace bench {
namespace {

// Ten-thousandths.
constexpr std::int64_t kPrice = 259'000;
constexpr std::int64_t kNet = kPrice * kLinesOfASale;
constexpr std::int64_t kCash = kPrice;

constexpr std::int32_t kCustomer = 2;
constexpr std::int32_t kRegister = 1;

/// Sales are made from eight to six, one after the other.
base::DateTime MomentOf(std::int64_t place, std::int64_t count) {
  constexpr std::int64_t kFirstSecond = 8 * 3'600, kSecondsBetween = 10 * 3'600 / kSalesOfADay;
  const std::int64_t daysBack = (count - 1 - place) / kSalesOfADay;
  const std::int64_t ofTheDay = kSalesOfADay - 1 - (count - 1 - place) % kSalesOfADay;
  return StandingClock()
      .Now()
      .Date()
      .PlusDays(-static_cast<int>(daysBack))
      .PlusSeconds(kFirstSecond + ofTheDay * kSecondsBetween);
}

void AddSales(const Database& database, std::int64_t count) {
  LoadRows(database.Address(),
           {"vendas",
            "operacao, data_e_hora, numero_do_caixa, operador, codigo_do_cliente,"
            " apelido_do_cliente, nome_do_cliente, numero_da_ficha_clinica, valor_bruto,"
            " total_de_descontos, valor_liquido, total_recebido, troco, credito_anterior,"
            " credito_usado, credito_mantido, custo, comissao, lucro_em_valor, lucro_em_percentual,"
            " numero_de_itens, itens_de_pre_venda, situacao, observacao, chave_sat",
            count, [=](std::int64_t place) -> services::Params {
              return {place + 1,
                      MomentOf(place, count),
                      kRegister,
                      "marina",
                      kCustomer,
                      "Ana Clara",
                      "Ana Clara Figueira Duarte",
                      0,
                      kNet,
                      0,
                      kNet,
                      kNet,
                      0,
                      0,
                      0,
                      0,
                      kNet / 2,
                      0,
                      kNet / 2,
                      500'000,
                      kLinesOfASale,
                      0,
                      "F",
                      "Cliente: 2-Ana Clara Figueira Duarte",
                      ""};
            }});
  LoadRows(database.Address(),
           {"itens_de_venda",
            "numero_da_venda, item, tipo_de_lancamento, tipo_de_venda, codigo_de_barras,"
            " codigo_do_item, nome_do_item, nome_do_animal, nome_do_funcionario, quantidade,"
            " valor_unitario, desconto_em_percentual, desconto_em_valor, valor_total, custo,"
            " percentual_de_comissao, valor_da_comissao, numero_de_lancamento, unidade,"
            " numero_da_venda_cancelada",
            count * kLinesOfASale, [](std::int64_t place) -> services::Params {
              return {place / kLinesOfASale + 1,
                      place % kLinesOfASale + 1,
                      2,
                      1,
                      "7890000010016",
                      1,
                      "Ração cães adultos 1 kg",
                      "",
                      "",
                      10'000,
                      kPrice,
                      0,
                      0,
                      kPrice,
                      kPrice / 2,
                      0,
                      0,
                      0,
                      "UN",
                      0};
            }});
  LoadRows(database.Address(),
           {"lancamentos_de_caixa",
            "operacao, numero_do_caixa, data_e_hora, tipo, moeda, valor, descricao, operador,"
            " situacao, observacao, numero_da_venda",
            count * kTendersOfASale, [=](std::int64_t place) -> services::Params {
              const std::int64_t sale = place / kTendersOfASale;
              const bool isCash = place % kTendersOfASale == 0;
              const int other = sale % 5 == 0 ? 3 : 8;
              return {sale + 1,
                      kRegister,
                      MomentOf(sale, count),
                      5,
                      isCash ? 1 : other,
                      isCash ? kCash : kNet - kCash,
                      "Venda",
                      "marina",
                      "F",
                      "Cliente: 2-Ana Clara Figueira Duarte",
                      sale + 1};
            }});
}

}  // namespace

Database ClinicWithPast(services::Engine engine) {
  const std::int64_t rows = Chosen().rows;
  return Kept(engine, "passado1_" + std::to_string(rows),
              [=](const Database& clinic) { AddSales(clinic, rows); });
}

Database CopyOf(const Database& database, const std::string& name) {
  if (database.engine == services::Engine::kPostgres) {
    server::Copy(database.target.substr(database.target.rfind('=') + 1), name);
    return {database.engine, server::ConnectionText(name)};
  }
  const std::string file = FileIn({}, name).string();
  std::filesystem::copy_file(database.target, file,
                             std::filesystem::copy_options::overwrite_existing);
  return {database.engine, file};
}

}  // namespace bench
