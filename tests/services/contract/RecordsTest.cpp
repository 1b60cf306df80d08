#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "frame/servicos/ZOVA_N_Empresa.clsEmpresa.h"
#include "frame/servicos/ZOVA_N_Funcionarios.clsFuncionarios.h"
#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_TipoDeServ.clsTiposDeServ.h"
#include "services/Database.h"
#include "services/Senhas.h"

namespace services {
namespace {

using Login = servicos::ZOVA_N_Login::clsLogin;

/// Company, registers, users and the other records that are only read.
class RecordsTest : public OverDatabase {
 protected:
  void User(const std::string& name, const std::string& password, bool isActive, bool isAdmin) {
    InsertRows(session(), "usuarios", "nome, nome_busca, senha, ativo, administrador",
               {{name, base::Fold(name), HashDaSenha(password), isActive, isAdmin}});
  }
  std::unique_ptr<Login> Try(const std::string& name, const std::string& password,
                             std::int16_t expected) {
    auto service = servicos::CriarServico<Login>();
    service->NomeDeUsuario(name);
    service->SenhaDoUsuario(password);
    EXPECT_EQ(expected, service->Autenticar()) << name;
    return service;
  }
};
OVER_BOTH_ENGINES(RecordsTest);

TEST_P(RecordsTest, TheCompanyHasDatesFlagsAndALimitThatMayBeMissing) {
  const auto service = servicos::CriarServico<servicos::ZOVA_N_Empresa::clsEmpresa>();
  EXPECT_EQ(0, service->Selecionar(1, 2));
  EXPECT_EQ(0, service->ResultadoDaSelecaoEmRecordSet()->RecordCount());
  Write(
      "INSERT INTO empresa (codigo, nome_fantasia, formato_de_codigo_de_barras_para_balanca,"
      " codigo_do_documento_com_emissao_permitida, data_inicial_da_promocao,"
      " perc_promocao_servico, imprimir_comprovante) VALUES (1, 'Bicho', '2', '11',"
      " '2026-11-01', 125000, 1)");
  ASSERT_EQ(0, service->Selecionar(1, 2));
  const auto rows = service->ResultadoDaSelecaoEmRecordSet();
  EXPECT_EQ(base::Value("2"), rows->Fields("FormatoDeCodigoDeBarrasParaBalanca"));
  EXPECT_EQ(base::Value(base::DateTime(2026, 11, 1)), rows->Fields("DataInicialDaPromocao"));
  EXPECT_TRUE(base::IsNull(rows->Fields("DataFinalDaPromocao")));
  EXPECT_EQ(base::Value(Brl("12,5")), rows->Fields("PercPromocaoDeDescontoNaVendaDeServico"));
  EXPECT_TRUE(base::IsNull(rows->Fields("PercDeDescontoLimiteDaVendaNoCaixa")));
  EXPECT_EQ(base::Value("Sim"), rows->Fields("ImprimirComprovanteDePagamento"));
  EXPECT_EQ(base::Value("Não"), rows->Fields("ImprimirNotaPromissoria"));
  EXPECT_EQ(20, rows->FieldCount());
}

TEST_P(RecordsTest, RegistersTellWhetherTheyAreOpenClosedOrOutOfUse) {
  const std::string longName(130, 'x');
  Write("INSERT INTO caixas (numero, local_de_atendimento) VALUES (4, '" + longName + "')");
  const auto service = servicos::CriarServico<servicos::ZOVA_N_Caixas::clsCaixas>();
  ASSERT_EQ(0, service->SelecionarParaComboBox());
  EXPECT_EQ("1|Recepção|1\n2|Loja|2\n3|Antigo|3\n4|" + longName + "|2\n",
            service->ResultadoDaSelecaoEmRecordSet()->GetString("|", "\n"));
}

TEST_P(RecordsTest, EmployeesAllOrOne) {
  Write(
      "INSERT INTO funcionarios (codigo, apelido, comissionado, comissao_unica, comissao_banhos)"
      " VALUES (1, 'Tati', 1, 0, 305000), (2, 'Caio', 0, 1, 0)");
  const auto service = servicos::CriarServico<servicos::ZOVA_N_Funcionarios::clsFuncionarios>();
  double code = 0;
  ASSERT_FALSE(service->Selecionar(2, 0, 0, "", "", code));
  EXPECT_EQ(2, service->ResultadoDaSelecaoEmRecordSet()->RecordCount());
  EXPECT_EQ(base::Value("Caio"), service->ResultadoDaSelecaoEmRecordSet()->Fields("Apelido"));
  code = 1;
  ASSERT_FALSE(service->Selecionar(2, 0, 0, "", "", code));
  const auto rows = service->ResultadoDaSelecaoEmRecordSet();
  EXPECT_EQ(base::Value("Sim"), rows->Fields("Comissionado"));
  EXPECT_EQ(base::Value("Não"), rows->Fields("ComissaoUnica"));
  EXPECT_EQ(base::Value(Brl("30,5")), rows->Fields("PercentualDeComissaoEmBanhosTosasEEsteticas"));
}

TEST_P(RecordsTest, TypesOfServiceByNumber) {
  Write("INSERT INTO tipos_de_servico (numero, nome) VALUES (99, 'Outros'), (100, 'Clínicos')");
  const auto service = servicos::CriarServico<servicos::ZOVA_N_TipoDeServ::clsTiposDeServ>();
  double none = 0;
  ASSERT_EQ(0, service->SelecionarParaComboBox(none));
  EXPECT_EQ("99|Outros;100|Clínicos;",
            service->ResultadoDaSelecaoEmRecordSet()->GetString("|", ";"));
}

TEST_P(RecordsTest, AUserComesWithTheRightsOfTheSessionRecord) {
  User("José", "Segredo 1", true, true);
  const auto rows = Try("jose", "Segredo 1", 0)->ResultadoDaSelecaoEmRecordSet();
  EXPECT_EQ(base::Value("José"), rows->Field("NomeDeUsuario"));
  EXPECT_EQ(base::Value(true), rows->Field("Administrador"));
  for (const char* right :
       {"PermissaoDoModuloCaixaAlterarDescontosDeVendas", "PermissaoDoModuloCaixaRelatorios",
        "PermissaoDoModuloCaixaEfetuarVendasACreditoFiado",
        "PermissaoDoModuloCaixaEfetuarSaidasDeCaixas", "PermissaoDoModuloCaixaCancelarVendas"}) {
    EXPECT_EQ(base::Value(false), rows->Field(right)) << right;
  }
  EXPECT_EQ(base::Value(""), rows->Field("CodigoDoDocumentoComEmissaoPermitida"));
  EXPECT_EQ(std::string::npos, Read("SELECT senha FROM usuarios").find("Segredo"));
  EXPECT_EQ(0U, Read("SELECT senha FROM usuarios").find("$argon2id$"));
}

TEST_P(RecordsTest, ARefusedSignInDoesNotSayWhichHalfWasWrong) {
  User("ana", "certa", true, false);
  User("eva", "certa", false, false);
  const std::string words = "Usuário ou senha inválidos. Confira e tente de novo.";
  EXPECT_EQ(words, Try("ana", "CERTA", servicos::kRecusa)->DescricaoDaFalha());
  EXPECT_EQ(words, Try("ana", "", servicos::kRecusa)->DescricaoDaFalha());
  EXPECT_EQ(words, Try("ninguém", "", servicos::kRecusa)->DescricaoDaFalha());
  EXPECT_EQ(words, Try("eva", "errada", servicos::kRecusa)->DescricaoDaFalha());
  EXPECT_EQ(words, Try("' OR ''='", "x", servicos::kRecusa)->DescricaoDaFalha());
  EXPECT_EQ("Este usuário está desativado. Fale com o administrador.",
            Try("eva", "certa", servicos::kRecusa)->DescricaoDaFalha());
}

TEST_P(RecordsTest, AFaultHasNumberWordsAndPlaceInBothFamilies) {
  Write("DROP TABLE funcionarios");
  Write("ALTER TABLE caixas RENAME TO caixas_velhas");
  const auto employees = servicos::CriarServico<servicos::ZOVA_N_Funcionarios::clsFuncionarios>();
  double code = 0;
  EXPECT_TRUE(employees->Selecionar(2, 0, 0, "", "", code));
  EXPECT_NE(0, employees->NumeroDoErro());
  EXPECT_NE("", employees->DescricaoDoErro());
  EXPECT_EQ("ZOVA_N_Funcionarios, clsFuncionarios, Selecionar", employees->LocalDoErro());
  const NewSale sale{Sale{}};
  EXPECT_EQ(servicos::kErro, sale->RegistrarPagamento());
  EXPECT_EQ("ZOVA_N_Caixa, clsCaixa, RegistrarPagamento", sale->LocalDoErro());
  EXPECT_EQ("", sale->DescricaoDaFalha());
  Write("ALTER TABLE caixas_velhas RENAME TO caixas");
  EXPECT_EQ(0, sale->RegistrarPagamento()) << sale->DescricaoDoErro();
  EXPECT_EQ(0, sale->NumeroDoErro()) << "the fault of before is forgotten";
}

}  // namespace
}  // namespace services
