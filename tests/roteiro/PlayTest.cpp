#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "roteiro/Scenario.h"
#include "support/PrivatePostgres.h"

namespace roteiro_tests {
namespace {

/// The scenario files of a folder beside this one.
std::vector<std::string> FilesIn(const std::string& folder) {
  std::vector<std::string> files;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator(ROTEIRO_FOLDER "/" + folder, none)) {
    if (entry.path().extension() == ".jsonl") files.push_back(entry.path().string());
  }
  std::ranges::sort(files);
  return files;
}

std::string NameOf(const testing::TestParamInfo<std::string>& file) {
  std::string name = std::filesystem::path(file.param).stem().string();
  std::ranges::replace(name, '-', '_');
  return name;
}

/// The conversation itself.
class Protocolo : public testing::TestWithParam<std::string> {};
TEST_P(Protocolo, Played) {
  Play(ROTEIRO_OF_CAIXA, GetParam());
}
INSTANTIATE_TEST_SUITE_P(, Protocolo, testing::ValuesIn(FilesIn("protocolo")), NameOf);

/// Whole scenarios on the cash desk.
class Cenarios : public testing::TestWithParam<std::string> {};
TEST_P(Cenarios, Played) {
  Play(ROTEIRO_OF_CAIXA, GetParam());
}
INSTANTIATE_TEST_SUITE_P(, Cenarios, testing::ValuesIn(FilesIn("cenarios")), NameOf);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Cenarios);

/// Whole scenarios over a database, each on both engines.
class Bancos : public testing::TestWithParam<std::string> {};
TEST_P(Bancos, PlayedOnSqlite) {
  Play(ROTEIRO_OF_CAIXA, GetParam(), "sqlite:${DIR}/clinica.db");
}
TEST_P(Bancos, PlayedOnPostgres) {
  support::PrivatePostgres server;
  Play(ROTEIRO_OF_CAIXA, GetParam(), server.NewDatabase());
}
INSTANTIATE_TEST_SUITE_P(, Bancos, testing::ValuesIn(FilesIn("bancos")), NameOf);

/// Whole sales in the demonstration clinic, down to what they leave in the database.
class Vendas : public testing::TestWithParam<std::string> {};
TEST_P(Vendas, Played) {
  Play(ROTEIRO_OF_CAIXA, GetParam(), "sqlite:${DIR}/clinica.db");
}
INSTANTIATE_TEST_SUITE_P(, Vendas, testing::ValuesIn(FilesIn("vendas")), NameOf);

}  // namespace
}  // namespace roteiro_tests
