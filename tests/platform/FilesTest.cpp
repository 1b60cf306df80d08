// The file operations of a desktop on the real file system.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>

#include "platform/Desktop.h"
#include "support/Table.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
namespace files = platform::files;
using support::ResultOf;

/// While it lives no file can grow.
class FullDisk {
 public:
  FullDisk() {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &usual_);
    const rlimit none{0, usual_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &usual_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit usual_{};
};

/// Hears which files come into being in a folder.
class NameWatch {
 public:
  explicit NameWatch(const fs::path& folder) : watch_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    inotify_add_watch(watch_, folder.c_str(), IN_CREATE);
  }
  ~NameWatch() { close(watch_); }
  NameWatch(const NameWatch&) = delete;
  NameWatch& operator=(const NameWatch&) = delete;

  std::string FirstNew() const {
    alignas(inotify_event) std::array<char, 4096> events{};
    const bool has = read(watch_, events.data(), events.size()) > 0;
    return has ? reinterpret_cast<const inotify_event*>(events.data())->name : "caixa.ini";
  }

 private:
  int watch_;
};

class Files : public testing::Test {
 protected:
  std::string Path(const char* name) const { return folder.File(name); }
  static std::string Written(const std::string& path) {
    return ResultOf([&] { return files::Write(path, "depois"), std::string("done"); });
  }
  static mode_t ModeOf(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
  }
  /// What lies in the folder, blank by blank.
  std::string Names() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
      names.insert(entry.path().filename());
    }
    std::string all;
    for (const std::string& name : names) all.append(all.empty() ? "" : " ").append(name);
    return all;
  }

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
  {
    const FullDisk full;
    EXPECT_EQ(Written(path), "error 70");
  }
  EXPECT_EQ(files::Read(path), "antes");
  EXPECT_EQ(Names(), "caixa.ini") << "nor is half of the new one left";

  fs::permissions(path, fs::perms::owner_read);
  EXPECT_EQ(Written(path), "error 70") << "a file that is protected";
  EXPECT_EQ(files::Read(path), "antes");
}

TEST_F(Files, AreForNobodyElse) {
  const std::string path = Path("caixa.ini");
  const mode_t usual = umask(0);
  files::Write(path, "x");
  EXPECT_TRUE(files::MakeFolder(Path("a/b")));
  umask(usual);
  EXPECT_EQ(ModeOf(path), 0600U);
  EXPECT_EQ(ModeOf(Path("a")), 0700U);
  EXPECT_EQ(ModeOf(Path("a/b")), 0700U);
  for (const mode_t chosen : {0640U, 0600U}) {
    chmod(path.c_str(), chosen);
    files::Write(path, "y");
    EXPECT_EQ(ModeOf(path), chosen) << "as the clinic has set it";
  }
  chmod(Path("a").c_str(), 0755);
  EXPECT_TRUE(files::MakeFolder(Path("a")));
  EXPECT_EQ(ModeOf(Path("a")), 0755U);
  EXPECT_FALSE(files::MakeFolder(path + "/a"));
  EXPECT_FALSE(files::MakeFolder(path));
}

TEST_F(Files, BehindALinkAreReplacedThere) {
  const std::string link = Path("caixa.ini");
  fs::create_directory(Path("rede"));
  fs::create_symlink("rede/caixa.ini", link);
  EXPECT_EQ(ResultOf([&] { return files::Read(link); }), "error 53") << "it names nothing yet";
  for (const char* bytes : {"antes", "depois"}) {
    files::Write(link, bytes);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(files::Read(Path("rede/caixa.ini")), bytes);
  }
  EXPECT_EQ(Names(), "caixa.ini rede") << "nothing is left beside it";

  fs::create_symlink("volta", Path("volta"));
  EXPECT_EQ(ResultOf([&] { return files::Read(Path("volta")); }), "error 70")
      << "what cannot be looked at is not absent";
  EXPECT_EQ(Written(Path("volta")), "error 70");
  if (geteuid() != 0) return;  // Only an administrator can make a link another user's.
  ASSERT_EQ(lchown(link.c_str(), 65'534, 65'534), 0);
  EXPECT_EQ(Written(link), "error 70") << "another user would choose what is overwritten";
  EXPECT_EQ(files::Read(Path("rede/caixa.ini")), "depois");
}

// Who guesses the name of the file in the making must not have the cash desk write where they like.
TEST_F(Files, AreWrittenUnderNamesThatNobodyForesees) {
  const std::string path = Path("caixa.ini");
  std::set<std::string> seen;
  for (int i = 0; i < 20; ++i) {
    NameWatch watch(folder.Path());
    files::Write(path, "x");
    const std::string beside = watch.FirstNew();
    EXPECT_NE(beside, "caixa.ini") << "written beside";
    EXPECT_TRUE(seen.insert(beside).second) << beside << " comes again";
  }
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
