#include "services/venda/CodigosNoSql.h"

#include "base/Text.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/Pagamento.h"
#include "services/venda/SituacoesDoCupom.h"

namespace services {
namespace {

struct Codigo {
  std::string_view nome;
  std::int32_t numero = 0;
};

struct Palavra {
  std::string_view nome, palavra;
};

constexpr Palavra kPalavras[] = {
    {"{cancelada}", servicos::kCancelada},
    {"{contaAberta}", servicos::kContaAberta},
    {"{contaCancelada}", servicos::kContaCancelada},
    {"{contaRenegociada}", servicos::kContaRenegociada},
    {"{deVenda}", servicos::kDeVenda},
    {"{cupomEnviado}", kCupomEnviado},
    {"{cupomEmitido}", kCupomEmitido},
    {"{cupomVendido}", kCupomVendido},
    {"{cupomRetirado}", kCupomRetirado},
    {"{cupomEncerrado}", kCupomEncerrado},
};

constexpr Codigo kCodigos[] = {
    {"{servico}", servicos::kServico},
    {"{produto}", servicos::kProduto},
    {"{balcao}", servicos::kVendaDeBalcao},
    {"{preVenda}", servicos::kPreVenda},
    {"{abertura}", servicos::kAbertura},
    {"{fechamento}", servicos::kFechamento},
    {"{entrada}", servicos::kEntrada},
    {"{saida}", servicos::kSaida},
    {"{recebimento}", servicos::kRecebimento},
    {"{troco}", servicos::kTroco},
    {"{estorno}", servicos::kEstorno},
    {"{acerto}", servicos::kAcerto},
    {"{creditoUsado}", servicos::kCreditoUsado},
    {"{creditoMantido}", servicos::kCreditoMantido},
    {"{dinheiro}", servicos::pagamento::kDinheiro},
    {"{aCredito}", servicos::pagamento::kACredito},
    {"{creditoDoCliente}", servicos::pagamento::kCreditoDoCliente},
    {"{aberto}", servicos::kCaixaAberto},
    {"{fechado}", servicos::kCaixaFechado},
    {"{foraDeOperacao}", servicos::kCaixaForaDeOperacao},
};

std::string Lista(std::int32_t primeiro, std::int32_t ultimo) {
  std::string lista = std::to_string(primeiro);
  while (primeiro < ultimo) lista += ", " + std::to_string(++primeiro);
  return lista;
}

}  // namespace

std::string ComCodigos(std::string_view sql) {
  std::string texto(sql);
  for (const Codigo& each : kCodigos) {
    texto = base::Replace(texto, each.nome, std::to_string(each.numero));
  }
  texto = base::Replace(texto, "{qualquerMovimento}",
                        Lista(servicos::kAbertura, servicos::kCreditoDevolvido));
  texto = base::Replace(texto, "{qualquerMoeda}",
                        Lista(servicos::pagamento::kDinheiro, servicos::pagamento::kPix));
  for (const Palavra& each : kPalavras) {
    texto = base::Replace(texto, each.nome, "'" + std::string(each.palavra) + "'");
  }
  return texto;
}

}  // namespace services
