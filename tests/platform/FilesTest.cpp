// The file operations of a desktop on the real file system.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/Desktop.h"
#include "support/Table.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
namespace files = platform::files;
using support::ResultOf;

class Files : public testing::Test {
 protected:
  std::string Path(const char* name) const { return folder.File(name); }

  support::TemporaryFolder folder;
};

TEST_F(Files, AreWrittenReadAndDeleted) {
  const std::string path = Path("caixa.ini");
  EXPECT_FALSE(files::Exists(path));
  const std::string bytes = std::string("[Caixa]\r\nRação=1\0", 18) + "\xE7\n";
  files::Write(path, bytes);
  EXPECT_EQ(files::Read(path), bytes) << "byte by byte";
  files::Write(path, "");
  EXPECT_EQ(files::Read(path), "");
  EXPECT_TRUE(files::Exists(path));
  files::Delete(path);
  EXPECT_FALSE(files::Exists(path));
  EXPECT_TRUE(fs::is_empty(folder.Path())) << "nothing is left beside it";
}

TEST_F(Files, SayWhyTheyCannotBeUsed) {
  const auto read = [](const std::string& path) {
    return ResultOf([&] { return files::Read(path); });
  };
  const auto write = [](const std::string& path) {
    return ResultOf([&] { return files::Write(path, "x"), std::string("done"); });
  };
  const auto remove = [](const std::string& path) {
    return ResultOf([&] { return files::Delete(path), std::string("done"); });
  };
  EXPECT_EQ(read(Path("nada.txt")), "error 53");
  EXPECT_EQ(remove(Path("nada.txt")), "error 53");
  EXPECT_EQ(read(Path("nada/nada.txt")), "error 76");
  EXPECT_EQ(write(Path("nada/nada.txt")), "error 76");

  files::Write(Path("file"), "x");
  EXPECT_EQ(write(Path("file/nada.txt")), "error 76");
  const std::string sub = Path("sub");
  fs::create_directory(sub);
  EXPECT_FALSE(files::Exists(sub)) << "a folder is no file";
  EXPECT_EQ(read(sub), "error 70");
  EXPECT_EQ(write(sub), "error 70");
  EXPECT_EQ(remove(sub), "error 70");
  EXPECT_TRUE(fs::is_directory(sub));
}

TEST_F(Files, ThatCannotBeReplacedStayWhole) {
  const std::string path = Path("caixa.ini");
  files::Write(path, "antes");
  fs::create_directory(path + ".novo");
  EXPECT_EQ(ResultOf([&] { return files::Write(path, "depois"), std::string("done"); }),
            "error 70");
  EXPECT_EQ(files::Read(path), "antes");

  fs::remove(path + ".novo");
  fs::permissions(path, fs::perms::owner_read);
  EXPECT_EQ(ResultOf([&] { return files::Write(path, "depois"), std::string("done"); }), "error 70")
      << "a file that is protected";
  EXPECT_EQ(files::Read(path), "antes");
}

// What another program has not finished must not be taken for all that it has to say.
TEST_F(Files, ThatAreStillBeingWrittenAreNotRead) {
  const std::string path = Path("retorno.txt");
  const auto read = [&] { return ResultOf([&] { return files::Read(path); }); };
  {
    std::ofstream writer(path);
    EXPECT_EQ(read(), "error 70") << "nothing of it yet";
    writer << "|OK||3515" << std::flush;
    EXPECT_EQ(read(), "error 70") << "half of it";
    writer << "0900|";
  }
  EXPECT_EQ(read(), "|OK||35150900|") << "no line break is needed at its end";
  {
    const std::ifstream reader(path);
    EXPECT_EQ(read(), "|OK||35150900|") << "readers are no hindrance";
  }
  const int locker = open(path.c_str(), O_RDONLY);
  ASSERT_EQ(flock(locker, LOCK_EX), 0);
  EXPECT_EQ(read(), "error 70") << "locked";
  close(locker);
  EXPECT_EQ(read(), "|OK||35150900|");
  const std::string pipe = Path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(ResultOf([&] { return files::Read(pipe); }), "error 70") << "and nobody waits for it";
}

}  // namespace
