#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "roteiro/Scenario.h"

namespace roteiro_tests {
namespace {

void PlayText(const std::string& text) {
  const std::string file = testing::TempDir() + "/cenario-" + std::to_string(getpid()) + ".jsonl";
  std::ofstream(file) << text;
  Play(ROTEIRO_OF_CAIXA, file);
  std::filesystem::remove(file);
}

/// The counter on an open register; it takes one line.
const std::string kCounter =
    R"({"include": ")" ROTEIRO_FOLDER "/cenarios/preparo/balcao.jsonl\"}\n";

// A scenario that is not kept must fail, or none of them proves anything.
TEST(Scenario, FailsWhereAnAnswerIsNotTheExpectedOne) {
  const struct {
    std::string lines;
    const char* told;
  } cases[] = {
      {R"({"expect": {"at": {"kind": "form"}}})", ":1: expected"},
      {R"({"expect": {"events": [{}]}})", "expected"},
      {R"({"event": {"event": "dim"}})", "no such event"},
      {R"({"box": "Olá"})", ":1: "},
      {R"({"says": "Olá"})", ":1: "},
      {kCounter + R"({"do": "get", "control": "zvnumTotal", "property": "Left"})" +
           "\n{\"expect\": {\"value\": 0.0}}",
       ":3: expected"},
      {kCounter + R"({"do": "forms", "focus": "zvdtpData"})", "zvcmbCaixas"},
      {kCounter + R"({"state": {"zvnumTotal": "x"}})", "zvnumTotal"},
      {kCounter + R"({"state": {"optProduto.Value": "x"}})", "optProduto.Value"},
      {kCounter + R"({"state": {"msfgGrade[1,0]": "x"}})", "msfgGrade[1,0]"},
      {kCounter + R"({"state": {"host.CodigoDoClienteComOperacoesBloqueadas": "x"}})", "host.C"},
  };
  for (const auto& each : cases) EXPECT_NONFATAL_FAILURE(PlayText(each.lines), each.told);
}

TEST(Scenario, FailsOnARefusalAndOnAnErrorThatNobodyExpected) {
  EXPECT_NONFATAL_FAILURE(PlayText("{\"do\": \"voar\"}"), ":1: refused");
  const std::string fault = kCounter +
                            R"({"do": "stub", "class": "ZOVA_N_ClientAnim.clsClientes", )"
                            R"("member": "Selecionar", "result": 1})"
                            "\n"
                            R"({"do": "type", "control": "zvfCodigoDoCliente", )"
                            R"("text": "12\n"})"
                            "\n";
  EXPECT_NONFATAL_FAILURE(PlayText(fault), ":3: error nobody expected");
  PlayText(fault + R"({"event": {"event": "error", "number": 0}})");
}

TEST(Scenario, FailsWhenTheProgramIsNotThere) {
  EXPECT_NONFATAL_FAILURE(PlayText(R"({"start": ["caixa-roteiro", "--nada"], "prints": "x"})"),
                          "never printed: x");
  EXPECT_NONFATAL_FAILURE(Play("/nao/existe", ROTEIRO_FOLDER "/protocolo/recusas.jsonl"),
                          "no answer");
}

}  // namespace
}  // namespace roteiro_tests
