#pragma once

#include <QObject>
#include <QPoint>
#include <QRectF>
#include <QTimer>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class QWidget;

namespace desktop {
class DesktopQt;
class View;
}  // namespace desktop

namespace platform {
class Control;
}  // namespace platform

namespace vitrine {

/// One act of a script. `target` names a control of the screen in front, `text` is what the act
/// needs; "{name}" in it stands for one of the player's words.
struct Step {
  enum class Act {
    kSay,      ///< Tells `text`.
    kTell,     ///< Tells `text` and what the control `target` shows.
    kScreen,   ///< Waits for the screen `target` to be in front, at rest and without a box.
    kBox,      ///< Waits for a message box that contains `text`.
    kAnswer,   ///< Presses a button of the box: "sim", "não", "ok".
    kSettle,   ///< Answers every box that comes with its safe answer, until `target` is in front.
    kClick,    ///< Clicks on the control; on a find field, on its text.
    kSearch,   ///< Clicks on the button of a find field.
    kType,     ///< Clicks on the control, selects all, and types `text`.
    kKey,      ///< Presses one key: "Enter", "Tab", "Esc", "F4", "Delete", "Down", "Up".
    kPick,     ///< Opens the combo box and clicks on the item that begins with `text`.
    kTool,     ///< Clicks on the button of key `text` of the toolbar `target`.
    kMenu,     ///< Clicks on the entry `text` of the menu that is up.
    kCell,     ///< Clicks on row `text` of the grid `target`, counted from the header as 0.
    kFault,    ///< Reports an error of that description, as one that a screen meets is reported.
    kPaper,    ///< From now on reports are laid out for the paper `text`, by its name in settings.
    kPicture,  ///< Takes a picture of the window into the file `text`.png.
    kWaitPanel,  ///< The same while a wait panel is up, which is when the system is not at rest.
  };
  Act act;
  std::string_view target = {};
  std::string_view text = {};
};

/// Plays a script on the real windows: mouse and key events like the operator's, each sent when the
/// system is at rest, so that it may open further screens and boxes.
class Player final : public QObject {
 public:
  Player(desktop::DesktopQt& desktop, QWidget& window, std::vector<Step> script);

  /// What "{name}" stands for.
  std::map<std::string, std::string, std::less<>> words;
  /// Where pictures go, and whether their names begin with their number, from "01-".
  std::string folder;
  bool numbered = true;
  /// Told what happens, a line at a time.
  std::function<void(const std::string&)> tell;
  /// Told on what paper reports come from now on.
  std::function<void(const std::string&)> usePaper;
  /// The script ended, well or at a step that could not be done; then `why` says which and why.
  std::function<void(bool done, const std::string& why)> onEnd;

  void Start();

 private:
  using Micro = std::function<void()>;

  void Tick();
  bool IsResting() const;
  void GiveUp(const Step& step);
  /// Whether the step can be done now; what it waits for may still come.
  bool IsReady(const Step& step) const;
  void Do(const Step& step);
  void End(bool done, const std::string& why);
  /// The first column in sight of the row that the step names; empty when it is not in sight.
  QRectF RowBox(const Step& step) const;
  void Settle(const Step& step);
  void Pick(desktop::View& view, const std::string& text);
  void ClickMenu(const std::string& text);
  void TakePicture(const std::string& name);
  void TellOf(const Step& step);

  platform::Control* ControlOf(std::string_view name) const;
  desktop::View* ViewOf(std::string_view name) const;
  std::string Filled(std::string_view text) const;

  void Click(QWidget& widget, const QPoint& at);
  void Press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {});

  desktop::DesktopQt& desktop_;
  QWidget& window_;
  std::vector<Step> script_;
  std::size_t at_ = 0;
  int pictures_ = 0;
  bool ended_ = false;
  double waitingSince_ = 0;
  std::deque<Micro> queue_;
  QTimer timer_;
};

}  // namespace vitrine
