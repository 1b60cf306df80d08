#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Record.h"
#include "base/Value.h"
#include "platform/Form.h"

namespace roteiro {

/// What is operated: the door by which a host uses the module. The cash desk stands behind it in
/// caixa-roteiro; the tests of the conversation put a small screen there.
class Module {
 public:
  virtual ~Module() = default;

  /// The host's steps that bring the first screen up. The session outlives the module.
  virtual void Open(const base::Record& session, std::string_view title,
                    platform::WindowHandle mainWindow, platform::WindowHandle container) = 0;
  /// The customer that this workstation holds locked.
  virtual std::int32_t LockedCustomer() = 0;
  virtual void LockOrUnlock(std::int32_t customer, std::int16_t action) = 0;
  /// A process-wide value; nothing when there is none of that name.
  virtual std::optional<base::Value> ValueOf(std::string_view name) = 0;
};

}  // namespace roteiro
