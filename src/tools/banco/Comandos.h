#pragma once

#include <string>
#include <vector>

namespace banco {

/// Runs the command line, without the program's name. The exit status: 0 done, 1 refused or failed
/// with a sentence on the error output, 2 not understood.
int Executar(const std::vector<std::string>& argumentos);

}  // namespace banco
