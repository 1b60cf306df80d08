#include "services/venda/Contas.h"

#include "base/Numbers.h"
#include "services/banco/Outcome.h"
#include "services/banco/Preenchimento.h"
#include "services/venda/CodigosNoSql.h"
#include "services/venda/Provas.h"

namespace services {
namespace {

constexpr ColunaDe<Conta> kColunas[] = {
    {"codigo_do_cliente", "integer", [](const Conta& c) -> Param { return c.codigoDoCliente; }},
    {"apelido_do_cliente", "text", [](const Conta& c) -> Param { return c.apelidoDoCliente; }},
    {"nome_do_cliente", "text", [](const Conta& c) -> Param { return c.nomeDoCliente; }},
    {"data_da_venda", "date", [](const Conta& c) { return Param::Date(c.dataDaVenda); }},
    {"valor_da_venda", "bigint", [](const Conta& c) -> Param { return c.valorDaVenda; }},
    {"recebido_a_vista", "bigint", [](const Conta& c) -> Param { return c.recebidoAVista; }},
    {"percentual_recebido_a_vista", "bigint",
     [](const Conta& c) -> Param { return c.percentualRecebidoAVista; }},
    {"numero_da_parcela", "integer", [](const Conta& c) -> Param { return c.parcela; }},
    {"numero_de_parcelas", "integer", [](const Conta& c) -> Param { return c.parcelas; }},
    {"numero_de_parcelas_anterior", "integer",
     [](const Conta& c) -> Param { return c.parcelasAnteriores; }},
    {"historico", "text", [](const Conta& c) -> Param { return c.historico; }},
    {"data_de_vencimento", "date", [](const Conta& c) { return Param::Date(c.vencimento); }},
    {"valor_do_documento", "bigint", [](const Conta& c) -> Param { return c.valor; }},
    {"incluido_em", "timestamp", [](const Conta& c) -> Param { return c.incluidaEm; }},
    {"incluido_por", "text", [](const Conta& c) -> Param { return c.incluidaPor; }},
    {"origem", "text", [](const Conta& c) -> Param { return c.origem; }},
    {"operacao", "bigint", [](const Conta& c) -> Param { return c.operacao; }},
};

[[noreturn]] void Explain(const Baixa& baixa) {
  throw Refusal{.sentence = "O débito de " + base::FormatMoney(baixa.valor) +
                            " não está mais em aberto com este valor: já foi recebido ou mudou. "
                            "Nada foi registrado; selecione o cliente de novo."};
}

}  // namespace

const std::vector<Coluna>& ColunasDaConta() {
  static const auto colunas = NomesETipos(kColunas);
  return colunas;
}

Params LinhaDaConta(const Conta& conta) {
  return Valores(kColunas, conta);
}

void AbrirContas(Session& session, const std::vector<Conta>& contas) {
  static const Statement enter("INSERT INTO contas_a_receber (" + Nomes(ColunasDaConta()) +
                               ", numero_da_venda) VALUES (" + Places(ColunasDaConta().size() + 1) +
                               ")");
  for (const Conta& conta : contas) {
    Params row = LinhaDaConta(conta);
    row.push_back(NumeroOuNulo(conta.numeroDaVenda));
    session.Run(enter, row);
  }
}

void BaixarContas(Session& session, Transaction& transaction, const std::vector<Baixa>& baixas) {
  static const Statement close(
      ComCodigos("UPDATE contas_a_receber SET situacao = $3, data_de_recebimento = $4,"
                 " valor_recebido = $5, desconto = $6, juros = $7, operacao_de_baixa = $8,"
                 " alterado_em = $9, alterado_por = $10"
                 " WHERE numero = $1 AND situacao = {contaAberta} AND valor_do_documento = $2"));
  for (const Baixa& baixa : baixas) {
    const auto written =
        session.Run(close, {baixa.numero, baixa.valor, baixa.situacao, Param::Date(baixa.quando),
                            baixa.recebido, baixa.desconto, baixa.juros, baixa.operacao,
                            baixa.quando, baixa.operador});
    if (written == 0) Explain(baixa);
    transaction.ProvedBy(ProvaDe(TipoDeRegistro::kAcerto), {baixa.operacao});
  }
}

std::int64_t ReabrirContas(Session& session, std::int32_t numeroDaVenda, base::DateTime quando,
                           const std::string& operador) {
  static const Statement open(
      ComCodigos("UPDATE contas_a_receber SET situacao = {contaAberta}, data_de_recebimento = NULL,"
                 " operacao_de_baixa = NULL, alterado_em = $2, alterado_por = $3"
                 " WHERE numero_da_venda = $1 AND situacao = {contaCancelada}"));
  return session.Run(open, {numeroDaVenda, quando, operador});
}

}  // namespace services
