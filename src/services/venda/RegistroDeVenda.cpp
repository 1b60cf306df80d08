#include "services/venda/RegistroDeVenda.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Numbers.h"
#include "services/Banco.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Outcome.h"
#include "services/venda/Caixas.h"
#include "services/venda/Cupons.h"
#include "services/venda/EscritaDeVenda.h"
#include "services/venda/LimiteDeCredito.h"
#include "services/venda/Registros.h"
#include "services/venda/TabelasDaVenda.h"

namespace services {
namespace {

void ExplainLimit(Session& session, const Venda& venda) {
  const base::Currency onCredit = venda.SujeitoAoLimite();
  if (CabeNoLimite(session, venda.codigoDoCliente, onCredit)) return;
  const auto limit = LerLimiteDeCredito(session, venda.codigoDoCliente);
  if (!limit) return;
  throw Refusal{.sentence = "O cliente tem agora " + base::FormatMoney(limit->Disponivel()) +
                            " do limite de crédito, que não cobre os " +
                            base::FormatMoney(onCredit) +
                            " a crédito (fiado). Nada foi registrado; refaça o pagamento."};
}

/// The sale could not be written as it stands. Throws the refusal that says why; returns when
/// whatever was in the way has gone meanwhile.
void Explain(Session& session, const Venda& venda, const Estacao& estacao) {
  static const Statement customer("SELECT credito FROM clientes WHERE codigo = $1");
  static const Statement preSale(
      "SELECT 1 FROM pre_vendas WHERE numero = $1 AND codigo_do_cliente = $2"
      " AND numero_da_venda IS NULL");
  try {
    ExigirCaixa(session, venda.numeroDoCaixa, true);
  } catch (Refusal& refusal) {
    // The checkout knows no failure numbers.
    refusal.status = servicos::kRecusa;
    refusal.sentence += " A venda não foi registrada.";
    throw;
  }
  base::Currency credit;
  if (session.Select(customer, {venda.codigoDoCliente},
                     [&](const Row& row) { credit = row.Money(0); }) == 0) {
    throw Refusal{.sentence = "O cliente de código " + std::to_string(venda.codigoDoCliente) +
                              " não está cadastrado. Limpe os campos e selecione o cliente de "
                              "novo."};
  }
  const std::string holder = OutroDetentor(session, venda.codigoDoCliente, estacao);
  if (!holder.empty()) {
    throw Refusal{.sentence = "Este cliente está em atendimento com " + holder +
                              ". A venda não foi registrada; aguarde o fim do atendimento e refaça "
                              "o pagamento."};
  }
  if (credit < venda.creditoUsado) {
    throw Refusal{.sentence = "O crédito do cliente agora é de " + base::FormatMoney(credit) +
                              " e não cobre os " + base::FormatMoney(venda.creditoUsado) +
                              " informados. Nada foi registrado; refaça o pagamento."};
  }
  ExplainLimit(session, venda);
  for (const Venda::Item& item : venda.itens) {
    if (item.numeroDeLancamento == 0) continue;
    if (session.Select(preSale, {item.numeroDeLancamento, venda.codigoDoCliente},
                       [](const Row&) {}) > 0) {
      continue;
    }
    throw Refusal{.sentence = "O item de pré-venda '" + item.nome + "' (lançamento " +
                              std::to_string(item.numeroDeLancamento) +
                              ") não está mais em aberto: já foi vendido ou retirado. Limpe os "
                              "campos e selecione o cliente de novo."};
  }
}

/// Whether the database let the sale in; it is as it was before when it did not. The number is set
/// before that is kept.
bool TryToWrite(Session& session, const Venda& venda, const Estacao& estacao,
                std::int32_t& number) {
  struct NotLetIn {};
  try {
    InTransaction(session, [&](Transaction& transaction) {
      const auto written = session.Kind() == Engine::kSqlite
                               ? EscreverNoSqlite(session, venda, estacao)
                               : EscreverNoPostgres(session, venda, estacao);
      if (!written) throw NotLetIn{};
      number = *written;
      VincularCupom(session, venda, number);
      transaction.ProvedBy(ProvaDe(TipoDeRegistro::kVenda), {venda.operacao});
    });
    return true;
  } catch (const NotLetIn&) {
    return false;
  }
}

void Write(Session& session, const Venda& venda, const Estacao& estacao, std::int32_t& number) {
  constexpr int kAttempts = 3;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (TryToWrite(session, venda, estacao, number)) return;
    Explain(session, venda, estacao);
  }
  throw DatabaseError(Trouble::kConflict, "vendas");
}

/// All that the checkout hands over but what differs when the same sale is confirmed again: the
/// moment and number of the attempt, the credit that the database leaves, the coupon's key.
std::string ContentOf(const Venda& venda) {
  constexpr std::string_view kDrawnAnew[] = {"operacao", "data_e_hora", "credito_anterior",
                                             "chave_sat"};
  std::vector<Params> rows = ItensDaVenda(venda);
  Params own = LinhaDaVenda(venda);
  const auto columns = ColunasDaVenda();
  for (std::size_t i = 0; i < own.size(); ++i) {
    if (std::ranges::find(kDrawnAnew, columns[i].nome) != std::end(kDrawnAnew)) own[i] = Param();
  }
  rows.push_back(std::move(own));
  rows.push_back({venda.numeroDoCaixa, venda.codigoDoCliente});
  for (const Venda::Recebimento& each : venda.recebimentos) {
    rows.push_back(
        {each.moeda, each.valor, each.vencimento ? Param::Date(*each.vencimento) : Param()});
  }
  return ConteudoDe(rows);
}

}  // namespace

std::int32_t RegistrarVenda(Banco& banco, const Venda& venda) {
  const std::string& name =
      venda.apelidoDoCliente.empty() ? venda.nomeDoCliente : venda.apelidoDoCliente;
  const Registro registro{
      .oQue = "venda de " + base::FormatMoney(venda.valorLiquido) + " para " + name,
      .tipo = TipoDeRegistro::kVenda,
      .quando = venda.quando,
      .operacao = venda.operacao,
      .conteudo = [&] { return ContentOf(venda); }};
  return banco.Registros().Registrar(registro, [&](std::int32_t& number) {
    Write(banco.Sessao(), venda, banco.Estacao(), number);
  });
}

}  // namespace services
