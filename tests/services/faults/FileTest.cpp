#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>

#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "services/Database.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/SqliteSession.h"
#include "services/faults/Shared.h"
#include "services/faults/SqliteShim.h"

namespace services {
namespace {

namespace fs = std::filesystem;

/// The file of a database, and what can happen to it.
class FileTest : public OverDatabase {
 protected:
  void SetUp() override {
    OverDatabase::SetUp();
    Write("CREATE TABLE marcas (n integer)");
  }

  std::string File(const char* suffix = "") const {
    return address_.substr(address_.find(':') + 1) + suffix;
  }
  /// The error number of a sale, 0 when it was registered.
  std::int32_t Sell() {
    const NewSale sale{Sale{}};
    return sale->RegistrarPagamento() == 0 ? 0 : sale->NumeroDoErro();
  }
  std::int32_t List() {
    const auto registers = servicos::CriarServico<servicos::ZOVA_N_Caixas::clsCaixas>();
    return registers->SelecionarParaComboBox() == 0 ? 0 : registers->NumeroDoErro();
  }
  static std::int32_t Number(Trouble trouble) { return static_cast<std::int32_t>(trouble); }

  /// Writes a row in a transaction.
  void Mark(int number) {
    static const Statement insert("INSERT INTO marcas (n) VALUES ($1)");
    static const Statement proof("SELECT 1 FROM marcas WHERE n = $1");
    InTransaction(session(), [&](Transaction& transaction) {
      session().Run(insert, {number});
      transaction.ProvedBy(proof, {number});
    });
  }
  Trouble WhyNotMarked(int number) {
    try {
      Mark(number);
    } catch (const DatabaseError& error) {
      return error.What();
    }
    ADD_FAILURE() << number << " was written";
    return Trouble::kOther;
  }
  /// The rows that a crash of the machine would leave, which is what the files hold now.
  std::int64_t MarksAfterACrash() {
    const support::TemporaryFolder folder;
    for (const char* suffix : {"", "-wal"}) {
      fs::copy_file(File(suffix), folder.File(std::string("copia.db") + suffix));
    }
    SqliteSession copy(folder.File("copia.db"), SqliteSession::File::kMustExist);
    static const Statement all("SELECT n FROM marcas");
    return copy.Select(all, {}, [](const Row&) {});
  }
};
INSTANTIATE_TEST_SUITE_P(Only, FileTest, testing::Values(Engine::kSqlite), Name);

TEST_P(FileTest, OneThatIsNotTheOneOpenedTakesNoMoreSales) {
  struct Damage {
    const char* name;
    std::function<void()> deal;
    bool isReadingTold;
  };
  const Damage damages[] = {
      {"deleted", [&] { fs::remove(File()); }, true},
      {"replaced", [&] { fs::copy(File(), File(".2")), fs::rename(File(".2"), File()); }, true},
      {"cut in half", [&] { fs::resize_file(File(), fs::file_size(File()) / 2); }, true},
      {"emptied", [&] { fs::resize_file(File(), 0); }, true},
      {"log deleted", [&] { fs::remove(File("-wal")); }, false},
      {"log cut", [&] { fs::resize_file(File("-wal"), fs::file_size(File("-wal")) - 5000); },
       false},
      {"log emptied", [&] { fs::resize_file(File("-wal"), 0); }, false},
      {"index deleted", [&] { fs::remove(File("-shm")); }, false},
  };
  for (const Damage& damage : damages) {
    for (const bool inTheMiddle : {false, true}) {
      SetUp();
      ASSERT_EQ(0, Sell());
      if (inTheMiddle) {
        session().Observe([&](std::string_view step) {
          if (step == "before commit") damage.deal();
        });
      } else {
        damage.deal();
        EXPECT_EQ(damage.isReadingTold ? Number(Trouble::kFileGone) : 0, List()) << damage.name;
      }
      EXPECT_EQ(Number(Trouble::kFileGone), Sell()) << damage.name;
      session().Observe([&](std::string_view step) {
        EXPECT_NE("after begin", step) << "refused before it starts: " << damage.name;
      });
      EXPECT_EQ(Number(Trouble::kFileGone), Sell()) << damage.name;
      TearDown();
    }
  }
}

TEST_P(FileTest, WhatOthersMayDoToItIsNoDamage) {
  for (int n = 0; n < 40; ++n) Mark(n);
  const auto other = Another("SUPORTE");
  other->Sessao().RunScript("DROP TABLE marcas; VACUUM; PRAGMA wal_checkpoint(TRUNCATE)");
  EXPECT_EQ(0, fs::file_size(File("-wal")));
  EXPECT_EQ(0, List());
  EXPECT_EQ(0, Sell());
  EXPECT_EQ(0, Sell());
  ExpectBooksBalance();
}

TEST_P(FileTest, ACommitThatFailsLeavesNothingBehind) {
  SqliteShim shim;
  Open();
  Mark(1);
  int left = 0;
  const auto failing = [&left](int status) {
    return [&left, status] { return left-- > 0 ? status : SQLITE_OK; };
  };
  const auto expect = [&](Trouble expected, const char* name) {
    left = 1;
    EXPECT_EQ(expected, WhyNotMarked(2)) << name;
    EXPECT_EQ(1, MarksAfterACrash()) << "it came back: " << name;
    EXPECT_EQ(1, Count("marcas")) << name;
  };
  shim.syncing = failing(SQLITE_IOERR_FSYNC);
  expect(Trouble::kStorage, "not synced");
  shim.syncing = [] { return SQLITE_OK; };
  shim.writing = failing(SQLITE_FULL);
  expect(Trouble::kFull, "full");
  shim.writing = failing(SQLITE_IOERR_WRITE);
  expect(Trouble::kStorage, "not written");
  shim.writing = [] { return SQLITE_OK; };
  session().Begin();
  session().RunScript(
      "PRAGMA defer_foreign_keys = ON; INSERT INTO animais (codigo_do_cliente, nome)"
      " VALUES (999, 'Ninguém')");
  EXPECT_THROW(session().Commit(), DatabaseError);
  Mark(3);
  EXPECT_EQ(2, Count("marcas"));
  banco_.reset();
  TearDown();
}

TEST_P(FileTest, ADiskThatStaysBrokenLeavesADoubtThatIsFoundOutLater) {
  SqliteShim shim;
  Open();
  Mark(1);
  shim.syncing = [] { return SQLITE_IOERR_FSYNC; };
  std::optional<Doubt> doubt;
  try {
    Mark(2);
  } catch (const InDoubt& error) {
    doubt = error.Which();
  }
  ASSERT_TRUE(doubt);
  EXPECT_EQ(Standing::kUnknown, session().FindOut(*doubt));
  shim.syncing = [] { return SQLITE_OK; };
  EXPECT_EQ(Standing::kDoesNotStand, session().FindOut(*doubt));
  EXPECT_EQ(1, MarksAfterACrash());
  banco_.reset();
  TearDown();
}

TEST_P(FileTest, WhatAnotherHoldsIsToldWhileTheScreensLive) {
  const auto other = Another("LOJA");
  other->Sessao().Begin();
  int painted = 0;
  session().WhileWaiting([&] {
    ++painted;
    EXPECT_EQ(Number(Trouble::kUnderWay), List());
  });
  EXPECT_EQ(Number(Trouble::kBusy), Sell());
  EXPECT_GT(painted, 0);
  other->Sessao().Rollback();
  EXPECT_EQ(0, Sell());
}

TEST_P(FileTest, NothingIsWrittenOutsideATransaction) {
  static const Statement insert("INSERT INTO marcas (n) VALUES (1) RETURNING n");
  EXPECT_THROW(session().Select(insert, {}, [](const Row&) {}), DatabaseError);
  EXPECT_THROW(session().Run(insert), DatabaseError);
  EXPECT_EQ(0, Count("marcas"));
}

/// What eight writers tell of the log.
struct Log {
  std::atomic<int> checkpoints{0};
  std::atomic<int> unguarded{0};
  std::atomic<std::int64_t> largest{0};
};

TEST_P(FileTest, EightWritersKeepTheLogShortAndNoCheckpointRunsBesideThem) {
  if (!SqliteSession::HoldsWritersAtCheckpoints()) GTEST_SKIP() << "this SQLite needs no care";
  constexpr int kWriters = 8;
  constexpr int kRounds = 150;
  constexpr int kPages = 20;
  Shared<Log> log;
  std::vector<pid_t> writers;
  for (int writer = 0; writer < kWriters; ++writer) {
    servicos::EsquecerTodos();
    banco_.reset();
    const pid_t process = fork();
    if (process != 0) {
      writers.push_back(process);
      continue;
    }
    SqliteShim shim;
    banco_ = Another("LOJA");
    for (int round = 0; round < kRounds; ++round) {
      session().Begin();
      session().RunScript("INSERT INTO marcas (n) SELECT zeroblob(4000) FROM (VALUES " +
                          base::Replace(std::string(kPages - 1, ','), ",", "(1),") + "(1))");
      session().Commit();
      const auto size = static_cast<std::int64_t>(fs::file_size(File("-wal")));
      for (auto known = log->largest.load();
           size > known && !log->largest.compare_exchange_weak(known, size);) {
      }
    }
    log->checkpoints += shim.checkpoints;
    log->unguarded += shim.unguarded;
    banco_.reset();
    _exit(0);
  }
  for (const pid_t writer : writers) EXPECT_EQ(0, EndOf(writer));
  Open();
  EXPECT_EQ(kWriters * kRounds * kPages, Count("marcas"));
  EXPECT_GT(log->checkpoints, 0);
  EXPECT_EQ(0, log->unguarded);
  constexpr std::int64_t kAll = std::int64_t{kWriters} * kRounds * kPages * 4096;
  EXPECT_LT(log->largest, kAll / 3);
  RecordProperty("largest_log", std::to_string(log->largest));
  printf("largest log: %.1f MB, checkpoints: %d\n", static_cast<double>(log->largest) / 1e6,
         log->checkpoints.load());
}

}  // namespace
}  // namespace services
