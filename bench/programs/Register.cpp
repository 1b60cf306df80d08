#include "programs/Cases.h"
#include "support/Bench.h"

void bench::Register() {
  AddScriptedSale();
  AddStart();
}
