#pragma once

#include <string_view>

namespace services {

class Banco;

/// What makes guessing passwords slow: after three failures in a row for a user name, known or
/// not, this computer waits 1, 2, 4 and so on up to 60 seconds before it looks at a further one.
/// It is counted by computer, so that nobody can shut a colleague out at another one.
///
/// An attempt counts as failed from before its password is looked at until it is known to be right:
/// neither a second program at the same computer nor a window that closes meanwhile gets one free.
///
/// Counts the attempt, or throws Refusal with the seconds to wait, and then has written nothing.
/// Throws DatabaseError.
void ContarTentativa(Banco& banco, std::string_view usuario);

/// The user is who they say they are: the count begins anew. Throws DatabaseError.
void EsquecerTentativas(Banco& banco, std::string_view usuario);

}  // namespace services
