#include "fiscal/CPFCNPJ.h"

#include <string>

namespace fiscal {
namespace {

/// The check digit of the digits before it: their weights grow from 2 leftwards and begin again at
/// 2 after `maiorPeso`.
char DigitoVerificador(std::string_view digitos, int maiorPeso) {
  int soma = 0;
  int peso = 2;
  for (auto digito = digitos.rbegin(); digito != digitos.rend(); ++digito) {
    soma += (*digito - '0') * peso;
    peso = peso == maiorPeso ? 2 : peso + 1;
  }
  const int resto = soma % 11;
  return static_cast<char>('0' + (resto < 2 ? 0 : 11 - resto));
}

}  // namespace

bool DigitosDoCPFConferem(std::string_view digitos) {
  constexpr int kMaiorPeso = 11;
  constexpr std::size_t kBase = 9;
  std::string esperado(digitos.substr(0, kBase));
  // The second digit checks the first as it should be, not as it was typed.
  esperado += DigitoVerificador(esperado, kMaiorPeso);
  esperado += DigitoVerificador(esperado, kMaiorPeso);
  return digitos == esperado;
}

bool DigitosDoCNPJConferem(std::string_view digitos) {
  constexpr int kMaiorPeso = 9;
  constexpr std::size_t kBase = 12;
  return digitos.size() == kBase + 2 && digitos != "00000000000000" &&
         digitos[kBase] == DigitoVerificador(digitos.substr(0, kBase), kMaiorPeso) &&
         digitos[kBase + 1] == DigitoVerificador(digitos.substr(0, kBase + 1), kMaiorPeso);
}

}  // namespace fiscal
