#pragma once

#include <cstdint>
#include <string_view>

#include "base/Record.h"

namespace entry {

/// The module's front door. A host creates it, sets DadosDoUsuario and NomeDaAplicacao, and calls
/// CaixaOperar, which returns at once: from then on the sale counter lives by the operator's acts.
/// All instances in one process share one session.
class clsCaixa {
 public:
  /// Opens the sale counter inside the window `conteiner`; `janelaPrincipal` is the window that
  /// dialogs and waits darken. The result stays empty. A second call replaces the counter that the
  /// module knows; the first one stays until its window goes.
  base::Value CaixaOperar(std::int32_t janelaPrincipal, std::int32_t conteiner);

  /// The record of the logged-in user: a live reference, which must outlive the counter.
  void DadosDoUsuario(const base::Record* dados);
  /// The title of every message box.
  void NomeDaAplicacao(std::string_view nome);

  /// The customer that this workstation holds locked, 0 if none.
  std::int32_t CodigoDoClienteComOperacoesBloqueadas() const;
  /// Locks a customer for this workstation (action 1) or frees them (any other): how a host
  /// releases the lock when the counter goes away with a customer on it.
  void ClasseBloquearOuDesbloquearClienteParaOperacoesNosCaixas(std::int32_t codigo,
                                                                std::int16_t acao);
};

}  // namespace entry
