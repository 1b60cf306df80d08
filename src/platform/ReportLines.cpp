#include "platform/ReportLines.h"

#include <algorithm>

#include "base/Text.h"

namespace platform::reports {
namespace {

constexpr std::string_view kEllipsis = "…";

std::string_view WithoutEndBlanks(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// Where the word ends that begins at `from` or behind the blanks there.
std::size_t EndOfWord(std::string_view line, std::size_t from) {
  const std::size_t word = line.find_first_not_of(' ', from);
  return std::min(line.find(' ', std::min(word, line.size())), line.size());
}

}  // namespace

std::vector<std::string> OwnLines(std::string_view text) {
  if (text.empty()) return {};
  std::vector<std::string> lines(1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\n' || c == '\r') {
      if (c == '\r' && text.substr(i + 1).starts_with('\n')) ++i;
      lines.emplace_back();
    } else {
      lines.back() += c == '\t' ? ' ' : c;
    }
  }
  for (std::string& line : lines) line.resize(WithoutEndBlanks(line).size());
  return lines;
}

void LineFitter::Wrap(std::string_view line, bool breakWords,
                      std::vector<std::string>& pieces) const {
  while (!Fits(line)) {
    std::size_t end = 0;
    for (std::size_t next = 0; end < line.size(); end = next) {
      next = EndOfWord(line, end);
      if (!Fits(line.substr(0, next))) break;
    }
    if (end == 0) {
      end = EndOfWord(line, 0);
      if (breakWords) end = LongestStart(line.substr(0, end), "");
    }
    // Blanks that a line begins with may fill all of a narrow column: they are no line of their
    // own.
    const std::string_view piece = WithoutEndBlanks(line.substr(0, end));
    if (!piece.empty()) pieces.emplace_back(piece);
    line.remove_prefix(std::min(line.find_first_not_of(' ', end), line.size()));
    if (line.empty()) return;
  }
  pieces.emplace_back(line);
}

std::string LineFitter::Cut(std::string_view line, bool goesOn) const {
  if (!goesOn && Fits(line)) return std::string(line);
  std::string_view start = line.substr(0, LongestStart(line, kEllipsis));
  if (!Fits(std::string(start).append(kEllipsis))) start = {};
  return std::string(WithoutEndBlanks(start)).append(kEllipsis);
}

/// How many bytes of the text fit together with `end`; those of one character at least.
std::size_t LineFitter::LongestStart(std::string_view text, std::string_view end) const {
  std::vector<std::size_t> ends;  // Behind each character.
  for (std::string_view rest = text; !rest.empty();) {
    base::TakeCharacter(rest);
    ends.push_back(text.size() - rest.size());
  }
  if (ends.empty()) return 0;
  const auto fits = [&](std::size_t at) { return Fits(std::string(text, 0, at).append(end)); };
  const auto tooLong = std::ranges::partition_point(ends, fits);
  return tooLong == ends.begin() ? ends.front() : *(tooLong - 1);
}

}  // namespace platform::reports
