#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Desktop.h"
#include "platform/ReportPages.h"
#include "tools/roteiro/Conversation.h"
#include "tools/roteiro/ScreenWatch.h"
#include "tools/roteiro/Timeline.h"

namespace platform {
class MenuItem;
}

namespace roteiro {

/// The windows of the host, as numbers.
inline constexpr platform::WindowHandle kMainWindow = 1;
inline constexpr platform::WindowHandle kContainer = 2;

/// What keeps the operator from the screens: a message box, a popup menu, or a report preview.
struct Hold {
  const platform::MessageBox* box = nullptr;
  const platform::Menu* menu = nullptr;
  const platform::ReportPages* preview = nullptr;
  bool over = false;
  platform::Answer answer = platform::Answer::kOk;
  platform::MenuItem* chosen = nullptr;
};

/// The desktop without a display: whatever waits for the operator reads further commands of the
/// script. Installs itself while it lives.
class HeadlessDesktop final : public platform::Desktop {
 public:
  /// An empty `computer` is the machine's own name.
  HeadlessDesktop(Conversation& conversation, Timeline& timeline, std::string folder,
                  std::string computer = {});
  ~HeadlessDesktop() override;
  HeadlessDesktop(const HeadlessDesktop&) = delete;
  HeadlessDesktop& operator=(const HeadlessDesktop&) = delete;

  /// The box, popup or preview that is up; null when the operator is at a screen.
  Hold* Held() const { return holds_.empty() ? nullptr : holds_.back(); }
  /// The screen that the operator works in; null for none.
  static platform::Form* InFront();
  /// What receipts and notes are printed on from now on.
  void PrintOn(const platform::Paper& paper) { paper_ = paper; }
  /// The report goes to the printer, which is none: an event tells of it.
  void TellPrinted(const platform::ReportPages& report);
  /// The last report that was shown or printed; null for none.
  const platform::ReportPages* LastReport() const { return report_ ? &*report_ : nullptr; }
  /// Each presence test of a file takes so long.
  void DiskDelay(double seconds) { diskDelay_ = seconds; }
  /// The host's windows go, and with them the screens in them.
  void CloseWindows();

  void Placing(platform::Form& form) override;
  void Shown(platform::Form& form) override { watch_.Shown(form); }
  void Hidden(platform::Form& form) override { watch_.Hidden(form); }
  void Forgotten(platform::Form& form) override { watch_.Forgotten(form); }
  void Refresh(platform::Form&) override { watch_.LookAround(); }
  void RunModal(platform::Form& form) override;
  void Adopt(platform::WindowHandle container, std::unique_ptr<platform::Form> form) override;

  platform::Answer Ask(const platform::MessageBox& box) override;
  const platform::Paper& ReceiptPaper() override { return paper_; }
  void Preview(platform::DataReport& report) override;
  void Print(platform::DataReport& report) override;
  void PopUp(platform::Menu& menu, const platform::Control& under) override;
  void ProcessEvents() override;
  void Freeze(double seconds) override;
  void KeysSent(std::string_view keys) override;
  void Dim(platform::WindowHandle window, std::int16_t intensity) override;
  void Undim(platform::WindowHandle window) override;

  std::string ComputerName() override;
  std::string ModuleFolder() override { return folder_; }
  bool FileExists(const std::string& path) override;
  void DeleteFile(const std::string& path) override { platform::files::Delete(path); }
  std::string ReadFile(const std::string& path) override { return platform::files::Read(path); }
  void WriteFile(const std::string& path, const std::string& bytes) override {
    platform::files::Write(path, bytes);
  }

  base::DateTime Now() const override { return timeline_.Now(); }
  double Elapsed() const override { return timeline_.Elapsed(); }

 private:
  void Serve(const std::function<bool()>& over);
  void Await(Hold& hold);
  platform::ReportPages Composed(const platform::DataReport& report) const;

  Conversation& conversation_;
  Timeline& timeline_;
  std::string folder_;
  std::string computer_;
  platform::Paper paper_ = platform::kA4Paper;
  std::optional<platform::ReportPages> report_;
  double diskDelay_ = 0;
  ScreenWatch watch_;
  std::vector<Hold*> holds_;
  std::vector<std::unique_ptr<platform::Form>> adopted_;
};

}  // namespace roteiro
