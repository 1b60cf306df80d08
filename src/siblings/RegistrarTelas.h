#pragma once

namespace siblings {

/// Puts the sibling screens of the suite behind their identifiers: the error viewer, the darkened
/// window, the sales history, estimates, the codes that a fiscal coupon needs, the promissory note.
/// What they show they ask the services of siblings/dados for.
void RegistrarTelas();

}  // namespace siblings
