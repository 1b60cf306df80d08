#include "services/Cases.h"
#include "support/Bench.h"

void bench::Register() {
  for (const auto engine : {services::Engine::kSqlite, services::Engine::kPostgres}) {
    AddBarcodes(engine);
    AddNames(engine);
    AddPayments(engine);
    AddPastSales(engine);
  }
  AddWorkstations();
}
