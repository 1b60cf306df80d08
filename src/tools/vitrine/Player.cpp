#include "tools/vitrine/Player.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPixmap>
#include <QWindow>
#include <algorithm>
#include <array>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "desktop/Convert.h"
#include "desktop/DesktopQt.h"
#include "desktop/MessageBoxView.h"
#include "desktop/Photograph.h"
#include "desktop/views/ComboList.h"
#include "desktop/views/MSFlexGrid.h"
#include "desktop/views/Toolbar.h"
#include "desktop/views/ZVComboBox.h"
#include "frame/modMensagemDeErro.h"
#include "platform/EditBox.h"
#include "platform/Input.h"
#include "tools/vitrine/InFront.h"

namespace vitrine {
namespace {

using Act = Step::Act;
using platform::Answer;

constexpr int kTickMilliseconds = 12;
/// Waits of the screens are of a second; what takes longer than this does not come any more.
constexpr double kPatience = 20;

constexpr std::array<std::pair<std::string_view, int>, 9> kKeys{{{"Enter", Qt::Key_Return},
                                                                 {"Tab", Qt::Key_Tab},
                                                                 {"Esc", Qt::Key_Escape},
                                                                 {"F4", Qt::Key_F4},
                                                                 {"Delete", Qt::Key_Delete},
                                                                 {"Down", Qt::Key_Down},
                                                                 {"Up", Qt::Key_Up},
                                                                 {"Home", Qt::Key_Home},
                                                                 {"Space", Qt::Key_Space}}};

constexpr std::array<std::pair<std::string_view, Answer>, 3> kAnswers{
    {{"sim", Answer::kYes}, {"não", Answer::kNo}, {"ok", Answer::kOk}}};

/// As the services number a lost connection.
constexpr std::int32_t kFault = 3001;
constexpr auto kFaultAt = "ZOVA_N_Caixa, clsCaixa, RegistrarPagamento";

template <class Table>
auto Find(const Table& table, std::string_view name) {
  const auto found =
      std::ranges::find_if(table, [&](const auto& each) { return each.first == name; });
  return found == table.end() ? table.front().second : found->second;
}

bool NeedsControl(Act act) {
  switch (act) {
    case Act::kTell:
    case Act::kClick:
    case Act::kSearch:
    case Act::kType:
    case Act::kPick:
    case Act::kTool:
    case Act::kCell:
      return true;
    default:
      return false;
  }
}

}  // namespace

Player::Player(desktop::DesktopQt& desktop, QWidget& window, std::vector<Step> script)
    : desktop_(desktop), window_(window), script_(std::move(script)) {
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { Tick(); });
}

void Player::Start() {
  waitingSince_ = desktop_.Elapsed();
  timer_.start(kTickMilliseconds);
}

bool Player::IsResting() const {
  return desktop_.IsResting() || QApplication::activePopupWidget() != nullptr;
}

platform::Control* Player::ControlOf(std::string_view name) const {
  const platform::Form* const form = InFront();
  return form == nullptr ? nullptr : form->FindControl(name);
}

desktop::View* Player::ViewOf(std::string_view name) const {
  const platform::Control* const control = ControlOf(name);
  return control == nullptr ? nullptr : desktop_.ViewOf(*control);
}

std::string Player::Filled(std::string_view text) const {
  std::string filled(text);
  for (const auto& [name, word] : words) {
    std::string place = "{";
    place.append(name).append("}");
    filled = base::Replace(filled, place, word);
  }
  return filled;
}

bool Player::IsReady(const Step& step) const {
  const desktop::MessageBoxView* const box = desktop_.Box();
  const platform::Form* const front = InFront();
  switch (step.act) {
    case Act::kSay:
    case Act::kKey:
    case Act::kFault:
    case Act::kPaper:
    case Act::kPicture:
      return true;
    case Act::kScreen:
      return box == nullptr && front != nullptr && front->Name() == step.target;
    case Act::kBox:
      return box != nullptr && box->Text().contains(desktop::ToQt(Filled(step.text)));
    case Act::kAnswer:
      return box != nullptr;
    case Act::kWaitPanel:
      return desktop_.ShowsWaitPanel();
    case Act::kSettle:
      return box != nullptr || (front != nullptr && front->Name() == step.target);
    case Act::kMenu:
      return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr;
    default: {
      const platform::Control* const control = ControlOf(step.target);
      if (box != nullptr || control == nullptr || ViewOf(step.target) == nullptr) return false;
      if (step.act == Act::kCell && RowBox(step).isEmpty()) return false;
      return step.act == Act::kTell || control->IsUsable();
    }
  }
}

