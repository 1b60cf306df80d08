#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/Clock.h"
#include "base/RuntimeError.h"
#include "platform/Form.h"

namespace platform {

class DataReport;
class Menu;
struct Paper;

enum class Icon { kNone, kInformation, kStop, kQuestion };
enum class Buttons { kOk, kYesNo };
enum class Answer { kOk = 1, kYes = 6, kNo = 7 };

struct MessageBox {
  std::string text;
  std::string title;
  Icon icon = Icon::kNone;
  Buttons buttons = Buttons::kOk;
  Answer preset = Answer::kOk;  ///< The button that Enter presses.
};

/// The host is closing while a wait, a box or a modal screen was up: whatever is running unwinds.
/// Thrown by the operations that wait for the operator or let events run; only the dispatcher of
/// the operator's acts catches it.
struct Shutdown {};

/// The module's only way to the outside: windows, boxes, waits, files, the machine. One is
/// installed for the process before the first form is made; tests and the two renderers bring their
/// own.
class Desktop : public base::Clock {
 public:
  static Desktop& Current();
  /// Null takes the present one away.
  static void Install(Desktop* desktop);
  ~Desktop() override = default;

  // Screens. The forms call these as they come and go; the renderer follows.

  /// The form is about to be shown: a form in a container gets that container's size here.
  virtual void Placing(Form&) {}
  virtual void Shown(Form&) {}
  virtual void Hidden(Form&) {}
  /// The form is gone for good; nothing of it may be touched after this returns.
  virtual void Forgotten(Form&) {}
  virtual void FocusMoved(Form&) {}
  virtual void Refresh(Form&) {}
  /// Runs a loop until, with no handler of this loop running, the form is not visible.
  virtual void RunModal(Form& form) = 0;
  /// A handler that the operator's act had started has ended.
  virtual void HandlerEnded() {}
  /// Takes over a form that lives as long as the window it was made a child of.
  virtual void Adopt(WindowHandle container, std::unique_ptr<Form> form) = 0;

  virtual Answer Ask(const MessageBox& box) = 0;
  /// Shows a popup menu below `under`, runs the handler of the entry chosen, and returns.
  virtual void PopUp(Menu& menu, const Control& under) = 0;

  // Reports.

  /// What receipts and notes are printed on, as the host is set.
  virtual const Paper& ReceiptPaper() = 0;
  /// Shows the report and returns when the operator has closed it.
  virtual void Preview(DataReport& report) = 0;
  virtual void Print(DataReport& report) = 0;

  /// Lets the events run that have arrived.
  virtual void ProcessEvents() = 0;
  /// Stands still for so many seconds, the screen frozen.
  virtual void Freeze(double seconds) = 0;
  virtual void Beep() {}
  /// A key sequence sent to the focused control, in the notation "+({HOME})", was carried out.
  virtual void KeysSent(std::string_view) {}

  /// Darkens a window of the host's; every Dim is undone by one Undim.
  virtual void Dim(WindowHandle window, std::int16_t intensity) = 0;
  virtual void Undim(WindowHandle window) = 0;

  // The machine.

  /// Empty when the machine has none.
  virtual std::string ComputerName() = 0;
  /// Where the settings file lies; no separator at the end.
  virtual std::string ModuleFolder() = 0;
  /// False also for a folder.
  virtual bool FileExists(const std::string& path) = 0;
  /// Errors 53, 70.
  virtual void DeleteFile(const std::string& path) = 0;
  /// The bytes of the file; errors 53, 70, 76. A file that another program has locked, has open for
  /// writing or changes meanwhile is not ready to be read: 70, as for a folder in its place. On a
  /// network folder, and of another user's file, a writer is seen by its lock or changes alone.
  virtual std::string ReadFile(const std::string& path) = 0;
  /// Replaces the file at once: a reader sees the old bytes or the new, also after a loss of power.
  /// A new file is for this user alone, one that is replaced keeps whom it is for; a symbolic link
  /// stays one, unless it is another user's: 70. Errors 70, 76.
  virtual void WriteFile(const std::string& path, const std::string& bytes) = 0;
};

/// The file operations of a Desktop on the real file system; renderers call them.
namespace files {
bool Exists(const std::string& path);
/// Unless the host keeps the file in another way.
void Delete(const std::string& path);
/// What the host does with a file of its own keeping instead of deleting it; false has it deleted.
/// Empty where nothing is kept.
void InsteadOfDeleting(std::function<bool(const std::string& path)> keep);
std::string Read(const std::string& path);
/// Whether a reading failed since nothing is there, as against something that cannot be read now.
inline bool IsAbsence(const base::RuntimeError& error) {
  return error.Number() == static_cast<std::int32_t>(base::Fault::kFileNotFound) ||
         error.Number() == static_cast<std::int32_t>(base::Fault::kPathNotFound);
}
void Write(const std::string& path, const std::string& bytes);
/// Makes the folder and those above it that are missing, for this user alone; one that exists stays
/// as it is. False when it is no folder afterwards.
bool MakeFolder(const std::string& path);
}  // namespace files

}  // namespace platform
