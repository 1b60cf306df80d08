#include "counter/Cases.h"
#include "support/Bench.h"

void bench::Register() {
  AddLines();
  AddFiscalText();
}
