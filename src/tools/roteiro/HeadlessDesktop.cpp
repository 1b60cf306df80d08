#include "tools/roteiro/HeadlessDesktop.h"

#include <unistd.h>

#include <array>
#include <utility>

#include "platform/Input.h"
#include "platform/Menu.h"
#include "platform/Screens.h"

namespace roteiro {
namespace {

// The container that the host gives the counter: 1024 by 768 pixels, in twips.
constexpr std::int32_t kContainerWidth = 15'360;
constexpr std::int32_t kContainerHeight = 11'520;

/// What one pass of event processing takes; on the real clock it only gives the processor away.
constexpr double kPass = 0.05;
constexpr double kRealPass = 0.001;

}  // namespace

HeadlessDesktop::HeadlessDesktop(Conversation& conversation, Timeline& timeline, std::string folder,
                                 std::string computer)
    : conversation_(conversation),
      timeline_(timeline),
      folder_(std::move(folder)),
      computer_(std::move(computer)),
      watch_([&conversation](Json event) { conversation.Tell(std::move(event)); }) {
  Install(this);
}

HeadlessDesktop::~HeadlessDesktop() {
  CloseWindows();
  Install(nullptr);
}

void HeadlessDesktop::CloseWindows() {
  while (!adopted_.empty()) adopted_.pop_back();
}

platform::Form* HeadlessDesktop::InFront() {
  platform::Form* const modal = platform::screens::Modal();
  return modal != nullptr ? modal : platform::screens::Front();
}

void HeadlessDesktop::Placing(platform::Form& form) {
  if (form.Parent() == kContainer) form.ResizeTo(kContainerWidth, kContainerHeight);
}

void HeadlessDesktop::Adopt(platform::WindowHandle, std::unique_ptr<platform::Form> form) {
  adopted_.push_back(std::move(form));
}

void HeadlessDesktop::Serve(const std::function<bool()>& over) {
  conversation_.Serve(over);
  if (conversation_.IsClosing()) throw platform::Shutdown();
}

void HeadlessDesktop::Await(Hold& hold) {
  struct Scope {
    Scope(std::vector<Hold*>& all, Hold& mine) : holds(all) { holds.push_back(&mine); }
    ~Scope() { holds.pop_back(); }
    std::vector<Hold*>& holds;
  } scope(holds_, hold);
  Serve([&hold] { return hold.over; });
}

void HeadlessDesktop::RunModal(platform::Form& form) {
  Serve([&form] { return !form.IsVisible(); });
}

platform::Answer HeadlessDesktop::Ask(const platform::MessageBox& box) {
  Hold hold{.box = &box};
  Await(hold);
  return hold.answer;
}

void HeadlessDesktop::PopUp(platform::Menu& menu, const platform::Control&) {
  Hold hold{.menu = &menu};
  Await(hold);
  if (hold.chosen != nullptr &&
      platform::input::Choose(*hold.chosen) != platform::input::Outcome::kDone) {
    conversation_.Tell({{"event", "dropped"}, {"do", "menu"}});
  }
}

platform::ReportPages HeadlessDesktop::Composed(const platform::DataReport& report) const {
  return platform::Compose(report, platform::PlainMeasure(), timeline_.Now());
}

void HeadlessDesktop::Preview(platform::DataReport& report) {
  report_ = Composed(report);
  Hold hold{.preview = &*report_};
  Await(hold);
}

void HeadlessDesktop::Print(platform::DataReport& report) {
  report_ = Composed(report);
  TellPrinted(*report_);
}

void HeadlessDesktop::TellPrinted(const platform::ReportPages& report) {
  conversation_.Tell(
      {{"event", "printed"}, {"report", report.name}, {"pages", report.pages.size()}});
}

void HeadlessDesktop::ProcessEvents() {
  watch_.LookAround();
  const double pass = timeline_.IsVirtual() ? kPass : kRealPass;
  timeline_.PassUntil(timeline_.Elapsed() + pass, [this] { return conversation_.IsClosing(); });
  if (conversation_.IsClosing()) throw platform::Shutdown();
}

void HeadlessDesktop::Freeze(double seconds) {
  timeline_.Freeze(seconds);
}

void HeadlessDesktop::KeysSent(std::string_view keys) {
  conversation_.Tell({{"event", "keys"}, {"keys", keys}});
}

void HeadlessDesktop::Dim(platform::WindowHandle, std::int16_t intensity) {
  watch_.LookAround();
  conversation_.Tell({{"event", "dim"}, {"intensity", intensity}});
}

void HeadlessDesktop::Undim(platform::WindowHandle) {
  watch_.LookAround();
  conversation_.Tell({{"event", "undim"}});
}

std::string HeadlessDesktop::ComputerName() {
  if (!computer_.empty()) return computer_;
  std::array<char, 256> name{};
  return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

bool HeadlessDesktop::FileExists(const std::string& path) {
  if (diskDelay_ > 0) timeline_.Freeze(diskDelay_);
  return platform::files::Exists(path);
}

}  // namespace roteiro
