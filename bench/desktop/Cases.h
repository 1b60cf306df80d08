#pragma once

namespace bench {

/// A receipt on paper.
void AddReceipts();
/// The list of a search with thousands of hits.
void AddPickLists();

}  // namespace bench
