#pragma once

namespace bench {

/// A whole sale played by caixa-roteiro.
void AddScriptedSale();
/// `caixa` from its start until the operator can sign in.
void AddStart();

}  // namespace bench
