#pragma once

#include <string>
#include <vector>

#include "base/GradeLida.h"
#include "services/venda/Venda.h"

namespace services {

/// Reads the lines of a sale from the counter's grid: 20 columns of text, row 0 the header, blank
/// rows left out. Discounts may be negative as the counter holds them, or positive as in its copy
/// with the sale's discount spread; money formatted or plain. Throws Refusal for a cell that cannot
/// be read, and when there is no line.
std::vector<Venda::Item> LerItens(const base::GradeLida* grade);

/// Reads the tenders from the checkout's grid: method with its code in front, value, due date.
/// Throws Refusal.
std::vector<Venda::Recebimento> LerRecebimentos(const base::GradeLida* grade);

/// Refusal for an amount of the sale with a fraction of a cent. Quantities, percentages, unit
/// prices and costs may have one, and so may the profit that is worked out of them.
void ExigirCentavos(const Venda& venda);

/// Works out what was received, the change and the credit used, and holds them against the `troco`
/// that the checkout reports: negative, or 0 also where the change is below 1,00. Throws Refusal
/// when the books would not balance.
void FecharContas(Venda& venda, base::Currency troco);

/// The amount in a text of the Brazilian form; Refusal when it is none, and for a fraction of a
/// cent, which no drawer can hold. `what` names the field.
base::Currency LerValor(const std::string& text, const std::string& what);

/// The customer's code; Refusal when the text is none.
std::int32_t LerCodigoDoCliente(const std::string& text);

}  // namespace services
