#include "tools/roteiro/Place.h"

#include "base/Text.h"
#include "platform/Desktop.h"
#include "platform/Menu.h"
#include "tools/roteiro/HeadlessDesktop.h"

namespace roteiro {
namespace {

const char* NameOf(platform::Icon icon) {
  switch (icon) {
    case platform::Icon::kInformation:
      return "information";
    case platform::Icon::kStop:
      return "stop";
    case platform::Icon::kQuestion:
      return "question";
    case platform::Icon::kNone:
      break;
  }
  return "none";
}

const char* NameOf(platform::Answer answer) {
  switch (answer) {
    case platform::Answer::kYes:
      return "yes";
    case platform::Answer::kNo:
      return "no";
    case platform::Answer::kOk:
      break;
  }
  return "ok";
}

Json PlaceOf(const platform::MessageBox& box) {
  const std::string text = base::Replace(base::Replace(box.text, "\r\n", "\n"), "\r", "\n");
  return {{"kind", "message"},
          {"text", text},
          {"title", box.title},
          {"icon", NameOf(box.icon)},
          {"buttons", box.buttons == platform::Buttons::kYesNo ? "yesno" : "ok"},
          {"default", NameOf(box.preset)}};
}

Json PlaceOf(const platform::Menu& menu) {
  Json items = Json::array();
  for (const platform::MenuItem* item : menu.Items()) {
    if (!item->Visible()) continue;
    items.push_back(
        {{"name", item->Name()}, {"caption", item->Caption()}, {"checked", item->Checked()}});
  }
  return {{"kind", "popup"}, {"menu", menu.Name()}, {"items", items}};
}

Json PlaceOf(const platform::ReportPages& preview) {
  return {{"kind", "preview"},
          {"report", preview.name},
          {"title", preview.title},
          {"pages", preview.pages.size()}};
}

Json PlaceOf(const platform::Form& form) {
  const platform::Control* const active = form.ActiveControl();
  return {{"kind", "form"},
          {"form", form.Name()},
          {"title", form.Title()},
          {"focus", active == nullptr ? Json() : Json(active->Name())},
          {"modal", form.IsModal()}};
}

}  // namespace

Json PlaceOf(const Hold* held) {
  if (held != nullptr && held->box != nullptr) return PlaceOf(*held->box);
  if (held != nullptr && held->menu != nullptr) return PlaceOf(*held->menu);
  if (held != nullptr) return PlaceOf(*held->preview);
  const platform::Form* const form = HeadlessDesktop::InFront();
  return form == nullptr ? Json{{"kind", "idle"}} : PlaceOf(*form);
}

}  // namespace roteiro
