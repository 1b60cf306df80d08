#pragma once

#include <chrono>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace integrador {

/// The command line cannot be understood; `what()` is a Portuguese sentence.
class MauUso : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// When the program ends in the middle of its work, as if it had died.
enum class Morte { kNunca, kAntesDeTomar, kDepoisDeTomar };

/// What the command line asks for.
struct Opcoes {
  std::string pasta;
  std::chrono::milliseconds demoraAoTomar{0}, demoraAoResponder{0};
  Morte morte = Morte::kNunca;
  /// The pause between the pieces in which an answer is written; without it, the answer comes
  /// whole.
  std::optional<std::chrono::milliseconds> emPedacos;
  std::string recusa;  ///< Refuse every coupon with these words; empty to issue what is correct.
  int quantos = 0;     ///< Files after which to end; 0 to go on.
  bool semDescanso = false;  ///< Look for files without a pause in between.
  bool chavesFixas = false;
  bool quieto = false;
  bool ajuda = false;

  /// Throws MauUso.
  static Opcoes Ler(const std::vector<std::string>& argumentos);
  static const char* Ajuda();
};

}  // namespace integrador
