#include <gmock/gmock.h>

#include <map>

#include "services/Abertura.h"
#include "services/Database.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Migrations.h"
#include "services/banco/PostgresSession.h"
#include "services/banco/Schema.h"
#include "services/banco/SqliteSession.h"
#include "services/venda/Conferencia.h"

namespace services {
namespace {

/// A day of a clinic, in the words of each version that brought tables: a sale of 100,00 with a
/// pre-sale line, paid with 70,00 on credit in two parts, 20,00 of the customer's credit and cash.
struct Written {
  int version;
  const char* rows;
};
constexpr Written kWritten[] = {
    {1, R"sql(
INSERT INTO empresa (codigo, nome_fantasia, formato_de_codigo_de_barras_para_balanca,
  codigo_do_documento_com_emissao_permitida) VALUES (1, 'Bicho Contente', '2', '11');
INSERT INTO usuarios (codigo, nome, nome_busca, senha) VALUES (1, 'Renata', 'renata', 'x');
INSERT INTO caixas (numero, local_de_atendimento, aberto, dinheiro) VALUES
  (1, 'Recepção', 1, 100000);
INSERT INTO clientes (codigo, apelido, nome, nome_busca, credito) VALUES
  (5, 'Dudu', 'Eduardo', 'dudu', 300000);
INSERT INTO animais (codigo, codigo_do_cliente, nome) VALUES (7, 5, 'Rex');
INSERT INTO travas_de_clientes (codigo_do_cliente, nome_do_computador, computador_busca,
  nome_do_usuario, data_e_hora) VALUES (5, 'LOJA', 'loja', 'renata', '2026-11-01 09:00:00');
INSERT INTO produtos (codigo_interno, nome, nome_busca) VALUES (12, 'Ração', 'racao');
INSERT INTO tipos_de_servico (numero, nome) VALUES (5, 'Banhos');
INSERT INTO servicos (codigo, tipo, nome, nome_busca) VALUES (30, 5, 'Banho', 'banho');
INSERT INTO funcionarios (codigo, apelido) VALUES (3, 'Tati');
INSERT INTO vendas (numero, operacao, data_e_hora, numero_do_caixa, operador, codigo_do_cliente,
  apelido_do_cliente, nome_do_cliente, numero_da_ficha_clinica, valor_bruto, total_de_descontos,
  valor_liquido, total_recebido, troco, credito_anterior, credito_usado, credito_mantido, custo,
  comissao, lucro_em_valor, lucro_em_percentual, numero_de_itens, itens_de_pre_venda, situacao,
  observacao, chave_sat) VALUES (1, 71, '2026-11-01 08:00:00', 1, 'renata', 5, 'Dudu', 'Eduardo',
  0, 1000000, 0, 1000000, 1000000, 0, 500000, 200000, 0, 0, 0, 0, 0, 1, 1, 'F', '', '');
INSERT INTO itens_de_venda VALUES (1, 1, 1, 2, 5, '', 30, 'Banho', 7, 'Rex', 3, 'Tati', 10000,
  1000000, 0, 0, 1000000, 0, 0, 0, 9, 'UN', 0);
INSERT INTO lancamentos_de_caixa (numero, operacao, numero_do_caixa, data_e_hora, tipo, moeda,
  valor, descricao, operador, situacao, observacao, numero_da_venda) VALUES
  (1, 71, 1, '2026-11-01 08:00:00', 5, 1, 100000, 'Venda', 'renata', 'F', '', 1),
  (2, 71, 1, '2026-11-01 08:00:00', 5, 6, 700000, 'Venda', 'renata', 'F', '', 1),
  (3, 71, 1, '2026-11-01 08:00:00', 5, 7, 200000, 'Venda', 'renata', 'F', '', 1);
INSERT INTO contas_a_receber (numero, codigo_do_cliente, apelido_do_cliente, nome_do_cliente,
  numero_da_venda, data_da_venda, valor_da_venda, recebido_a_vista, percentual_recebido_a_vista,
  numero_da_parcela, numero_de_parcelas, numero_de_parcelas_anterior, historico,
  data_de_vencimento, valor_do_documento, data_de_recebimento, valor_recebido, incluido_em,
  incluido_por) VALUES
  (1, 5, 'Dudu', 'Eduardo', 1, '2026-11-01', 1000000, 300000, 300000, 1, 2, 2, '', '2026-12-01',
   400000, '2026-11-20', 400000, '2026-11-01 08:00:00', 'renata'),
  (2, 5, 'Dudu', 'Eduardo', 1, '2026-11-01', 1000000, 300000, 300000, 2, 2, 2, '', '2027-01-01',
   300000, NULL, 0, '2026-11-01 08:00:00', 'renata'),
  (3, 5, 'Dudu', 'Eduardo', NULL, NULL, 0, 0, 0, 1, 1, 1, '', '2026-10-01', 50000, NULL, 0,
   '2026-09-01 08:00:00', 'renata');
INSERT INTO creditos_do_cliente (numero, codigo_do_cliente, data_e_hora, moeda, valor, operador,
  observacao, numero_da_venda) VALUES
  (1, 5, '2026-10-01 08:00:00', 1, 500000, 'renata', '', NULL),
  (2, 5, '2026-11-01 08:00:00', 7, -200000, 'renata', 'Crédito usado em venda', 1);
INSERT INTO pre_vendas (numero, tipo_de_lancamento, codigo_do_cliente, data_de_lancamento,
  tipo_de_servico, codigo_do_item, nome_do_item, quantidade, valor_unitario, valor_total,
  incluido_em, incluido_por, numero_da_venda) VALUES (9, 1, 5, '2026-10-31', 5, 30, 'Banho', 10000,
  1000000, 1000000, '2026-10-31 08:00:00', 'renata', 1);
)sql"},
    {2, R"sql(
INSERT INTO orcamentos VALUES (1, 81, 5, 7, 'Rex', '2026-11-01 08:00:00', '2026-12-01', 10000, 0,
  10000, '', 'renata', NULL, NULL);
INSERT INTO itens_de_orcamento VALUES (1, 1, 1, 30, 'Banho', 'UN', 10000, 10000, 10000);
)sql"},
    {3, "INSERT INTO tentativas_de_login VALUES ('loja', 'renata', 2, '2026-11-01 08:00:00');"},
    {5, R"sql(
INSERT INTO cupons (numero, situacao, criado_em, computador, marca, numero_do_caixa, operador,
  codigo_do_cliente, consumidor, valor, conteudo, envio, retorno, chave, numero_da_venda) VALUES
  (1, 'encerrado', '2026-11-01 08:00:00', 'LOJA', '', 1, 'renata', 5, '', 100000, '', '', '', '35',
   NULL);
)sql"},
    {7, R"sql(
UPDATE contas_a_receber SET situacao = 'recebida' WHERE numero = 1;
UPDATE contas_a_receber SET origem = 'venda', operacao = 71 WHERE numero < 3;
UPDATE creditos_do_cliente SET tipo = 1, operacao = 71 WHERE numero = 2;
INSERT INTO cancelamentos_de_venda (numero, numero_da_venda, operacao, situacao, data_e_hora,
  numero_do_caixa, operador, consentido_por, motivo) VALUES
  (1, 1, 72, 'C', '2026-11-01 08:10:00', 1, 'renata', 'marina', 'engano'),
  (2, 1, 73, 'F', '2026-11-01 08:20:00', 1, 'renata', 'marina', '');
)sql"},
};
constexpr const char* kTables[] = {"empresa",
                                   "usuarios",
                                   "caixas",
                                   "clientes",
                                   "animais",
                                   "produtos",
                                   "servicos",
                                   "travas_de_clientes",
                                   "funcionarios",
                                   "vendas",
                                   "pre_vendas",
                                   "itens_de_venda",
                                   "orcamentos",
                                   "itens_de_orcamento",
                                   "cupons",
                                   "lancamentos_de_caixa",
                                   "contas_a_receber",
                                   "creditos_do_cliente",
                                   "tentativas_de_login",
                                   "tipos_de_servico",
                                   "cancelamentos_de_venda"};

/// A database that an older version of the program has left, with rows in all of its tables.
class MigrationTest : public OverDatabase {
 protected:
  void SetUp() override {}

