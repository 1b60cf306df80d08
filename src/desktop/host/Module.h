#pragma once

#include <memory>
#include <string_view>

#include "base/Record.h"
#include "platform/Form.h"

namespace entry {
class clsCaixa;
}

namespace host {

/// The cash-desk module as this host uses it: opened once, asked at the end whom it holds locked.
class Module {
 public:
  Module();
  ~Module();

  /// Opens the sale counter in the container for the user; the record lives as long as the module.
  void Open(base::RecordSetPtr user, std::string_view title, platform::WindowHandle mainWindow,
            platform::WindowHandle container);
  /// Frees the customer that is on the screen for the other workstations.
  void FreeCustomer();

 private:
  base::RecordSetPtr user_;
  std::unique_ptr<entry::clsCaixa> module_;
};

}  // namespace host
