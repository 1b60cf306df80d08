#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "frame/servicos/Codigos.h"
#include "services/banco/Session.h"
#include "services/venda/Colunas.h"

namespace services {

/// A receivable as it is opened: one instalment of what a customer owes.
struct Conta {
  std::int32_t codigoDoCliente = 0;
  std::string apelidoDoCliente = {}, nomeDoCliente = {};
  base::DateTime dataDaVenda = {};
  base::Currency valorDaVenda = {}, recebidoAVista = {}, percentualRecebidoAVista = {};
  std::int32_t parcela = 1, parcelas = 1;
  std::int32_t parcelasAnteriores = 1;
  std::string historico = {};  ///< Lines parted by no-break spaces.
  base::DateTime vencimento = {};
  base::Currency valor = {};
  base::DateTime incluidaEm = {};
  std::string incluidaPor = {};
  std::string_view origem = servicos::kDeVenda;  ///< kDeAcerto for what replaces other debts.
  std::int64_t operacao = 0;                     ///< The sale's or the settlement's.
  std::int32_t numeroDaVenda = 0;                ///< 0 for none.
};

/// The columns that are written of every receivable; the sale's number is not among them.
const std::vector<Coluna>& ColunasDaConta();
Params LinhaDaConta(const Conta& conta);

/// Opens receivables in the open transaction. Throws DatabaseError.
void AbrirContas(Session& session, const std::vector<Conta>& contas);

/// How a receivable is closed.
struct Baixa {
  std::int32_t numero = 0;    ///< The receivable's.
  base::Currency valor = {};  ///< That the document had when it was looked at.
  std::string_view situacao = servicos::kContaRecebida;  ///< Or kContaCancelada, kContaRenegociada.
  base::DateTime quando = {};
  std::string operador = {};
  base::Currency recebido = {}, desconto = {},
                 juros = {};  ///< Nothing received unless it is kContaRecebida.
  std::int64_t operacao = 0;  ///< By which the closing is proved, and found again.
};

/// Closes receivables in the open transaction, and proves it by the operation. Throws Refusal when
/// one is no longer open or its value is another one, and DatabaseError.
void BaixarContas(Session& session, Transaction& transaction, const std::vector<Baixa>& baixas);

/// Opens again what was closed as cancelled with one sale; their count. What was received or
/// renegotiated stays as it is. Throws DatabaseError.
std::int64_t ReabrirContas(Session& session, std::int32_t numeroDaVenda, base::DateTime quando,
                           const std::string& operador);

}  // namespace services
