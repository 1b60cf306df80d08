#pragma once

#include <memory>

#include "tools/roteiro/Module.h"

namespace roteiro {

/// The cash desk through its public class, as a host uses it.
std::unique_ptr<Module> MakeCashDesk();

}  // namespace roteiro
