#include <chrono>
#include <future>

#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/banco/Senhas.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/contrato/TentativasDeLogin.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Login::clsLogin;
using enum Field::Kind;

/// The user under the names of the session record, so that a host can hand the row on as such.
constexpr Field kFields[] = {
    {"NomeDeUsuario", kText, "nome"},
    {"Administrador", kTruth, "administrador"},
    {"PermissaoDoModuloCaixaAlterarDescontosDeVendas", kTruth, "alterar_descontos"},
    {"PermissaoDoModuloCaixaRelatorios", kTruth, "relatorios"},
    {"PermissaoDoModuloCaixaEfetuarVendasACreditoFiado", kTruth, "vendas_a_credito"},
    {"PermissaoDoModuloCaixaEfetuarSaidasDeCaixas", kTruth, "saidas_de_caixa"},
    {"PermissaoDoModuloCaixaCancelarVendas", kTruth, "cancelar_vendas"},
    {"CodigoDoDocumentoComEmissaoPermitida", kText,
     "coalesce((SELECT codigo_do_documento_com_emissao_permitida FROM empresa"
     " ORDER BY codigo LIMIT 1), '')"},
};

/// Verifies a password while the screens live. The thread that does so owns all that it reads:
/// what lets the events run may throw, and then nobody waits for more than its end.
bool Confere(const std::shared_ptr<const Segredo>& senha, std::string hash,
             const std::function<void()>& correrEventos) {
  const auto verify = [senha, hash = std::move(hash)] {
    return SenhaConfere(senha->Senha(), hash);
  };
  if (!correrEventos) return verify();
  constexpr auto kNap = std::chrono::milliseconds(2);
  auto verdict = std::async(std::launch::async, verify);
  while (verdict.wait_for(kNap) != std::future_status::ready) correrEventos();
  return verdict.get();
}

class clsLogin : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  void NomeDeUsuario(std::string_view nome) override { nome_ = nome; }
  void SenhaDoUsuario(std::string_view senha) override {
    senha_ = std::make_shared<Segredo>(senha);
  }

  std::int16_t Autenticar() override {
    // However this ends, the password is forgotten.
    const auto senha = senha_ ? std::move(senha_) : std::make_shared<Segredo>("");
    return Numerado("Autenticar", [&] {
      static const Statement secret(
          "SELECT codigo, senha, ativo FROM usuarios"
          " WHERE nome_busca = $1");
      static const Statement rights("SELECT " + ColumnsOf(kFields) +
                                    " FROM usuarios WHERE codigo = $1");
      ContarTentativa(banco(), nome_);
      std::int32_t codigo = 0;
      std::string hash;
      bool isActive = false;
      sessao().Select(secret, {SearchForm(nome_)}, [&](const Row& row) {
        codigo = row.Number(0);
        hash = row.Text(1);
        isActive = row.Flag(2);
      });
      // The same words for a wrong name and a wrong password: nobody learns which names exist.
      if (!Confere(senha, hash, banco().CorrerEventos())) {
        throw Refusal{.sentence = "Usuário ou senha inválidos. Confira e tente de novo."};
      }
      if (!isActive) {
        throw Refusal{.sentence = "Este usuário está desativado. Fale com o administrador."};
      }
      EsquecerTentativas(banco(), nome_);
      outcome_.rows = SelectRows(sessao(), kFields, rights, {codigo}).rows;
      const auto user = std::make_shared<base::RecordSet>(*outcome_.rows);
      user->MoveFirst();
      banco().Consentir(user);
    });
  }

 private:
  std::string nome_;
  std::shared_ptr<Segredo> senha_;
};

}  // namespace

ServicoNovo NovoClsLogin(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsLogin>(banco);
}

}  // namespace services
