#include "services/banco/Session.h"

#include <atomic>
#include <chrono>
#include <random>
#include <thread>

#include "services/banco/DatabaseError.h"

namespace services {
namespace {

/// Waits a moment that grows with the tries and differs between computers.
void PauseBeforeRetry(int attempt) {
  thread_local std::minstd_rand chance{std::random_device{}()};
  std::uniform_int_distribution<int> milliseconds(1, 10 * attempt);
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds(chance)));
}

}  // namespace

Statement::Statement(std::string sqlite, std::string postgres, Planning planning)
    : sqlite_(std::move(sqlite)), postgres_(std::move(postgres)), planning_(planning) {
  static std::atomic<std::size_t> next{0};
  id_ = next++;
}

template <class Step>
auto Session::Observed(std::string_view name, Step step) {
  if (isPainting_) throw DatabaseError(Trouble::kUnderWay, name);
  if (!observer_) return step();
  observer_("before " + std::string(name));
  auto result = step();
  observer_("after " + std::string(name));
  return result;
}

std::int64_t Session::Run(const Statement& statement, const Params& params) {
  const auto rows = Observed("run", [&] { return DoRun(statement, params); });
  TellReconnection();
  return rows;
}

std::int64_t Session::Select(const Statement& statement, const Params& params,
                             const EachRow& each) {
  const auto rows = Observed("select", [&] { return DoSelect(statement, params, each); });
  TellReconnection();
  return rows;
}

std::vector<std::int64_t> Session::RunTogether(const std::vector<Request>& requests) {
  return Observed("together", [&] { return DoRunTogether(requests); });
}

void Session::RunScript(const std::string& script) {
  Observed("script", [&] {
    DoRunScript(script);
    return 0;
  });
}

void Session::Begin() {
  Observed("begin", [&] {
    DoBegin();
    isInTransaction_ = true;
    return 0;
  });
}

void Session::Commit(const Proof& proof) {
  Observed("commit", [&] {
    try {
      DoCommit(proof);
    } catch (...) {
      Rollback();
      throw;
    }
    isInTransaction_ = false;
    return 0;
  });
  TellReconnection();
}

void Session::Rollback() noexcept {
  if (isPainting_) return;
  DoRollback();
  isInTransaction_ = false;
}

Standing Session::FindOut(const Doubt& doubt) noexcept {
  if (isInTransaction_ || isPainting_) return Standing::kUnknown;
  try {
    return DoFindOut(doubt);
  } catch (const std::exception&) {
    return Standing::kUnknown;
  }
}

void Session::WhileWaiting(std::function<void()> paint) {
  meanwhile_ = nullptr;
  if (!paint) return;
  meanwhile_ = [this, paint = std::move(paint)] {
    isPainting_ = true;
    try {
      paint();
    } catch (...) {
      // A call to the database ends by itself; what ends the screens is met again at rest.
    }
    isPainting_ = false;
  };
}

void Session::TellReconnection() noexcept {
  if (!hasReconnected_ || isInTransaction_) return;
  hasReconnected_ = false;
  for (const auto& listener : onReconnected_) {
    try {
      listener();
    } catch (const std::exception&) {
      // It was news, not work: whoever works meets the same trouble.
    }
  }
}

void InTransaction(Session& session, const std::function<void(Transaction&)>& body) {
  constexpr int kAttempts = 8;
  const Operation whole(session);
  for (int attempt = 1;; ++attempt) {
    try {
      Transaction transaction(session);
      body(transaction);
      transaction.Commit();
      return;
    } catch (const DatabaseError& error) {
      if (error.What() != Trouble::kConflict || attempt == kAttempts) throw;
    }
    PauseBeforeRetry(attempt);
  }
}

}  // namespace services