  std::unique_ptr<Session> NewOfVersion(int version) {
    address_ = NewDatabase(GetParam());
    const std::string target = address_.substr(address_.find(':') + 1);
    std::unique_ptr<Session> old;
    if (GetParam() == Engine::kSqlite) {
      old = std::make_unique<SqliteSession>(target, SqliteSession::File::kMayBeNew);
    } else {
      old = std::make_unique<PostgresSession>(target, "RECEPCAO");
    }
    old->RunScript("CREATE TABLE esquema_do_caixa (versao integer NOT NULL)");
    old->RunScript("INSERT INTO esquema_do_caixa VALUES (" + std::to_string(version) + ")");
    for (const Migration& each : Migrations()) {
      if (each.version <= version) old->RunScript(ScriptOf(each, GetParam()));
    }
    for (const Written& each : kWritten) {
      if (each.version <= version) old->RunScript(each.rows);
    }
    return old;
  }

  std::string Joined(const std::string& select) {
    std::string all;
    const Statement ordered(select + " ORDER BY numero");
    session().Select(ordered, {},
                     [&](const Row& row) { all += (all.empty() ? "" : " ") + row.Text(0); });
    return all;
  }

  static std::vector<std::string> ColumnsOf(Session& session, const std::string& table) {
    const Statement names("SELECT name FROM pragma_table_info('" + table + "')",
                          "SELECT column_name::text FROM information_schema.columns"
                          " WHERE table_name = '" +
                              table + "'");
    std::vector<std::string> columns;
    session.Select(names, {}, [&](const Row& row) { columns.push_back(row.Text(0)); });
    return columns;
  }

