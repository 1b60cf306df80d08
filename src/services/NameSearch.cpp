#include "services/NameSearch.h"

#include <algorithm>
#include <vector>

#include "base/Text.h"
#include "services/Search.h"

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

/// Trigrams that do not overlap, spread evenly from the first to the last; at most kSamples.
std::vector<std::string> Samples(const std::string& part) {
  const std::u32string characters = base::ToCharacters(part);
  const std::size_t last = characters.size() - kTrigram;
  const std::size_t count = std::min(kSamples, last / kTrigram + 1);
  std::vector<std::string> samples;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t at = count == 1 ? 0 : last * i / (count - 1);
    samples.push_back(base::FromCharacters(characters.substr(at, kTrigram)));
  }
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
constexpr std::string_view kOnPostgres =
    "SELECT {k} FROM {t} WHERE nome_busca LIKE CAST({1} AS text){l}";
/// The samples stand apart from the rest so that the planner takes them from the index: it would
/// guess that so many rows have them that reading the table from its beginning were quicker.
constexpr std::string_view kBySamplesOnPostgres =
    "WITH likely AS MATERIALIZED (SELECT {k}, nome_busca FROM {t}"
    " WHERE nome_busca LIKE CAST({1} AS text) AND nome_busca LIKE CAST({2} AS text)"
    " AND nome_busca LIKE CAST({3} AS text) AND nome_busca LIKE CAST({4} AS text))"
    " SELECT {k} FROM likely WHERE strpos(nome_busca, CAST({5} AS text)) > 0{l}";

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

void SelectNamed(Session& session, Outcome& outcome, std::span<const Field> fields,
                 const NameSearch& search, const std::string& part, const Params& others,
                 std::string_view what) {
  SelectCapped(session, outcome, fields, search.For(session.Kind(), part),
               NameSearch::Bound(session.Kind(), part, others), what);
}

}  // namespace services
