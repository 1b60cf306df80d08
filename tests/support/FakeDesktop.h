#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/RuntimeError.h"
#include "platform/Control.h"
#include "platform/Desktop.h"
#include "platform/Input.h"
#include "platform/Menu.h"
#include "platform/ReportPages.h"

namespace support {

/// A desktop for tests, without a display: boxes are recorded and answered from a queue, time moves
/// only by waits, files lie in memory, and a modal screen is worked by a queue of scripted acts. It
/// is installed while it lives, so it must outlive every form. What a test neither announced nor
/// took off the record fails that test: a box or a report nobody read, a question without an
/// answer, a modal screen that nothing closes, an act that never came to its turn.
class FakeDesktop final : public platform::Desktop {
 public:
  using Act = std::function<void()>;

  explicit FakeDesktop(base::DateTime now = base::DateTime(2026, 11, 22, 14, 30)) : start_(now) {
    Install(this);
  }
  ~FakeDesktop() override {
    for (const platform::MessageBox& box : boxes_) ADD_FAILURE() << "box not read: " << box.text;
    for (const Report& each : reports_) ADD_FAILURE() << "report not read: " << each.pages.name;
    if (!answers_.empty()) ADD_FAILURE() << answers_.size() << " answers without a question";
    if (!acts_.empty()) ADD_FAILURE() << acts_.size() << " acts without a modal screen";
    if (!choices_.empty()) ADD_FAILURE() << choices_.size() << " choices without a menu";
    adopted_.clear();
    Install(nullptr);
  }
  FakeDesktop(const FakeDesktop&) = delete;
  FakeDesktop& operator=(const FakeDesktop&) = delete;

  // What the test announces.

  /// The answer to the next question that has none yet.
  void Answer(platform::Answer answer) { answers_.push_back(answer); }
  /// What the operator does, an act each time that a modal screen waits for them.
  void Then(Act act) { acts_.push_back(std::move(act)); }
  /// The entry that the operator takes from the next popup menu; empty to dismiss it.
  void ThenChoose(std::string item) { choices_.push_back(std::move(item)); }
  /// Something that happens so many seconds from now, while events are processed.
  void After(double seconds, Act act) {
    schedule_.emplace(elapsed_ + Milliseconds(seconds), std::move(act));
  }
  /// From now on every operation that waits for the operator or lets events run unwinds.
  void Close() { closing_ = true; }

  // What the test reads.

  /// The boxes shown since the last call, in order.
  std::vector<platform::MessageBox> TakeBoxes() { return std::exchange(boxes_, {}); }
  /// The text of the one box shown since the last call; fails the test when there was not just one.
  std::string TakeBox() {
    const std::vector<platform::MessageBox> boxes = TakeBoxes();
    EXPECT_EQ(boxes.size(), 1U);
    return boxes.empty() ? std::string() : boxes.front().text;
  }
  /// A report that was shown, or printed without being shown, on even characters.
  struct Report {
    platform::ReportPages pages;
    bool isPrinted;
  };
  /// The reports since the last call, in order.
  std::vector<Report> TakeReports() { return std::exchange(reports_, {}); }
  /// What was asked of the desktop since the last call, a word or two each: "show frmX",
  /// "hide frmX", "forget frmX", "beep", "keys +({HOME})", "dim 7 1", "undim 7", "popup mnuX".
  std::vector<std::string> TakeJournal() { return std::exchange(journal_, {}); }

  /// The files of this machine, by path, and the paths that cannot be written or deleted.
  std::map<std::string, std::string> files;
  std::set<std::string> readOnly;
  std::set<std::string> unreadable;
  std::string computer = "BALCAO-1";
  std::string folder = "/modulo";
  /// What receipts and notes are printed on.
  platform::Paper paper = platform::kA4Paper;

  // The contract.

  base::DateTime Now() const override { return start_.PlusSeconds(elapsed_ / 1000); }
  double Elapsed() const override { return static_cast<double>(elapsed_) / 1000; }

  void Shown(platform::Form& form) override { Note("show " + form.Name()); }
  void Hidden(platform::Form& form) override { Note("hide " + form.Name()); }
  void Forgotten(platform::Form& form) override { Note("forget " + form.Name()); }
  void RunModal(platform::Form& form) override {
    while (form.IsVisible()) {
      UnwindIfClosing();
      if (acts_.empty()) {
        ADD_FAILURE() << "nothing closes the modal screen " << form.Name();
        throw platform::Shutdown{};
      }
      TakeFront(acts_)();
    }
  }
  void Adopt(platform::WindowHandle, std::unique_ptr<platform::Form> form) override {
    adopted_.push_back(std::move(form));
  }

