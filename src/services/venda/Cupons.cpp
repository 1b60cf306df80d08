#include "services/venda/Cupons.h"

#include <algorithm>

#include "base/Record.h"
#include "base/RuntimeError.h"
#include "frame/servicos/ArquivoDeRetorno.h"
#include "services/Banco.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Session.h"
#include "services/troca/RespostasDaTroca.h"
#include "services/venda/CodigosNoSql.h"
#include "services/venda/Registros.h"
#include "services/venda/SituacoesDoCupom.h"
#include "services/venda/Venda.h"

namespace services {
namespace {

/// What is odd about a key, for whoever looks into it; it is kept as it came.
std::string NotaDaChave(const std::string& chave) {
  constexpr std::size_t kDigitos = 44;
  if (chave.empty()) return "A resposta veio sem chave.";
  const bool certa = chave.size() == kDigitos &&
                     std::ranges::all_of(chave, [](char c) { return c >= '0' && c <= '9'; });
  return certa ? "" : "A chave não tem 44 dígitos.";
}

/// Empty when nobody has signed in.
std::string Operador(const Banco& banco) {
  const base::Record* const sessao = banco.SessaoDoUsuario();
  return sessao == nullptr ? std::string() : base::ToText(sessao->Field("NomeDeUsuario"));
}

/// What is known of a coupon, as far as its files can change it.
struct Estado {
  std::string situacao, chave, nota;

