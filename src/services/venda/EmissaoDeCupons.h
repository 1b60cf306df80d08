#pragma once

#include <memory>
#include <string_view>

#include "services/troca/PastaDeTroca.h"
#include "services/venda/Cupons.h"

namespace services {

class Banco;

/// Asks the fiscal application for coupons, one for a sale: when the same sale is tried again, what
/// was asked for the first time serves it. Throws DatabaseError and the run-time errors of
/// FalhaNaExportacao; nothing leaves then.
class EmissaoDeCupons {
 public:
  EmissaoDeCupons(std::shared_ptr<Banco> banco, PastaDeTroca pasta);

  /// The files of the coupon for these records: new ones, or those of an earlier try for the same
  /// sale, with its answer put back in its place.
  PastaDeTroca::Arquivos Exportar(std::string_view cabecalho, std::string_view itens,
                                  std::string_view pagamentos) const;
  /// Settles what earlier exports left: their answers are written to their coupons, and a file that
  /// nobody has taken and nobody waits for is taken back, so that no coupon comes of it.
  void Retomar() const;
  /// The instruction to show the manager of the fiscal application.
  PastaDeTroca::Arquivos Instruir(std::string_view texto) const;

 private:
  /// Whether the coupon can serve this try, its answer being put where it will be awaited.
  bool Serve(const CupomIgual& cupom, const RegistrosDoCupom& registros) const;

  std::shared_ptr<Banco> banco_;
  PastaDeTroca pasta_;
};

}  // namespace services
