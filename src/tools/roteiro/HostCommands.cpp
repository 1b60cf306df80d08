#include "base/RuntimeError.h"
#include "platform/Desktop.h"
#include "platform/Input.h"
#include "tools/roteiro/Commands.h"
#include "tools/roteiro/Conversation.h"
#include "tools/roteiro/HeadlessDesktop.h"
#include "tools/roteiro/Module.h"
#include "tools/roteiro/Session.h"
#include "tools/roteiro/StandIns.h"
#include "tools/roteiro/Timeline.h"

namespace roteiro::host {
namespace {

constexpr std::string_view kLocked = "CodigoDoClienteComOperacoesBloqueadas";
constexpr std::string_view kLockOrUnlock =
    "ClasseBloquearOuDesbloquearClienteParaOperacoesNosCaixas";

/// What another program does to a file. It tells when it could not.
void Outside(Stage& stage, const std::string& path, const std::optional<std::string>& bytes) {
  try {
    if (bytes) {
      platform::files::Write(path, *bytes);
    } else if (platform::files::Exists(path)) {
      platform::files::Delete(path);
    }
  } catch (const base::RuntimeError& error) {
    stage.conversation.Tell(
        {{"event", "dropped"}, {"do", "at"}, {"error", path + ": " + error.Description()}});
  }
}

}  // namespace

std::optional<Json> TakeSession(Stage& stage, const Arguments& arguments) {
  const Json& fields = arguments.Any("fields");
  if (!fields.is_object()) throw CannotDo("\"fields\" is not an object");
  // All are read before any is set: a command that cannot be carried out changes nothing.
  for (const auto& [name, value] : fields.items()) ToValue(value);
  for (const auto& [name, value] : fields.items()) stage.session.Set(name, ToValue(value));
  return std::nullopt;
}

std::optional<Json> Open(Stage& stage, const Arguments& arguments) {
  const std::string title = arguments.Text("title", "Caixa");
  platform::input::Run([&] { stage.module.Open(stage.session, title, kMainWindow, kContainer); });
  return std::nullopt;
}

std::optional<Json> Use(Stage& stage, const Arguments& arguments) {
  const std::string member = arguments.Text("member");
  const Json args = arguments.Has("args") ? arguments.Any("args") : Json::array();
  const bool reads = member == kLocked;
  if (!reads && member != kLockOrUnlock) throw CannotDo("the public class has no member " + member);
  if (!args.is_array() || args.size() != (reads ? 0u : 2u)) {
    throw CannotDo(member + (reads ? " takes no arguments" : " takes two arguments"));
  }
  if (reads) return stage.module.LockedCustomer();
  const Json named{{"customer", args[0]}, {"action", args[1]}};
  const Arguments numbers(named);
  const std::int32_t customer = numbers.Int("customer");
  const auto action = static_cast<std::int16_t>(numbers.Int("action", -32'768, 32'767));
  platform::input::Run([&] { stage.module.LockOrUnlock(customer, action); });
  return std::nullopt;
}

std::optional<Json> Value(Stage& stage, const Arguments& arguments) {
  const std::string name = arguments.Text("name");
  const std::optional<base::Value> value = stage.module.ValueOf(name);
  if (!value) throw CannotDo("no process-wide value " + name);
  return ToJson(*value);
}

std::optional<Json> Advance(Stage& stage, const Arguments& arguments) {
  stage.conversation.LetPass(arguments.Seconds("seconds"));
  return std::nullopt;
}

std::optional<Json> At(Stage& stage, const Arguments& arguments) {
  const double seconds = arguments.Seconds("seconds");
  const bool writes = arguments.Has("write");
  const bool deletes = arguments.Flag("delete", false);
  const bool runs = arguments.Has("run");
  if (writes + deletes + runs != 1) {
    throw CannotDo("one of \"write\", \"delete\": true and \"run\" says what happens");
  }
  if (runs == arguments.Has("file")) throw CannotDo("\"file\" goes with \"write\" or \"delete\"");
  if (runs) {
    const Json& act = arguments.Any("run");
    RequireAct(act);
    stage.timeline.At(seconds, Timeline::Cause::kOperator,
                      [&stage, act] { CarryOutScheduled(stage, act); });
    return std::nullopt;
  }
  std::optional<std::string> bytes;
  if (writes) bytes = arguments.Text("write");
  stage.timeline.At(
      seconds, Timeline::Cause::kOutside,
      [&stage, path = arguments.Text("file"), bytes] { Outside(stage, path, bytes); });
  return std::nullopt;
}

std::optional<Json> Disk(Stage& stage, const Arguments& arguments) {
  stage.desktop.DiskDelay(arguments.Seconds("seconds"));
  return std::nullopt;
}

std::optional<Json> Stub(Stage& stage, const Arguments& arguments) {
  stage.standIns.Program(arguments.Command());
  return std::nullopt;
}

std::optional<Json> Calls(Stage& stage, const Arguments& arguments) {
  const std::string className = arguments.Text("class", "");
  if (arguments.Has("class") && !StandIns::IsClass(className)) {
    throw CannotDo("the contract has no class \"" + className + "\"");
  }
  return stage.standIns.TakeCalls(className);
}

}  // namespace roteiro::host
