// The file operations of a desktop on the real file system.

#include <gtest/gtest.h>

#include <filesystem>

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

}  // namespace
