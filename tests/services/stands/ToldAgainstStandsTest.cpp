// A registration with its coupon is cut off or killed at one place after the other, and what the
// operator was told is held against what the database and the exchange folder hold. CAIXA_CUTS says
// how many places for each engine; the long run takes 5000.

#include <sys/socket.h>
#include <unistd.h>

#include <charconv>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <map>
#include <set>
#include <thread>

#include "base/Numbers.h"
#include "base/Text.h"
#include "roteiro/Program.h"
#include "services/Abertura.h"
#include "services/Database.h"
#include "services/faults/CuttingProxy.h"
#include "services/faults/Shared.h"
#include "services/stands/Checkout.h"
#include "services/stands/SystemCalls.h"

namespace services {
namespace {

using Deed = CuttingProxy::Deed;
using Moment = CuttingProxy::Moment;

int CutsWanted() {
  constexpr int kShort = 120;
  const char* const wanted = std::getenv("CAIXA_CUTS");
  return wanted == nullptr ? kShort : base::ToInt32(base::Val(wanted));
}

/// One way to come to grief; the places at which it can happen are found as it is tried.
struct Way {
  enum Kind { kStep, kCall, kMessage, kCommit } kind;
  const char* name;
  SystemCalls::Deed call{};
  Moment moment{};
  Deed deed{};
  int places = 0;  ///< What an undisturbed sale passes through; bytes for messages.
  int tried = 0;
};

std::vector<Way> WaysOf(Engine engine) {
  using Call = SystemCalls::Deed;
  std::vector<Way> ways{{.kind = Way::kStep, .name = "killed at a step"}};
  if (SystemCalls::CanBeWatched()) {
    ways.push_back({.kind = Way::kCall, .name = "killed before a call", .call = Call::kDieBefore});
    ways.push_back({.kind = Way::kCall, .name = "killed after a call", .call = Call::kDieAfter});
    ways.push_back({.kind = Way::kCall, .name = "a call failed", .call = Call::kDiskError});
    ways.push_back({.kind = Way::kCall, .name = "a disk was full", .call = Call::kDiskFull});
  } else {
    std::cout << "System calls cannot be watched here: those cuts are left out.\n";
  }
  if (engine == Engine::kSqlite) return ways;
  const std::pair<Deed, const char*> deeds[] = {
      {Deed::kCut, "cut"}, {Deed::kGone, "gone"}, {Deed::kMute, "mute"}};
  const std::pair<Moment, Way::Kind> moments[] = {{Moment::kClientBytes, Way::kMessage},
                                                  {Moment::kServerBytes, Way::kMessage},
                                                  {Moment::kCommitArrives, Way::kCommit},
                                                  {Moment::kCommitting, Way::kCommit},
                                                  {Moment::kCommitted, Way::kCommit}};
  for (const auto& [deed, name] : deeds) {
    for (const auto& [moment, kind] : moments) {
      ways.push_back({.kind = kind, .name = name, .moment = moment, .deed = deed});
    }
  }
  return ways;
}

/// A line on which two processes wait for each other.
class Line {
 public:
  Line() { socketpair(AF_UNIX, SOCK_STREAM, 0, ends_); }
  ~Line() { Close(0), Close(1); }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  void Close(int side) {
    if (ends_[side] >= 0) close(ends_[side]);
    ends_[side] = -1;
  }
  int End(int side) const { return ends_[side]; }
  void Say(int side) const {
    const char word = '.';
    [[maybe_unused]] const auto sent = write(ends_[side], &word, 1);
  }
  /// False when the other one is no more.
  bool Hear(int side) const {
    char word = 0;
    return read(ends_[side], &word, 1) == 1;
  }

 private:
  int ends_[2] = {-1, -1};
};

class ToldAgainstStands : public OverDatabase {
 protected:
  /// A clinic of its own, so that no look through the books gets long.
  void NewClinic() {
    banco_.reset();
    servicos::EsquecerTodos();
    address_ = NewDatabase(GetParam());
    Prepare();
    exchange_ = std::make_unique<support::TemporaryFolder>();
    notes_ = std::make_unique<support::TemporaryFolder>();
    application_ = std::make_unique<roteiro_tests::Program>(
        INTEGRADOR, std::vector<std::string>{exchange_->Path().string(), "--demora-ao-tomar",
                                             "0.003", "--demora-ao-responder", "0.01"});
  }

  static bool IsInDoubt(const Press& press) {
    return std::string_view(press.words).find("não se sabe se a venda") != std::string_view::npos;
  }

