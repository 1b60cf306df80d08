#include "tools/vitrine/Options.h"

namespace vitrine {

const char* Options::Help() {
  return "Uso: caixa-vitrine --demonstracao PASTA | --retratos PASTA\n"
         "     caixa-vitrine --contar-tela ARQUIVO | --medir-inicio [opções do caixa]\n"
         "\n"
         "  --demonstracao PASTA   cria em PASTA uma clínica de demonstração, faz nela uma venda\n"
         "                         pelas telas, conta cada passo e deixa em PASTA retratos e o\n"
         "                         comprovante; um aplicativo fiscal em PASTA/cfe emite o cupom\n"
         "  --retratos PASTA       deixa em PASTA um retrato de cada tela\n"
         "  --contar-tela ARQUIVO  abre o caixa e mantém em ARQUIVO o que está na tela e onde,\n"
         "                         para testes que usam o teclado e o mouse de fora\n"
         "  --medir-inicio         mostra em quanto tempo e com quanta memória a entrada aparece,\n"
         "                         e sai\n"
         "  --ajuda                mostra esta ajuda\n"
         "\n"
         "Sai com 0 quando deu certo, 1 quando não, 2 quando o comando não foi entendido.\n";
}

Options Options::Read(const std::vector<std::string>& arguments) {
  constexpr struct {
    std::string_view name;
    Mode mode;
    std::string Options::*value;
  } kModes[] = {{"--retratos", Mode::kPortraits, &Options::pictures},
                {"--demonstracao", Mode::kDemonstration, &Options::pictures},
                {"--contar-tela", Mode::kTellScreen, &Options::screenFile},
                {"--medir-inicio", Mode::kMeasure, nullptr}};
  Options options;
  std::vector<std::string> others;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    bool taken = false;
    for (const auto& each : kModes) {
      if (arguments[i] != each.name) continue;
      if (options.mode != Mode::kNone) throw host::BadOption("Peça uma coisa de cada vez.");
      options.mode = each.mode;
      if (each.value != nullptr) options.*each.value = host::ValueAfter(arguments, i);
      taken = true;
      break;
    }
    if (!taken) others.push_back(arguments[i]);
  }
  options.host = host::Options::Read(others);
  if (options.host.help) return options;
  if (options.mode == Mode::kNone) throw host::BadOption("Diga o que mostrar.");
  if (options.IsScripted()) {
    if (!options.host.database.empty()) {
      throw host::BadOption(
          "A demonstração e os retratos usam um banco de dados próprio: tire --banco.");
    }
    if (options.host.folder.empty()) options.host.folder = options.pictures;
  }
  return options;
}

}  // namespace vitrine
