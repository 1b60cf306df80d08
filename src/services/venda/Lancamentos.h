#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/Pagamento.h"
#include "services/banco/Session.h"
#include "services/venda/Colunas.h"

namespace services {

/// An entry of a register: what moved its money. Entries are never changed or deleted.
struct Lancamento {
  std::int64_t operacao = 0;  ///< The attempt that wrote it, with all that it wrote.
  std::int32_t numeroDoCaixa = 0;
  base::DateTime quando = {};
  servicos::TipoDeMovimento tipo = servicos::kEntrada;
  std::int32_t moeda = servicos::pagamento::kDinheiro;
  base::Currency valor = {};  ///< Negative for what leaves the register.
  std::string descricao = {}, operador = {}, observacao = {};
  std::string situacao{servicos::kEfetuada};
  std::int32_t numeroDaVenda = 0;  ///< 0 for none.
  std::int32_t estorna = 0;        ///< The entry that this one takes back; 0 for none.
  std::string consentidoPor = {};  ///< The supervisor; empty where none was asked.
};

/// The columns that every entry has. Those of a sale and its reversal are not among them.
const std::vector<Coluna>& ColunasDoLancamento();
Params LinhaDoLancamento(const Lancamento& lancamento);

/// Whether the register has to be open, and whether it is so afterwards.
struct Passagem {
  bool exigeAberto = true;
  bool ficaAberto = true;
};

/// Writes entries of the register in the open transaction, and moves the cash among them in the
/// drawer at once; without any the register has to be open all the same, and stays so until the
/// transaction ends. They prove the transaction, but for a sale's and a settlement's, which what
/// goes with them proves. Throws Refusal: 41, 43, 51 or 52 for the register's state, 2 when more
/// cash would leave the drawer than is in it. Throws DatabaseError: kConstraint when an entry was
/// taken back before.
void Lancar(Session& session, Transaction& transaction, std::int32_t numeroDoCaixa,
            const std::vector<Lancamento>& lancamentos, const Passagem& passagem = {});

}  // namespace services
