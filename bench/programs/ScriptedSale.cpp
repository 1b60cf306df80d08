#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "clinic/Clinic.h"
#include "programs/Cases.h"
#include "programs/Program.h"
#include "support/Bench.h"
#include "support/RawSqlite.h"
#include "support/TemporaryFolder.h"

namespace bench {
namespace {

namespace fs = std::filesystem;

constexpr int kLines = 10;

std::vector<std::string> Barcodes(const std::string& file) {
  RawSqlite database(file);
  RawStatement select(database,
                      "SELECT codigo_de_barras FROM produtos WHERE codigo_de_barras LIKE '789%'"
                      " AND unidade_de_venda = 'UN' ORDER BY codigo_interno LIMIT ?1");
  sqlite3_bind_int(select, 1, kLines);
  std::vector<std::string> barcodes;
  while (sqlite3_step(select) == SQLITE_ROW) {
    barcodes.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(select, 0)));
  }
  if (barcodes.size() != kLines) throw std::runtime_error("the clinic has too few products");
  return barcodes;
}

/// From the opening of the register to the confirmation of the sale.
void WriteScript(const std::string& file, const std::vector<std::string>& barcodes) {
  std::ofstream script(file);
  script << R"({"do": "session", "fields": {"Administrador": true, "NomeDeUsuario": "marina"}}
{"do": "open", "title": "Clínica"}
{"do": "select", "control": "zvcmbCaixas", "index": 0}
{"do": "toolbar", "button": "Abertura"}
{"do": "type", "control": "zvnumValorEmDinheiro", "text": "100"}
{"do": "click", "control": "zvcmdSalvar"}
{"do": "type", "control": "zvfCodigoDoCliente", "text": "2"}
{"do": "key", "key": "Enter"}
{"do": "click", "control": "optProduto"}
)";
  for (const std::string& barcode : barcodes) {
    script << R"({"do": "type", "control": "zvfCodigoDeBarrasDoProduto", "text": ")" << barcode
           << R"("}
{"do": "key", "key": "Enter"}
{"do": "click", "control": "zvcmdAdicionar"}
)";
  }
  script << R"({"do": "click", "control": "zvcmdPagamento"}
{"do": "select", "control": "zvcmbFormaDePagamento", "text": "3-Cartão de crédito"}
{"do": "type", "control": "zvnumValor", "text": "50"}
{"do": "click", "control": "zvcmdAdicionar"}
{"do": "select", "control": "zvcmbFormaDePagamento", "text": "1-Dinheiro"}
{"do": "type", "control": "zvnumValor", "text": "5000"}
{"do": "click", "control": "zvcmdAdicionar"}
{"do": "click", "control": "zvcmdConfirmar"}
)";
}

/// The sales and the lines that stand in the database.
std::string SalesIn(const std::string& file) {
  RawSqlite database(file);
  RawStatement select(database,
                      "SELECT (SELECT count(*) FROM vendas) || ' of ' ||"
                      " (SELECT count(*) FROM itens_de_venda) || ' lines'");
  if (sqlite3_step(select) != SQLITE_ROW) throw std::runtime_error("nothing to read");
  return reinterpret_cast<const char*>(sqlite3_column_text(select, 0));
}

void Measure(benchmark::State& state) {
  const support::TemporaryFolder folder;
  const Database clinic = NewClinic(services::Engine::kSqlite, "roteiro");
  const std::string script = folder.File("venda.jsonl");
  WriteScript(script, Barcodes(clinic.target));
  const std::string file = folder.File("clinica.db");
  Alone(state, [&] {
    for (const char* part : {"-wal", "-shm"}) fs::remove(file + part);
    fs::copy_file(clinic.target, file, fs::copy_options::overwrite_existing);
    const Run run = RunProgram({CAIXA_ROTEIRO, "--services", "sqlite:" + file, "--now",
                                "2026-11-22T14:30:00", "--clock", "virtual"},
                               script);
    if (run.status != 0 || SalesIn(file) != "1 of 10 lines") {
      throw std::runtime_error("the sale was not made:\n" + run.output);
    }
    return run.seconds;
  });
}

}  // namespace

void AddScriptedSale() {
  constexpr int kRounds = 100;
  Add("scripted_sale", kRounds, Measure);
}

}  // namespace bench
