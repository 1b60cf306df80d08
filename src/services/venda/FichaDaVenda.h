#pragma once

#include <optional>

#include "frame/servicos/Codigos.h"
#include "services/venda/VendasRegistradas.h"

namespace services {

/// Everything that one sale left in the database.
struct FichaDaVenda {
  struct Lancamento {
    servicos::TipoDeMovimento tipo{};
    std::int32_t moeda = 0;
    base::Currency valor;  ///< Negative for what left the register.
  };
  struct Conta {
    std::int32_t parcela = 0, parcelas = 0;
    base::DateTime vencimento;
    base::Currency valor;
    std::string situacao;  ///< servicos::kContaAberta and its like.
  };
  struct Credito {
    base::Currency valor;  ///< Negative for what was used.
    std::string observacao;
  };
  struct PreVenda {
    std::int32_t numero = 0;
    std::string nome;
  };
  /// The sale cancelled, or its cancellation undone.
  struct Reversao {
    bool desfaz = false;
    base::DateTime quando;
    std::string operador, consentidoPor, motivo;
  };

  VendaRegistrada venda;
  std::vector<Lancamento> lancamentos;
  std::vector<Conta> contas;
  std::vector<Credito> creditos;
  std::vector<PreVenda> preVendas;  ///< The lines that the sale closed.
  std::vector<Reversao> reversoes;  ///< In their order.
};

/// Nothing when there is no such sale. Throws DatabaseError.
std::optional<FichaDaVenda> LerFichaDaVenda(Banco& banco, std::int32_t numero);

}  // namespace services
