#pragma once

#include <cstddef>

namespace support {

/// The bytes that this program has asked for with new since it began.
std::size_t AskedMemory();

}  // namespace support
