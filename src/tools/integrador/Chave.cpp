#include "tools/integrador/Chave.h"

#include <cstddef>

namespace integrador {
namespace {

std::string ComZeros(std::uint32_t numero, std::size_t digitos) {
  const std::string texto = std::to_string(numero);
  return std::string(digitos - texto.size(), '0') + texto;
}

}  // namespace

char DigitoVerificador(const std::string& digitos) {
  constexpr int kModulo = 11;
  constexpr int kPrimeiroPeso = 2;
  constexpr int kUltimoPeso = 9;
  int soma = 0;
  int peso = kPrimeiroPeso;
  for (std::size_t i = digitos.size(); i > 0; --i) {
    soma += (digitos[i - 1] - '0') * peso;
    peso = peso == kUltimoPeso ? kPrimeiroPeso : peso + 1;
  }
  const int resto = soma % kModulo;
  return static_cast<char>('0' + (resto < 2 ? 0 : kModulo - resto));
}

std::string MontarChave(int anoEMes, std::uint32_t numero, std::uint32_t codigo) {
  constexpr const char* kEstado = "35";
  constexpr const char* kCnpjDeNinguem = "99000100000185";
  constexpr const char* kModelo = "59";
  constexpr const char* kAparelho = "000000001";
  constexpr std::size_t kDigitos = 6;
  const std::string chave = kEstado + ComZeros(static_cast<std::uint32_t>(anoEMes), 4) +
                            kCnpjDeNinguem + kModelo + kAparelho + ComZeros(numero, kDigitos) +
                            ComZeros(codigo, kDigitos);
  return chave + DigitoVerificador(chave);
}

}  // namespace integrador
