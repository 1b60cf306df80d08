#include "desktop/Cases.h"
#include "support/Bench.h"

void bench::Register() {
  AddReceipts();
  AddPickLists();
  AddEntries();
}
