#include <algorithm>
#include <array>

#include "base/Text.h"
#include "frame/servicos/Codigos.h"
#include "services/banco/Preenchimento.h"
#include "services/banco/Search.h"
#include "services/demonstracao/ClinicaDeDemonstracao.h"
#include "services/demonstracao/DadosDeDemonstracao.h"
#include "services/venda/Venda.h"

namespace services::demonstracao {
namespace {

constexpr std::int64_t kPercent = base::Currency::kScale;
constexpr std::int64_t kReal = base::Currency::kScale;

/// What sets single customers apart, by their codes.
struct Peculiarity {
  std::int32_t code, value;
};

constexpr Peculiarity kSituations[] = {{7, servicos::kClienteInativo},
                                       {17, servicos::kClienteBloqueado},
                                       {27, servicos::kClienteExcluido}};
constexpr Peculiarity kCredits[] = {{5, 150}, {13, 45}, {18, 300}, {30, 120}, {40, 8}};
constexpr Peculiarity kLimits[] = {{3, 500},   {5, 1000}, {8, 3000},
                                   {16, 5000}, {24, 200}, {32, 800}};
constexpr Peculiarity kSingleDiscounts[] = {{8, 10}, {16, 12}, {30, 20}};
constexpr Peculiarity kClinicalDiscounts[] = {{10, 5}, {20, 10}, {33, 8}};
constexpr Peculiarity kBathDiscounts[] = {{10, 15}, {15, 10}, {26, 5}};

std::int32_t Of(std::span<const Peculiarity> list, std::int32_t code, std::int32_t usual) {
  const auto found = std::ranges::find(list, code, &Peculiarity::code);
  return found == list.end() ? usual : found->value;
}

/// The digit that makes a CPF or CNPJ valid: weights grow from the right, from 2 to `greatest` and
/// then from 2 again.
char CheckDigit(std::string_view digits, int greatest) {
  int weight = 2;
  int sum = 0;
  for (auto at = digits.rbegin(); at != digits.rend(); ++at) {
    sum += (*at - '0') * weight;
    weight = weight == greatest ? 2 : weight + 1;
  }
  const int rest = sum * 10 % 11;
  return static_cast<char>('0' + (rest == 10 ? 0 : rest));
}

/// A valid document that is nobody's: the numbers begin where none are given out.
std::string Document(bool isFirm, std::int32_t code) {
  constexpr int kCpfWeights = 12;
  constexpr int kCnpjWeights = 9;
  const std::string number = std::to_string(100 + code);
  std::string digits = isFirm ? "99000" + number + "0001" : "999000" + number;
  const int greatest = isFirm ? kCnpjWeights : kCpfWeights;
  digits += CheckDigit(digits, greatest);
  digits += CheckDigit(digits, greatest);
  std::string shown;
  for (const char each : std::string_view(isFirm ? "##.###.###/####-##" : "###.###.###-##")) {
    shown += each == '#' ? digits.front() : each;
    if (each == '#') digits.erase(0, 1);
  }
  return shown;
}

std::string Address(std::int32_t code) {
  constexpr std::array<const char*, 4> kStreets = {"Rua das Acácias", "Avenida do Moinho",
                                                   "Rua Quinze Ipês", "Travessa da Fonte"};
  return std::string(kStreets[code % kStreets.size()]) + ", " + std::to_string(code * 17 + 3) +
         " - Jardim Primavera - Vale Claro/SP";
}

std::string Channels(std::int32_t code) {
  const std::string number = std::to_string(1000 + code);
  return "Celular: (11) 90000-" + number + "; E-mail: cliente" + std::to_string(code) +
         "@exemplo.com.br";
}

Params CustomerRow(const Pessoa& person, std::int32_t code) {
  const bool isWalkIn = code == 1;
  const bool isFirm = person.nome.ends_with("Ltda.") || person.nome.starts_with("Associação");
  const std::int32_t single = Of(kSingleDiscounts, code, 0);
  constexpr std::array<const char*, 3> kCurve = {"C", "A", "B"};
  return {code,
          person.apelido,
          person.nome,
          SearchForm(person.apelido, person.nome),
          isWalkIn ? "" : Document(isFirm, code),
          Of(kSituations, code, 1),
          code % 6 == 2,
          isWalkIn ? "" : kCurve[code % kCurve.size()],
          isWalkIn ? "" : Address(code),
          isWalkIn ? "" : Channels(code),
          code % 9 == 0 || isWalkIn ? "" : "3599999",
          Of(kCredits, code, 0) * kReal,
          Of(kLimits, code, 0) * kReal,
          single != 0,
          single * kPercent,
          Of(kClinicalDiscounts, code, 0) * kPercent,
          Of(kBathDiscounts, code, 0) * kPercent};
}

}  // namespace

void EscreverClientes(Session& session, base::DateTime agora) {
  std::vector<Params> customers;
  std::vector<Params> animals;
  std::vector<Params> credits;
  for (const Pessoa& person : Pessoas()) {
    const auto code = static_cast<std::int32_t>(customers.size()) + 1;
    customers.push_back(CustomerRow(person, code));
    for (const std::string& name : base::Split(person.animais, ',')) {
      if (!name.empty()) animals.push_back({animals.size() + 1, code, name});
    }
    if (const std::int32_t credit = Of(kCredits, code, 0); credit != 0) {
      credits.push_back({code, agora, std::int32_t{pagamento::kDinheiro}, credit * kReal, "marina",
                         "Saldo trazido do sistema anterior"});
    }
  }
  InsertRows(session, "clientes",
             "codigo, apelido, nome, nome_busca, cpf_cnpj, situacao, vip, categoria_da_curva_abc,"
             " endereco_completo, canais_de_comunicacao, codigo_ibge_do_municipio, credito,"
             " limite_de_credito, desconto_unico, desconto_unico_perc, desconto_clinicos,"
             " desconto_banhos",
             customers);
  InsertRows(session, "animais", "codigo, codigo_do_cliente, nome", animals);
  InsertRows(session, "creditos_do_cliente",
             "codigo_do_cliente, data_e_hora, moeda, valor, operador, observacao", credits);
  ContinueKeys(session, "clientes", "codigo");
  ContinueKeys(session, "animais", "codigo");
}

}  // namespace services::demonstracao
