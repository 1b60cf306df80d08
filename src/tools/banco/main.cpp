#include <string>
#include <vector>

#include "tools/banco/Comandos.h"

int main(int quantos, char** argumentos) {
  return banco::Executar(std::vector<std::string>(argumentos + 1, argumentos + quantos));
}
