#include <memory>
#include <string>
#include <vector>

#include "tools/roteiro/CashDesk.h"
#include "tools/roteiro/DatabaseServices.h"
#include "tools/roteiro/Roteiro.h"

int main(int count, char** arguments) {
  return roteiro::Run(
      std::vector<std::string>(arguments + 1, arguments + count),
      {.makeModule = [] { return roteiro::MakeCashDesk(); }, .useDatabase = roteiro::UseDatabase});
}
