#include "tools/roteiro/Conversation.h"

#include <algorithm>
#include <utility>

namespace roteiro {

Conversation::Conversation(const Ends& ends, Timeline& timeline)
    : in_(ends.in), out_(ends.out), log_(ends.log), timeline_(timeline) {}

void Conversation::Attach(Carry carry, std::function<Json()> place) {
  carry_ = std::move(carry);
  place_ = std::move(place);
}

void Conversation::Tell(Json event) {
  events_.push_back(std::move(event));
}

void Conversation::LetPass(double seconds) {
  passUntil_ = std::max(passUntil_, timeline_.Elapsed()) + seconds;
}

void Conversation::Serve(const std::function<bool()>& over) {
  while (const std::optional<std::string> line = NextLine(over)) Take(*line);
}

std::optional<std::string> Conversation::NextLine(const std::function<bool()>& over) {
  const auto stop = [&] { return closing_ || over(); };
  do {
    // Again where an act on the way rested in a loop of its own and more time was asked for there.
    do {
      timeline_.PassUntil(passUntil_, stop);
    } while (!stop() && timeline_.IsAhead(passUntil_));
    if (!stop() && atRest_) atRest_();
    if (stop()) return std::nullopt;
    Answer();
  } while (!in_.Wait(timeline_.UntilNext()));
  std::optional<std::string> line = in_.Line();
  if (!line) closing_ = true;
  return line;
}

void Conversation::Take(const std::string& line) {
  Log("> ", line);
  const std::uint64_t mine = ++taken_;
  pending_ = Reply();
  Reply reply;
  try {
    const Json command = Json::parse(line, nullptr, false);
    if (!command.is_object()) throw CannotDo("not a JSON object on one line");
    reply.value = carry_(command);
  } catch (const CannotDo& refusal) {
    reply.error = refusal.what();
  }
  // A handler that came to rest on the way has had its command answered there.
  if (pending_ && taken_ == mine) pending_ = std::move(reply);
}

void Conversation::Answer() {
  if (!pending_) return;
  const Reply reply = *std::exchange(pending_, std::nullopt);
  Json answer = Json::object();
  answer["ok"] = reply.error.empty();
  if (!reply.error.empty()) answer["error"] = reply.error;
  answer["at"] = place_();
  answer["events"] = Json::array();
  // A command that was not carried out has caused nothing: what there is belongs to the next one.
  if (reply.error.empty()) answer["events"] = std::exchange(events_, Json::array());
  if (reply.value) answer["value"] = *reply.value;
  const std::string line = answer.dump(-1, ' ', false, Json::error_handler_t::replace);
  Log("< ", line);
  out_ << line << '\n' << std::flush;
}

void Conversation::Log(const char* direction, const std::string& line) {
  if (log_ != nullptr) *log_ << direction << line << '\n' << std::flush;
}

}  // namespace roteiro
