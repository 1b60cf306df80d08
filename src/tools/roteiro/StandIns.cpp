#include "tools/roteiro/StandIns.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <utility>

#include "base/RuntimeError.h"
#include "tools/roteiro/ContractMembers.h"

namespace roteiro {
namespace {

constexpr const char* kAccessNames[] = {"create", "set", "call", "get", "release"};

const Json& Field(const Json& object, std::string_view key) {
  static const Json kNothing;
  const auto found = object.find(key);
  return found == object.end() ? kNothing : *found;
}

/// The rows have the fields that any of them names, in the order in which they first appear; a
/// field that a row does not name is null in it.
void TakeRows(const Json& rows, Programmed& answer) {
  if (!rows.is_array()) throw CannotDo("\"rows\" is not a list");
  for (const Json& row : rows) {
    if (!row.is_object()) throw CannotDo("not a row: " + row.dump());
    for (const auto& [name, value] : row.items()) {
      if (std::ranges::find(answer.fields, name) == answer.fields.end()) {
        answer.fields.push_back(name);
      }
    }
  }
  for (const Json& row : rows) {
    std::vector<base::Value> values;
    for (const std::string& name : answer.fields) values.push_back(ToValue(Field(row, name)));
    answer.rows.push_back(std::move(values));
  }
}

void TakeOutputs(const Json& outputs, Programmed& answer) {
  if (!outputs.is_object()) throw CannotDo("\"outputs\" is not an object");
  for (const auto& [position, value] : outputs.items()) {
    int index = -1;
    const char* const end = position.data() + position.size();
    const auto parsed = std::from_chars(position.data(), end, index);
    if (parsed.ptr != end || parsed.ec != std::errc() || index < 0) {
      throw CannotDo("not the position of an argument: \"" + position + "\"");
    }
    answer.outputs[index] = ToValue(value);
  }
}

void TakeProperties(const Json& properties, std::string_view className, Programmed& answer) {
  if (!properties.is_object()) throw CannotDo("\"properties\" is not an object");
  for (const auto& [name, value] : properties.items()) {
    if (!contract::IsMember(className, name)) {
      throw CannotDo(std::string(className) + " has no member " + name);
    }
    answer.properties[name] = ToValue(value);
  }
}

Programmed AnswerIn(const Json& command, std::string_view className) {
  Programmed answer;
  if (command.contains("missing")) {
    if (!command["missing"].is_boolean()) throw CannotDo("\"missing\" is not true or false");
    answer.missing = command["missing"];
  }
  if (command.contains("result")) answer.result = ToValue(command["result"]);
  if (command.contains("rows")) TakeRows(command["rows"], answer);
  if (command.contains("outputs")) TakeOutputs(command["outputs"], answer);
  if (command.contains("properties")) TakeProperties(command["properties"], className, answer);
  return answer;
}

std::string TextIn(const Json& command, std::string_view key) {
  const Json& field = Field(command, key);
  if (!field.is_null() && !field.is_string()) {
    throw CannotDo("\"" + std::string(key) + "\" is not a text");
  }
  return field.is_null() ? std::string() : field.get<std::string>();
}

}  // namespace

base::RecordSetPtr Programmed::Selection() const {
  auto selection = std::make_shared<base::RecordSet>(fields);
  for (const std::vector<base::Value>& row : rows) selection->Append(row);
  return selection;
}

bool StandIns::IsClass(std::string_view className) {
  return contract::IsClass(className);
}

void StandIns::Program(const Json& command) {
  const std::string className = TextIn(command, "class");
  const std::string member = TextIn(command, "member");
  if (!IsClass(className)) throw CannotDo("the contract has no class \"" + className + "\"");
  if (businessIsReal_ && className.starts_with("ZOVA_N_")) {
    throw CannotDo(className + " is no stand-in: the database answers for it");
  }
  if (!member.empty() && !contract::IsMember(className, member)) {
    throw CannotDo(className + " has no member " + member);
  }
  if (member.empty() && !command.contains("missing") && !command.contains("properties")) {
    throw CannotDo("\"member\" is missing");
  }
  Programmed answer = AnswerIn(command, className);
  const Json& times = Field(command, "times");
  if (!times.is_null() && (!times.is_number_integer() || times < 1 || times > 1'000'000)) {
    throw CannotDo("\"times\" is not a whole number from 1 to 1000000");
  }
  if (businessIsReal_) RegisterSiblingStandIn(*this, className);
  Answers& answers = programmed_[className][member];
  if (times.is_null()) {
    answers.standing = std::move(answer);
  } else {
    answers.queued.emplace_back(times.get<std::int32_t>(), std::move(answer));
  }
}

Programmed StandIns::Next(std::string_view className, std::string_view member) {
  const auto ofClass = programmed_.find(className);
  if (ofClass == programmed_.end()) return {};
  const auto found = ofClass->second.find(member);
  if (found == ofClass->second.end()) return {};
  Answers& answers = found->second;
  if (answers.queued.empty()) return answers.standing;
  Programmed answer = answers.queued.front().second;
  if (--answers.queued.front().first == 0) answers.queued.pop_front();
  return answer;
}

Json StandIns::TakeCalls(std::string_view className) {
  if (className.empty()) return std::exchange(log_, Json::array());
  Json taken = Json::array();
  Json left = Json::array();
  for (Json& each : log_) {
    (each["class"] == className ? taken : left).push_back(std::move(each));
  }
  log_ = std::move(left);
  return taken;
}

Programmed StandIns::Used(std::string_view className, Access access, std::string_view member,
                          Json args) {
  if (!member.empty() && !contract::IsMember(className, member)) {
    throw std::logic_error("not in the contract: " + std::string(member));
  }
  log_.push_back({{"class", className},
                  {"what", kAccessNames[static_cast<std::size_t>(access)]},
                  {"member", member},
                  {"args", std::move(args)}});
  if (access == Access::kRelease) return {};
  Programmed answer = Next(className, member);
  if (answer.missing) {
    throw base::RuntimeError(access == Access::kCreate ? base::Fault::kCannotCreateObject
                                                       : base::Fault::kNoSuchMember);
  }
  return answer;
}

void StandIns::TellError(std::int32_t number, std::string_view description,
                         std::string_view location) {
  tell_({{"event", "error"},
         {"number", number},
         {"description", description},
         {"location", location}});
}

}  // namespace roteiro
