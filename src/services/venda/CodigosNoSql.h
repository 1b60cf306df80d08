#pragma once

#include <string>
#include <string_view>

namespace services {

/// The text of a statement with the contract's numbers in the place of their names: {servico},
/// {produto}, {balcao} and {preVenda} of a line; {recebimento}, {troco} and {qualquerMovimento} of
/// a register's entry; {dinheiro}, {aCredito} and {qualquerMoeda} of a tender; {aberto}, {fechado}
/// and {foraDeOperacao} of a register; {cancelada} of a sale; {contaAberta} and its like of a
/// receivable; {cupomEnviado} and its like of a coupon. "Qualquer" is a list for IN.
std::string ComCodigos(std::string_view sql);

}  // namespace services
