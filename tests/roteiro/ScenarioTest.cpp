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
  Play(ROTEIRO_OF_ENSAIO, file);
  std::filesystem::remove(file);
}

const char* const kFault =
    R"({"do": "open"}
{"do": "stub", "class": "ZOVA_N_Caixas.clsCaixas", "member": "SelecionarParaComboBox", "result": 1}
{"do": "click", "control": "zvcmdServico"}
)";

// A scenario that is not kept must fail, or none of them proves anything.
TEST(Scenario, FailsWhereAnAnswerIsNotTheExpectedOne) {
  EXPECT_NONFATAL_FAILURE(PlayText("{\"expect\": {\"at\": {\"kind\": \"form\"}}}"), ":1: expected");
  EXPECT_NONFATAL_FAILURE(PlayText("{\"expect\": {\"events\": [{}]}}"), "expected");
  EXPECT_NONFATAL_FAILURE(PlayText("{\"event\": {\"event\": \"dim\"}}"), "no such event");
  EXPECT_NONFATAL_FAILURE(
      PlayText("{\"do\": \"open\"}\n{\"do\": \"get\", \"control\": \"zvtxtNome\", \"property\": "
               "\"Left\"}\n{\"expect\": {\"value\": 0.0}}"),
      ":3: expected");
  EXPECT_NONFATAL_FAILURE(PlayText("{\"box\": \"Olá\"}"), ":1: ");
  EXPECT_NONFATAL_FAILURE(PlayText("{\"says\": \"Olá\"}"), ":1: ");
  EXPECT_NONFATAL_FAILURE(PlayText("{\"do\": \"open\", \"focus\": \"zvdtpData\"}"), "zvtxtNome");
  for (const char* state : {"zvtxtNome", "optTipo(1).Value", "msfgGrade[1,0]",
                            "host.CodigoDoClienteComOperacoesBloqueadas"}) {
    EXPECT_NONFATAL_FAILURE(
        PlayText("{\"do\": \"open\", \"state\": {\"" + std::string(state) + "\": \"x\"}}"), state);
  }
}

TEST(Scenario, FailsOnARefusalAndOnAnErrorThatNobodyExpected) {
  EXPECT_NONFATAL_FAILURE(PlayText("{\"do\": \"voar\"}"), ":1: refused");
  EXPECT_NONFATAL_FAILURE(PlayText(kFault), ":3: error nobody expected");
  PlayText(kFault + std::string("{\"event\": {\"event\": \"error\", \"number\": 0}}\n"));
}

TEST(Scenario, FailsWhenTheProgramIsNotThere) {
  EXPECT_NONFATAL_FAILURE(PlayText(R"({"start": ["roteiro-de-ensaio", "--nada"], "prints": "x"})"),
                          "never printed: x");
  EXPECT_NONFATAL_FAILURE(Play("/nao/existe", ROTEIRO_FOLDER "/protocolo/atos.jsonl"), "no answer");
}

}  // namespace
}  // namespace roteiro_tests