void Player::Tick() {
  // Set again before anything is done: the act may open a screen whose loop runs within it.
  timer_.start(kTickMilliseconds);
  const bool atWait = queue_.empty() && at_ < script_.size() && script_[at_].act == Act::kWaitPanel;
  if (!atWait && !IsResting()) return;
  if (!queue_.empty()) {
    const Micro micro = std::move(queue_.front());
    queue_.pop_front();
    waitingSince_ = desktop_.Elapsed();
    return micro();
  }
  if (at_ == script_.size()) return End(true, {});
  const Step& step = script_[at_];
  if (!IsReady(step)) {
    if (desktop_.Elapsed() - waitingSince_ >= kPatience) GiveUp(step);
    return;
  }
  ++at_;
  waitingSince_ = desktop_.Elapsed();
  Do(step);
}

void Player::GiveUp(const Step& step) {
  const platform::Form* const front = InFront();
  const desktop::MessageBoxView* const box = desktop_.Box();
  std::string why = "o passo " + std::to_string(at_ + 1) + " (" + std::string(step.target) + " " +
                    Filled(step.text) + ") não pôde ser feito; na frente está " +
                    (front == nullptr ? "nada" : front->Name());
  if (box != nullptr) why += ", com a mensagem: " + desktop::FromQt(box->Text());
  End(false, why);
}

void Player::End(bool done, const std::string& why) {
  timer_.stop();
  if (std::exchange(ended_, true)) return;
  if (!done) TakePicture("falha");
  onEnd(done, why);
}

void Player::Do(const Step& step) {
  const std::string text = Filled(step.text);
  desktop::View* const view = NeedsControl(step.act) ? ViewOf(step.target) : nullptr;
  switch (step.act) {
    case Act::kSay:
      return tell(text);
    case Act::kTell:
      return TellOf(step);
    case Act::kScreen:
    case Act::kBox:
      return;
    case Act::kAnswer:
      return Click(*desktop_.Box(), desktop_.Box()->ButtonBox(Find(kAnswers, text)).center());
    case Act::kSettle:
      return Settle(step);
    case Act::kClick:
      return Click(*view, {std::min(view->width() / 2, 40), view->height() / 2});
    case Act::kSearch:
      return Click(*view, {view->width() - 16, view->height() / 2});
    case Act::kType:
      Click(*view, {std::min(view->width() / 2, 40), view->height() / 2});
      Press(Qt::Key_A, {}, Qt::ControlModifier);
      for (const QChar each : desktop::ToQt(text)) Press(0, QString(each));
      return;
    case Act::kKey:
      return Press(Find(kKeys, text));
    case Act::kPick:
      return Pick(*view, text);
    case Act::kTool: {
      const auto& bar = static_cast<platform::Toolbar&>(*ControlOf(step.target));
      const QRect box = static_cast<desktop::ToolbarView*>(view)->ButtonBox(&bar.Buttons(text));
      return Click(*view, box.center());
    }
    case Act::kMenu:
      return ClickMenu(text);
    case Act::kCell:
      return Click(*view, RowBox(step).center().toPoint());
    case Act::kFault:
      platform::input::Run([&] { frame::ExibirMensagemDeErro(kFault, text, kFaultAt); });
      return;
    case Act::kPaper:
      return usePaper(text);
    case Act::kPicture:
    case Act::kWaitPanel: {
      ++pictures_;
      const std::string number = (pictures_ < 10 ? "0" : "") + std::to_string(pictures_) + "-";
      return TakePicture(numbered ? number + text : text);
    }
  }
}

