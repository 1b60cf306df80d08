#pragma once

#include <QElapsedTimer>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desktop/Dimmer.h"
#include "desktop/InputGate.h"
#include "desktop/Loops.h"
#include "desktop/Windows.h"
#include "desktop/reports/Printing.h"
#include "desktop/reports/frmSalvarDocumento.h"
#include "platform/Desktop.h"
#include "platform/ReportTable.h"

namespace desktop {

class ForeignContainer;
class FormFrame;
class FormView;
class MessageBoxView;
class View;

/// The outside of the module on Qt: its screens as widgets, its boxes and waits as nested loops,
/// the files and the clock of the machine. It needs a QApplication and lives as long as any form.
class DesktopQt final : public platform::Desktop {
 public:
  /// `moduleFolder` is where the settings file lies.
  explicit DesktopQt(std::string moduleFolder);
  ~DesktopQt() override;

  /// The number by which the module may name a widget of the host.
  platform::WindowHandle Register(QWidget& widget) { return windows_.Register(widget); }

  /// On what, and by which printer, reports are printed; by default A4 by the system's own.
  void UsePrinting(reports::Printing printing) { printing_ = std::move(printing); }

  /// The calendar's clock stands still from now on, waits do not: pictures taken on another day
  /// show the same.
  void StopClock(base::DateTime at) { stoppedAt_ = at; }

  /// Nothing runs and nothing waits: the host may close at once.
  bool IsIdle() const { return loops_.IsIdle(); }
  /// Lets the screens be painted while the database is waited for. No act of the operator gets
  /// through, nor the closing of a window: they come when the wait is over.
  void Paint();
  /// Who would close the host from a timer or a socket puts it off.
  bool IsPainting() const { return isPainting_; }
  /// The system waits for the operator, no handler running.
  bool IsResting() const { return loops_.IsResting() && !loops_.IsEnding(); }
  /// The host closes in mid-work: every wait, box and modal screen ends by unwinding; `unwound` is
  /// called from the event loop when all have.
  void ShutDown(std::function<void()> unwound);

  /// The view of a form or control that is up, or null.
  FormView* ViewOf(const platform::Form& form) const;
  View* ViewOf(const platform::Control& control) const;
  /// The message box that holds the operator, or null.
  MessageBoxView* Box() const;
  /// Whether a panel that asks the operator to wait is up.
  bool ShowsWaitPanel() const;
  /// How often a window is darkened at present.
  int DimCount(platform::WindowHandle window) const;

  // base::Clock
  base::DateTime Now() const override;
  double Elapsed() const override;

  // platform::Desktop
  void Placing(platform::Form& form) override;
  void Shown(platform::Form& form) override;
  void Hidden(platform::Form& form) override;
  void Forgotten(platform::Form& form) override;
  void FocusMoved(platform::Form& form) override;
  void Refresh(platform::Form& form) override;
  void RunModal(platform::Form& form) override;
  void HandlerEnded() override { loops_.Check(); }
  void Adopt(platform::WindowHandle container, std::unique_ptr<platform::Form> form) override;
  platform::Answer Ask(const platform::MessageBox& box) override;
  const platform::Paper& ReceiptPaper() override { return printing_.paper; }
  void Preview(platform::DataReport& report) override;
  void Print(platform::DataReport& report) override;
  void PopUp(platform::Menu& menu, const platform::Control& under) override;
  void ProcessEvents() override { loops_.ProcessEvents(); }
  void Freeze(double seconds) override;
  void Beep() override;
  void Dim(platform::WindowHandle window, std::int16_t intensity) override;
  void Undim(platform::WindowHandle window) override;
  std::string ComputerName() override;
  std::string ModuleFolder() override { return moduleFolder_; }
  bool FileExists(const std::string& path) override { return platform::files::Exists(path); }
  void DeleteFile(const std::string& path) override { platform::files::Delete(path); }
  std::string ReadFile(const std::string& path) override { return platform::files::Read(path); }
  void WriteFile(const std::string& path, const std::string& bytes) override {
    platform::files::Write(path, bytes);
  }

 private:
  /// How a form is shown: filling a container, or in a frame of its own.
  struct Screen {
    FormView* view = nullptr;
    FormFrame* frame = nullptr;
  };

  Screen& ScreenOf(platform::Form& form);
  /// The widget that the form was made a child of, null for a form of its own. A run-time error
  /// when neither this host nor another process has a window of that number.
  QWidget* ContainerOf(const platform::Form& form);
  void EmbedIn(QWidget& container, platform::Form& form, Screen& screen);
  /// The keyboard goes to the screen that the operator can reach.
  void SyncKeyboard();
  /// Frames, veils and boxes one over the other as they must lie.
  void Restack();
  /// What an error may have left behind is no hindrance to the operator's next act.
  void ClearAtRest();
  QPainterPath WaitPanels(const QWidget& window) const;
  /// Shows a report that is laid out until the operator has closed it.
  void ShowPages(const std::shared_ptr<const platform::ReportPages>& pages,
                 const platform::ReportTable& table);
  /// Has a report saved where the operator says.
  void Save(const platform::ReportPages& pages,
            const std::vector<reports::frmSalvarDocumento::Formato>& formats,
            const std::function<void(const std::string& path)>& write);
  void TellTrouble(const std::string& sentence);

  std::string moduleFolder_;
  reports::Printing printing_;
  QElapsedTimer started_;
  std::optional<base::DateTime> stoppedAt_;
  Windows windows_;
  Loops loops_;
  InputGate gate_{loops_};
  bool isPainting_ = false;
  std::map<platform::WindowHandle, std::unique_ptr<ForeignContainer>> foreign_;
  std::vector<std::unique_ptr<platform::Form>> adopted_;
  std::map<platform::Form*, Screen> screens_;
  std::vector<platform::Form*> order_;  ///< Of the frames, the one shown last at the end.
  std::map<QWidget*, std::unique_ptr<Dimmer>> dimmers_;
};

}  // namespace desktop
