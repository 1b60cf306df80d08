#include "Source.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tidy {
namespace {

namespace fs = std::filesystem;

bool IsText(const fs::path& path) {
  static constexpr std::array<std::string_view, 12> kKinds{
      ".h", ".cpp", ".txt", ".cmake", ".md", ".json", ".sql", ".sh", ".qss", ".svg", ".html", ""};
  return std::ranges::find(kKinds, path.extension().string()) != kKinds.end();
}

void Add(std::vector<Source>& sources, const fs::path& root, const fs::path& path) {
  // A second tree of the same repository has a file there that says where the first one is.
  if (!fs::is_regular_file(path) || !IsText(path) || path.filename() == ".git") return;
  std::ifstream in(path, std::ios::binary);
  std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  sources.push_back({fs::relative(path, root).generic_string(), std::move(text)});
}

std::vector<Source> Load() {
  const fs::path root = CAIXA_SOURCE_DIR;
  std::vector<Source> sources;
  for (const fs::directory_entry& entry : fs::directory_iterator(root)) Add(sources, root, entry);
  for (const char* folder : {"src", "tests", "bench", "docs", "cmake", "scripts", ".ci"}) {
    if (!fs::is_directory(root / folder)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
      Add(sources, root, entry);
    }
  }
  std::ranges::sort(sources, {}, &Source::path);
  return sources;
}

}  // namespace

const std::vector<Source>& Tree() {
  static const std::vector<Source> kTree = Load();
  return kTree;
}

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

}  // namespace tidy
