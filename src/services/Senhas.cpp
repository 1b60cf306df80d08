#include "services/Senhas.h"

#include <sodium.h>

#include <array>
#include <stdexcept>

namespace services {
namespace {

void Prepare() {
  if (sodium_init() < 0) throw std::runtime_error("libsodium");
}

}  // namespace

std::string HashDaSenha(std::string_view senha) {
  Prepare();
  std::array<char, crypto_pwhash_STRBYTES> hash{};
  if (crypto_pwhash_str(hash.data(), senha.data(), senha.size(), crypto_pwhash_OPSLIMIT_INTERACTIVE,
                        crypto_pwhash_MEMLIMIT_INTERACTIVE) != 0) {
    throw std::bad_alloc();
  }
  return hash.data();
}

bool SenhaConfere(std::string_view senha, const std::string& hash) {
  Prepare();
  static const std::string nobodys = HashDaSenha("");
  const std::string& tried = hash.empty() ? nobodys : hash;
  const bool fits = crypto_pwhash_str_verify(tried.c_str(), senha.data(), senha.size()) == 0;
  return fits && !hash.empty();
}

void Esquecer(std::string& senha) {
  sodium_memzero(senha.data(), senha.size());
  senha.clear();
}

long long NumeroUnico() {
  Prepare();
  long long number = 0;
  randombytes_buf(&number, sizeof(number));
  return number;
}

}  // namespace services
