#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "services/Database.h"
#include "services/Estacao.h"

namespace services {
namespace {

/// The mark of a workstation, in a settings folder of its own.
class StationTest : public testing::Test {
 protected:
  std::string Mark() const { return MarcaDaEstacao(folder_.Path().string()); }
  void Put(const std::string& text) const { std::ofstream(File()) << text; }
  std::string File() const { return folder_.File("estacao.id"); }
  std::size_t Files() const {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(folder_.Path()),
                      std::filesystem::directory_iterator()));
  }

  support::TemporaryFolder folder_;
};

TEST_F(StationTest, IsDrawnOnceAndKeptForItsOwnerAlone) {
  const std::string mark = Mark();
  EXPECT_EQ(16U, mark.size());
  EXPECT_EQ(std::string::npos, mark.find_first_not_of("0123456789abcdef"));
  EXPECT_EQ(mark, Mark());
  EXPECT_EQ(1U, Files());
  struct stat status {};
  ASSERT_EQ(0, stat(File().c_str(), &status));
  EXPECT_EQ(0600U, status.st_mode & 07777U);
  const support::TemporaryFolder other;
  EXPECT_NE(mark, MarcaDaEstacao(other.Path().string()));
}

TEST_F(StationTest, WhatIsNoMarkIsReplacedAndWhatIsNoFileIsTold) {
  for (const char* text : {"", "0123", "0123456789ABCDEF", "0123456789abcdef0", "\n"}) {
    Put(text);
    const std::string mark = Mark();
    EXPECT_EQ(16U, mark.size()) << text;
    EXPECT_EQ(mark, Mark()) << text;
  }
  std::filesystem::remove(File());
  std::filesystem::create_symlink(folder_.File("alheio"), File());
  EXPECT_THROW(Mark(), std::runtime_error);
  EXPECT_FALSE(std::filesystem::exists(folder_.File("alheio")));
  EXPECT_THROW(MarcaDaEstacao(folder_.File("nenhuma")), std::runtime_error);
}

TEST_F(StationTest, ManyThatStartAtOnceHaveOne) {
  constexpr int kPrograms = 8;
  std::vector<pid_t> programs;
  for (int i = 0; i < kPrograms; ++i) {
    programs.push_back(fork());
    if (programs.back() == 0) {
      std::ofstream(folder_.File("lida" + std::to_string(i))) << Mark();
      _exit(0);
    }
  }
  for (const pid_t program : programs) waitpid(program, nullptr, 0);
  for (int i = 0; i < kPrograms; ++i) {
    std::string read;
    std::ifstream(folder_.File("lida" + std::to_string(i))) >> read;
    EXPECT_EQ(Mark(), read);
  }
}

}  // namespace
}  // namespace services
