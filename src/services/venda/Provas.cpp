#include "services/venda/Provas.h"

#include "services/venda/CodigosNoSql.h"

namespace services {

const Statement& ProvaDe(TipoDeRegistro tipo) {
  static const Statement sale("SELECT numero FROM vendas WHERE operacao = $1");
  static const Statement movement(
      ComCodigos("SELECT 1 FROM lancamentos_de_caixa WHERE operacao = $1"
                 " AND numero_da_venda IS NULL AND tipo <> {acerto}"));
  static const Statement cancellation("SELECT 1 FROM cancelamentos_de_venda WHERE operacao = $1");
  static const Statement settlement("SELECT 1 FROM contas_a_receber WHERE operacao_de_baixa = $1");
  switch (tipo) {
    case TipoDeRegistro::kVenda:
      return sale;
    case TipoDeRegistro::kCancelamento:
      return cancellation;
    case TipoDeRegistro::kAcerto:
      return settlement;
    default:
      return movement;
  }
}

}  // namespace services
