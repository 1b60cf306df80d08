#include "services/demonstracao/Demonstracao.h"

#include "services/Banco.h"
#include "services/banco/Session.h"
#include "services/demonstracao/ClinicaDeDemonstracao.h"
#include "services/demonstracao/DadosDeDemonstracao.h"

namespace services {
namespace {

bool IsEmpty(Session& session) {
  static const Statement rows(
      "SELECT (SELECT count(*) FROM empresa) + (SELECT count(*) FROM usuarios)"
      " + (SELECT count(*) FROM caixas) + (SELECT count(*) FROM clientes)"
      " + (SELECT count(*) FROM produtos) + (SELECT count(*) FROM servicos)");
  std::int64_t count = 0;
  session.Select(rows, {}, [&](const Row& row) { count = row.Integer(0); });
  return count == 0;
}

}  // namespace

std::vector<UsuarioDeDemonstracao> CriarDemonstracao(Banco& banco) {
  InTransaction(banco.Sessao(), [&](Transaction&) {
    if (!IsEmpty(banco.Sessao())) {
      throw BancoNaoVazio(
          "O banco de dados já tem dados e não foi alterado. Crie a demonstração em um banco de "
          "dados novo.");
    }
    demonstracao::EscreverCadastros(banco.Sessao());
    demonstracao::EscreverClientes(banco.Sessao(), banco.Agora());
    demonstracao::EscreverItens(banco.Sessao());
    demonstracao::EscreverPendencias(banco.Sessao(), banco.Agora());
    demonstracao::EscreverOrcamentos(banco.Sessao(), banco.Agora());
  });
  std::vector<UsuarioDeDemonstracao> users;
  for (const demonstracao::Usuario& user : demonstracao::Usuarios()) {
    users.push_back({std::string(user.nome), std::string(user.senha), std::string(user.papel)});
  }
  return users;
}

}  // namespace services
