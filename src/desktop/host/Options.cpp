#include "desktop/host/Options.h"

namespace host {

const char* Options::Help() {
  return "Uso: caixa [--banco ENDEREÇO] [--pasta PASTA] [--pasta-fiscal PASTA]\n"
         "     caixa --retratos PASTA | --demonstracao PASTA\n"
         "\n"
         "  --banco ENDEREÇO       sqlite:ARQUIVO ou postgresql:CONEXÃO\n"
         "                         (padrão: caixa.db na pasta de dados do usuário)\n"
         "  --pasta PASTA          onde ficam as configurações (aplicacao.ini é criado nela)\n"
         "                         (padrão: a pasta de dados do usuário)\n"
         "  --pasta-fiscal PASTA   onde o caixa troca arquivos com o aplicativo fiscal\n"
         "                         (padrão: a das configurações)\n"
         "  --demonstracao PASTA   cria em PASTA uma clínica de demonstração, faz nela uma venda\n"
         "                         pelas telas, conta cada passo e deixa em PASTA retratos e o\n"
         "                         comprovante; um aplicativo fiscal em PASTA/cfe emite o cupom\n"
         "  --retratos PASTA       deixa em PASTA um retrato de cada tela\n"
         "  --contar-tela ARQUIVO  mantém em ARQUIVO o que está na tela e onde, para testes que "
         "usam\n"
         "                         o teclado e o mouse de fora\n"
         "  --medir-inicio         mostra em quanto tempo e com quanta memória a entrada aparece,\n"
         "                         e sai\n"
         "  --ajuda                mostra esta ajuda\n"
         "\n"
         "Sai com 0 quando deu certo, 1 quando não, 2 quando o comando não foi entendido.\n";
}

Options Options::Read(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--ajuda" || name == "--help" || name == "-h") {
      options.mode = Mode::kHelp;
      continue;
    }
    if (name == "--medir-inicio") {
      options.mode = Mode::kMeasure;
      continue;
    }
    std::string* value = nullptr;
    if (name == "--banco") value = &options.database;
    if (name == "--pasta") value = &options.folder;
    if (name == "--pasta-fiscal") value = &options.fiscalFolder;
    if (name == "--contar-tela") value = &options.screenFile;
    if (name == "--retratos" || name == "--demonstracao") {
      if (!options.pictures.empty()) {
        throw BadOption("Peça os retratos ou a demonstração, não os dois.");
      }
      value = &options.pictures;
      options.mode = name == "--retratos" ? Mode::kPortraits : Mode::kDemonstration;
    }
    if (value == nullptr) throw BadOption("A opção '" + name + "' não existe.");
    if (i + 1 == arguments.size() || arguments[i + 1].empty()) {
      throw BadOption("Falta o valor depois de " + name + ".");
    }
    *value = arguments[++i];
  }
  if (!options.pictures.empty() && !options.database.empty()) {
    throw BadOption("A demonstração e os retratos usam um banco de dados próprio: tire --banco.");
  }
  return options;
}

}  // namespace host
