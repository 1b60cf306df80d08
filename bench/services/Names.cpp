#include <algorithm>
#include <stdexcept>
#include <vector>

#include "clinic/Opened.h"
#include "clinic/People.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "services/Cases.h"
#include "services/RawRows.h"
#include "services/banco/Search.h"
#include "support/Bench.h"

namespace bench {
namespace {

/// The columns that the service reads, the part asked of the engine's own index.
constexpr const char* kColumns =
    "SELECT codigo, situacao, credito, desconto_unico, desconto_unico_perc, desconto_clinicos,"
    " desconto_cirurgia_simples, desconto_cirurgia_media, desconto_cirurgia_complexa,"
    " desconto_banhos, desconto_hospedagens, desconto_adestramentos, desconto_outros, vip,"
    " apelido, nome, endereco_completo, canais_de_comunicacao, categoria_da_curva_abc, cpf_cnpj,"
    " codigo_ibge_do_municipio FROM clientes WHERE codigo IN ({named})"
    " ORDER BY nome_busca, codigo";
constexpr RawRows::Columns kKinds{.numbers = 14, .texts = 7};
constexpr const char* kNamedOnSqlite = "SELECT rowid FROM clientes_busca WHERE nome_busca LIKE $1";
constexpr const char* kNamedOnPostgres = "SELECT codigo FROM clientes WHERE nome_busca LIKE $1";

/// Texts of one kind. "slowest_us" is the median of the text that takes longest,
/// which stands behind the figures.
struct Case {
  std::string name;
  std::vector<std::string> texts;
};

std::vector<Case> Cases() {
  constexpr std::size_t kRare = 50;
  return {
      {"rare", People::RareFamilies(kRare)},
      {"common", {"silva", "maria", "José", "ana", "santos", "da sil", "OLIVEIRA"}},
      {"common_words",
       {"maria da silva", "josé dos santos", "ana maria da silva", "maria de oliveira",
        "carlos souza da silva"}},
      {"common_words_of_few", {"silva santos maria", "josé da maria", "santos dos santos silva"}},
      {"one_word_again_and_again", {"ana ana ana", "ana silva ana"}}};
}

std::int64_t Search(const std::string& text) {
  std::string name = text;
  double code = 0;
  const auto customers = servicos::CriarServico<servicos::ZOVA_N_ClientAnim::clsClientes>();
  Require(customers->Selecionar(2, 0, 1, "", name, code, "", "", "", 0, "") == servicos::kSucesso,
          *customers);
  return customers->ResultadoDaSelecaoEmRecordSet()->RecordCount();
}

RawRows::Select RawSearch(const Database& clinic) {
  const bool isSqlite = clinic.engine == services::Engine::kSqlite;
  std::string sql = kColumns;
  constexpr std::string_view kNamed = "{named}";
  const std::string found = isSqlite ? kNamedOnSqlite : kNamedOnPostgres;
  sql.replace(sql.find(kNamed), kNamed.size(), found + std::string(services::kLimit));
  const auto select = RawRows::Over(clinic, sql, kKinds, RawRows::Plan::kByValue);
  return [=](const std::string& text) { return select('%' + services::SearchForm(text) + '%'); };
}

void Measure(benchmark::State& state, services::Engine engine, const Case& each) {
  const Database clinic = LargeClinic(engine);
  const Opened opened(clinic);
  const auto raw = RawSearch(clinic);
  const std::size_t count = each.texts.size();
  const auto check = [&](const std::string& text, std::int64_t found) {
    // The twin may have one more, by which it would know of the others.
    if (found == std::min(raw(text), services::kMostRows)) return;
    throw std::runtime_error("not the customers of " + text);
  };
  for (const std::string& text : each.texts) check(text, Search(text));
  std::vector<Times> times(count);
  std::size_t ours = 0;
  std::size_t theirs = 0;
  InTurn(
      state,
      [&] {
        const std::size_t at = ours++ % count;
        const double seconds = SecondsOf([&] { Search(each.texts[at]); });
        times[at].Add(seconds);
        return seconds;
      },
      [&] {
        const std::string& text = each.texts[theirs++ % count];
        return SecondsOf([&] { raw(text); });
      });
  const auto slowest = std::ranges::max_element(times, {}, &Times::Median);
  constexpr double kMicroseconds = 1e6;
  state.counters["slowest_us"] = slowest->Median() * kMicroseconds;
  state.SetLabel(each.texts[static_cast<std::size_t>(slowest - times.begin())]);
}

}  // namespace

void AddNames(services::Engine engine) {
  constexpr int kRounds = 300;
  for (const Case& each : Cases()) {
    Add("names/" + NameOf(engine) + "/" + each.name, kRounds,
        [=](benchmark::State& state) { Measure(state, engine, each); });
  }
}

}  // namespace bench
