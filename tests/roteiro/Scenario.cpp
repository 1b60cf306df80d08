#include "roteiro/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <stdexcept>
#include <vector>

#include "roteiro/Program.h"
#include "support/TemporaryFolder.h"

namespace roteiro_tests {
namespace {

using Json = nlohmann::ordered_json;

/// Whether all that is expected stands in the actual value. Objects may hold more; lists are as
/// long as expected; a double is no whole number.
bool Contains(const Json& actual, const Json& expected) {
  if (expected.is_object()) {
    if (!actual.is_object()) return false;
    for (const auto& [key, value] : expected.items()) {
      if (!actual.contains(key) || !Contains(actual[key], value)) return false;
    }
    return true;
  }
  if (expected.is_array()) {
    if (!actual.is_array() || actual.size() != expected.size()) return false;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      if (!Contains(actual[i], expected[i])) return false;
    }
    return true;
  }
  return expected.is_number_float() == actual.is_number_float() && actual == expected;
}

bool AnyContains(const Json& list, const Json& expected) {
  for (const Json& each : list) {
    if (Contains(each, expected)) return true;
  }
  return false;
}

void Replace(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

/// One conversation: the last answer, and what the scenario has said of it so far.
class Player {
 public:
  Player(std::string program, std::string bank)
      : programPath_(std::move(program)), bank_(std::move(bank)) {}
  ~Player() {
    for (const auto& [name, program] : beside_) program->Stop();
  }
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  void Play(const std::string& file) {
    Read(file);
    if (!ended_) End();
    for (const auto& [name, program] : beside_) {
      EXPECT_TRUE(program->Stop()) << name << " had ended by itself; " << program->Complaint();
    }
  }

 private:
  /// Follows the lines of a file; one that it includes comes back here.
  void Read(const std::string& file) {
    std::ifstream in(file);
    Require(in.good(), "no file " + file);
    int number = 0;
    for (std::string line; std::getline(in, line);) {
      here_ = file + ":" + std::to_string(++number) + ": ";
      Replace(line, "${BANCO}", bank_);
      Replace(line, "${DIR}", folder_.Path().string());
      for (const auto& [name, word] : words_) Replace(line, "${" + name + "}", word);
      if (line.empty() || line.starts_with('#')) continue;
      Follow(line, std::filesystem::path(file).parent_path());
    }
  }

  /// Once with each set of words for the names in its lines.
  void Include(const std::string& file, const Json& with) {
    const auto outer = words_;
    for (const Json& words : with) {
      for (const auto& [name, word] : words.items()) words_[name] = word.get<std::string>();
      Read(file);
      words_ = outer;
    }
  }

  void Follow(const std::string& line, const std::filesystem::path& folder) {
    const Json parsed = Json::parse(line, nullptr, false);
    Require(parsed.is_object(), "not a JSON object: " + line);
    if (parsed.contains("args") && !parsed.contains("do")) {
      Require(!program_, "\"args\" comes first");
      Start(parsed["args"].get<std::vector<std::string>>());
      return;
    }
    if (parsed.contains("include")) {
      Include(folder / parsed["include"].get<std::string>(),
              parsed.value("with", Json::array({{}})));
      return;
    }
    if (parsed.contains("run") && !parsed.contains("do")) {
      RunBeside(parsed);
      return;
    }
    if (parsed.contains("start")) {
      StartBeside(parsed);
      return;
    }
    if (parsed.contains("beside")) {
      WaitBeside(parsed["beside"]);
      return;
    }
    Require(!ended_, "the conversation has ended");
    if (parsed.contains("end")) {
      End();
      return;
    }
    if (!program_) Start({});
    Json command = Json::object();
    Json expected = Json::object();
    for (const auto& [key, value] : parsed.items()) {
      (IsExpectation(key) ? expected : command)[key] = value;
    }
    if (parsed.contains("raw")) {
      Send(parsed["raw"].get<std::string>());
    } else if (!command.empty()) {
      Require(command.contains("do"), "neither a command nor an expectation: " + line);
      Send(command.dump());
    }
    for (const char* key : {"expect", "says", "event", "no-event", "box", "focus", "state"}) {
      if (expected.contains(key)) Expect(key, expected[key], expected);
    }
  }

  static bool IsExpectation(const std::string& key) {
    static const std::set<std::string> kKeys{"expect", "says", "event",  "no-event",
                                             "state",  "box",  "answer", "focus"};
    return kKeys.contains(key);
  }

  void Start(const std::vector<std::string>& extra) {
    std::vector<std::string> arguments{"--dir", folder_.Path().string(), "--now",
                                       "2026-11-22T14:30:00"};
    arguments.insert(arguments.end(), extra.begin(), extra.end());
    program_ = std::make_unique<Program>(programPath_, arguments);
    TakeAnswer();
  }

  void End() {
    if (!program_) Start({});
    Conclude();
    EXPECT_EQ(program_->Finish(), 0) << here_ << "exit status; " << program_->Complaint();
    ended_ = true;
  }

  /// Runs another of our programs to its end.
  void RunBeside(const Json& step) {
    const std::unique_ptr<Program> beside = Launched(step["run"]);
    std::string printed;
    for (const Json& line : step.value("input", Json::array())) beside->Send(line.dump());
    beside->EndInput();
    while (const std::optional<std::string> line = beside->Read()) printed += *line + "\n";
    EXPECT_EQ(beside->Finish(), 0) << here_ << printed << beside->Complaint();
    for (const Json& part : step.value("prints", Json::array())) {
      EXPECT_NE(printed.find(part.get<std::string>()), std::string::npos)
          << here_ << "expected " << part << " in\n"
          << printed;
    }
  }

  /// Starts another of our programs, which works beside the conversation until the scenario ends.
  void StartBeside(const Json& step) {
    const std::string name = step["start"][0];
    beside_.emplace_back(name, Launched(step["start"]));
    if (step.contains("prints")) WaitBeside(step["prints"]);
  }

  /// Lets the program that was started last get as far as printing this.
  void WaitBeside(const std::string& text) {
    Require(!beside_.empty(), "no program was started");
    auto& [name, program] = beside_.back();
    std::optional<std::string> line = program->Read();
    while (line && line->find(text) == std::string::npos) line = program->Read();
    Require(line.has_value(), name + " never printed: " + text);
  }

  /// A program of the same folder as the one that is talked to.
  std::unique_ptr<Program> Launched(const Json& words) const {
    auto arguments = words.get<std::vector<std::string>>();
    Require(!arguments.empty(), "no program is named");
    const auto path = std::filesystem::path(programPath_).parent_path() / arguments.front();
    arguments.erase(arguments.begin());
    return std::make_unique<Program>(path, arguments);
  }

  /// Sends a command when nothing is left to say of the answer before it.
  void Send(const std::string& line) {
    Conclude();
    program_->Send(line);
    TakeAnswer();
  }

  void TakeAnswer() {
    const std::optional<std::string> line = program_->Read();
    if (!line) program_->Finish();
    Require(line.has_value(), "no answer; " + program_->Complaint());
    answer_ = Json::parse(*line, nullptr, false);
    Require(answer_.is_object(), "not an answer: " + *line);
    answeredAt_ = here_;
    refusalExpected_ = false;
    errors_.clear();
    for (const Json& event : answer_["events"]) {
      if (event["event"] == "error") errors_.push_back(event);
    }
  }

  void Expect(const std::string& key, const Json& expected, const Json& beside) {
    const Json& events = answer_["events"];
    if (key == "expect") {
      EXPECT_TRUE(Contains(answer_, expected))
          << here_ << "expected " << expected << "\nbut got " << answer_;
      if (expected.contains("ok")) refusalExpected_ = true;
      for (const Json& each : expected.value("events", Json::array())) Forgive(each);
    } else if (key == "says") {
      const std::string text = answer_["at"].value("text", "");
      EXPECT_NE(text.find(expected.get<std::string>()), std::string::npos)
          << here_ << expected << "\nbut got " << answer_;
    } else if (key == "event") {
      EXPECT_TRUE(AnyContains(events, expected)) << here_ << "no such event in " << events;
      Forgive(expected);
    } else if (key == "no-event") {
      EXPECT_FALSE(AnyContains(events, expected)) << here_ << "such an event in " << events;
    } else if (key == "box") {
      const Json place = {{"kind", "message"}, {"text", expected}};
      Require(Contains(answer_["at"], place), place.dump() + "\nbut got " + answer_.dump());
      Send(Json{{"do", "answer"}, {"with", beside.value("answer", "ok")}}.dump());
    } else if (key == "focus") {
      const Json place = {{"kind", "form"}, {"focus", expected}};
      EXPECT_TRUE(Contains(answer_["at"], place)) << here_ << place << "\nbut got " << answer_;
    } else if (key == "state") {
      for (const auto& [name, value] : expected.items()) ExpectState(name, value);
    }
  }

  /// Asks for what a name of "state" stands for. The last answer stays the one spoken of.
  void ExpectState(const std::string& name, const Json& expected) {
    const std::size_t bracket = name.find('[');
    const std::size_t dot = name.rfind('.');
    const std::string front = name.substr(0, std::min(bracket, dot));
    Json command{{"do", "get"}, {"control", front}, {"property", "Text"}};
    if (bracket != std::string::npos) {
      const Json cell = Json::parse(name.substr(bracket));
      command = {{"do", "cell"}, {"control", front}, {"row", cell[0]}, {"col", cell[1]}};
    } else if (front == "host") {
      command = {{"do", "host"}, {"member", name.substr(dot + 1)}};
    } else if (front == "value") {
      command = {{"do", "value"}, {"name", name.substr(dot + 1)}};
    } else if (dot != std::string::npos) {
      command["property"] = name.substr(dot + 1);
    }
    if (const std::size_t colon = front.find(':'); colon != std::string::npos) {
      command["control"] = front.substr(0, colon);
      command["button"] = front.substr(colon + 1);
    }
    program_->Send(command.dump());
    const Json answer = Json::parse(program_->Read().value_or(""), nullptr, false);
    Require(answer.is_object() && answer.contains("value"), "no " + name + ": " + answer.dump());
    const Json& value = bracket == std::string::npos ? answer["value"] : answer["value"]["text"];
    EXPECT_TRUE(Contains(value, expected)) << here_ << name << " is " << value;
    EXPECT_FALSE(AnyContains(answer["events"], {{"event", "error"}})) << here_ << answer;
  }

  void Forgive(const Json& event) {
    if (event.value("event", "") != "error") return;
    std::erase_if(errors_, [&](const Json& error) { return Contains(error, event); });
  }

  /// The scenario has nothing more to say of the last answer.
  void Conclude() {
    EXPECT_TRUE(answer_["ok"] == true || refusalExpected_) << answeredAt_ << "refused: " << answer_;
    for (const Json& error : errors_)
      ADD_FAILURE() << answeredAt_ << "error nobody expected: " << error;
  }

  /// What a scenario cannot go on without.
  void Require(bool holds, const std::string& otherwise) const {
    if (!holds) throw std::runtime_error(here_ + otherwise);
  }

  std::string programPath_;
  std::string bank_;
  support::TemporaryFolder folder_;           ///< "${DIR}" in the lines.
  std::map<std::string, std::string> words_;  ///< What other names in braces stand for.
  std::unique_ptr<Program> program_;
  std::vector<std::pair<std::string, std::unique_ptr<Program>>> beside_;
  bool ended_ = false;
  std::string here_;  ///< File and line, for what is told of them.
  Json answer_;
  std::string answeredAt_;
  bool refusalExpected_ = false;
  std::vector<Json> errors_;
};

}  // namespace

void Play(const std::string& program, const std::string& file, const std::string& bank) {
  try {
    Player(program, bank).Play(file);
  } catch (const std::exception& failure) {
    ADD_FAILURE() << failure.what();
  }
}

}  // namespace roteiro_tests
