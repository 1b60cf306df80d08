#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The house rules of the source tree, each a function from a file to what it finds there.
namespace tidy {

/// A file of the tree, by its path from the root with "/" for separator.
struct Source {
  std::string path;
  std::string text;

  bool IsUnder(std::string_view folder) const { return path.starts_with(folder); }
  bool IsHeader() const { return path.ends_with(".h"); }
  bool IsCode() const { return IsHeader() || path.ends_with(".cpp"); }
};

/// The text files of the tree: src, tests, bench, docs, cmake and what lies beside them.
const std::vector<Source>& Tree();

/// The text by lines, without their ends.
std::vector<std::string_view> Lines(std::string_view text);

/// C++ with everything blanked that is not code: comments by blanks, strings and characters by
/// kQuoted. Positions and lines stay where they are.
std::string CodeOf(std::string_view text);
inline constexpr char kQuoted = '\x01';

/// What a file includes, and from where. What stands in a comment or a string is no include.
struct Include {
  int line = 0;  ///< From 1.
  std::string target;
  bool angled = false;  ///< In angle brackets, as against quotes.
};
std::vector<Include> IncludesOf(std::string_view text);

}  // namespace tidy
