#include "services/Database.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

#include "base/Numbers.h"
#include "services/Abertura.h"
#include "services/venda/Conferencia.h"
#include "support/PrivatePostgres.h"

namespace services {

std::vector<std::string> ProductLine(const std::string& total) {
  return {"7890000010015",
          "12",
          "Ração do João 50% \"mix\"",
          "",
          "",
          "0",
          "",
          "1,00",
          total,
          "0,00",
          "0,00",
          total,
          "6,20",
          "0,00",
          "0,00",
          "0",
          "UN",
          "0",
          "1",
          "2"};
}

std::vector<std::string> ServiceLine(const std::string& total) {
  return {"5",    "30",  "Banho d'água", "7",     "Rex",   "3", "Tati", "1", total, "0,00",
          "0,00", total, "2,00",         "30,00", "15,00", "0", "",     "0", "1",   "1"};
}

std::vector<std::string> PreSaleLine(const std::string& total, int number) {
  auto line = ServiceLine(total);
  line[servicos::linha::kNumeroDeLancamento] = std::to_string(number);
  line[servicos::linha::kColunaTipoDeVenda] = std::to_string(servicos::kPreVenda);
  return line;
}

std::vector<std::string> Tender(const std::string& method, const std::string& value,
                                const std::string& dueDate) {
  return {method, value, dueDate, ""};
}

namespace {

/// What the lines come to before their discounts; the net where one of them is no number.
base::Currency GrossOf(const Sale& sale) {
  if (sale.lines.Cols() <= servicos::linha::kValorUnitario) return sale.net;
  try {
    double gross = 0;
    for (std::int32_t row = 1; row < sale.lines.Rows(); ++row) {
      gross += base::ToDouble(sale.lines.TextMatrix(row, servicos::linha::kQuantidade)) *
               base::ToDouble(sale.lines.TextMatrix(row, servicos::linha::kValorUnitario));
    }
    return base::ToCurrency(gross);
  } catch (const base::RuntimeError&) {
    return sale.net;
  }
}

}  // namespace

NewSale::NewSale(Sale sale)
    : sale_(std::move(sale)), service_(servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>()) {
  service_->GradeDePagamentosEfetuados(&sale_.tenders);
  service_->Troco(sale_.change);
  service_->CreditoAnteriorDoCliente(base::Currency());
  service_->CreditoParaOCliente(sale_.creditKept);
  service_->NumeroDoCaixa(sale_.registerNumber);
  service_->Operador("renata");
  service_->CodigoDoCliente(std::string_view(sale_.customer));
  service_->ApelidoOuNomeFantasiaDoCliente("Dudu");
  service_->NomeOuRazaoSocialDoCliente("Eduardo Sampaio Leal");
  service_->ValorBruto(GrossOf(sale_));
  service_->ValorTotalDeDescontos(base::Currency());
  service_->ValorLiquido(sale_.net);
  service_->GradeDeItensDaVenda(&sale_.lines);
  service_->Custo(8_brl);
  service_->Comissao(2_brl);
  service_->LucroEmValor(3_brl);
  service_->LucroEmPercentual(base::Currency());
  service_->NumeroDaFichaClinica(0);
  service_->Observacao(sale_.note);
  if (!sale_.key.empty()) service_->ChaveSAT(sale_.key);
}

std::string NewDatabase(Engine engine) {
  if (engine == Engine::kSqlite) {
    static const support::TemporaryFolder folder;
    static int files = 0;
    return "sqlite:" + folder.File("clinica" + std::to_string(++files) + ".db");
  }
  static support::PrivatePostgres server;
  return server.NewDatabase();
}

std::string Name(const testing::TestParamInfo<Engine>& info) {
  return info.param == Engine::kSqlite ? "Sqlite" : "Postgres";
}

void OverDatabase::SetUp() {
  address_ = NewDatabase(GetParam());
  Prepare();
}

void OverDatabase::Prepare() {
  CriarBanco(address_);
  Open();
  Write(
      "INSERT INTO caixas (numero, local_de_atendimento, ativo, aberto) VALUES"
      " (1, 'Recepção', 1, 1), (2, 'Loja', 1, 0), (3, 'Antigo', 0, 0);"
      "INSERT INTO clientes (codigo, apelido, nome, nome_busca, credito) VALUES"
      " (5, 'Dudu', 'Eduardo', 'dudu', 500000);"
      "INSERT INTO creditos_do_cliente (codigo_do_cliente, data_e_hora, moeda, valor, operador,"
      " observacao) VALUES (5, '2026-11-01 08:00:00', 1, 500000, 'marina', '')");
}

void OverDatabase::Open() {
  banco_ = Another("RECEPCAO");
  RegistrarServicos(banco_);
}

pid_t OverDatabase::Start(const std::string& computer, const std::function<int()>& work,
                          const std::string& mark) {
  servicos::EsquecerTodos();
  banco_.reset();
  const pid_t process = fork();
  if (process == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    try {
      banco_ = Another(computer, mark);
      RegistrarServicos(banco_);
      _exit(work());
    } catch (const std::exception& error) {
      fprintf(stderr, "%s\n", error.what());
      _exit(100);
    }
  }
  Open();
  return process;
}

int OverDatabase::EndOf(pid_t process) {
  int status = 0;
  waitpid(process, &status, 0);
  if (WIFEXITED(status)) return WEXITSTATUS(status);
  EXPECT_EQ(SIGKILL, WTERMSIG(status));
  return -1;
}

void OverDatabase::TearDown() {
  servicos::EsquecerTodos();
}

std::string OverDatabase::Read(const std::string& sql) {
  const Statement statement(sql);
  std::string text;
  bool isFirst = true;
  session().Select(statement, {}, [&](const Row& row) {
    if (isFirst) text = row.Text(0);
    isFirst = false;
  });
  return text;
}

std::int64_t OverDatabase::Count(const std::string& table) {
  return base::ToInt32(base::Val(Read("SELECT count(*) FROM " + table)));
}

std::shared_ptr<Banco> OverDatabase::Another(const std::string& computer, const std::string& mark) {
  return AbrirBanco(address_, clock_, computer, mark);
}

void OverDatabase::ExpectBooksBalance() {
  for (const std::string& finding : Conferir(*banco_)) ADD_FAILURE() << finding;
}

}  // namespace services
