#include "tools/roteiro/ScreenWatch.h"

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/Screens.h"

namespace roteiro {
namespace {

constexpr std::string_view kWaitPanel = "picMensagem";

platform::PictureBox* WaitPanelOf(const platform::Form& form) {
  platform::Control* const control = form.FindControl(kWaitPanel);
  const bool isPanel = control != nullptr && control->GetKind() == platform::Kind::kPictureBox;
  return isPanel ? static_cast<platform::PictureBox*>(control) : nullptr;
}

std::string TextOn(const platform::PictureBox& panel) {
  for (const platform::Control* child : panel.Children()) {
    if (child->GetKind() == platform::Kind::kLabel) return child->Words();
  }
  return {};
}

}  // namespace

void ScreenWatch::LookAround() {
  for (platform::Form* form : platform::screens::Loaded()) {
    const auto [at, isNew] = forms_.try_emplace(form);
    if (!isNew) continue;
    form->Observe(*this);
    at->second.panel = WaitPanelOf(*form);
    if (at->second.panel != nullptr) at->second.panel->Observe(*this);
  }
}

void ScreenWatch::Shown(platform::Form& form) {
  LookAround();
  Watched& watched = forms_[&form];
  if (watched.shown) return;
  watched.shown = true;
  tell_({{"event", "show"}, {"form", form.Name()}, {"modal", form.IsModal()}});
}

void ScreenWatch::Hidden(platform::Form& form) {
  Watched& watched = forms_[&form];
  if (!watched.shown) return;
  watched.shown = false;
  tell_({{"event", "hide"}, {"form", form.Name()}});
}

void ScreenWatch::Forgotten(platform::Form& form) {
  const auto found = forms_.find(&form);
  if (found == forms_.end()) return;
  Hidden(form);
  form.Unobserve(*this);
  if (found->second.panel != nullptr) found->second.panel->Unobserve(*this);
  forms_.erase(found);
}

void ScreenWatch::Changed(platform::Object& object, const platform::PropertyBase& property) {
  for (const auto& [form, watched] : forms_) {
    if (&object == form && &property == &form->MousePointer) {
      tell_({{"event", "pointer"}, {"pointer", form->MousePointer()}});
    } else if (&object == watched.panel && &property == &watched.panel->Visible) {
      const platform::PictureBox& panel = *watched.panel;
      tell_({{"event", "wait-panel"},
             {"form", form->Name()},
             {"visible", panel.Visible()},
             {"sized", panel.Width() > 0 && panel.Height() > 0},
             {"text", TextOn(panel)}});
    }
  }
}

}  // namespace roteiro