QRectF Player::RowBox(const Step& step) const {
  const auto& view = static_cast<const desktop::MSFlexGridView&>(*ViewOf(step.target));
  const auto& grid = static_cast<const platform::MSFlexGrid&>(*view.Shows());
  const int row = base::ToInt32(base::ToDouble(Filled(step.text)));
  for (std::int32_t col = 0; row < grid.Rows() && col < grid.Cols(); ++col) {
    const QRectF box = view.CellBox(row, col);
    if (!box.isEmpty()) return box;
  }
  return {};
}

void Player::Settle(const Step& step) {
  desktop::MessageBoxView* const box = desktop_.Box();
  if (box == nullptr) return;
  const QRect no = box->ButtonBox(Answer::kNo);
  Click(*box, (no.isEmpty() ? box->ButtonBox(Answer::kOk) : no).center());
  // There may be another one.
  at_ = static_cast<std::size_t>(&step - script_.data());
}

void Player::Pick(desktop::View& view, const std::string& text) {
  Click(view, {view.width() / 2, view.height() / 2});
  queue_.push_back([this, combo = static_cast<desktop::ZVComboBoxView*>(&view), text] {
    desktop::ComboList* const list = combo->List();
    const auto& model = static_cast<const platform::ZVComboBox&>(*combo->Shows());
    for (std::int32_t i = 0; list != nullptr && i < model.ListCount(); ++i) {
      if (!model.List(i).starts_with(text)) continue;
      list->Reveal(i);
      return Click(*list, list->ItemBox(i).center());
    }
    End(false, "a lista de " + combo->Shows()->Name() + " não tem '" + text + "'");
  });
}

void Player::ClickMenu(const std::string& text) {
  auto& menu = *qobject_cast<QMenu*>(QApplication::activePopupWidget());
  for (QAction* action : menu.actions()) {
    if (action->text() != desktop::ToQt(text)) continue;
    return Click(menu, menu.actionGeometry(action).center());
  }
  End(false, "o menu não tem '" + text + "'");
}

void Player::TakePicture(const std::string& name) {
  const QString path = QDir(desktop::ToQt(folder)).filePath(desktop::ToQt(name + ".png"));
  if (!desktop::SaveSmall(desktop::Photograph(window_), path)) {
    End(false, "não foi possível gravar " + desktop::FromQt(path));
  }
}

void Player::TellOf(const Step& step) {
  const platform::Control& control = *ControlOf(step.target);
  const auto kind = control.GetKind();
  const bool field = kind != platform::Kind::kLabel && kind != platform::Kind::kComboBox;
  tell(Filled(step.text) + ' ' +
       (field ? static_cast<const platform::EditBox&>(control).Shown() : control.Words()));
}

void Player::Click(QWidget& widget, const QPoint& at) {
  const QPoint global = widget.mapToGlobal(at);
  const auto send = [this, global](QEvent::Type type, Qt::MouseButtons buttons) {
    const QWidget* const popup = QApplication::activePopupWidget();
    QWindow* const window = (popup != nullptr ? popup : &window_)->windowHandle();
    QMouseEvent event(type, window->mapFromGlobal(global), global, Qt::LeftButton, buttons, {});
    QCoreApplication::sendEvent(window, &event);
  };
  queue_.push_back([send] { send(QEvent::MouseMove, Qt::NoButton); });
  queue_.push_back([send] { send(QEvent::MouseButtonPress, Qt::LeftButton); });
  queue_.push_back([send] { send(QEvent::MouseButtonRelease, Qt::NoButton); });
}

void Player::Press(int key, const QString& text, Qt::KeyboardModifiers modifiers) {
  const auto send = [=](QEvent::Type type) {
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const focus = popup != nullptr ? popup : QApplication::focusWidget();
    if (focus == nullptr) return;
    QKeyEvent event(type, key, modifiers, text);
    QCoreApplication::sendEvent(focus->window()->windowHandle(), &event);
  };
  queue_.push_back([send] {
    send(QEvent::KeyPress);
    send(QEvent::KeyRelease);
  });
}

}  // namespace vitrine
