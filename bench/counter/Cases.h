#pragma once

namespace bench {

/// A line more on a sale of many.
void AddLines();
/// The text of a sale's fiscal coupon.
void AddFiscalText();

}  // namespace bench
