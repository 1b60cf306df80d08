#pragma once

#include <vector>

#include "tools/vitrine/Player.h"

/// What the player plays in the demonstration clinic. The words "{administrador}", "{supervisor}"
/// and "{operador}" are its users, "{senha do administrador}" and so on their passwords, "{pasta}"
/// is where pictures go, "{vencimento}" a day on which a sale on credit may fall due.
namespace vitrine::scripts {

/// A whole sale, told step by step.
std::vector<Step> Demonstration();
/// A round through every screen and its states, as an operator sees them.
std::vector<Step> Portraits();

}  // namespace vitrine::scripts
