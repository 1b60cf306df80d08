#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/servicos/Servico.h"
#include "platform/Control.h"
#include "platform/Desktop.h"
#include "platform/Form.h"
#include "platform/Label.h"

namespace frame {

/// A message box under the application's title: information, or a stop.
void Informar(std::string_view texto);
void Parar(std::string_view texto);
/// A question with Yes and No, No as default; true for Yes.
bool Perguntar(std::string_view texto, platform::Icon icone = platform::Icon::kQuestion);

/// Tells the operator of a service's status other than success: a fault through the error reporter,
/// a refusal or failure number in a box. True on success.
bool Aceitar(std::int16_t resultado, servicos::ServicoDeNegocio& servico);

/// The colours of a label: of one whose field was refused, and of any other.
inline constexpr platform::Color kCorDeRecusa = 255;
inline constexpr platform::Color kCorNormal = 4802889;

/// Gives every label of the form its normal colour, but those whose names stand in `exceto` and
/// lblObservacaoDeCamposObrigatorios.
void RestaurarCorDosRotulos(platform::Form& formulario,
                            std::initializer_list<std::string_view> exceto = {});
/// Refuses a field: its label red, the message, the focus on `foco`. Returns 1, the answer of a
/// validation that stops.
std::int16_t Recusar(platform::Label& rotulo, std::string_view texto, platform::Control& foco);

}  // namespace frame
