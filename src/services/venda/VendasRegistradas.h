#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "services/banco/Param.h"

namespace services {

class Banco;
class Session;
class Statement;

// What the lines of a sale were given off, and what the sale was given off as a whole, as columns
// of a selection of vendas. The checkout hands over the two in one figure, the lines' part with its
// sign turned; together they are what lies between gross and net.
inline constexpr std::string_view kDescontoDaVenda =
    "(valor_bruto - valor_liquido + total_de_descontos) / 2";
inline constexpr std::string_view kDescontoNosItens =
    "valor_bruto - valor_liquido - (valor_bruto - valor_liquido + total_de_descontos) / 2";

/// A sale as it stands in the database, for whoever checks it from outside the cash desk.
struct VendaRegistrada {
  struct Item {
    std::string nome;
    std::string animal;
    base::Currency quantidade, valorUnitario, desconto, valorTotal;
    bool preVenda = false;
  };
  struct Recebimento {
    std::int32_t moeda = 0;  ///< servicos::pagamento::Codigo.
    base::Currency valor;
    std::string vencimento;  ///< dd/mm/yyyy for a sale on credit, else empty.
  };

  std::int32_t numero = 0;
  base::DateTime quando;
  std::int32_t caixa = 0;
  std::string operador;
  std::int32_t codigoDoCliente = 0;
  std::string nomeDoCliente;
  base::Currency bruto, descontoNosItens, descontoDaVenda, totalDeDescontos, liquido;
  base::Currency totalRecebido, troco;
  base::Currency creditoAnterior, creditoUsado, creditoParaOCliente;
  base::Currency custo, comissao, lucro;
  std::string situacao;  ///< servicos::kEfetuada or kCancelada.
  std::string observacao, chaveSat;
  std::vector<Item> itens;
  std::vector<Recebimento> recebimentos;
};

/// The last sales, the latest first. Throws DatabaseError.
std::vector<VendaRegistrada> UltimasVendas(Banco& banco, std::int32_t quantas);
/// Nothing when there is no such sale. Throws DatabaseError.
std::optional<VendaRegistrada> LerVenda(Banco& banco, std::int32_t numero);

/// The tenders of the sales whose numbers `quais` selects, as in "SELECT numero FROM vendas"; what
/// is pasted into the statement's text is the program's own, and its places begin at $1.
std::string SelecaoDosRecebimentos(const std::string& quais);
/// By the sale's number, each sale's in the order in which they were entered; without due dates.
/// Throws DatabaseError.
std::map<std::int32_t, std::vector<VendaRegistrada::Recebimento>> LerRecebimentosDasVendas(
    Session& session, const Statement& selecao, const Params& params);

}  // namespace services
