#include <cstdio>

#include "desktop/host/Application.h"

int main(int argc, char** argv) {
  host::Options options;
  try {
    options = host::Options::Read({argv + 1, argv + argc});
  } catch (const host::BadOption& bad) {
    std::fprintf(stderr, "%s\n\n%s", bad.what(), host::Options::Help());
    return 2;
  }
  if (options.help) {
    std::fputs(host::Options::Help(), stdout);
    return 0;
  }
  if (!host::HasDisplay()) {
    std::fputs(
        "Não há uma tela em que abrir o caixa. Abra-o em um ambiente gráfico, ou peça\n"
        "uma demonstração sem tela com: caixa-vitrine --demonstracao PASTA\n",
        stderr);
    return 1;
  }
  return host::RunWithScreen(argv, [&] { return std::make_unique<host::Application>(options); });
}
