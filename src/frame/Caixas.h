#pragma once

#include "base/Record.h"
#include "frame/Procedimento.h"
#include "platform/ZVComboBox.h"

namespace frame {

/// The registers of the clinic, one at least, for a list that is emptied once they are read; null
/// after a fault or where there is none, which the operator has been told. Steps 2 and 3 of its
/// procedure.
base::RecordSetPtr LerCaixas(platform::ZVComboBox& lista, Ponto& ponto);

}  // namespace frame
