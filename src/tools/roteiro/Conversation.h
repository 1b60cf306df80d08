#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "tools/roteiro/Json.h"
#include "tools/roteiro/LineReader.h"
#include "tools/roteiro/Timeline.h"

namespace roteiro {

/// The lines that come in and the lines that go out. Loops nest: whatever waits for the operator
/// reads further commands itself. A command is answered when some loop wants the next one, so a
/// handler that shows a box has its command answered inside that box.
class Conversation {
 public:
  struct Ends {
    int in = 0;
    std::ostream& out;
    std::ostream* log = nullptr;  ///< Both directions, for whoever looks for a fault in a script.
  };
  /// What carries out a command: its value, if it has one; CannotDo when it cannot.
  using Carry = std::function<std::optional<Json>(const Json&)>;

  Conversation(const Ends& ends, Timeline& timeline);

  /// Who carries out the commands, and who says where the system rests.
  void Attach(Carry carry, std::function<Json()> place);
  /// What is done whenever the system comes to rest, before it is told where: it may open a box.
  void AtRest(std::function<void()> care) { atRest_ = std::move(care); }
  /// Reads and carries out commands until `over` or until the input ends.
  void Serve(const std::function<bool()>& over);
  /// The input has ended: whatever is up is to unwind.
  bool IsClosing() const { return closing_; }

  /// Something that the next answer tells.
  void Tell(Json event);
  /// So much time passes at rest before the next answer.
  void LetPass(double seconds);

 private:
  struct Reply {
    std::optional<Json> value;
    std::string error;
  };

  std::optional<std::string> NextLine(const std::function<bool()>& over);
  void Take(const std::string& line);
  void Answer();
  void Log(const char* direction, const std::string& line);

  LineReader in_;
  std::ostream& out_;
  std::ostream* log_;
  Timeline& timeline_;
  Carry carry_;
  std::function<Json()> place_;
  std::function<void()> atRest_;
  bool closing_ = false;
  double passUntil_ = 0;
  std::uint64_t taken_ = 0;
  /// What is still to be answered; the first answer is that of the start.
  std::optional<Reply> pending_ = Reply();
  Json events_ = Json::array();
};

}  // namespace roteiro
