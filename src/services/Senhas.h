#pragma once

#include <string>
#include <string_view>

namespace services {

/// The hash of a password that is stored in its place: Argon2id with the settings for interactive
/// use, about a tenth of a second and 64 MB.
std::string HashDaSenha(std::string_view senha);

/// Whether the password is the one that the hash was made from. An empty hash fits none, and takes
/// as long to say so.
bool SenhaConfere(std::string_view senha, const std::string& hash);

/// Wipes a password from memory.
void Esquecer(std::string& senha);

/// A number that no other operation of any computer has.
long long NumeroUnico();

}  // namespace services
