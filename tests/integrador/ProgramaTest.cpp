// The program as it is, on real folders. Pauses of an hour stand for "while it waits": the system's
// request to end cuts them short.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "base/RuntimeError.h"
#include "platform/Desktop.h"
#include "roteiro/Program.h"
#include "support/TemporaryFolder.h"
#include "tools/integrador/Chave.h"

namespace {

namespace fs = std::filesystem;
using roteiro_tests::Program;
using testing::ElementsAre;
using testing::MatchesRegex;
using testing::StartsWith;

constexpr const char* kAnHour = "3600";
const std::string kSale =
    "|00|65||1|0|||N||||||||||||||7|N|1.00.00|\r\n"
    "|05|001|000123|00000002,000|00000010,500|000000000,00|000000021,00|\r\n"
    "|10|01|01|000000021,00||||||||\r\n";
const std::string kSent = "CFE-ENVIO-L-1.txt";
const std::string kAnswer = "CFE-RETORNO-L-1.txt";

class Integrador : public testing::Test {
 protected:
  Program Start(std::vector<std::string> options) {
    options.insert(options.begin(), folder.Path().string());
    return {INTEGRADOR, options};
  }
  void Put(const std::string& name, const std::string& bytes) const {
    const std::string beside = folder.File("GRAVANDO");
    std::ofstream(beside, std::ios::binary) << bytes;
    fs::rename(beside, folder.File(name));
  }
  std::string Get(const std::string& name) const {
    std::ifstream in(folder.File(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
      names.insert(entry.path().filename());
    }
    return names;
  }
  /// Its lines up to the one that begins with these words, that one included.
  static std::vector<std::string> LinesUntil(Program& program, const std::string& words) {
    std::vector<std::string> lines;
    while (lines.empty() || !lines.back().starts_with(words)) {
      auto line = program.Read();
      if (!line) break;
      lines.push_back(*line);
    }
    return lines;
  }

  support::TemporaryFolder folder;
};

TEST_F(Integrador, TakesWhatIsWholeAndAnswersWithAKey) {
  Put("GRAVANDO-L-2.tmp", kSale);
  Put("CFE-ENVIO-L-3.tmp", kSale);
  Put(kSent, kSale);
  Program program = Start({"--quantos", "1"});
  EXPECT_THAT(LinesUntil(program, "Encerrado"),
              ElementsAre("Vigiando " + folder.Path().string(), "Tomado: " + kSent,
                          "Conferido: itens 1, pagamentos 1", StartsWith("Emitido: "),
                          "Respondido: " + kAnswer, "Encerrado, arquivos atendidos: 1"));
  EXPECT_EQ(program.Finish(), 0);
  EXPECT_THAT(Names(), ElementsAre("CFE-ENVIO-L-3.tmp", kAnswer, "GRAVANDO-L-2.tmp"));
  const std::string answer = Get(kAnswer);
  ASSERT_THAT(answer, MatchesRegex("\\|OK\\|\\|35[0-9]{42}\\|\r\n"));
  EXPECT_EQ(answer[48], integrador::DigitoVerificador(answer.substr(5, 43)));
}

TEST_F(Integrador, RefusesWhatBreaksTheFormatAndWhatItIsToldTo) {
  Put(kSent, kSale.substr(0, 20) + "\r\n");
  EXPECT_EQ(Start({"--quantos", "1"}).Finish(), 0);
  EXPECT_EQ(Get(kAnswer),
            "|ERRO|Registro 1 (cabe\xE7"
            "alho): tem 12 campos, esperados 24.|\r\n");
  Put(kSent, kSale);
  EXPECT_EQ(Start({"--quantos", "1", "--recusar", "Certificado não é válido."}).Finish(), 0);
  EXPECT_EQ(Get(kAnswer), "|ERRO|Certificado n\xE3o \xE9 v\xE1lido.|\r\n");
}

TEST_F(Integrador, DiesWhereItIsTold) {
  Put(kSent, kSale);
  EXPECT_EQ(Start({"--morrer-antes"}).Finish(), 3);
  EXPECT_THAT(Names(), ElementsAre(kSent));
  EXPECT_EQ(Start({"--morrer-depois"}).Finish(), 3);
  EXPECT_THAT(Names(), ElementsAre());
}

TEST_F(Integrador, IsSlowWhereItIsTold) {
  Put(kSent, kSale);
  Program slowToTake = Start({"--demora-ao-tomar", kAnHour});
  LinesUntil(slowToTake, "Visto: " + kSent);
  slowToTake.Terminate();
  EXPECT_EQ(slowToTake.Finish(), 0);
  EXPECT_THAT(Names(), ElementsAre(kSent));

  Program slowToAnswer = Start({"--demora-ao-responder", kAnHour});
  LinesUntil(slowToAnswer, "Tomado");
  EXPECT_THAT(Names(), ElementsAre());
  slowToAnswer.Terminate();
  // What it took it answers before it ends.
  EXPECT_EQ(slowToAnswer.Finish(), 0);
  EXPECT_THAT(Get(kAnswer), StartsWith("|OK|"));
}

TEST_F(Integrador, WritesInPiecesKeepingTheFileOpen) {
  Put(kSent, kSale);
  Program program = Start({"--em-pedacos", kAnHour});
  LinesUntil(program, "Emitido");
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (Get(kAnswer).empty() && std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  const std::string begun = Get(kAnswer);
  EXPECT_THAT(begun, MatchesRegex("\\|OK\\|\\|35[0-9]*"));
  // To the cash desk it is not there to be read yet.
  EXPECT_THROW(platform::files::Read(folder.File(kAnswer)), base::RuntimeError);
  program.Terminate();
  EXPECT_EQ(program.Finish(), 0);
  EXPECT_THAT(Get(kAnswer), MatchesRegex("\\|OK\\|\\|35[0-9]{42}\\|\r\n"));
  EXPECT_THAT(Get(kAnswer), StartsWith(begun));
}

TEST_F(Integrador, OpensItsManagerOnTheInstructionAndAnswersNothing) {
  Put("CFE-ADMIN-L-1.txt", "|ADMIN|");
  Program program = Start({"--quieto", "--quantos", "1"});
  const std::vector<std::string> lines = LinesUntil(program, "no more");
  EXPECT_THAT(lines, testing::Contains(testing::HasSubstr("GERENCIADOR DO CF-e SAT")));
  EXPECT_EQ(lines.front(), lines.back());  // The frame, and no other line.
  EXPECT_EQ(program.Finish(), 0);
  EXPECT_THAT(Names(), ElementsAre());
}

TEST_F(Integrador, TheSameKeysComeAgainWhenAskedFor) {
  std::string keys[2];
  for (std::string& key : keys) {
    Put(kSent, kSale);
    EXPECT_EQ(Start({"--chaves-fixas", "--quantos", "1"}).Finish(), 0);
    key = Get(kAnswer);
  }
  EXPECT_THAT(keys[0], StartsWith("|OK||352601"));
  EXPECT_EQ(keys[0], keys[1]);
}

TEST_F(Integrador, SaysWhatItDoesNotUnderstandOrCannotDo) {
  const std::string here = folder.Path().string();
  const struct {
    std::vector<std::string> arguments;
    int status;
    const char* complaint;
  } kCalls[] = {
      {{}, 2, "Informe a pasta de troca."},
      {{here, here}, 2, "Há argumentos a mais"},
      {{here, "--depressa"}, 2, "A opção '--depressa' não existe."},
      {{here, "--quantos"}, 2, "Falta o valor depois de --quantos."},
      {{here, "--quantos", "0"}, 2, "não é um número inteiro maior que zero."},
      {{here, "--em-pedacos", "-1"}, 2, "não são segundos"},
      {{here, "--recusar", "a|b"}, 2, "o texto não pode ter"},
      {{here, "--morrer-antes", "--morrer-depois"}, 2, "Só se morre uma vez"},
      {{folder.File("falta")}, 1, "não existe. Informe a pasta"},
  };
  for (const auto& call : kCalls) {
    Program program(INTEGRADOR, call.arguments);
    EXPECT_EQ(program.Finish(), call.status) << call.complaint;
    EXPECT_THAT(program.Complaint(), testing::HasSubstr(call.complaint));
  }
}

}  // namespace
