#pragma once

#include <string>
#include <string_view>

namespace services {

/// The hash of a password that is stored in its place: Argon2id with the settings for interactive
/// use, about a tenth of a second and 64 MB.
std::string HashDaSenha(std::string_view senha);

/// A hash that no password fits, and that costs what every other one costs to try.
std::string HashDeNinguem();

/// Whether the password is the one that the hash was made from. An empty hash fits none, and takes
/// as long to say so.
bool SenhaConfere(std::string_view senha, const std::string& hash);

/// A password while it is needed: in one place of memory, which is wiped in the end.
class Segredo {
 public:
  explicit Segredo(std::string_view senha) : senha_(senha) {}
  ~Segredo();
  Segredo(const Segredo&) = delete;
  Segredo& operator=(const Segredo&) = delete;

  std::string_view Senha() const { return senha_; }

 private:
  std::string senha_;
};

/// A number that no other operation of any computer has.
long long NumeroUnico();

/// A digest in hexadecimal: the same for the same bytes alone, and no way back to them.
std::string Resumo(std::string_view bytes);

/// A fingerprint of 128 bits in hexadecimal, several times as fast: tells contents apart that
/// nobody forges. A secret could be worked out of it.
std::string Impressao(std::string_view bytes);

}  // namespace services
