// The stand-in's strict reading of the records.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Text.h"
#include "fiscal/Registros.h"
#include "tools/integrador/Chave.h"
#include "tools/integrador/Conferencia.h"

namespace {

using integrador::Conferir;

const std::string kHeader = "|00|65||2|0|123.456.789-09||N||N||||||||||||7|N|1.00.00|";
const std::string kItem = "|05|001|000123|00000002,000|00000010,500|-000000001,00|000000020,00|";
const std::string kCash = "|10|01|01|000000050,00||||||||";
const std::string kCard = "|10|02|03|000000050,00|10|01|01|2||||";
const std::string kTerm = "|10|03|02|000000050,00|||||000000050,00|01|15|";

std::string File(const std::vector<std::string>& records) {
  std::string text;
  for (const std::string& record : records) text += record + "\r\n";
  return text;
}

TEST(Conferencia, TakesWhatTheCashDeskWrites) {
  const auto header = [](std::int16_t kind, std::string_view document, std::string_view customer) {
    return fiscal::RegistroDeCabecalho({kind, document, customer, 12, fiscal::kNaoImprimir});
  };
  const std::string kHeaders[] = {header(fiscal::kNaoIdentificado, "", ""),
                                  header(fiscal::kDocumentoInformado, "12.345.678/0001-95", ""),
                                  header(fiscal::kClienteCadastrado, "", "123456789012"),
                                  header(fiscal::kClienteCadastrado, "", "")};
  std::string items;
  for (int i = 1; i <= 1001; ++i) {
    fiscal::AcrescentarItem(items, {std::to_string(i), i % 2 == 0 ? "" : "1234567", "1,5",
                                    "1.234,56", i % 3 == 0 ? "2,00" : "-2,00", "1.849,84"});
  }
  std::string payments;
  for (std::int16_t form = 1; form <= 8; ++form) {
    fiscal::AcrescentarPagamento(payments,
                                 {.sequencia = std::to_string(form),
                                  .forma = form,
                                  .valor = "100,00",
                                  .vencimento = "05/12/2026",
                                  .valorDaVenda = "800,00",
                                  .totalDeProdutos = base::Currency::FromTenThousandths(4000000),
                                  .hoje = {2026, 11, 22}});
  }
  for (const std::string& each : kHeaders) {
    const auto once = Conferir(each + items + payments);
    EXPECT_EQ(once.recusa, "");
    EXPECT_EQ(once.itens, 1001);
    EXPECT_EQ(once.pagamentos, 8);
    // After an export that failed, the second try lists both.
    EXPECT_EQ(Conferir(each + items + items + payments + payments).recusa, "");
  }
}

TEST(Conferencia, RefusesEachDefectByRecordAndField) {
  struct Defect {
    const char* from;  ///< What is replaced in a file without a defect,
    const char* to;    ///< and by what.
    const char* refusal;
  };
  const std::string good = File({kHeader, kItem, kCash, kCard, kTerm});
  ASSERT_EQ(Conferir(good).recusa, "");
  const Defect kDefects[] = {
      {"|00|65|", "|01|65|", "Registro 1: campo 1 (tipo do registro): esperado 00, 05 ou 10."},
      {"|65||", "|64||", "Registro 1 (cabeçalho): campo 2 (constante): esperado 65."},
      {"|65||2", "|65| |2", "Registro 1 (cabeçalho): campo 3 (reservado): esperado vazio."},
      {"||2|0|", "||4|0|",
       "Registro 1 (cabeçalho): campo 4 (identificação do consumidor): esperado 1, 2 ou 3."},
      {"||2|0|", "||2||",
       "Registro 1 (cabeçalho): campo 5 (código do cliente): esperado 0 para a identificação 1 ou "
       "2."},
      {"||2|0|", "||3|0|",
       "Registro 1 (cabeçalho): campo 5 (código do cliente): esperado 8 dígitos ou vazio para a "
       "identificação 3."},
      {"||2|0|", "||3|00000017|",
       "Registro 1 (cabeçalho): campo 6 (documento do consumidor): esperado vazio para a "
       "identificação 1 ou 3."},
      {"123.456.789-09", "12345678909",
       "Registro 1 (cabeçalho): campo 6 (documento do consumidor): esperado um CPF ou CNPJ com "
       "pontuação, ou vazio."},
      {"123.456.789-09", "",
       "Registro 1 (cabeçalho): campo 6 (documento do consumidor): esperado um CPF ou CNPJ para a "
       "identificação 2."},
      {"||N||N||", "||S||N||", "Registro 1 (cabeçalho): campo 8 (constante): esperado N."},
      {"||N||N||", "||N||||",
       "Registro 1 (cabeçalho): campo 10 (documento informado): esperado N para a identificação "
       "2."},
      {"||7|N|", "|x|7|N|", "Registro 1 (cabeçalho): campo 21 (reservado): esperado vazio."},
      {"||7|N|", "|||7|N|", "Registro 1 (cabeçalho): tem 25 campos, esperados 24."},
      {"|7|N|", "|07|N|",
       "Registro 1 (cabeçalho): campo 22 (número do caixa): esperado um número sem zeros à "
       "esquerda."},
      {"|7|N|", "|7||", "Registro 1 (cabeçalho): campo 23 (impressão): esperado N ou um espaço."},
      {"1.00.00", "1.00", "Registro 1 (cabeçalho): campo 24 (versão): esperado 1.00.00."},
      {"|05|001|", "|05|1|", "Registro 2 (item): campo 2 (sequência): esperado 3 dígitos."},
      {"|05|001|", "|05|002|", "Registro 2 (item): campo 2 (sequência): esperado 1."},
      {"|000123|", "|123|",
       "Registro 2 (item): campo 3 (código do produto): esperado 6 dígitos ou vazio."},
      {"00000002,000", "00000002.000",
       "Registro 2 (item): campo 4 (quantidade): esperado 8 dígitos, vírgula e 3 decimais."},
      {"00000010,500", "000000010,50",
       "Registro 2 (item): campo 5 (valor unitário): esperado 8 dígitos, vírgula e 3 decimais."},
      {"-000000001,00", "-00000001,00",
       "Registro 2 (item): campo 6 (desconto): esperado 9 dígitos, vírgula e 2 decimais, com ou "
       "sem "
       "sinal de menos."},
      {"000000020,00", "-000000020,00",
       "Registro 2 (item): campo 7 (valor total): esperado 9 dígitos, vírgula e 2 decimais."},
      {"20,00|\r\n", "20,00\r\n", "Registro 2: não começa e termina com a barra vertical."},
      {"|10|01|01", "|10|02|01", "Registro 3 (pagamento): campo 2 (sequência): esperado 1."},
      {"|10|02|03", "|10|03|03",
       "Registro 4 (pagamento): campo 2 (sequência): esperado 2, ou 1 ao recomeçar."},
      {"|10|01|01", "|10|01|04",
       "Registro 3 (pagamento): campo 3 (código fiscal): esperado 01, 02, 03, 08, 10 ou 17."},
      {"|01|000000050,00", "|01|50,00",
       "Registro 3 (pagamento): campo 4 (valor): esperado 9 dígitos, vírgula e 2 decimais."},
      {"|01|000000050,00||", "|01|000000050,00|10|",
       "Registro 3 (pagamento): campo 5 (tipo do cartão): esperado vazio para o código fiscal 01."},
      {"|10|01|01|2|", "|30|01|01|2|",
       "Registro 4 (pagamento): campo 5 (tipo do cartão): esperado 10, 20 ou vazio."},
      {"|10|01|01|2|", "|10|01|01||",
       "Registro 4 (pagamento): campo 8 (constante): esperado preenchido para o código fiscal 03."},
      {"|||||000000050,00", "|||||000000049,99",
       "Registro 5 (pagamento): campo 9 (valor a prazo): esperado o mesmo valor do campo 4."},
      {"|01|15|", "||15|",
       "Registro 5 (pagamento): campo 10 (parcelas): esperado preenchido para o código fiscal 02."},
      {"|01|15|", "|01|05|",
       "Registro 5 (pagamento): campo 11 (dia do vencimento): esperado 1 a 31 sem zeros à "
       "esquerda, ou vazio."},
      {"|01|15|", "|01|32|",
       "Registro 5 (pagamento): campo 11 (dia do vencimento): esperado 1 a 31 sem zeros à "
       "esquerda, ou vazio."},
      {"|15|\r\n", "|15|", "Registro 5: não termina com CR LF."},
      {"1.00.00|\r\n", "1.00.00|\n", "Registro 1: tem um byte que não é texto em Windows-1252."},
      {"|000123|",
       "|00\x81"
       "123|",
       "Registro 2: tem um byte que não é texto em Windows-1252."},
  };
  for (const Defect& defect : kDefects) {
    const std::string bad = base::Replace(good, defect.from, defect.to);
    ASSERT_NE(bad, good) << defect.refusal;
    EXPECT_EQ(Conferir(bad).recusa, defect.refusal);
  }
}

TEST(Conferencia, RefusesRecordsThatAreOutOfOrderOrMissing) {
  const struct {
    std::vector<std::string> records;
    const char* refusal;
  } kCases[] = {
      {{}, "Arquivo: está vazio."},
      {{kItem, kHeader}, "Registro 1 (item): o arquivo não começa com o cabeçalho."},
      {{kHeader, kHeader},
       "Registro 2 (cabeçalho): só pode haver um cabeçalho, no começo do arquivo."},
      {{kHeader, kCash}, "Registro 2 (pagamento): os itens vêm antes dos pagamentos."},
      {{kHeader, kItem, kCash, kItem}, "Registro 4 (item): os itens vêm antes dos pagamentos."},
      {{kHeader}, "Registro 1 (cabeçalho): o arquivo não tem itens."},
      {{kHeader, kItem}, "Registro 2 (item): o arquivo não tem pagamentos."},
      {{kHeader, ""}, "Registro 2: não começa e termina com a barra vertical."},
  };
  for (const auto& each : kCases) EXPECT_EQ(Conferir(File(each.records)).recusa, each.refusal);
}

TEST(Chave, Has44DigitsOfWhichTheLastChecksTheOthers) {
  // 1 x 2 = 2; 5 x 2 = 10; 6 x 2 = 12, remainder 1; 1 x 2 + ... the ninth digit has weight 2 again.
  EXPECT_EQ(integrador::DigitoVerificador("1"), '9');
  EXPECT_EQ(integrador::DigitoVerificador("5"), '1');
  EXPECT_EQ(integrador::DigitoVerificador("6"), '0');
  EXPECT_EQ(integrador::DigitoVerificador("100000000"), '9');
  EXPECT_EQ(integrador::MontarChave(2611, 17, 42).substr(0, 43),
            "3526119900010000018559000000001000017000042");
}

}  // namespace
