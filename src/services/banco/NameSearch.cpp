#include "services/banco/NameSearch.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "services/banco/Search.h"

namespace services {
namespace {

constexpr std::size_t kTrigram = 3;

constexpr std::size_t kSamples = 4;
/// From this length on PostgreSQL does better with samples: of the whole part it would read the
/// list of every trigram.
constexpr std::size_t kLongPart = 9;

bool IsSampled(Engine engine, const std::string& part) {
  return engine == Engine::kSqlite || base::Length(part) >= kLongPart;
}

/// At most kSamples trigrams: the end of every word, since names have their words in common one by
/// one, then others of the longest words. None twice, and none that lies across two words while
/// there is another: of those PostgreSQL's index knows no more than how the second one begins.
std::vector<std::string> Samples(const std::string& part) {
  const std::u32string text = base::ToCharacters(part);
  const std::size_t most = std::min(kSamples, text.size() / kTrigram);
  std::vector<std::string> samples;
  const auto take = [&](std::size_t at) {
    if (samples.size() == most) return;
    std::string sample = base::FromCharacters(text.substr(at, kTrigram));
    if (std::ranges::find(samples, sample) == samples.end()) samples.push_back(std::move(sample));
  };
  std::vector<std::pair<std::size_t, std::size_t>> longWords;  // Length and place.
  for (std::size_t at = 0, end = 0; at < text.size(); at = end + 1) {
    end = std::min(text.find(U' ', at), text.size());
    const std::size_t length = end - at;
    if (length >= kTrigram) take(end - kTrigram);
    // A word of two letters, with the blank on one of its sides.
    if (length + 1 == kTrigram) take(at == 0 ? at : at - 1);
    if (length > kTrigram) longWords.emplace_back(length, at);
  }
  std::ranges::stable_sort(longWords, std::greater(), [](const auto& word) { return word.first; });
  for (const auto& [length, at] : longWords) {
    take(at);
    take(at + 1);
  }
  for (std::size_t at = 0; at + kTrigram <= text.size(); ++at) take(at);
  return samples;
}

std::string LikePattern(std::string_view part) {
  std::string pattern = "%";
  for (const char c : part) {
    if (c == '%' || c == '_' || c == '\\') pattern += '\\';
    pattern += c;
  }
  return pattern + '%';
}

/// All of the samples, in the language of the index.
std::string MatchAll(const std::vector<std::string>& samples) {
  std::string query;
  for (const std::string& sample : samples) {
    if (!query.empty()) query += " AND ";
    query.append("\"").append(base::Replace(sample, "\"", "\"\"")).append("\"");
  }
  return query;
}

constexpr std::string_view kOnSqlite =
    "SELECT {t}.{k} FROM {t}_busca CROSS JOIN {t} ON {t}.{k} = {t}_busca.rowid"
    " WHERE {t}_busca MATCH {1} AND instr({t}.nome_busca, {2}) > 0{l}";
/// As an array, of which the planner expects few: of thousands it would not look each up by its
/// key, but read the whole table once more.
constexpr std::string_view kOnPostgres =
    "SELECT unnest(ARRAY(SELECT {k} FROM {t} WHERE nome_busca LIKE CAST({1} AS text){l}))";
/// The samples stand apart from the rest so that the planner takes them from the index: it would
/// guess that so many rows have them that reading the table from its beginning were quicker.
constexpr std::string_view kBySamplesOnPostgres =
    "SELECT unnest(ARRAY(WITH likely AS MATERIALIZED (SELECT {k}, nome_busca FROM {t}"
    " WHERE nome_busca LIKE CAST({1} AS text) AND nome_busca LIKE CAST({2} AS text)"
    " AND nome_busca LIKE CAST({3} AS text) AND nome_busca LIKE CAST({4} AS text))"
    " SELECT {k} FROM likely WHERE strpos(nome_busca, CAST({5} AS text)) > 0{l}))";

std::string Filled(std::string_view selection, std::string_view named, NameSearch::Table table,
                   int others, std::string_view limit) {
  std::string text = base::Replace(selection, "{named}", named);
  text = base::Replace(base::Replace(text, "{t}", table.name), "{k}", table.key);
  for (int place = 1; place <= 5; ++place) {
    text = base::Replace(text, "{" + std::to_string(place) + "}",
                         "$" + std::to_string(others + place));
  }
  return base::Replace(text, "{l}", limit);
}

}  // namespace

NameSearch::NameSearch(std::string_view selection, Table table, int others, std::string_view limit)
    : byPart_(Filled(selection, kOnSqlite, table, others, limit),
              Filled(selection, kOnPostgres, table, others, limit), Statement::Planning::kByValues),
      bySamples_(Filled(selection, kOnSqlite, table, others, limit),
                 Filled(selection, kBySamplesOnPostgres, table, others, limit),
                 Statement::Planning::kByValues) {}

std::optional<std::string> NameSearch::PartIn(std::string_view text) {
  std::string part = SearchForm(text);
  if (base::Length(part) < kTrigram) return std::nullopt;
  return part;
}

const Statement& NameSearch::For(Engine engine, const std::string& part) const {
  return IsSampled(engine, part) ? bySamples_ : byPart_;
}

Params NameSearch::Bound(Engine engine, const std::string& part, Params others) {
  if (engine == Engine::kSqlite) {
    others.emplace_back(MatchAll(Samples(part)));
    others.emplace_back(part);
  } else if (!IsSampled(engine, part)) {
    others.emplace_back(LikePattern(part));
  } else {
    auto samples = Samples(part);
    samples.resize(kSamples, samples.back());
    for (const std::string& sample : samples) others.emplace_back(LikePattern(sample));
    others.emplace_back(part);
  }
  return others;
}

void Listing::Show(const Statement& statement, const Params& params) const {
  const Selected selected = SelectRows(session, fields, statement, params, kMostRows);
  outcome.rows = selected.rows;
  if (!selected.more) return;
  const std::string most = std::to_string(kMostRows);
  outcome.sentence = "Há mais de " + most + ' ' + std::string(what) + " com esse nome e só " +
                     most + " são mostrados. Digite mais letras para reduzir a lista.";
}

void Listing::ShowNamed(const NameSearch& search, const Statement& shorter, std::string_view text,
                        const Params& others) const {
  const auto part = NameSearch::PartIn(text);
  if (!part) return Show(shorter, others);
  Show(search.For(session.Kind(), *part), NameSearch::Bound(session.Kind(), *part, others));
}

}  // namespace services
