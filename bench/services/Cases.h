#pragma once

#include "services/banco/Statement.h"

namespace bench {

/// Barcode to product, among many.
void AddBarcodes(services::Engine engine);
/// The first customers whose name contains a text, of many.
void AddNames(services::Engine engine);
/// A sale registered for good.
void AddPayments(services::Engine engine);
/// Several workstations registering sales at once, over the server.
void AddWorkstations();

/// What is done with sales of the past, among very many.
void AddPastSales(services::Engine engine);

}  // namespace bench
