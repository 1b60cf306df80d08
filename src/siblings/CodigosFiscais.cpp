#include "siblings/CodigosFiscais.h"

#include <algorithm>
#include <iterator>

#include "base/Numbers.h"

namespace siblings {
namespace {

struct Estado {
  std::string_view prefixo, nome;
};
constexpr Estado kEstados[] = {
    {"11", "Rondônia (RO)"},
    {"12", "Acre (AC)"},
    {"13", "Amazonas (AM)"},
    {"14", "Roraima (RR)"},
    {"15", "Pará (PA)"},
    {"16", "Amapá (AP)"},
    {"17", "Tocantins (TO)"},
    {"21", "Maranhão (MA)"},
    {"22", "Piauí (PI)"},
    {"23", "Ceará (CE)"},
    {"24", "Rio Grande do Norte (RN)"},
    {"25", "Paraíba (PB)"},
    {"26", "Pernambuco (PE)"},
    {"27", "Alagoas (AL)"},
    {"28", "Sergipe (SE)"},
    {"29", "Bahia (BA)"},
    {"31", "Minas Gerais (MG)"},
    {"32", "Espírito Santo (ES)"},
    {"33", "Rio de Janeiro (RJ)"},
    {"35", "São Paulo (SP)"},
    {"41", "Paraná (PR)"},
    {"42", "Santa Catarina (SC)"},
    {"43", "Rio Grande do Sul (RS)"},
    {"50", "Mato Grosso do Sul (MS)"},
    {"51", "Mato Grosso (MT)"},
    {"52", "Goiás (GO)"},
    {"53", "Distrito Federal (DF)"},
};

/// Municipalities whose code was given out with another last digit than the rule has.
constexpr std::string_view kForaDaRegra[] = {"2201919", "2201988", "2202251", "2611533", "3117836",
                                             "3152131", "4305871", "5203939", "5203962"};

constexpr std::size_t kDigitosDoMunicipio = 7;
constexpr std::size_t kDigitosDoNCM = 8;

/// Every second of the first six digits counts twice, a product of two digits as their sum; the
/// last one fills the sum up to whole tens.
bool DigitoConfere(std::string_view codigo) {
  int soma = 0;
  for (std::size_t i = 0; i + 1 < kDigitosDoMunicipio; ++i) {
    const int produto = (codigo[i] - '0') * (i % 2 == 0 ? 1 : 2);
    soma += produto / 10 + produto % 10;
  }
  return (soma + codigo.back() - '0') % 10 == 0;
}

const Estado* EstadoDe(std::string_view digitos) {
  const auto* const found = std::ranges::find(kEstados, digitos.substr(0, 2), &Estado::prefixo);
  return found == std::end(kEstados) ? nullptr : found;
}

}  // namespace

Julgamento JulgarMunicipio(std::string_view digitos) {
  Julgamento julgamento;
  const Estado* const estado = EstadoDe(digitos);
  if (estado != nullptr) julgamento.reconhecido = estado->nome;
  if (digitos.size() != kDigitosDoMunicipio) {
    julgamento.recusa = "O código IBGE do município tem 7 dígitos. Complete o código.";
  } else if (estado == nullptr) {
    julgamento.recusa = "Nenhum estado tem códigos que começam com " +
                        std::string(digitos.substr(0, 2)) + ". Confira o código IBGE do município.";
  } else if (!DigitoConfere(digitos) &&
             std::ranges::find(kForaDaRegra, digitos) == std::end(kForaDaRegra)) {
    julgamento.duvida =
        "O dígito verificador do código não confere, o que costuma ser erro de digitação.\n"
        "Deseja registrar o código assim mesmo?";
  }
  return julgamento;
}

Julgamento JulgarNCM(std::string_view digitos) {
  // Chapter 77 is kept free for what may come.
  constexpr double kUltimoCapitulo = 97;
  constexpr double kCapituloReservado = 77;
  Julgamento julgamento;
  const double capitulo = base::Val(digitos.substr(0, 2));
  const bool existe =
      capitulo >= 1 && capitulo <= kUltimoCapitulo && capitulo != kCapituloReservado;
  if (digitos.size() >= 2 && existe) {
    julgamento.reconhecido = "Capítulo " + std::string(digitos.substr(0, 2));
  }
  if (digitos.size() != kDigitosDoNCM) {
    julgamento.recusa = "A NCM tem 8 dígitos. Complete o código.";
  } else if (!existe) {
    julgamento.recusa = "O capítulo " + std::string(digitos.substr(0, 2)) +
                        " não existe na NCM. Confira os dois primeiros dígitos.";
  }
  return julgamento;
}

}  // namespace siblings
