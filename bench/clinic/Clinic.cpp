#include "clinic/Clinic.h"

#include <filesystem>

#include "clinic/Clock.h"
#include "clinic/Goods.h"
#include "clinic/Kept.h"
#include "clinic/Loading.h"
#include "clinic/People.h"
#include "services/Abertura.h"
#include "services/Banco.h"
#include "services/banco/Search.h"
#include "services/banco/Session.h"
#include "services/demonstracao/Demonstracao.h"
#include "support/Options.h"
#include "support/Server.h"
#include "support/TemporaryFolder.h"

namespace bench {
namespace {

namespace fs = std::filesystem;
using services::Engine;

/// Grows with every change to what a large clinic holds, so that none of an older form is used.
constexpr const char* kForm = "1";

void AddCustomers(const Database& database, std::int64_t count) {
  People people;
  LoadRows(database.Address(),
           {"clientes", "codigo, apelido, nome, nome_busca, endereco_completo", count,
            [&](std::int64_t place) -> services::Params {
              const People::Person person = people.Next();
              return {kFirstAdded + place, person.nickname, person.name,
                      services::SearchForm(person.nickname, person.name),
                      "Rua das Acácias, " + std::to_string(place) + " - Vale Claro/SP"};
            }});
}

/// The database under a name that says nothing of its contents yet.
Database Empty(Engine engine, const std::string& folder, const std::string& name) {
  if (engine == Engine::kPostgres) {
    server::CreateAnew(name);
    return {engine, server::ConnectionText(name)};
  }
  const fs::path file = FileIn(folder, name);
  for (const char* part : {"", "-wal", "-shm"}) fs::remove(file.string() + part);
  return {engine, file.string()};
}

Database FilledClinic(Engine engine, const std::string& folder, const std::string& name) {
  Database database = Empty(engine, folder, name);
  services::CriarBanco(database.Address());
  const StandingClock clock;
  services::CriarDemonstracao(*services::AbrirBanco(database.Address(), clock, "bench"));
  return database;
}

}  // namespace

fs::path FileIn(const std::string& folder, const std::string& name) {
  static const support::TemporaryFolder own;
  return (folder.empty() ? own.Path() : fs::path(folder)) / (name + ".db");
}

std::string NameOf(Engine engine) {
  return engine == Engine::kSqlite ? "sqlite" : "postgresql";
}

Database NewClinic(Engine engine, const std::string& name) {
  return FilledClinic(engine, {}, name);
}

void AddProducts(const Database& database, std::int64_t count) {
  LoadRows(database.Address(),
           {"produtos",
            "codigo_interno, codigo_de_barras, nome, nome_busca, ncm, grupo, subgrupo,"
            " unidade_de_compra, unidade_de_venda, valor_de_custo, valor_de_venda,"
            " percentual_de_comissao",
            count, [](std::int64_t place) -> services::Params {
              const std::string name = ProductNameAt(place);
              const std::int64_t cents = 990 + place % 20'000;
              return {kFirstAdded + place,
                      BarcodeAt(place),
                      name,
                      services::SearchForm(name),
                      "23091000",
                      "Loja",
                      "Diversos",
                      "CX",
                      "UN",
                      cents * 60,
                      cents * 100,
                      50'000};
            }});
}

Database Kept(Engine engine, const std::string& name,
              const std::function<void(const Database&)>& fill) {
  const bool isFile = engine == Engine::kSqlite;
  const fs::path file = FileIn(Chosen().folder, name);
  if (isFile ? fs::exists(file) : server::Has(name)) {
    return {engine, isFile ? file.string() : server::ConnectionText(name)};
  }
  if (!Chosen().folder.empty()) fs::create_directories(Chosen().folder);
  // Under another name until it is whole: what an interrupted run leaves is not taken for it.
  const std::string unfinished = name + "_inacabada";
  const Database database = FilledClinic(engine, Chosen().folder, unfinished);
  fill(database);
  if (!isFile) {
    server::Rename(unfinished, name);
    return {engine, server::ConnectionText(name)};
  }
  fs::rename(database.target, file);
  return {engine, file.string()};
}

Database LargeClinic(Engine engine) {
  const std::int64_t rows = Chosen().rows;
  return Kept(engine, std::string("clinica") + kForm + "_" + std::to_string(rows),
              [=](const Database& clinic) {
                AddCustomers(clinic, rows);
                AddProducts(clinic, rows);
              });
}

}  // namespace bench
