#include "siblings/PorExtenso.h"

#include <string_view>

#include "base/Numbers.h"
#include "base/RuntimeError.h"

namespace siblings {
namespace {

constexpr std::string_view kAteDezenove[] = {
    "zero",     "um",     "dois",      "três",      "quatro",  "cinco",   "seis",
    "sete",     "oito",   "nove",      "dez",       "onze",    "doze",    "treze",
    "quatorze", "quinze", "dezesseis", "dezessete", "dezoito", "dezenove"};
constexpr std::string_view kDezenas[] = {"",          "",         "vinte",   "trinta",  "quarenta",
                                         "cinquenta", "sessenta", "setenta", "oitenta", "noventa"};
constexpr std::string_view kCentenas[] = {
    "",           "cento",      "duzentos",   "trezentos",  "quatrocentos",
    "quinhentos", "seiscentos", "setecentos", "oitocentos", "novecentos"};
constexpr std::string_view kMeses[] = {"janeiro",  "fevereiro", "março",    "abril",
                                       "maio",     "junho",     "julho",    "agosto",
                                       "setembro", "outubro",   "novembro", "dezembro"};

struct Classe {
  std::int64_t unidade = 1;
  std::string_view singular, plural;
};
constexpr Classe kClasses[] = {
    {1'000'000'000'000, " trilhão", " trilhões"},
    {1'000'000'000, " bilhão", " bilhões"},
    {1'000'000, " milhão", " milhões"},
    {1'000, " mil", " mil"},
    {1, "", ""},
};
constexpr std::int64_t kMaior = 1'000'000'000'000'000;

/// From 1 to 999.
std::string AteNovecentosENoventaENove(std::int64_t numero) {
  if (numero == 100) return "cem";
  std::string texto(kCentenas[numero / 100]);
  const auto juntar = [&](std::string_view palavra) {
    if (!texto.empty()) texto += " e ";
    texto += palavra;
  };
  std::int64_t resto = numero % 100;
  if (resto >= 20) {
    juntar(kDezenas[resto / 10]);
    resto %= 10;
  }
  if (resto > 0) juntar(kAteDezenove[resto]);
  return texto;
}

/// What was said last is joined by "e" where it is below a hundred or a round hundred: "mil e
/// duzentos", but "mil duzentos e um".
bool SeUneComE(std::int64_t parcela) {
  return parcela < 100 || parcela % 100 == 0;
}

std::string Contado(std::int64_t numero, std::string_view singular, std::string_view plural) {
  return NumeroPorExtenso(numero) + std::string(numero == 1 ? singular : plural);
}

}  // namespace

std::string NumeroPorExtenso(std::int64_t numero) {
  if (numero < 0 || numero >= kMaior) throw base::RuntimeError(base::Fault::kInvalidArgument);
  if (numero == 0) return std::string(kAteDezenove[0]);
  std::string texto;
  std::int64_t falta = numero;
  for (const Classe& classe : kClasses) {
    const std::int64_t parcela = falta / classe.unidade;
    falta %= classe.unidade;
    if (parcela == 0) continue;
    if (!texto.empty()) texto += falta == 0 && SeUneComE(parcela) ? " e " : " ";
    // A thousand goes without "um".
    const bool mil = classe.unidade == 1'000 && parcela == 1;
    texto += mil ? "mil"
                 : AteNovecentosENoventaENove(parcela).append(parcela == 1 ? classe.singular
                                                                           : classe.plural);
  }
  return texto;
}

std::string ValorPorExtenso(base::Currency valor) {
  constexpr std::int64_t kCentavo = base::Currency::kScale / 100;
  constexpr std::int64_t kMilhao = 1'000'000;
  const std::int64_t centavos = base::Round(valor, 2).TenThousandths() / kCentavo;
  if (centavos < 0) throw base::RuntimeError(base::Fault::kInvalidArgument);
  const std::int64_t reais = centavos / 100;
  const std::int64_t resto = centavos % 100;
  std::string texto;
  if (reais > 0 || resto == 0) {
    const bool milhoesRedondos = reais >= kMilhao && reais % kMilhao == 0;
    texto = Contado(reais, " real", milhoesRedondos ? " de reais" : " reais");
  }
  if (resto > 0) {
    if (!texto.empty()) texto += " e ";
    texto += Contado(resto, " centavo", " centavos");
  }
  return texto;
}

std::string DataPorExtenso(base::DateTime data) {
  const std::string dia =
      data.Day() == 1 ? "Ao primeiro dia" : "Aos " + NumeroPorExtenso(data.Day()) + " dias";
  return dia + " do mês de " + std::string(kMeses[data.Month() - 1]) + " do ano de " +
         NumeroPorExtenso(data.Year());
}

std::string DataComMesPorExtenso(base::DateTime data) {
  return base::ToText(data.Day()) + " de " + std::string(kMeses[data.Month() - 1]) + " de " +
         base::ToText(data.Year());
}

}  // namespace siblings
