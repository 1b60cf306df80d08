#pragma once

namespace bench {

/// A receipt on paper.
void AddReceipts();
/// The list of a search with thousands of hits.
void AddPickLists();

/// The entries of a day with very many sales, on paper.
void AddEntries();

}  // namespace bench
