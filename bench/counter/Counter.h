#pragma once

#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "clinic/Opened.h"
#include "entry/clsCaixa.h"
#include "platform/Input.h"
#include "sale/frmCaixaOperar.h"
#include "tools/roteiro/Conversation.h"
#include "tools/roteiro/HeadlessDesktop.h"
#include "tools/roteiro/Session.h"
#include "tools/roteiro/Timeline.h"

namespace bench {

/// The sale counter itself, without a display, on a clinic with an open register and a customer on
/// the screen. Nobody answers a message box: one that comes up ends the benchmark.
class Counter {
 public:
  explicit Counter(const Database& clinic);
  ~Counter();
  Counter(const Counter&) = delete;
  Counter& operator=(const Counter&) = delete;

  sale::frmCaixaOperar& Screen() { return *screen_; }

  /// What the scanner sends: the barcode, then Enter.
  void Scan(const std::string& barcode);
  /// The click that adds what the entry fields hold.
  void Add();
  /// The lines of the sale.
  std::int32_t Lines() const { return screen_->msfgGrade.Rows() - 1; }
  /// Takes the last line away again, with the sums that this leaves.
  void TakeBack();

 private:
  /// A file that is at its end from the beginning, for whoever waits for the operator.
  class Nobody {
   public:
    Nobody();
    ~Nobody();
    Nobody(const Nobody&) = delete;
    Nobody& operator=(const Nobody&) = delete;
    int Descriptor() const { return descriptor_; }

   private:
    int descriptor_;
  };

  void Do(platform::input::Outcome outcome, const char* what);

  Nobody nobody_;
  std::ostringstream answers_;
  roteiro::Timeline timeline_;
  roteiro::Conversation conversation_;
  roteiro::Session session_;
  roteiro::HeadlessDesktop desktop_;
  Opened services_;
  entry::clsCaixa module_;
  sale::frmCaixaOperar* screen_ = nullptr;
};

}  // namespace bench
