#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <exception>
#include <iostream>

#include "tools/integrador/Integrador.h"

namespace {

/// Ctrl+C and the system's request to end, told through a pipe, so that none is missed while
/// waiting.
class Sinais final : public integrador::Encerramento {
 public:
  Sinais() {
    if (pipe(pontas_.data()) != 0) throw std::runtime_error("Não é possível iniciar.");
    struct sigaction acao {};
    acao.sa_handler = &Passar;
    for (const int sinal : {SIGTERM, SIGINT, SIGHUP}) sigaction(sinal, &acao, nullptr);
  }

  void Esperar(std::chrono::milliseconds tempo) override {
    pollfd vigiada{pontas_[0], POLLIN, 0};
    // Interrupted means asked: the handler has written.
    if (tempo.count() > 0) poll(&vigiada, 1, static_cast<int>(tempo.count()));
  }
  bool Pedido() const override {
    pollfd vigiada{pontas_[0], POLLIN, 0};
    return poll(&vigiada, 1, 0) > 0;
  }

 private:
  static void Passar(int) {
    const char pedido = 1;
    [[maybe_unused]] const auto escrito = write(pontas_[1], &pedido, 1);
  }

  static inline std::array<int, 2> pontas_{-1, -1};
};

}  // namespace

int main(int quantos, char** argumentos) {
  constexpr int kMauUso = 2;
  try {
    const auto opcoes = integrador::Opcoes::Ler({argumentos + 1, argumentos + quantos});
    if (opcoes.ajuda) {
      std::cout << integrador::Opcoes::Ajuda();
      return 0;
    }
    Sinais sinais;
    return integrador::Trabalhar(opcoes, sinais, std::cout);
  } catch (const integrador::MauUso& uso) {
    std::cerr << uso.what() << "\n\n" << integrador::Opcoes::Ajuda();
    return kMauUso;
  } catch (const std::exception& erro) {
    std::cerr << erro.what() << '\n';
    return 1;
  }
}
