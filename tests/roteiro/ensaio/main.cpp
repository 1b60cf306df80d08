#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "platform/Desktop.h"
#include "roteiro/ensaio/frmEnsaio.h"
#include "tools/roteiro/Module.h"
#include "tools/roteiro/Roteiro.h"

namespace {

/// The small screen as a module; the session's user is its only process-wide value.
class Ensaio final : public roteiro::Module {
 public:
  void Open(const base::Record& session, std::string_view title, platform::WindowHandle,
            platform::WindowHandle container) override {
    session_ = &session;
    auto form = std::make_unique<ensaio::frmEnsaio>();
    form->Caption = std::string(title);
    form->SetParent(container);
    ensaio::frmEnsaio& shown = *form;
    platform::Desktop::Current().Adopt(container, std::move(form));
    shown.Show();
  }
  std::int32_t LockedCustomer() override { return locked_; }
  void LockOrUnlock(std::int32_t customer, std::int16_t action) override {
    locked_ = action == 1 ? customer : 0;
  }
  std::optional<base::Value> ValueOf(std::string_view name) override {
    if (name != "NomeDeUsuario" || session_ == nullptr) return std::nullopt;
    return session_->Field(name);
  }

 private:
  const base::Record* session_ = nullptr;
  std::int32_t locked_ = 0;
};

}  // namespace

int main(int count, char** arguments) {
  return roteiro::Run(std::vector<std::string>(arguments + 1, arguments + count),
                      {.makeModule = [] { return std::make_unique<Ensaio>(); },
                       .useDatabase = [](const roteiro::Options&, roteiro::StandIns&,
                                         platform::Desktop&) -> std::function<void()> {
                         throw std::runtime_error("sem banco");
                       }});
}
