#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"
#include "base/Numbers.h"
#include "frame/servicos/Servico.h"

namespace siblings::dados {

/// An estimate to be registered. Its date and the day until which it is good are the database's.
struct Orcamento {
  struct Item {
    std::int32_t tipoDeLancamento = 0;  ///< servicos::TipoDeLancamento.
    std::int32_t codigo = 0;
    std::string nome, unidade;
    base::Currency quantidade, valorUnitario;

    /// In whole centavos.
    base::Currency ValorTotal() const { return base::Round(quantidade * valorUnitario, 2); }
  };

  double codigoDoCliente = 0;
  std::int32_t codigoDoAnimal = 0;
  std::string nomeDoAnimal;
  base::Currency desconto;
  std::int32_t diasDeValidade = 0;
  std::string observacao, operador;
  std::vector<Item> itens;

  base::Currency ValorBruto() const {
    base::Currency total;
    for (const Item& item : itens) total += item.ValorTotal();
    return total;
  }
};

/// The estimates of a customer. Numbered status.
class clsOrcamentos : public servicos::ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "siblings.clsOrcamentos";

  /// Those of all animals, the latest first: Numero, DataEHora, Animal, ValorBruto, Desconto,
  /// ValorTotal, Validade, Situacao ("Válido", "Vencido", "Cancelado"), Observacao, IncluidoPor.
  virtual std::int16_t Selecionar(double /*codigoDoCliente*/) { Ausente(); }
  /// The lines of one: Item, Tipo ("Serviço", "Produto"), Codigo, Nome, Quantidade, Unidade,
  /// ValorUnitario, ValorTotal.
  virtual std::int16_t SelecionarItens(std::int32_t /*numero*/) { Ausente(); }
  /// Refused without lines, with a quantity of nothing, a price below nothing, a discount of more
  /// than the sum, or a validity that is not from 1 to 365 days.
  virtual std::int16_t Registrar(const Orcamento& /*orcamento*/) { Ausente(); }
  /// Of the one just registered.
  virtual std::int32_t Numero() { Ausente(); }
  /// Refused when it is cancelled already.
  virtual std::int16_t Cancelar(std::int32_t /*numero*/, std::string_view /*operador*/) {
    Ausente();
  }
};

}  // namespace siblings::dados
