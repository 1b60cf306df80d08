#include "services/venda/Caixas.h"

#include "services/banco/Outcome.h"

namespace services {

void ExigirCaixa(Session& session, std::int32_t numero, bool aberto) {
  static const Statement select("SELECT ativo, aberto FROM caixas WHERE numero = $1");
  bool isActive = false;
  bool isOpen = false;
  if (session.Select(select, {numero}, [&](const Row& row) {
        isActive = row.Flag(0);
        isOpen = row.Flag(1);
      }) == 0) {
    throw Refusal{servicos::kCaixaInexistente,
                  "Este caixa não existe mais. Selecione outro caixa."};
  }
  if (!isActive) {
    throw Refusal{servicos::kCaixaDesativado, "Este caixa foi desativado. Selecione outro caixa."};
  }
  if (isOpen && !aberto) {
    throw Refusal{servicos::kCaixaJaAberto,
                  "Este caixa já está aberto. Continue o atendimento nele."};
  }
  if (!isOpen && aberto) {
    throw Refusal{servicos::kCaixaNaoAberto,
                  "Este caixa não está aberto. Abra-o antes de continuar."};
  }
}

}  // namespace services
