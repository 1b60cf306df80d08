#pragma once

#include <optional>
#include <string_view>

#include "tools/roteiro/Arguments.h"
#include "tools/roteiro/Json.h"

namespace roteiro {

class Conversation;
class HeadlessDesktop;
class Module;
class Session;
class StandIns;
class Timeline;

/// All that a command may work on.
struct Stage {
  Conversation& conversation;
  Timeline& timeline;
  HeadlessDesktop& desktop;
  StandIns& standIns;
  Session& session;
  Module& module;
};

/// Carries out one command of a script, as the README tables them. Gives the command's value, if it
/// has one; CannotDo when it cannot be carried out.
std::optional<Json> CarryOut(Stage& stage, const Json& command);

/// Whether this is one act of the operator, which may be scheduled; CannotDo says why it is not.
void RequireAct(const Json& command);
/// An act that was scheduled comes due: there is no answer, so what cannot be done is told as an
/// event.
void CarryOutScheduled(Stage& stage, const Json& command);

/// What carries out one command.
using CommandBody = std::optional<Json>(Stage& stage, const Arguments& arguments);

/// The acts of the operator.
namespace acts {
CommandBody Focus, Type, Key, Click, Wheel, Select, Toolbar, ChooseEntry, Dismiss, Print, Answer,
    Close;
}  // namespace acts

/// What a script reads from the screens and reports, and the writing of a property for test set-up.
namespace reads {
CommandBody Get, Set, Grid, Cell, Screen, Screens, Report;
}  // namespace reads

/// The host, the world outside, the services.
namespace host {
CommandBody TakeSession, Open, Use, Value, Advance, At, Disk, Stub, Calls;
}  // namespace host

}  // namespace roteiro
