#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Record.h"
#include "base/Value.h"
#include "tools/roteiro/Json.h"

namespace roteiro {

/// What a script has told a stand-in to answer for one member.
struct Programmed {
  bool missing = false;
  std::optional<base::Value> result;
  std::vector<std::string> fields;
  std::vector<std::vector<base::Value>> rows;
  std::map<int, base::Value> outputs;  ///< By position of the argument, counted from 0.
  std::map<std::string, base::Value, std::less<>> properties;

  /// A new record set of these rows, its cursor on the first.
  base::RecordSetPtr Selection() const;
};

/// What an access to a stand-in was.
enum class Access { kCreate, kSet, kCall, kGet, kRelease };

/// All that the stand-ins of the service contract share: the answers that the script gave them, and
/// the log of what the module asked.
class StandIns {
 public:
  /// `tell` takes what the next answer is to tell.
  explicit StandIns(std::function<void(Json)> tell) : tell_(std::move(tell)) {}

  /// The fields of a command "stub"; CannotDo when they make no sense.
  void Program(const Json& command);
  /// Real services stand behind the business classes: scripts can no longer program those. Behind
  /// the sibling screens stand the real ones until a script programs one, whose stand-in then
  /// takes its place.
  void BusinessIsReal() { businessIsReal_ = true; }
  /// The logged accesses, of one class or of all when it is empty; they leave the log.
  Json TakeCalls(std::string_view className);
  static bool IsClass(std::string_view className);

  /// A stand-in was used: logs it and gives the answer that is due. Run-time error 438 (429 for a
  /// creation) when the script says that the member is missing.
  Programmed Used(std::string_view className, Access access, std::string_view member, Json args);
  /// The error viewer was shown.
  void TellError(std::int32_t number, std::string_view description, std::string_view location);

 private:
  struct Answers {
    std::deque<std::pair<std::int32_t, Programmed>> queued;  ///< With the times left.
    Programmed standing;
  };
  Programmed Next(std::string_view className, std::string_view member);

  std::function<void(Json)> tell_;
  bool businessIsReal_ = false;
  /// By class, then by member; the creation is the member without a name.
  std::map<std::string, std::map<std::string, Answers, std::less<>>, std::less<>> programmed_;
  Json log_ = Json::array();
};

/// Puts a stand-in behind every business service of the contract; `all` outlives them.
void RegisterBusinessStandIns(StandIns& all);
/// Puts a stand-in behind the error viewer and the dimming; `all` outlives them.
void RegisterEffectStandIns(StandIns& all);
/// Puts a stand-in behind every other sibling screen; `all` outlives them.
void RegisterScreenStandIns(StandIns& all);
/// Puts a stand-in behind one of these screens or effects; nothing happens for another class.
void RegisterSiblingStandIn(StandIns& all, std::string_view className);

}  // namespace roteiro
