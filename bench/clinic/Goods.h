#pragma once

#include <cstdint>
#include <string>

namespace bench {

/// The barcode of the product at a place in the list, from 0: a valid EAN-13, each once, in no
/// order.
std::string BarcodeAt(std::int64_t place);

/// The name of that product.
std::string ProductNameAt(std::int64_t place);

}  // namespace bench