  bool operator==(const Estado&) const = default;
};

struct Conhecido {
  std::int32_t numero = 0;
  PastaDeTroca::Arquivos arquivos;
  Estado estado;
};

Estado Apurar(const Conhecido& cupom) {
  // A whole key stands; a piece of one may have been read while it was being written.
  if (cupom.estado.situacao == kCupomEmitido && cupom.estado.nota.empty()) return cupom.estado;
  if (const auto bytes = LerResposta(cupom.arquivos.retorno)) {
    const auto retorno = servicos::LerRetorno(servicos::TextoDoArquivo(*bytes));
    if (!retorno.emitido) {
      return {std::string(kCupomRecusado), "",
              retorno.erro.empty() ? "ERRO DESCONHECIDO." : retorno.erro};
    }
    return {std::string(kCupomEmitido), retorno.chave, NotaDaChave(retorno.chave)};
  }
  if (cupom.estado.situacao == kCupomEnviado && FoiRetirado(cupom.arquivos.envio)) {
    return {std::string(kCupomRetirado), "", ""};
  }
  return cupom.estado;
}

std::vector<Conhecido> ComResposta(Banco& banco, Alcance alcance) {
  static const std::string kOpen = ComCodigos(
      "SELECT numero, envio, retorno, situacao, chave, nota FROM cupons"
      " WHERE situacao IN ({cupomEnviado}, {cupomEmitido}, {cupomRetirado})"
      " AND (situacao <> {cupomRetirado} OR criado_em >= $1)");
  static const Statement all(kOpen);
  static const Statement own(kOpen + " AND marca = $2 AND computador = $3");
  const bool proprios = alcance == Alcance::kEstaEstacao;
  Params params{banco.Agora().PlusDays(-1)};
  if (proprios) {
    params.emplace_back(banco.Marca());
    params.emplace_back(banco.Computador());
  }
  std::vector<Conhecido> cupons;
  banco.Sessao().Select(proprios ? own : all, params, [&](const Row& row) {
    cupons.push_back({.numero = row.Number(0),
                      .arquivos = {row.Text(1), row.Text(2)},
                      .estado = {row.Text(3), row.Text(4), row.Text(5)}});
  });
  return cupons;
}

/// The key of a sale that was not registered goes to its coupon, or to one of its own where none
/// was asked for here.
void AnotarChave(Banco& banco, const Venda& venda) {
  static const Statement note(ComCodigos(
      "UPDATE cupons SET situacao = {cupomEmitido}, chave = $2, nota = $3"
      " WHERE numero = $1 AND situacao IN ({cupomEnviado}, {cupomEmitido}, {cupomRetirado})"
      " AND numero_da_venda IS NULL"));
  static const Statement known("SELECT 1 FROM cupons WHERE chave = $1");
  static const Statement enter(ComCodigos(
      "INSERT INTO cupons (situacao, criado_em, computador, marca, numero_do_caixa, operador,"
      " codigo_do_cliente, consumidor, valor, conteudo, envio, retorno, chave, nota)"
      " VALUES ({cupomEmitido}, $1, $2, $3, $4, $5, $6, '', $7, '', '', '', $8, $9)"));
  const std::string& chave = venda.chaveSat;
  const std::string nota = NotaDaChave(chave);
  Session& session = banco.Sessao();
  InTransaction(session, [&](Transaction&) {
    if (session.Run(note, {banco.CupomEmAndamento(), chave, nota}) > 0) return;
    if (session.Select(known, {chave}, [](const Row&) {}) > 0) return;
    session.Run(enter,
                {banco.Agora(), banco.Computador(), banco.Marca(), venda.numeroDoCaixa,
                 venda.operador, banco.ClienteEmAtendimento(), venda.valorLiquido, chave, nota});
  });
}

/// Of a sale that was not registered for certain.
void SalvarChave(Banco& banco, const Venda& venda) {
  if (venda.chaveSat.empty()) return;
  try {
    if (banco.Sessao().IsConnected()) AnotarChave(banco, venda);
  } catch (const DatabaseError&) {
    // The answer in the archive tells the same, later.
  }
  banco.Avisar("O cupom desta venda já foi emitido, com a chave " + venda.chaveSat +
               ", e será usado quando ela for confirmada de novo. Se a venda não for mais feita, "
               "cancele o cupom no aplicativo fiscal.");
}

}  // namespace

std::int32_t AbrirCupom(Banco& banco, const RegistrosDoCupom& registros,
                        const PastaDeTroca::Arquivos& arquivos) {
  static const Statement enter(ComCodigos(
      "INSERT INTO cupons (situacao, criado_em, computador, marca, numero_do_caixa, operador,"
      " codigo_do_cliente, consumidor, valor, conteudo, envio, retorno)"
      " VALUES ({cupomEnviado}, $1, $2, $3, $4, $5, $6, $7, $8, $9, $10, $11) RETURNING numero"));
  static const Statement proof("SELECT 1 FROM cupons WHERE numero = $1 AND envio = $2");
  const std::int32_t cliente =
      registros.codigoDoCliente != 0 ? registros.codigoDoCliente : banco.ClienteEmAtendimento();
  const Params linha{banco.Agora(),        banco.Computador(), banco.Marca(),
                     registros.caixa,      Operador(banco),    cliente,
                     registros.consumidor, registros.valor,    registros.conteudo,
                     arquivos.envio,       arquivos.retorno};
  std::int32_t numero = 0;
  InTransaction(banco.Sessao(), [&](Transaction& transaction) {
    banco.Sessao().Select(enter, linha, [&](const Row& row) { numero = row.Number(0); });
    transaction.ProvedBy(proof, {numero, arquivos.envio});
  });
  return numero;
}

void CompletarCupons(Banco& banco, Alcance alcance) {
  static const Statement write(
      "UPDATE cupons SET situacao = $2, chave = $3, nota = $4 WHERE numero = $1 AND situacao = $5");
  std::vector<std::pair<Conhecido, Estado>> mudados;
  for (const Conhecido& cupom : ComResposta(banco, alcance)) {
    Estado novo = Apurar(cupom);
    if (novo != cupom.estado) mudados.emplace_back(cupom, std::move(novo));
  }
  if (mudados.empty()) return;
  InTransaction(banco.Sessao(), [&](Transaction&) {
    for (const auto& [cupom, novo] : mudados) {
      banco.Sessao().Run(
          write, {cupom.numero, novo.situacao, novo.chave, novo.nota, cupom.estado.situacao});
    }
  });
}

std::vector<CupomIgual> CuponsIguais(Banco& banco, const RegistrosDoCupom& registros,
                                     base::DateTime desde) {
  // A sale in doubt may have landed meanwhile: its coupon serves the question whether it has.
  static const Statement same(ComCodigos(
      "SELECT numero, situacao, criado_em, codigo_do_cliente, consumidor, chave, envio, retorno"
      " FROM cupons WHERE marca = $1 AND computador = $2 AND numero_do_caixa = $3"
      " AND conteudo = $4 AND criado_em >= $5"
      " AND ((situacao IN ({cupomEnviado}, {cupomEmitido}) AND numero_da_venda IS NULL)"
      " OR (situacao = {cupomVendido} AND numero = $6))"
      " ORDER BY CASE situacao WHEN {cupomEnviado} THEN 2 ELSE 1 END, numero DESC"));
  std::vector<CupomIgual> cupons;
  if (registros.conteudo.empty()) return cupons;
  banco.Sessao().Select(same,
                        {banco.Marca(), banco.Computador(), registros.caixa, registros.conteudo,
                         desde, banco.CupomEmAndamento()},
                        [&](const Row& row) {
                          cupons.push_back({.numero = row.Number(0),
                                            .temChave = row.Text(1) != kCupomEnviado,
                                            .quando = row.Moment(2),
                                            .codigoDoCliente = row.Number(3),
                                            .consumidor = row.Text(4),
                                            .chave = row.Text(5),
                                            .arquivos = {row.Text(6), row.Text(7)}});
                        });
  return cupons;
}

std::vector<CupomLargado> CuponsSemResposta(Banco& banco) {
  static const Statement unanswered(
      ComCodigos("SELECT numero, envio FROM cupons WHERE situacao = {cupomEnviado} AND marca = $1"
                 " AND computador = $2 AND numero_da_venda IS NULL"));
  std::vector<CupomLargado> cupons;
  banco.Sessao().Select(unanswered, {banco.Marca(), banco.Computador()}, [&](const Row& row) {
    cupons.push_back({.numero = row.Number(0), .envio = row.Text(1)});
  });
  return cupons;
}

void MarcarRetirado(Banco& banco, std::int32_t numero) {
  static const Statement write(
      ComCodigos("UPDATE cupons SET situacao = {cupomRetirado} WHERE numero = $1 AND situacao = "
                 "{cupomEnviado}"));
  InTransaction(banco.Sessao(), [&](Transaction&) { banco.Sessao().Run(write, {numero}); });
}

void GuardandoCupom(Banco& banco, const Venda& venda, const std::function<void()>& registrar) {
  try {
    registrar();
  } catch (...) {
    // While a sale is in doubt nobody may be told that its coupon is without one.
    if (!banco.Registros().HaDuvida()) SalvarChave(banco, venda);
    throw;
  }
  banco.CupomEmAndamento(0);
}

std::int32_t CupomDaVenda(Banco& banco, const Venda& venda) {
  static const Statement content("SELECT conteudo FROM cupons WHERE numero = $1");
  const std::int32_t numero = banco.CupomEmAndamento();
  if (numero == 0 || !venda.chaveSat.empty()) return numero;
  // Without a key it may be another sale's: one that was given up.
  std::string conteudo;
  banco.Sessao().Select(content, {numero}, [&](const Row& row) { conteudo = row.Text(0); });
  return SaoOsProdutosDe(conteudo, venda) ? numero : 0;
}

void VincularCupom(Session& session, const Venda& venda, std::int32_t numeroDaVenda) {
  static const Statement sold(ComCodigos(
      "UPDATE cupons SET situacao = {cupomVendido}, numero_da_venda = $2, chave = $3, nota = $4"
      " WHERE numero = $1 AND numero_da_venda IS NULL"));
  static const Statement soldByKey(
      ComCodigos("UPDATE cupons SET situacao = {cupomVendido}, numero_da_venda = $2"
                 " WHERE chave = $1 AND numero_da_venda IS NULL"));
  static const Statement soldWithout(
      "UPDATE cupons SET numero_da_venda = $2 WHERE numero = $1 AND numero_da_venda IS NULL");
  const std::string& chave = venda.chaveSat;
  if (chave.empty()) {
    if (venda.cupom != 0) session.Run(soldWithout, {venda.cupom, numeroDaVenda});
  } else if (venda.cupom != 0) {
    session.Run(sold, {venda.cupom, numeroDaVenda, chave, NotaDaChave(chave)});
  } else {
    session.Run(soldByKey, {chave, numeroDaVenda});
  }
}

}  // namespace services
