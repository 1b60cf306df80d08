#include "base/RuntimeError.h"

namespace base {

const char* Description(Fault fault) {
  switch (fault) {
    case Fault::kInvalidArgument:
      return "Argumento inválido.";
    case Fault::kOverflow:
      return "Valor fora dos limites.";
    case Fault::kIndexOutOfRange:
      return "Índice fora do intervalo.";
    case Fault::kDivisionByZero:
      return "Divisão por zero.";
    case Fault::kTypeMismatch:
      return "Incompatibilidade de tipo.";
    case Fault::kFileNotFound:
      return "Não foi encontrado o arquivo.";
    case Fault::kPermissionDenied:
      return "Permissão negada.";
    case Fault::kPathNotFound:
      return "O caminho informado não foi encontrado.";
    case Fault::kObjectNotSet:
      return "Objeto não definido.";
    case Fault::kCannotCreateObject:
      return "Não foi possível criar o objeto.";
    case Fault::kNoSuchMember:
      return "O objeto não tem este membro.";
  }
  return "";
}

RuntimeError::RuntimeError(Fault fault)
    : number_(static_cast<std::int32_t>(fault)), description_(base::Description(fault)) {}

}  // namespace base
