#include "desktop/host/Options.h"

namespace host {

const char* Options::Help() {
  return "Uso: caixa [--banco ENDEREÇO] [--pasta PASTA] [--pasta-fiscal PASTA]\n"
         "\n"
         "  --banco ENDEREÇO       sqlite:ARQUIVO ou postgresql:CONEXÃO\n"
         "                         (padrão: caixa.db na pasta de dados do usuário)\n"
         "  --pasta PASTA          onde ficam as configurações (aplicacao.ini é criado nela)\n"
         "                         (padrão: a pasta de dados do usuário)\n"
         "  --pasta-fiscal PASTA   onde o caixa troca arquivos com o aplicativo fiscal\n"
         "                         (padrão: a das configurações)\n"
         "  --ajuda                mostra esta ajuda\n"
         "\n"
         "Sai com 0 quando deu certo, 1 quando não, 2 quando o comando não foi entendido.\n";
}

const std::string& ValueAfter(const std::vector<std::string>& arguments, std::size_t& at) {
  if (at + 1 == arguments.size() || arguments[at + 1].empty()) {
    throw BadOption("Falta o valor depois de " + arguments[at] + ".");
  }
  return arguments[++at];
}

Options Options::Read(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--ajuda" || name == "--help" || name == "-h") {
      options.help = true;
      continue;
    }
    std::string* value = nullptr;
    if (name == "--banco") value = &options.database;
    if (name == "--pasta") value = &options.folder;
    if (name == "--pasta-fiscal") value = &options.fiscalFolder;
    if (value == nullptr) throw BadOption("A opção '" + name + "' não existe.");
    *value = ValueAfter(arguments, i);
  }
  return options;
}

}  // namespace host