  /// All rows of a table, a line each.
  static std::string RowsOf(Session& session, const std::string& table,
                            const std::vector<std::string>& columns) {
    std::string list;
    for (const std::string& each : columns) list += ", CAST(" + each + " AS text)";
    const Statement select("SELECT " + list.substr(2) + " FROM " + table + " ORDER BY 1, 2");
    std::string rows;
    session.Select(select, {}, [&](const Row& row) {
      for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        rows += columns[i] + "=" + (row.IsNull(i) ? "-" : row.Text(i)) + " ";
      }
      rows += "\n";
    });
    return rows;
  }
};
OVER_BOTH_ENGINES(MigrationTest);

TEST_P(MigrationTest, EveryRowOfEveryVersionIsKept) {
  for (int version = 1; version <= CurrentSchema(); ++version) {
    SCOPED_TRACE(version);
    std::unique_ptr<Session> old = NewOfVersion(version);
    std::map<std::string, std::pair<std::vector<std::string>, std::string>> before;
    for (const std::string table : kTables) {
      const auto columns = ColumnsOf(*old, table);
      if (columns.empty()) continue;
      before[table] = {columns, RowsOf(*old, table, columns)};
      EXPECT_NE(before[table].second, "") << table;
    }
    old.reset();
    if (version < CurrentSchema()) {
      EXPECT_THROW(Another("LOJA"), FalhaDeAbertura) << "not before it is migrated";
    }
    CriarBanco(address_);
    Open();
    EXPECT_EQ(CurrentSchema(), SchemaIn(session()));
    for (const auto& [table, was] : before) {
      EXPECT_EQ(was.second, RowsOf(session(), table, was.first)) << table;
    }
    EXPECT_THAT(Conferir(*banco_), testing::IsEmpty());
    EXPECT_EQ("2", Read("SELECT CAST(count(*) AS text) FROM contas_a_receber WHERE operacao = 71"
                        " AND origem = 'venda'"));
    EXPECT_EQ("recebida aberta aberta", Joined("SELECT situacao FROM contas_a_receber"));
    EXPECT_EQ("0 1", Joined("SELECT CAST(tipo AS text) FROM creditos_do_cliente"));
    servicos::EsquecerTodos();
    banco_.reset();
  }
}

TEST_P(MigrationTest, OperationsThatWereWrittenTwiceAreToldApart) {
  std::unique_ptr<Session> old = NewOfVersion(3);
  for (const char* copied : {"vendas", "lancamentos_de_caixa"}) {
    const std::string table = copied;
    const auto columns = ColumnsOf(*old, table);
    std::string names;
    std::string same;
    for (const std::string& each : columns) {
      names += ", " + each;
      same += each == "numero"            ? ", numero + 10"
              : each == "numero_da_venda" ? ", NULL"
                                          : ", " + each;
    }
    old->RunScript("INSERT INTO " + table + " (" + names.substr(2) + ") SELECT " + same.substr(2) +
                   " FROM " + table);
  }
  old.reset();
  CriarBanco(address_);
  Open();
  EXPECT_EQ(2, Count("(SELECT DISTINCT operacao FROM vendas) o"));
  EXPECT_EQ(3, Count("(SELECT DISTINCT operacao FROM lancamentos_de_caixa"
                     " WHERE numero_da_venda IS NULL) o"));
  EXPECT_EQ(3, Count("lancamentos_de_caixa WHERE operacao = 71 AND numero_da_venda = 1"));
  EXPECT_THROW(Write("UPDATE vendas SET operacao = 71"), DatabaseError);
}

}  // namespace
}  // namespace services
