#pragma once

#include <string>

namespace services {

/// A workstation: its computer's name, and what tells it from others of that name.
struct Estacao {
  std::string nome;
  std::string marca;  ///< Empty where the host gave none.
};

/// The random mark that tells this workstation from any other of the same name: 16 hexadecimal
/// digits in the file `estacao.id` of its settings folder, which is made, readable by its owner
/// alone, when it is missing or damaged. Whoever copies the folder to another computer leaves the
/// file out. Throws std::runtime_error with a sentence for the operator when the file can be
/// neither read nor written.
std::string MarcaDaEstacao(const std::string& pasta);

}  // namespace services