  /// In the process of the cash desk: an operator who presses Confirmar until it is registered, and
  /// who is waited for after each press. What an earlier one left in doubt is taken up first.
  int Operate(const Way& way, int place, CuttingProxy* proxy, const Line& line) {
    int steps = 0;
    bool armed = false;
    const auto step = [&] {
      if (armed && way.kind == Way::kStep && steps++ == place) raise(SIGKILL);
      places_->steps = steps;
    };
    if (proxy != nullptr) {
      proxy->LetCommitsPass(kNever);
      banco_ = AbrirBanco(
          base::Replace(address_, "port=" + PortText(), "port=" + std::to_string(proxy->Port())),
          clock_, "LOJA");
      RegistrarServicos(banco_);
    }
    banco_->LembrarRegistros(notes_->Path().string(), address_);
    constexpr std::chrono::milliseconds kShort{400};
    session().KeepTo({.reading = kShort, .writing = kShort, .findingOut = kShort});
    session().Observe([&](std::string_view) { step(); });
    Checkout checkout(banco_, exchange_->Path().string(), *press_, step);
    if (!checkout.Begin()) return 5;
    if (way.kind == Way::kCall && place >= 0) SystemCalls::OfferToBeWatched();
    if (way.kind == Way::kMessage) proxy->Arm(place);
    if (way.kind == Way::kCommit) proxy->LetCommitsPass(place);
    armed = true;
    constexpr int kMostPresses = 60;
    for (int presses = 0; presses < kMostPresses; ++presses) {
      checkout.Confirm();
      if (proxy != nullptr && presses == 0) {
        places_->bytes = static_cast<int>(proxy->Bytes());
        places_->commits = proxy->Commits();
      }
      line.Say(1);
      if (!line.Hear(1)) return 6;
      armed = false;
      // Every second one who is in doubt closes the cash desk at once, before the server is back.
      const bool closes = doubts_ % 2 == 0 && IsInDoubt(*press_);
      if (closes) return kClosed;
      if (proxy != nullptr) proxy->LetIn();
      if (press_->outcome == Press::kRegistered) break;
    }
    if (press_->outcome != Press::kRegistered) return 7;
    // A server that has been away is looked for by the host's timer.
    constexpr int kMostLooks = 200;
    for (int looks = 0; looks < kMostLooks; ++looks) {
      if (checkout.Rest()) return 0;
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return 8;
  }

  /// One sale that comes to grief at a place, or at none below 0. An operator who was killed, or
  /// closed in doubt, sells the same again in the next program, as if nothing had been.
  void Try(const Way& way, int place) {
    sales_ = Count("vendas");
    if (!Sell(way, place)) {
      EXPECT_TRUE(Sell({.kind = Way::kStep, .name = "sold again"}, -1));
    }
    EXPECT_EQ(sales_ + 1, Count("vendas")) << press_->words;
    EXPECT_EQ(0, Count("travas_de_clientes")) << press_->after;
    EXPECT_EQ(0, Count("cupons WHERE situacao IN ('enviado', 'emitido')"));
  }

  /// False when the operator was killed, or closed the cash desk in doubt.
  bool Sell(const Way& way, int place) {
    SCOPED_TRACE(std::string(way.name) + ", moment " +
                 std::to_string(static_cast<int>(way.moment)) + ", place " + std::to_string(place));
    *press_ = Press();
    std::unique_ptr<CuttingProxy> proxy;
    if (way.kind == Way::kMessage || way.kind == Way::kCommit) {
      proxy = std::make_unique<CuttingProxy>(base::ToInt32(base::Val(PortText())), way.moment,
                                             way.deed);
    }
    Line line;
    const int marker = line.End(1);
    const pid_t process = Start("LOJA", [&] {
      line.Close(0);
      return Operate(way, place, proxy.get(), line);
    });
    line.Close(1);
    if (way.kind == Way::kCall && place >= 0) {
      places_->calls = SystemCalls::Watch(process, place, way.call, marker);
    }
    while (line.Hear(0)) {
      HoldAgainst(*press_);
      line.Say(0);
    }
    const int end = EndOf(process);
    proxy.reset();
    if (end == kClosed) {
      ++closings_;
      return false;
    }
    if (end == -1) {
      AwaitCalm();
      if (Count("vendas") > sales_) ++untold_;
      return false;
    }
    EXPECT_EQ(0, end) << press_->words << press_->after;
    return true;
  }

  /// The heart of it: the words of a press against the rows.
  void HoldAgainst(const Press& press) {
    const std::string words = press.words;
    const std::int64_t stands = Count("vendas") - sales_;
    const auto says = [&](const char* what) { return words.find(what) != std::string::npos; };
    if (press.outcome == Press::kRegistered) {
      EXPECT_EQ(1, stands) << words;
      EXPECT_EQ(std::to_string(press.number), Read("SELECT max(numero) FROM vendas")) << words;
      const std::string first = "A venda " + std::to_string(press.number) + " está registrada.";
      const std::string after = press.after;
      EXPECT_TRUE(after.empty() || after.starts_with(first)) << after;
      EXPECT_EQ(std::string::npos, after.find("nada foi gravado")) << after;
    } else if (IsInDoubt(press)) {
      EXPECT_LE(stands, 1) << words;
      ++doubts_;
    } else {
      EXPECT_EQ(0, stands) << "outcome " << press.outcome << ": " << words;
      EXPECT_FALSE(words.empty() && press.outcome != Press::kNoCoupon) << press.outcome;
    }
    if (says("ficou registrada com") || says("já estava registrada")) {
      EXPECT_EQ(1, stands) << words;
    }
    if (says("não ficou registrada")) {
      EXPECT_EQ(press.outcome == Press::kRegistered ? 1 : 0, stands) << words;
    }
  }

  /// Until the server has done with who was killed.
  void AwaitCalm() {
    if (GetParam() == Engine::kSqlite) return;
    for (int looks = 0; looks < 1000; ++looks) {
      if (Count("pg_stat_activity WHERE datname = current_database()"
                " AND pid <> pg_backend_pid() AND backend_type = 'client backend'") == 0) {
        return;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    ADD_FAILURE() << "the server still has a client that was killed";
  }

  /// Every coupon that was issued stands in a sale of its own, and every sale has one.
  void ExpectACouponASale() {
    application_->Terminate();
    std::set<std::string> issued, sold;
    while (const auto line = application_->Read()) {
      if (line->starts_with("Emitido: ")) issued.insert(line->substr(9));
    }
    static const Statement keys("SELECT chave_sat FROM vendas");
    session().Select(keys, {}, [&](const Row& row) { sold.insert(row.Text(0)); });
    EXPECT_EQ(issued, sold);
    EXPECT_EQ(Count("vendas"), static_cast<std::int64_t>(sold.size()));
    ExpectBooksBalance();
  }

  /// How far an undisturbed sale gets in a way.
  void Measure(Way& way) {
    Try(way, way.kind == Way::kStep ? -1 : kNever);
    switch (way.kind) {
      case Way::kStep:
        way.places = places_->steps;
        break;
      case Way::kCall:
        way.places = places_->calls;
        break;
      case Way::kMessage:
        way.places = places_->bytes;
        break;
      case Way::kCommit:
        way.places = places_->commits;
    }
    EXPECT_GT(way.places, 1) << way.name;
  }

  std::string PortText() const {
    return std::to_string(base::ToInt32(base::Val(address_.substr(address_.find("port=") + 5))));
  }

  static constexpr int kNever = 1'000'000'000;
  static constexpr int kClosed = 20;

  struct Places {
    int steps = 0, calls = 0, bytes = 0, commits = 0;
  };
  Shared<Press> press_;
  Shared<Places> places_;
  std::unique_ptr<support::TemporaryFolder> exchange_;
  std::unique_ptr<support::TemporaryFolder> notes_;  ///< The workstation's settings folder.
  std::unique_ptr<roteiro_tests::Program> application_;
  std::int64_t sales_ = 0;
  int doubts_ = 0;
  int closings_ = 0;  ///< In doubt.
  int untold_ = 0;    ///< Sales that stood when the operator was killed.
};
OVER_BOTH_ENGINES(ToldAgainstStands);

TEST_P(ToldAgainstStands, WhereverARegistrationWithCouponIsCutOff) {
  constexpr int kSalesOfAClinic = 200;
  // A stride that passes through all places before it comes to one again, whatever their number.
  constexpr double kGolden = 0.6180339887498949;
  const int wanted = CutsWanted();
  NewClinic();
  std::vector<Way> ways = WaysOf(GetParam());
  for (Way& way : ways) Measure(way);
  for (int cut = 0; cut < wanted && !HasFailure(); ++cut) {
    if (cut % kSalesOfAClinic == kSalesOfAClinic - 1) {
      ExpectACouponASale();
      NewClinic();
    }
    Way& way = ways[static_cast<std::size_t>(cut) % ways.size()];
    const double part = (way.tried++ + 0.5) * kGolden;
    Try(way, static_cast<int>((part - static_cast<int>(part)) * way.places));
  }
  ExpectACouponASale();
  std::map<std::string, int> cuts;
  for (const Way& way : ways) cuts[way.name] += way.tried;
  for (const auto& [name, count] : cuts) std::cout << count << " x " << name << '\n';
  std::cout << doubts_ << " times in doubt, " << closings_ << " times closed so, " << untold_
            << " times killed after the commit\n";
}

}  // namespace
}  // namespace services
