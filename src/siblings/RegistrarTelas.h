#pragma once

namespace siblings {

/// Puts the sibling screens of the suite behind their identifiers: the error viewer and the
/// darkened window; of those that are not there yet, one that says so.
void RegistrarTelas();

}  // namespace siblings
