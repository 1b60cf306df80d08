#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "roteiro/Program.h"

namespace roteiro_tests {
namespace {

struct Call {
  const char* name;
  std::vector<std::string> arguments;
  const char* complaint;
};

TEST(Start, AUsageErrorSaysWhatIsWrongAndEndsWith2) {
  const Call kCalls[] = {
      {"option", {"--depressa"}, "unknown option --depressa"},
      {"word", {"stub"}, "unknown option stub"},
      {"value", {"--now"}, "--now needs a value"},
      {"time", {"--now", "2026-13-01T00:00:00"}, "not a date and time"},
      {"clock", {"--clock", "lento"}, "--clock is virtual or real"},
      {"paper", {"--paper", "a5"}, "--paper is a4 or roll80"},
      {"exchange", {"--exchange", "troca"}, "--exchange needs a database"},
      {"services", {"--services", "mysql:x"}, "--services is stub"},
      {"folder", {"--dir", "/nao/existe"}, "no folder /nao/existe"},
  };
  for (const Call& call : kCalls) {
    Program program(ROTEIRO_OF_CAIXA, call.arguments);
    EXPECT_EQ(program.Read(), std::nullopt) << call.name;
    EXPECT_EQ(program.Finish(), 2) << call.name;
    EXPECT_NE(program.Complaint().find(call.complaint), std::string::npos) << program.Complaint();
  }
}

TEST(Start, WhatItCannotStartOnEndsWith1) {
  Program noDatabase(ROTEIRO_OF_CAIXA, {"--services", "sqlite:/nao/existe.db"});
  EXPECT_EQ(noDatabase.Read(), std::nullopt);
  EXPECT_EQ(noDatabase.Finish(), 1);
  EXPECT_NE(noDatabase.Complaint().find("/nao/existe.db"), std::string::npos);
  Program noLog(ROTEIRO_OF_CAIXA, {"--log", "/nao/existe/log"});
  EXPECT_EQ(noLog.Finish(), 1);
}

TEST(Start, TheTemporaryFolderGoesAgain) {
  const std::filesystem::path folder = testing::TempDir() + "/roteiro-" + std::to_string(getpid());
  std::filesystem::create_directory(folder);
  setenv("TMPDIR", folder.c_str(), 1);
  Program program(ROTEIRO_OF_CAIXA, {});
  unsetenv("TMPDIR");
  ASSERT_TRUE(program.Read());
  EXPECT_FALSE(std::filesystem::is_empty(folder));
  EXPECT_EQ(program.Finish(), 0);
  EXPECT_TRUE(std::filesystem::is_empty(folder));
  std::filesystem::remove_all(folder);
}

TEST(Start, TheLogHoldsBothDirectionsAndALastLineNeedsNoEnd) {
  const std::string log = testing::TempDir() + "/roteiro-log-" + std::to_string(getpid());
  Program program(ROTEIRO_OF_CAIXA, {"--log", log});
  ASSERT_TRUE(program.Read());
  program.Send("{\"do\": \"forms\"}");
  const std::optional<std::string> answer = program.Read();
  EXPECT_EQ(program.Finish(), 0);
  std::ostringstream written;
  written << std::ifstream(log).rdbuf();
  EXPECT_EQ(written.str(),
            "< {\"ok\":true,\"at\":{\"kind\":\"idle\"},\"events\":[]}\n"
            "> {\"do\": \"forms\"}\n< " +
                answer.value_or("") + "\n");
  std::filesystem::remove(log);
}

}  // namespace
}  // namespace roteiro_tests