  platform::Answer Ask(const platform::MessageBox& box) override {
    UnwindIfClosing();
    boxes_.push_back(box);
    if (box.buttons == platform::Buttons::kOk) return platform::Answer::kOk;
    if (answers_.empty()) {
      ADD_FAILURE() << "no answer to: " << box.text;
      return box.preset;
    }
    return TakeFront(answers_);
  }
  const platform::Paper& ReceiptPaper() override { return paper; }
  void Preview(platform::DataReport& report) override {
    UnwindIfClosing();
    Take(report, false);
  }
  void Print(platform::DataReport& report) override { Take(report, true); }
  void PopUp(platform::Menu& menu, const platform::Control&) override {
    UnwindIfClosing();
    Note("popup " + menu.Name());
    if (choices_.empty()) {
      ADD_FAILURE() << "no choice from the menu " << menu.Name();
      return;
    }
    const std::string wanted = TakeFront(choices_);
    if (wanted.empty()) return;
    for (platform::MenuItem* item : menu.Items()) {
      if (item->Name() != wanted) continue;
      EXPECT_EQ(platform::input::Choose(*item), platform::input::Outcome::kDone) << wanted;
      return;
    }
    ADD_FAILURE() << "no entry " << wanted << " in the menu " << menu.Name();
  }
  /// Moves the time on by 50 ms, as the wait of a polling loop does.
  void ProcessEvents() override {
    UnwindIfClosing();
    elapsed_ += 50;
    while (!schedule_.empty() && schedule_.begin()->first <= elapsed_) {
      const Act act = std::move(schedule_.begin()->second);
      schedule_.erase(schedule_.begin());
      act();
    }
  }
  void Freeze(double seconds) override { elapsed_ += Milliseconds(seconds); }
  void Beep() override { Note("beep"); }
  void KeysSent(std::string_view keys) override { Note("keys " + std::string(keys)); }
  void Dim(platform::WindowHandle window, std::int16_t intensity) override {
    Note("dim " + std::to_string(window) + " " + std::to_string(intensity));
  }
  void Undim(platform::WindowHandle window) override { Note("undim " + std::to_string(window)); }

  std::string ComputerName() override { return computer; }
  std::string ModuleFolder() override { return folder; }
  bool FileExists(const std::string& path) override { return files.contains(path); }
  void DeleteFile(const std::string& path) override {
    RefuseIfReadOnly(path);
    if (files.erase(path) == 0) throw base::RuntimeError(base::Fault::kFileNotFound);
  }
  std::string ReadFile(const std::string& path) override {
    const auto found = files.find(path);
    if (found == files.end()) throw base::RuntimeError(base::Fault::kFileNotFound);
    if (unreadable.contains(path)) throw base::RuntimeError(base::Fault::kPermissionDenied);
    return found->second;
  }
  void WriteFile(const std::string& path, const std::string& bytes) override {
    RefuseIfReadOnly(path);
    files[path] = bytes;
  }

 private:
  template <class T>
  static T TakeFront(std::deque<T>& queue) {
    T front = std::move(queue.front());
    queue.pop_front();
    return front;
  }

  void Take(const platform::DataReport& report, bool isPrinted) {
    reports_.push_back({platform::Compose(report, platform::PlainMeasure(), Now()), isPrinted});
  }
  static std::int64_t Milliseconds(double seconds) { return std::llround(seconds * 1000); }
  void Note(std::string what) { journal_.push_back(std::move(what)); }
  void UnwindIfClosing() const {
    if (closing_) throw platform::Shutdown{};
  }
  void RefuseIfReadOnly(const std::string& path) const {
    if (readOnly.contains(path)) throw base::RuntimeError(base::Fault::kPermissionDenied);
  }

  base::DateTime start_;
  std::int64_t elapsed_ = 0;  ///< Milliseconds.
  bool closing_ = false;
  std::vector<platform::MessageBox> boxes_;
  std::vector<Report> reports_;
  std::vector<std::string> journal_;
  std::deque<platform::Answer> answers_;
  std::deque<Act> acts_;
  std::deque<std::string> choices_;
  std::multimap<std::int64_t, Act> schedule_;
  std::vector<std::unique_ptr<platform::Form>> adopted_;
};

}  // namespace support
