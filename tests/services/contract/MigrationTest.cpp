#include "services/Abertura.h"
#include "services/Database.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Migrations.h"
#include "services/banco/PostgresSession.h"
#include "services/banco/Schema.h"
#include "services/banco/SqliteSession.h"

namespace services {
namespace {

/// A database that an older version of the program has left.
class MigrationTest : public OverDatabase {
 protected:
  void SetUp() override {
    address_ = NewDatabase(GetParam());
    const std::string target = address_.substr(address_.find(':') + 1);
    std::unique_ptr<Session> old;
    if (GetParam() == Engine::kSqlite) {
      old = std::make_unique<SqliteSession>(target, SqliteSession::File::kMayBeNew);
    } else {
      old = std::make_unique<PostgresSession>(target, "RECEPCAO");
    }
    old->RunScript("CREATE TABLE esquema_do_caixa (versao integer NOT NULL)");
    old->RunScript("INSERT INTO esquema_do_caixa (versao) VALUES (1)");
    old->RunScript(ScriptOf(Migrations().front(), GetParam()));
    old->RunScript(
        "INSERT INTO empresa (codigo, nome_fantasia, formato_de_codigo_de_barras_para_balanca,"
        " codigo_do_documento_com_emissao_permitida) VALUES (1, 'Bicho Contente', '2', '11')");
    old->RunScript(
        "INSERT INTO caixas (numero, local_de_atendimento) VALUES (1, 'Recepção');"
        "INSERT INTO clientes (codigo, apelido, nome, nome_busca) VALUES (5, 'Dudu', 'Eduardo', "
        "'')");
    for (const char* number : {"1", "2", "3"}) {
      old->RunScript(
          "INSERT INTO vendas (numero, operacao, data_e_hora, numero_do_caixa, operador,"
          " codigo_do_cliente, apelido_do_cliente, nome_do_cliente, numero_da_ficha_clinica,"
          " valor_bruto, total_de_descontos, valor_liquido, total_recebido, troco,"
          " credito_anterior, credito_usado, credito_mantido, custo, comissao, lucro_em_valor,"
          " lucro_em_percentual, numero_de_itens, itens_de_pre_venda, situacao, observacao,"
          " chave_sat) VALUES (" +
          std::string(number) +
          ", 77, '2026-11-01 08:00:00', 1, '', 5, '', '', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,"
          " 0, 'F', '', '')");
      for (const char* sale : {number, "NULL"}) {
        old->RunScript(
            "INSERT INTO lancamentos_de_caixa (operacao, numero_do_caixa, data_e_hora, tipo, moeda,"
            " valor, descricao, operador, situacao, observacao, numero_da_venda) VALUES (77, 1,"
            " '2026-11-01 08:00:00', 3, 1, 0, '', '', 'F', '', " +
            std::string(sale) + ")");
      }
    }
  }
};
OVER_BOTH_ENGINES(MigrationTest);

TEST_P(MigrationTest, WhatAnOlderVersionWroteIsKept) {
  EXPECT_THROW(Another("LOJA"), FalhaDeAbertura) << "not before it is migrated";
  CriarBanco(address_);
  Open();
  EXPECT_EQ(CurrentSchema(), SchemaIn(session()));
  EXPECT_EQ("Bicho Contente", Read("SELECT nome_fantasia FROM empresa WHERE razao_social = ''"));
  EXPECT_EQ(0, Count("orcamentos"));
  EXPECT_EQ(0, Count("tentativas_de_login"));
  EXPECT_EQ(3, Count("(SELECT DISTINCT operacao FROM vendas) o")) << "told apart";
  EXPECT_EQ(3, Count("(SELECT DISTINCT operacao FROM lancamentos_de_caixa"
                     " WHERE numero_da_venda IS NULL) o"));
  EXPECT_EQ(3, Count("lancamentos_de_caixa WHERE operacao = 77 AND numero_da_venda IS NOT NULL"));
  EXPECT_THROW(Write("UPDATE vendas SET operacao = 77"), DatabaseError);
  CriarBanco(address_);
  EXPECT_EQ(1, Count("empresa")) << "migrated once";
}

}  // namespace
}  // namespace services
