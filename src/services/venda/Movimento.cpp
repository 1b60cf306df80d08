#include "services/venda/Movimento.h"

#include "base/Numbers.h"
#include "services/banco/Session.h"
#include "services/venda/Registros.h"

namespace services {
namespace {

bool NeedsOpenRegister(servicos::TipoDeMovimento tipo) {
  return tipo != servicos::kAbertura;
}

bool LeavesRegisterOpen(servicos::TipoDeMovimento tipo) {
  return tipo != servicos::kFechamento;
}

/// How the operator is told of a movement.
Registro Told(const Lancamento& movement) {
  const std::string drawer = "caixa " + std::to_string(movement.numeroDoCaixa);
  const std::string value = base::FormatMoney(base::Abs(movement.valor));
  Registro told{
      .oQue = "", .quando = movement.quando, .operacao = movement.operacao, .conteudo = {}};
  switch (movement.tipo) {
    case servicos::kAbertura:
      told.oQue = "abertura do " + drawer + " com " + value;
      break;
    case servicos::kFechamento:
      told.oQue = "fechamento do " + drawer + " com retirada de " + value;
      told.artigo = 'o';
      break;
    case servicos::kSaida:
      told.oQue = "saída de " + value + " do " + drawer;
      break;
    default:
      told.oQue = "entrada de " + value + " no " + drawer;
  }
  told.conteudo = [same = movement]() mutable {
    same.operacao = 0;
    same.quando = {};
    return ConteudoDe({LinhaDoLancamento(same)});
  };
  return told;
}

}  // namespace

void RegistrarMovimento(Banco& banco, const Lancamento& movimento) {
  banco.Registros().Registrar(Told(movimento), [&](std::int32_t&) {
    InTransaction(banco.Sessao(), [&](Transaction& transaction) {
      Lancar(banco.Sessao(), transaction, movimento.numeroDoCaixa, {movimento},
             {.exigeAberto = NeedsOpenRegister(movimento.tipo),
              .ficaAberto = LeavesRegisterOpen(movimento.tipo)});
    });
  });
}

}  // namespace services
