#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/Record.h"
#include "platform/Desktop.h"
#include "platform/ReportPages.h"
#include "services/Database.h"

namespace services {

/// What one press of Confirmar came to, as the operator was told. Lies in memory that processes
/// share, since the one that pressed may be killed.
struct Press {
  enum Outcome : std::int16_t { kRegistered = 0, kFault = 1, kRefusal = 2, kNoCoupon = 10, kNone };
  std::int16_t outcome = kNone;
  std::int32_t number = 0;
  char words[3000] = {};  ///< Of the boxes, in their order.
  char after[1000] = {};  ///< Of what failed once the sale was registered.

  void Say(const std::string& sentence);
  void SayAfter(const std::string& sentence);
};

/// The module's exchange of files, its screens left out: files are real, boxes are written down,
/// and time runs ten times as fast, since the fiscal application here is quick.
class DesktopOfCheckout final : public platform::Desktop {
 public:
  DesktopOfCheckout(std::string folder, Press& press);
  ~DesktopOfCheckout() override { Install(nullptr); }
  DesktopOfCheckout(const DesktopOfCheckout&) = delete;
  DesktopOfCheckout& operator=(const DesktopOfCheckout&) = delete;

  void RunModal(platform::Form&) override {}
  void Adopt(platform::WindowHandle, std::unique_ptr<platform::Form>) override {}
  platform::Answer Ask(const platform::MessageBox& box) override;
  void PopUp(platform::Menu&, const platform::Control&) override {}
  const platform::Paper& ReceiptPaper() override { return platform::kA4Paper; }
  void Preview(platform::DataReport&) override {}
  void Print(platform::DataReport&) override {}
  void ProcessEvents() override;
  void Freeze(double seconds) override;
  void Dim(platform::WindowHandle, std::int16_t) override {}
  void Undim(platform::WindowHandle) override {}
  std::string ComputerName() override { return "LOJA"; }
  std::string ModuleFolder() override { return folder_; }
  bool FileExists(const std::string& path) override { return platform::files::Exists(path); }
  void DeleteFile(const std::string& path) override { platform::files::Delete(path); }
  std::string ReadFile(const std::string& path) override { return platform::files::Read(path); }
  void WriteFile(const std::string& path, const std::string& bytes) override {
    platform::files::Write(path, bytes);
  }
  base::DateTime Now() const override { return {2026, 11, 22, 14, 30, 0}; }
  double Elapsed() const override;

 private:
  std::string folder_;
  Press& press_;
  int questions_ = 0;
};

/// An operator who sells to customer 5 with a coupon, and presses Confirmar.
class Checkout {
 public:
  /// `step` is called around what is done to files of the exchange.
  Checkout(std::shared_ptr<Banco> banco, const std::string& folder, Press& press,
           std::function<void()> step);
  ~Checkout();
  Checkout(const Checkout&) = delete;
  Checkout& operator=(const Checkout&) = delete;

  /// The customer is taken.
  bool Begin();
  /// The coupon, the registration, then the receipt's lines, the registers and the customer's
  /// freedom.
  void Confirm();
  /// Lets the host's timer do what was left; whether nothing is left.
  bool Rest();

 private:
  /// The user of a clinic that issues coupons.
  class Seller : public base::Record {
   public:
    base::Value Field(std::string_view name) const override {
      return std::string(name == "NomeDeUsuario" ? "renata" : "11");
    }
  };
  bool TakeOrFree(bool takes);
  bool Export();

  std::shared_ptr<Banco> banco_;
  Press& press_;
  Seller seller_;
  DesktopOfCheckout desktop_;
};

}  // namespace services
