#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "services/Fabricas.h"
#include "services/Fields.h"
#include "services/Search.h"
#include "services/Senhas.h"
#include "services/SobreBanco.h"

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

class clsLogin : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;
  ~clsLogin() override { Esquecer(senha_); }

  void NomeDeUsuario(std::string_view nome) override { nome_ = nome; }
  void SenhaDoUsuario(std::string_view senha) override {
    Esquecer(senha_);
    senha_ = senha;
  }

  std::int16_t Autenticar() override {
    return Numerado("Autenticar", [this] {
      static const Statement secret(
          "SELECT codigo, senha, ativo FROM usuarios"
          " WHERE nome_busca = $1");
      static const Statement rights("SELECT " + ColumnsOf(kFields) +
                                    " FROM usuarios WHERE codigo = $1");
      std::int32_t codigo = 0;
      std::string hash;
      bool isActive = false;
      sessao().Select(secret, {SearchForm(nome_)}, [&](const Row& row) {
        codigo = row.Number(0);
        hash = row.Text(1);
        isActive = row.Flag(2);
      });
      const bool isRight = SenhaConfere(senha_, hash);
      Esquecer(senha_);
      // The same words for a wrong name and a wrong password: nobody learns which names exist.
      if (!isRight)
        throw Refusal{.sentence = "Usuário ou senha inválidos. Confira e tente de novo."};
      if (!isActive) {
        throw Refusal{.sentence = "Este usuário está desativado. Fale com o administrador."};
      }
      outcome_.rows = SelectRows(sessao(), kFields, rights, {codigo}).rows;
    });
  }

 private:
  std::string nome_;
  std::string senha_;
};

}  // namespace

ServicoNovo NovoClsLogin(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsLogin>(banco);
}

}  // namespace services
