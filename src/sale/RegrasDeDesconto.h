#pragma once

#include <optional>

#include "base/Currency.h"
#include "base/Record.h"
#include "frame/servicos/Codigos.h"

namespace sale {

/// The company's rules on discounts at the counter, as its record has them.
class RegrasDeDesconto {
 public:
  /// Takes the limit over; a company that has none leaves it as it was.
  void AtualizarLimite(const base::RecordSet& empresa);
  /// Whether a discount of this percentage needs a supervisor.
  bool AcimaDoLimite(base::Currency percentual) const {
    return percentual > PercentualDeDescontoLimite;
  }

  struct Promocao {
    bool encerrada = false;     ///< Or not begun yet.
    base::Currency percentual;  ///< While it runs.
  };
  /// The promotion for a kind of item; nothing where the company has none.
  static std::optional<Promocao> PromocaoPara(const base::RecordSet& empresa,
                                              servicos::TipoDeLancamento tipo);
  /// The greatest percentage that a line may have today, as the record writes it; nothing while no
  /// such maximum is in force.
  static std::optional<base::Value> MaximoAutomatico(const base::RecordSet& empresa,
                                                     servicos::TipoDeLancamento tipo);

 private:
  base::Currency PercentualDeDescontoLimite;
};

}  // namespace sale
