#include <algorithm>
#include <array>
#include <cctype>

#include "Source.h"

namespace tidy {
namespace {

bool IsWord(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

/// Blanks what is not code, from the front to the end.
class Blanker {
 public:
  explicit Blanker(std::string_view text) : in_(text), out_(text) {}

  Code Run() {
    while (at_ < in_.size()) {
      if (Ahead("//")) {
        Blank(in_.find('\n', at_));
      } else if (Ahead("/*")) {
        Blank(in_.find("*/", at_ + 2), 2);
      } else if (in_[at_] == '"' && IsRaw()) {
        RawString();
      } else if (in_[at_] == '"' || (in_[at_] == '\'' && !PartsDigits())) {
        Quoted(in_[at_]);
      } else if (in_[at_] == '#' && BeginsLine()) {
        Directive();
      } else {
        ++at_;
      }
    }
    return {std::move(out_), RawLines(), std::move(directives_)};
  }

 private:
  bool Ahead(std::string_view what) const { return in_.substr(at_).starts_with(what); }

  /// The word, and the digits with their separators, that end before the present place.
  std::string_view WordBefore() const {
    std::size_t begin = at_;
    while (begin > 0 && (IsWord(in_[begin - 1]) || in_[begin - 1] == '\'')) --begin;
    return in_.substr(begin, at_ - begin);
  }
  bool IsRaw() const { return WordBefore().ends_with('R') && WordBefore().size() <= 3; }
  bool PartsDigits() const {
    const std::string_view word = WordBefore();
    return !word.empty() && std::isdigit(static_cast<unsigned char>(word.front())) != 0;
  }
  bool BeginsLine() const {
    const std::size_t before = in_.substr(0, at_).find_last_not_of(" \t");
    return before == std::string_view::npos || in_[before] == '\n';
  }

  /// Blanks from here to `end` and `more` characters, keeping the line ends.
  void Blank(std::size_t end, std::size_t more = 0) {
    end = end == std::string_view::npos ? in_.size() : std::min(end + more, in_.size());
    for (; at_ < end; ++at_) {
      if (in_[at_] != '\n') out_[at_] = ' ';
    }
  }
  void Quoted(char quote) {
    std::size_t end = at_ + 1;
    while (end < in_.size() && in_[end] != quote && in_[end] != '\n')
      end += in_[end] == '\\' ? 2 : 1;
    ++at_;
    Blank(end);
    ++at_;
  }
  void RawString() {
    const std::size_t open = std::min(in_.find('(', at_), in_.size());
    const std::string close = ")" + std::string(in_.substr(at_ + 1, open - at_ - 1)) + "\"";
    const std::size_t begin = at_;
    Blank(in_.find(close, open), close.size());
    raw_.push_back({begin, at_});
  }
  void Directive() {
    directives_.push_back(1 + static_cast<int>(std::ranges::count(in_.substr(0, at_), '\n')));
    std::size_t end = in_.find('\n', at_);
    while (end != std::string_view::npos && in_[end - 1] == '\\') end = in_.find('\n', end + 1);
    Blank(end);
  }

  std::vector<bool> RawLines() const {
    std::vector<bool> lines;
    std::size_t start = 0;
    for (const std::string_view line : Lines(in_)) {
      lines.push_back(std::ranges::any_of(
          raw_, [&](const Span& each) { return each.begin < start && start < each.end; }));
      start += line.size() + 1;
    }
    return lines;
  }

  struct Span {
    std::size_t begin, end;
  };
  std::string_view in_;
  std::string out_;
  std::size_t at_ = 0;
  std::vector<Span> raw_;
  std::vector<int> directives_;
};

/// Walks the braces of a file and finds its functions.
class Walker {
 public:
  explicit Walker(const Code& code) : code_(code), text_(code.text) {}

  std::vector<Function> Run() {
    for (at_ = 0; at_ < text_.size(); ++at_) {
      switch (text_[at_]) {
        case '\n':
          ++line_;
          break;
        case ';':
          head_ = at_ + 1;
          break;
        case '{':
          Open();
          break;
        case '}':
          if (!open_.empty()) Close();
          break;
        default:
          break;
      }
    }
    return std::move(functions_);
  }

 private:
  enum class Kind { kScope, kFunction, kBlock, kTable };
  struct Brace {
    Kind kind;
    int line;
    int tableLines;
  };

  Kind KindHere() const {
    const std::size_t before = text_.substr(0, at_).find_last_not_of(" \n");
    const char last = before == std::string_view::npos ? ';' : text_[before];
    const bool adjoins = before + 1 == at_;
    if (std::string_view("(,={").find(last) != std::string_view::npos ||
        (adjoins && (IsWord(last) || last == '>' || last == ']'))) {
      return Kind::kTable;
    }
    if (!open_.empty() && open_.back().kind != Kind::kScope) return Kind::kBlock;
    return HeadIsOfFunction() ? Kind::kFunction : Kind::kScope;
  }

  bool HeadIsOfFunction() const {
    std::string_view head = text_.substr(head_, at_ - head_);
    head.remove_prefix(std::min(head.find_first_not_of(" \n"), head.size()));
    static constexpr std::array<std::string_view, 5> kScopes{"namespace", "class ", "struct ",
                                                             "enum ", "union "};
    const bool scope =
        std::ranges::any_of(kScopes, [&](std::string_view word) { return head.starts_with(word); });
    return !scope && head.find('(') != std::string_view::npos;
  }

  void Open() {
    const Kind kind = KindHere();
    open_.push_back({kind, line_, 0});
    if (kind != Kind::kTable) head_ = at_ + 1;
  }

  void Close() {
    const Brace closed = open_.back();
    open_.pop_back();
    if (closed.kind != Kind::kTable) head_ = at_ + 1;
    int tableLines = closed.tableLines;
    if (closed.kind == Kind::kTable) {
      tableLines = line_ - closed.line;
    } else if (closed.kind == Kind::kFunction) {
      functions_.push_back({closed.line, Length(closed)});
      return;
    }
    if (!open_.empty()) open_.back().tableLines += tableLines;
  }

  int Length(const Brace& function) const {
    int length = line_ - function.line + 1 - function.tableLines;
    for (int line = function.line; line <= line_; ++line) {
      length -= code_.inRawString[static_cast<std::size_t>(line) - 1] ? 1 : 0;
    }
    return length;
  }

  const Code& code_;
  std::string_view text_;
  std::size_t at_ = 0, head_ = 0;
  int line_ = 1;
  std::vector<Brace> open_;
  std::vector<Function> functions_;
};

}  // namespace

Code CodeOf(std::string_view text) {
  return Blanker(text).Run();
}

std::vector<Function> FunctionsOf(const Code& code) {
  return Walker(code).Run();
}

std::vector<Include> IncludesOf(std::string_view text) {
  const std::vector<std::string_view> lines = Lines(text);
  std::vector<Include> includes;
  for (const int number : CodeOf(text).directives) {
    const std::string_view line = lines[static_cast<std::size_t>(number) - 1];
    const std::size_t open = line.find_first_of("<\"");
    const std::size_t close = line.find_last_of(">\"");
    if (!line.starts_with("#include ") || open >= close) continue;
    includes.push_back(
        {number, std::string(line.substr(open + 1, close - open - 1)), line[open] == '<'});
  }
  return includes;
}

}  // namespace tidy
