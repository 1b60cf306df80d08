#include "services/banco/Senhas.h"

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

std::string HashDeNinguem() {
  // Salt and hash are zeros, 16 and 32 bytes of them. Made by hashing, it would make the first
  // unknown name after a start take twice as long.
  constexpr std::size_t kKibi = 1024;
  return "$argon2id$v=19$m=" + std::to_string(crypto_pwhash_MEMLIMIT_INTERACTIVE / kKibi) +
         ",t=" + std::to_string(crypto_pwhash_OPSLIMIT_INTERACTIVE) + ",p=1$" +
         std::string(22, 'A') + "$" + std::string(43, 'A');
}

bool SenhaConfere(std::string_view senha, const std::string& hash) {
  Prepare();
  const std::string tried = hash.empty() ? HashDeNinguem() : hash;
  const bool fits = crypto_pwhash_str_verify(tried.c_str(), senha.data(), senha.size()) == 0;
  return fits && !hash.empty();
}

Segredo::~Segredo() {
  sodium_memzero(senha_.data(), senha_.size());
}

long long NumeroUnico() {
  Prepare();
  long long number = 0;
  randombytes_buf(&number, sizeof(number));
  return number;
}

namespace {

template <std::size_t kBytes>
std::string Hexadecimal(const std::array<unsigned char, kBytes>& bytes) {
  std::array<char, 2 * kBytes + 1> texto{};
  sodium_bin2hex(texto.data(), texto.size(), bytes.data(), bytes.size());
  return texto.data();
}

}  // namespace

std::string Resumo(std::string_view bytes) {
  std::array<unsigned char, crypto_generichash_BYTES> resumo{};
  crypto_generichash(resumo.data(), resumo.size(),
                     reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), nullptr,
                     0);
  return Hexadecimal(resumo);
}

std::string Impressao(std::string_view bytes) {
  constexpr std::array<unsigned char, crypto_shorthash_siphashx24_KEYBYTES> kSemSegredo{};
  std::array<unsigned char, crypto_shorthash_siphashx24_BYTES> impressao{};
  crypto_shorthash_siphashx24(impressao.data(),
                              reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(),
                              kSemSegredo.data());
  return Hexadecimal(impressao);
}

}  // namespace services
