#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "services/Abertura.h"
#include "services/Database.h"
#include "services/demonstracao/Demonstracao.h"

namespace services {
namespace {

/// The invented clinic.
class DemonstrationTest : public OverDatabase {
 protected:
  void SetUp() override {
    OverDatabase::SetUp();
    address_ = NewDatabase(GetParam());
    CriarBanco(address_);
    banco_ = AbrirBanco(address_, clock_, "RECEPCAO");
    RegistrarServicos(banco_);
    users_ = CriarDemonstracao(*banco_);
  }
  std::vector<UsuarioDeDemonstracao> users_;
};
OVER_BOTH_ENGINES(DemonstrationTest);

TEST_P(DemonstrationTest, HoldsAClinicThatBalances) {
  EXPECT_EQ(1, Count("empresa"));
  EXPECT_EQ(3, Count("caixas"));
  EXPECT_EQ(40, Count("clientes"));
  EXPECT_EQ(300, Count("produtos"));
  EXPECT_EQ(60, Count("servicos"));
  EXPECT_EQ(8, Count("tipos_de_servico t WHERE EXISTS (SELECT 1 FROM servicos WHERE tipo = "
                     "t.numero)"));
  EXPECT_LT(5, Count("pre_vendas"));
  EXPECT_EQ(0,
            Count("pre_vendas WHERE codigo_do_funcionario IS NOT NULL AND valor_da_comissao = 0"));
  EXPECT_EQ(0, Count("pre_vendas WHERE valor_total % 100 <> 0 OR desconto_em_valor % 100 <> 0"));
  EXPECT_LT(3, Count("contas_a_receber WHERE data_de_vencimento < '2026-11-22'"));
  EXPECT_EQ(3, Count("(SELECT DISTINCT situacao FROM clientes WHERE situacao > 1) s"));
  ExpectBooksBalance();
  Write("INSERT INTO clientes (apelido, nome, nome_busca) VALUES ('Novo', 'Novo', 'novo')");
  EXPECT_EQ("41", Read("SELECT max(codigo) FROM clientes"));
}

TEST_P(DemonstrationTest, EveryBarcodeIsValidAndItsOwn) {
  static const Statement select(
      "SELECT codigo_de_barras, unidade_de_venda, codigo_interno FROM produtos");
  int weighed = 0;
  session().Select(select, {}, [&](const Row& row) {
    const std::string code = row.Text(0);
    ASSERT_EQ(13U, code.size());
    int sum = 0;
    for (std::size_t i = 0; i < code.size(); ++i) sum += (code[i] - '0') * (i % 2 == 0 ? 1 : 3);
    EXPECT_EQ(0, sum % 10) << code;
    const bool isWeighed = row.Text(1) == "KG";
    weighed += isWeighed ? 1 : 0;
    EXPECT_EQ(isWeighed, code.starts_with('2')) << "that is a label of the scale";
    if (isWeighed) {
      EXPECT_EQ(row.Integer(2), base::ToInt32(base::Val(code.substr(1, 6))));
    }
  });
  EXPECT_EQ(12, weighed);
  EXPECT_EQ(300, Count("(SELECT DISTINCT codigo_de_barras FROM produtos) c"));
}

TEST_P(DemonstrationTest, ItsUsersSignInWithTheirDifferentRights) {
  ASSERT_EQ(4U, users_.size());
  std::vector<bool> admins;
  for (const UsuarioDeDemonstracao& user : users_) {
    const auto login = servicos::CriarServico<servicos::ZOVA_N_Login::clsLogin>();
    login->NomeDeUsuario(user.nome);
    login->SenhaDoUsuario(user.senha);
    ASSERT_EQ(0, login->Autenticar()) << user.nome;
    admins.push_back(base::ToBool(login->ResultadoDaSelecaoEmRecordSet()->Field("Administrador")));
    EXPECT_EQ(0, Count("usuarios WHERE senha LIKE '%" + user.senha + "%'"));
  }
  EXPECT_EQ((std::vector<bool>{true, false, false, false}), admins);
}

}  // namespace
}  // namespace services
