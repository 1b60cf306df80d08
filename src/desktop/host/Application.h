#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "desktop/DesktopQt.h"
#include "desktop/host/MainWindow.h"
#include "desktop/host/Options.h"
#include "desktop/host/PendingCare.h"
#include "desktop/host/Settings.h"

namespace services {
class Banco;
}

namespace host {

/// One run of the host application: settings, database, fiscal exchange, window. A program that
/// shows or measures the windows derives from it, and says where it differs.
class Application {
 public:
  explicit Application(const Options& options);
  virtual ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// Until the window has closed for good. Throws std::runtime_error with a sentence for the
  /// operator.
  virtual int Run();
  /// Tells the operator what stood in the way, on the screen if there is one.
  virtual void TellFailure(const std::string& sentence);

 protected:
  /// The database of the options, else the one in the user's folder.
  virtual std::string DatabaseAddress();
  /// Whether this run leaves settings, a mark and reminders in its folder.
  virtual bool LeavesTraces() const { return true; }
  virtual desktop::reports::Printing PrintingOn(const platform::Paper& paper) const;
  virtual void ShowWindow();
  /// The sign-in is up, the loop about to run.
  virtual void Begin() {}

  void PrintOn(const platform::Paper& paper) { desktop_.UsePrinting(PrintingOn(paper)); }
  desktop::DesktopQt& Desktop() { return desktop_; }
  MainWindow& Window() { return *window_; }
  const Options& Asked() const { return options_; }

 private:
  void ReadSettings();
  void MeetFiscalApplication();
  void OpenDatabase();

  Options options_;
  desktop::DesktopQt desktop_;
  Settings settings_;
  std::shared_ptr<services::Banco> bank_;
  std::optional<PendingCare> care_;
  std::unique_ptr<MainWindow> window_;
};

/// A folder that exists from here on. Throws std::runtime_error with a sentence for the operator.
std::string Made(const std::string& folder);

/// Whether there is a screen to open a window on.
bool HasDisplay();

/// Runs an application with the toolkit set up round it; 1 when something stood in the way, which
/// was told.
int RunWithScreen(char** argv, const std::function<std::unique_ptr<Application>()>& made);

}  // namespace host
