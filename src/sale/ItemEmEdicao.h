#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/GradeLida.h"
#include "lookup/ItemEncontrado.h"
#include "platform/ZVFind.h"
#include "sale/LinhaDeVenda.h"

namespace sale {

class TelaDoBalcao;

/// The item in the entry fields, from its search until it is a line of the sale: what was found,
/// and the fields that show it. What was found last stays known while the operator types over it.
class ItemEmEdicao {
 public:
  explicit ItemEmEdicao(TelaDoBalcao& tela) : tela_(tela) {}

  /// Which kind the operator enters.
  bool EhServico() const;
  TipoDeLancamento Tipo() const { return EhServico() ? kServico : kProduto; }
  /// The type of service that is chosen in the list; 0 without one.
  std::int32_t TipoDeServico() const;
  /// The percentage of the product found; what its employee earns.
  base::Currency PercentualDeComissaoDoProduto() const { return produto_.percentualDeComissao; }

  /// Whether a find field is one of a service's.
  bool EhDeServico(const platform::ZVFind& campo) const;
  /// The other find fields of the same kind of item.
  std::vector<platform::ZVFind*> Companheiros(const platform::ZVFind& campo) const;
  /// The operator types into a find field: what the others last found goes, for a line must never
  /// mix two items.
  void EsvaziarCompanheiros(const platform::ZVFind& campo);
  /// Empties a find field: nothing was typed into it, nothing found.
  static void Esvaziar(platform::ZVFind& campo);

  /// Takes up what was found: its fields show it, but for quantity and price.
  void Receber(const lookup::ItemEncontrado& item);
  /// Takes up the item of a line that is taken back; then its values.
  void Devolver(const base::GradeLida& grade, std::int32_t linha);
  void DevolverValores(const base::GradeLida& grade, std::int32_t linha);

  /// The value of the discount from its percentage, and the percentage from the value.
  void CalcularValorDoDesconto();
  void CalcularPercentualDoDesconto();
  /// The quantity of no item of the kind, and nothing in the fields of money.
  void ZerarValores(std::string_view quantidade);

  /// The line that the fields make. Error 13 for a text that is no number.
  NovaLinha MontarLinha() const;
  /// The line was added: its fields are empty, and the next line is a new one.
  void Encerrar();

 private:
  void Mostrar(const lookup::ItemEncontrado& item);

  TelaDoBalcao& tela_;
  lookup::ItemEncontrado servico_, produto_{.tipo = kProduto};
  /// The ledger entry that the next line takes; 0 for a new line.
  std::int32_t numeroDoLancamento_ = 0;
};

}  // namespace sale
