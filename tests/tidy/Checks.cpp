#include "Checks.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <regex>
#include <set>

#include "base/Text.h"

namespace tidy {
namespace {

std::string At(const Source& file, int line, const std::string& what) {
  return file.path + ":" + std::to_string(line) + ": " + what;
}

/// A folder of src, and which others it may include besides itself.
struct Floor {
  std::string_view folder;
  std::vector<std::string_view> sees;
  bool module = false;  ///< It builds with the standard library alone.
};

/// Every floor that stands above `below` in the building's own order.
std::vector<Floor> Building() {
  static constexpr std::array<std::string_view, 12> kModule{
      "base",     "platform", "frame",    "consent", "lookup", "fiscal",
      "checkout", "register", "accounts", "sale",    "entry",  "siblings"};
  std::vector<Floor> floors;
  std::vector<std::string_view> above;
  for (const std::string_view folder : kModule) {
    floors.push_back({folder, above, folder != "siblings"});
    above.push_back(folder);
    if (folder == "platform") {
      floors.push_back({"frame/servicos", {"base"}, true});
      above.push_back("frame/servicos");
    }
    if (folder == "entry") {
      floors.push_back({"siblings/dados", {"base", "frame/servicos"}, true});
      above.push_back("siblings/dados");
    }
  }
  // What hosts open stands at the top of services and sees every room; a room sees those before it.
  const std::vector<std::string_view> kRooms{"services/banco", "services/troca", "services/venda",
                                             "services/contrato", "services/demonstracao"};
  std::vector<std::string_view> seen{"base", "frame/servicos", "siblings/dados"};
  for (const std::string_view room : kRooms) {
    floors.push_back({room, seen, false});
    seen.push_back(room);
    if (room == "services/banco") seen.push_back("services");
  }
  floors.push_back({"services", seen, false});
  above.push_back("services");
  above.insert(above.end(), kRooms.begin(), kRooms.end());
  floors.push_back({"desktop", above, false});
  floors.push_back({"tools", above, false});
  above.push_back("desktop");
  floors.push_back({"tools/vitrine", above, false});
  return floors;
}

/// The floor on which a path relative to src stands; null where it names none.
const Floor* FloorOf(std::string_view path) {
  static const std::vector<Floor> kFloors = Building();
  const Floor* found = nullptr;
  for (const Floor& floor : kFloors) {
    const bool inside =
        path.starts_with(floor.folder) && path.substr(floor.folder.size())[0] == '/';
    if (inside && (found == nullptr || floor.folder.size() > found->folder.size())) found = &floor;
  }
  return found;
}

bool IsUnderOneOf(const Source& file, const std::vector<std::string_view>& places) {
  return std::ranges::any_of(places, [&](std::string_view each) { return file.IsUnder(each); });
}

/// A library of the outside, by the start of its headers, and the folders that may include it.
struct Library {
  std::string_view name;
  std::regex header;
  std::vector<std::string_view> places;
};
const std::vector<Library>& Libraries() {
  static const std::vector<Library> kLibraries{
      {"Qt",
       std::regex("Q[A-Z].*|Qt[A-Z].*/.*"),
       {"src/desktop/", "src/tools/vitrine/", "tests/desktop/", "bench/desktop/"}},
      {"SQL",
       std::regex("sqlite3\\.h|SQLiteCpp/.*|libpq-fe\\.h"),
       {"src/services/", "src/tools/banco/", "bench/", "tests/"}},
  };
  return kLibraries;
}

/// What of the module looks at the file system: every desktop's file operations.
const std::set<std::string> kFilesOfTheDesktop{"src/platform/Files.cpp",
                                               "src/platform/FileWriting.cpp"};

std::string WrongAngled(const Source& file, const Floor* floor, const std::string& target) {
  for (const Library& library : Libraries()) {
    if (std::regex_match(target, library.header) && !IsUnderOneOf(file, library.places)) {
      return std::string(library.name) + " is not seen here: " + target;
    }
  }
  if (floor == nullptr || !floor->module || kFilesOfTheDesktop.contains(file.path)) {
    return {};
  }
  static const std::regex kStandard("[a-z0-9_]+");
  static const std::set<std::string> kMachine{"filesystem", "fstream", "cstdlib", "ctime",
                                              "thread"};
  const bool allowed = std::regex_match(target, kStandard) && !kMachine.contains(target);
  return allowed ? std::string() : "the module goes through Desktop: " + target;
}

}  // namespace

Findings CheckIncludes(const Source& file) {
  constexpr std::string_view kRoot = "src/";
  Findings findings;
  if (!file.IsCode()) return findings;
  const Floor* const floor =
      file.IsUnder(kRoot) ? FloorOf(std::string_view(file.path).substr(kRoot.size())) : nullptr;
  for (const Include& include : IncludesOf(file.text)) {
    if (include.angled) {
      const std::string wrong = WrongAngled(file, floor, include.target);
      if (!wrong.empty()) findings.push_back(At(file, include.line, wrong));
      continue;
    }
    const Floor* const other = FloorOf(include.target);
    if (floor == nullptr || other == nullptr || other == floor) continue;
    if (std::ranges::find(floor->sees, other->folder) == floor->sees.end()) {
      findings.push_back(
          At(file, include.line, std::string(floor->folder) + " does not see " + include.target));
    }
  }
  return findings;
}

namespace {

constexpr std::size_t kLongestFile = 600;

}  // namespace

Findings CheckLength(const Source& file) {
  const std::size_t count = file.IsCode() ? Lines(file.text).size() : 0;
  if (count <= kLongestFile) return {};
  return {At(file, static_cast<int>(count), "the file is too long")};
}

namespace {

/// Functions and types that are at home in some places only.
struct Banned {
  std::set<std::string_view> words;
  std::string_view instead;
  std::vector<std::string_view> places;  ///< Where they stand by right.
};
const std::vector<Banned>& BannedWords() {
  static const std::vector<std::string_view> kOutside{"src/desktop/", "src/tools/", "tests/",
                                                      "bench/"};
  static const std::vector<Banned> kBanned{
      {{"stod",   "stof",   "stold",   "stoi",   "stol",    "stoll",   "stoul",    "stoull",
        "strtod", "strtof", "strtold", "strtol", "strtoll", "strtoul", "strtoull", "atof",
        "atoi",   "atol",   "atoll",   "scanf",  "sscanf",  "fscanf"},
       "the conversions of base/Numbers.h, or std::from_chars",
       {}},
      {{"setlocale", "locale", "imbue"}, "nothing: all forms are fixed", {}},
      {{"getenv", "secure_getenv", "setenv", "putenv"}, "what the host hands over", kOutside},
      {{"system_clock", "gettimeofday", "clock_gettime", "localtime", "localtime_r", "gmtime",
        "gmtime_r", "mktime", "time"},
       "base::Clock",
       kOutside},
  };
  return kBanned;
}

/// "time" is a good name for many things; as a call it asks the machine when what it is given is
/// null or an address.
bool AsksForTheTime(std::string_view behind) {
  static const std::regex kArguments(R"(\s*\(\s*(nullptr|NULL|0\s*\)|&))");
  return std::regex_search(behind.begin(), behind.end(), kArguments,
                           std::regex_constants::match_continuous);
}

bool IsWordPart(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

/// Calls `each(word, rest of the line)` for every word of a line of code.
template <class Each>
void ForEachWord(std::string_view line, Each each) {
  while (!line.empty()) {
    std::size_t length = 0;
    while (length < line.size() && IsWordPart(line[length])) ++length;
    if (length > 0) each(line.substr(0, length), line.substr(length));
    line.remove_prefix(std::max<std::size_t>(length, 1));
  }
}

/// Whether a line may hold one of the words below, found out without the cost of an expression.
bool IsSuspect(std::string_view line) {
  static constexpr std::array<std::string_view, 7> kParts{"pec",   "part",   "jobs", "/work",
                                                          "/home", "/users", "/root"};
  const std::string lower = base::Lower(line);
  return std::ranges::any_of(
      kParts, [&](std::string_view part) { return lower.find(part) != std::string::npos; });
}

}  // namespace

Findings CheckCalls(const Source& file) {
  Findings findings;
  if (!file.IsCode()) return findings;
  const std::string code = CodeOf(file.text);
  int number = 0;
  for (const std::string_view line : Lines(code)) {
    ++number;
    ForEachWord(line, [&](std::string_view word, std::string_view behind) {
      for (const Banned& banned : BannedWords()) {
        if (!banned.words.contains(word) || IsUnderOneOf(file, banned.places)) continue;
        if (word == "time" && !AsksForTheTime(behind)) continue;
        findings.push_back(
            At(file, number,
               std::string(word) + " is banned here: use " + std::string(banned.instead)));
      }
    });
  }
  return findings;
}

Findings CheckWords(const Source& file) {
  // In pieces, so that this file does not find itself.
  static const std::regex kWords(
      "specifi"
      "cation|especifica"
      "(ç|c)(ã|a)o\\b|\\bspec"
      "s?\\b|\\bpart"
      "e? [0-9]+\\.[0-9]+"
      "|bash_"
      "jobs|/(work|home|root|Users)"
      "/[A-Za-z0-9_.-]",
      std::regex::icase);
  Findings findings;
  int number = 0;
  for (const std::string_view line : Lines(file.text)) {
    ++number;
    std::cmatch match;
    if (IsSuspect(line) && std::regex_search(line.begin(), line.end(), match, kWords)) {
      findings.push_back(At(file, number, "\"" + match.str() + "\" has no place here"));
    }
  }
  return findings;
}

Findings CheckContract(const Source& file) {
  static const std::regex kDeclared("virtual [^({]*\\b(\\w+)\\([^{]*\\{\\s*Ausente");
  static const std::regex kNamed("kMembros =([^;]*);");
  static const std::regex kWord("\\w+");
  if (!file.IsUnder("src/frame/servicos/ZOVA_")) return {};
  using Matches = std::sregex_iterator;
  std::set<std::string> declared;
  for (Matches at(file.text.begin(), file.text.end(), kDeclared); at != Matches(); ++at) {
    declared.insert((*at)[1]);
  }
  std::smatch list;
  std::regex_search(file.text, list, kNamed);
  const std::string words = list[1];
  std::set<std::string> named;
  for (Matches at(words.begin(), words.end(), kWord); at != Matches(); ++at) {
    named.insert(at->str());
  }
  std::vector<std::string> differing;
  std::ranges::set_symmetric_difference(declared, named, std::back_inserter(differing));
  Findings findings;
  for (const std::string& member : differing) {
    findings.push_back(At(file, 1, member + " is declared or named in kMembros, but not both"));
  }
  return findings;
}

Findings CheckDeadHeaders(const std::vector<Source>& tree) {
  constexpr std::string_view kRoot = "src/";
  std::set<std::string> included;
  for (const Source& file : tree) {
    if (!file.IsCode()) continue;
    const std::string folder = file.path.substr(0, file.path.rfind('/') + 1);
    for (const Include& include : IncludesOf(file.text)) {
      if (std::string(kRoot) + include.target == file.path) continue;
      included.insert(std::string(kRoot) + include.target);
      included.insert(folder + include.target);
    }
  }
  Findings findings;
  for (const Source& file : tree) {
    if (file.IsUnder(kRoot) && file.IsHeader() && !included.contains(file.path)) {
      findings.push_back(At(file, 1, "nobody includes this header"));
    }
  }
  return findings;
}

}  // namespace tidy
