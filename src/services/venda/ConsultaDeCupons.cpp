#include "services/venda/ConsultaDeCupons.h"

#include "base/Numbers.h"
#include "services/Banco.h"
#include "services/banco/Session.h"
#include "services/venda/CodigosNoSql.h"
#include "services/venda/SituacoesDoCupom.h"

namespace services {
namespace {

const std::string kSelect =
    "SELECT k.numero, k.criado_em, k.computador, k.numero_do_caixa, k.operador,"
    " k.codigo_do_cliente, coalesce(c.apelido, ''), k.valor, k.chave,"
    " coalesce(k.numero_da_venda, 0), k.situacao, k.nota"
    " FROM cupons k LEFT JOIN clientes c ON c.codigo = k.codigo_do_cliente";
const std::string kOpen = ComCodigos(" WHERE k.situacao IN ({cupomEnviado}, {cupomEmitido})");
const std::string kInOrder = " ORDER BY k.numero";

/// What became of a coupon, from its state, the note beside it, its key and its sale.
std::string Desfecho(const Cupom& cupom, const std::string& situacao, const std::string& nota) {
  const std::string chave = cupom.chave.empty() ? "sem chave" : "com a chave " + cupom.chave;
  const std::string venda = "a venda " + std::to_string(cupom.venda);
  const std::string observacao = nota.empty() ? "" : " (" + nota + ")";
  if (situacao == kCupomVendido) return "usado n" + venda + ", " + chave + observacao;
  if (situacao == kCupomRetirado) return "retirado antes de ser lido pelo aplicativo fiscal";
  if (situacao == kCupomRecusado) return "recusado pelo aplicativo fiscal" + observacao;
  if (situacao == kCupomEncerrado) return "encerrado" + observacao + ", " + chave;
  const std::string registro =
      cupom.venda == 0 ? "sem venda registrada" : venda + " foi registrada sem ele";
  if (situacao == kCupomEmitido) return "emitido " + chave + observacao + ", " + registro;
  return "enviado ao aplicativo fiscal e ainda sem resposta, " + registro;
}

std::vector<Cupom> Ler(Banco& banco, const Statement& select, const Params& params) {
  std::vector<Cupom> cupons;
  banco.Sessao().Select(select, params, [&](const Row& row) {
    Cupom& cupom = cupons.emplace_back(Cupom{.numero = row.Number(0),
                                             .quando = row.Moment(1),
                                             .computador = row.Text(2),
                                             .caixa = row.Number(3),
                                             .operador = row.Text(4),
                                             .codigoDoCliente = row.Number(5),
                                             .nomeDoCliente = row.Text(6),
                                             .valor = row.Money(7),
                                             .chave = row.Text(8),
                                             .venda = row.Number(9),
                                             .desfecho = ""});
    cupom.desfecho = Desfecho(cupom, row.Text(10), row.Text(11));
  });
  return cupons;
}

std::string Linha(const Cupom& cupom) {
  std::string linha = std::to_string(cupom.numero) + ". " + base::ToText(cupom.quando) +
                      ", caixa " + std::to_string(cupom.caixa) + ", " +
                      base::FormatMoney(cupom.valor);
  if (cupom.codigoDoCliente != 0) {
    linha += ", cliente " + std::to_string(cupom.codigoDoCliente) + " - " + cupom.nomeDoCliente;
  }
  return linha + ": " + cupom.desfecho + ".";
}

}  // namespace

std::vector<Cupom> ListarCupons(Banco& banco, bool todos) {
  static const Statement every(kSelect + kInOrder);
  static const Statement open(kSelect + kOpen + kInOrder);
  return Ler(banco, todos ? every : open, {});
}

bool EncerrarCupom(Banco& banco, std::int32_t numero, const std::string& motivo) {
  static const Statement close(
      ComCodigos("UPDATE cupons SET situacao = {cupomEncerrado}, nota = $2 WHERE numero = $1"
                 " AND situacao IN ({cupomEnviado}, {cupomEmitido})"));
  bool estavaAberto = false;
  InTransaction(banco.Sessao(), [&](Transaction&) {
    estavaAberto = banco.Sessao().Run(close, {numero, motivo}) > 0;
  });
  return estavaAberto;
}

std::string AvisoDeCupons(Banco& banco) {
  static const Statement left(kSelect + kOpen +
                              " AND ((k.marca = $1 AND k.computador = $2) OR k.criado_em < $3)" +
                              kInOrder);
  constexpr std::size_t kMostrados = 5;
  const std::vector<Cupom> cupons =
      Ler(banco, left, {banco.Marca(), banco.Computador(), banco.Agora().PlusDays(-1)});
  if (cupons.empty()) return "";
  std::string aviso = cupons.size() == 1 ? "Um cupom fiscal ficou sem venda que o use.\n\n"
                                         : "Ficaram " + std::to_string(cupons.size()) +
                                               " cupons fiscais sem venda que os use.\n\n";
  for (std::size_t i = 0; i < cupons.size() && i < kMostrados; ++i) {
    aviso += Linha(cupons[i]) + "\n\n";
  }
  if (cupons.size() > kMostrados) {
    aviso += "Os outros são mostrados por: caixa-banco BANCO cupons.\n\n";
  }
  return aviso +
         "Procure cada um no aplicativo fiscal: cancele o que foi emitido sem venda, ou avise o "
         "escritório. Depois o responsável o encerra com: caixa-banco BANCO cupons encerrar NÚMERO "
         "\"MOTIVO\".";
}

}  // namespace services
