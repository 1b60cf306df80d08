#include "services/Database.h"
#include "services/Migrations.h"
#include "services/PostgresSession.h"
#include "services/Schema.h"
#include "services/SqliteSession.h"

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
  CriarBanco(address_);
  EXPECT_EQ(1, Count("empresa")) << "migrated once";
}

}  // namespace
}  // namespace services
