#include <algorithm>
#include <cctype>

#include "Source.h"

namespace tidy {
namespace {

bool IsWord(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

/// Where the comment, string or character that begins at `at` ends; `at` where none begins.
std::size_t EndOfOther(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at);
  const char before = at > 0 ? text[at - 1] : ' ';
  if (rest.starts_with("//")) return text.find('\n', at);
  if (rest.starts_with("/*")) return text.find("*/", at) + 2;
  if (rest.starts_with('"') && before == 'R') {
    const std::size_t open = rest.find('(');
    const std::string close = ")" + std::string(rest.substr(1, open - 1)) + "\"";
    return text.find(close, at) + close.size();
  }
  if (!rest.starts_with('"') && (!rest.starts_with('\'') || IsWord(before))) return at;
  std::size_t end = at + 1;
  while (end < text.size() && text[end] != text[at] && text[end] != '\n') {
    end += text[end] == '\\' ? 2 : 1;
  }
  return end + 1;
}

}  // namespace

std::string CodeOf(std::string_view text) {
  std::string code(text);
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t end = std::min(EndOfOther(text, at), text.size());
    if (end == at) continue;
    const char filling = text[at] == '/' ? ' ' : kQuoted;
    for (; at < end; ++at) code[at] = text[at] == '\n' ? '\n' : filling;
    --at;
  }
  return code;
}

std::vector<Include> IncludesOf(std::string_view text) {
  const std::string code = CodeOf(text);
  const std::vector<std::string_view> lines = Lines(text);
  std::vector<Include> includes;
  int number = 0;
  for (const std::string_view line : Lines(code)) {
    const std::string_view written = lines[static_cast<std::size_t>(number++)];
    const std::size_t open = written.find_first_of("<\"");
    const std::size_t close = written.find_last_of(">\"");
    if (!line.starts_with("#include ") || open >= close) continue;
    includes.push_back(
        {number, std::string(written.substr(open + 1, close - open - 1)), written[open] == '<'});
  }
  return includes;
}

}  // namespace tidy
