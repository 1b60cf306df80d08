#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "frame/servicos/ZOVA_N_Empresa.clsEmpresa.h"
#include "frame/servicos/ZOVA_N_Funcionarios.clsFuncionarios.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_TipoDeServ.clsTiposDeServ.h"
#include "services/Database.h"

namespace services {
namespace {

/// Company, registers and the other records that are only read.
class RecordsTest : public OverDatabase {};
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
