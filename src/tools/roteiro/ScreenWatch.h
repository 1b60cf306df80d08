#pragma once

#include <functional>
#include <map>

#include "platform/Object.h"
#include "tools/roteiro/Json.h"

namespace platform {
class Form;
class PictureBox;
}  // namespace platform

namespace roteiro {

/// Watches the screens for what an operator would notice without help: screens that come and go,
/// the mouse pointer, the wait panel.
class ScreenWatch final : public platform::Observer {
 public:
  using Tell = std::function<void(Json)>;

  explicit ScreenWatch(Tell tell) : tell_(std::move(tell)) {}

  /// Begins to watch loaded screens that it does not watch yet. A screen may set its pointer before
  /// it is first shown, so this is called wherever the module turns to the outside.
  void LookAround();
  void Shown(platform::Form& form);
  void Hidden(platform::Form& form);
  void Forgotten(platform::Form& form);

  void Changed(platform::Object& object, const platform::PropertyBase& property) override;

 private:
  struct Watched {
    platform::PictureBox* panel = nullptr;
    bool shown = false;
  };

  Tell tell_;
  std::map<platform::Form*, Watched> forms_;
};

}  // namespace roteiro
