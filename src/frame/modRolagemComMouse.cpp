#include "frame/modRolagemComMouse.h"

#include <algorithm>
#include <functional>

#include "platform/Screens.h"

namespace frame {
namespace {

platform::Form* formularioAtual = nullptr;

void Rolar(platform::MSFlexGrid& grade, std::int32_t delta) {
  constexpr std::int32_t kPassoMinimo = 10;
  const std::int32_t ultima = grade.Rows() - 1;
  if (ultima < 1) return;
  const std::int32_t altura = std::max(grade.RowHeight(1), 1);
  const std::int32_t passo = std::max(grade.Height() / altura, kPassoMinimo);
  grade.TopRow(delta > 0 ? std::max(grade.TopRow() - passo, 1)
                         : std::min(grade.TopRow() + passo, ultima));
}

}  // namespace

void AtivarRolagemComMouse(platform::Form& formulario, platform::MSFlexGrid& grade) {
  DesativarRolagemComMouse();
  formularioAtual = &formulario;
  formulario.MouseWheel = [&grade](std::int32_t delta, bool& rolou) {
    Rolar(grade, delta);
    rolou = true;
  };
}

void DesativarRolagemComMouse() {
  // A form that is gone has taken its wheel along.
  const auto& abertos = platform::screens::Loaded();
  if (std::find(abertos.begin(), abertos.end(), formularioAtual) == abertos.end()) {
    formularioAtual = nullptr;
    return;
  }
  formularioAtual->MouseWheel = std::function<void(std::int32_t, bool&)>();
  formularioAtual = nullptr;
}

}  // namespace frame
