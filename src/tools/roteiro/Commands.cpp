#include "tools/roteiro/Commands.h"

#include <algorithm>

#include "platform/Screens.h"
#include "tools/roteiro/Conversation.h"
#include "tools/roteiro/HeadlessDesktop.h"
#include "tools/roteiro/Refusal.h"

namespace roteiro {
namespace {

/// Where the system must rest for a command.
enum class Where {
  kAnywhere,
  kScreen,    ///< At a screen; an act of the operator.
  kMessage,   ///< At a message box; an act of the operator.
  kPopup,     ///< At a popup menu; an act of the operator.
  kPreview,   ///< At a report preview; an act of the operator.
  kPassing,   ///< At a popup menu or a preview; an act of the operator.
  kHost,      ///< Where the host has its window to itself: at no box and no modal screen.
  kControls,  ///< At a screen, or anywhere when "form" names one.
};

bool IsAct(Where where) {
  constexpr Where kActs[] = {Where::kScreen, Where::kMessage, Where::kPopup, Where::kPreview,
                             Where::kPassing};
  return std::ranges::find(kActs, where) != std::end(kActs);
}

/// A command: its name, the fields that it takes beside "do", parted by blanks, and what it does.
struct Command {
  std::string_view name;
  std::string_view fields;
  Where where;
  CommandBody* body;
};

constexpr Command kCommands[] = {
    {"session", "fields", Where::kAnywhere, host::TakeSession},
    {"open", "title", Where::kHost, host::Open},
    {"host", "member args", Where::kAnywhere, host::Use},
    {"focus", "control form", Where::kScreen, acts::Focus},
    {"type", "control form text", Where::kScreen, acts::Type},
    {"key", "key", Where::kScreen, acts::Key},
    {"click", "control form row col button double", Where::kScreen, acts::Click},
    {"wheel", "control form delta", Where::kScreen, acts::Wheel},
    {"select", "control form index text drop", Where::kScreen, acts::Select},
    {"toolbar", "button form", Where::kScreen, acts::Toolbar},
    {"menu", "item", Where::kPopup, acts::ChooseEntry},
    {"dismiss", "", Where::kPassing, acts::Dismiss},
    {"print", "", Where::kPreview, acts::Print},
    {"answer", "with", Where::kMessage, acts::Answer},
    {"close", "", Where::kScreen, acts::Close},
    {"advance", "seconds", Where::kAnywhere, host::Advance},
    {"at", "seconds file write delete run", Where::kAnywhere, host::At},
    {"disk", "seconds", Where::kAnywhere, host::Disk},
    {"stub", "class member result rows outputs properties times missing", Where::kAnywhere,
     host::Stub},
    {"calls", "class", Where::kAnywhere, host::Calls},
    {"get", "control form button property", Where::kControls, reads::Get},
    {"set", "control form button property value", Where::kControls, reads::Set},
    {"grid", "control form", Where::kControls, reads::Grid},
    {"cell", "control form row col", Where::kControls, reads::Cell},
    {"form", "form", Where::kControls, reads::Screen},
    {"value", "name", Where::kAnywhere, host::Value},
    {"report", "", Where::kAnywhere, reads::Report},
    {"forms", "", Where::kAnywhere, reads::Screens},
};

bool HasWord(std::string_view words, std::string_view word) {
  return (" " + std::string(words) + " ").find(" " + std::string(word) + " ") != std::string::npos;
}

const Command& CommandIn(const Arguments& arguments) {
  const std::string name = arguments.Text("do");
  const auto* const found = std::ranges::find(kCommands, name, &Command::name);
  if (found == std::end(kCommands)) throw CannotDo("unknown command \"" + name + "\"");
  for (const auto& [field, value] : arguments.Command().items()) {
    if (field == "do" || HasWord(found->fields, field)) continue;
    throw CannotDo(std::string("\"").append(name).append("\" takes no field \"").append(field) +
                   "\"");
  }
  return *found;
}

void RequirePlace(Where where, const Hold* held, const Arguments& arguments) {
  const bool atBox = held != nullptr && held->box != nullptr;
  const bool atPopup = held != nullptr && held->menu != nullptr;
  const bool atPreview = held != nullptr && held->preview != nullptr;
  const bool needsScreen = where == Where::kScreen || where == Where::kHost ||
                           (where == Where::kControls && !arguments.Has("form"));
  if (needsScreen && atBox) throw CannotDo("a message box is up");
  if (needsScreen && atPopup) throw CannotDo("a popup menu is up");
  if (needsScreen && atPreview) throw CannotDo("a report preview is up");
  if (where == Where::kMessage && !atBox) throw CannotDo("no message box is up");
  if (where == Where::kPopup && !atPopup) throw CannotDo("no popup menu is up");
  if (where == Where::kPreview && !atPreview) throw CannotDo("no report preview is up");
  if (where == Where::kPassing && !atPopup && !atPreview) {
    throw CannotDo("no popup menu and no report preview is up");
  }
  if (where == Where::kHost && platform::screens::Modal() != nullptr) {
    throw CannotDo("a modal screen is up");
  }
}

}  // namespace

std::optional<Json> CarryOut(Stage& stage, const Json& command) {
  const Arguments arguments(command);
  const Command& found = CommandIn(arguments);
  RequirePlace(found.where, stage.desktop.Held(), arguments);
  return found.body(stage, arguments);
}

void RequireAct(const Json& command) {
  if (!command.is_object()) throw CannotDo("\"run\" is not a command");
  const Command& found = CommandIn(Arguments(command));
  if (!IsAct(found.where)) {
    throw CannotDo("\"" + std::string(found.name) + "\" is no act of the operator");
  }
}

void CarryOutScheduled(Stage& stage, const Json& command) {
  Json event{{"event", "dropped"}, {"do", command["do"]}};
  try {
    CarryOut(stage, command);
  } catch (const Dropped&) {
    stage.conversation.Tell(event);
  } catch (const CannotDo& refusal) {
    event["error"] = refusal.what();
    stage.conversation.Tell(event);
  }
}

}  // namespace roteiro
