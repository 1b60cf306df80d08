#include "desktop/host/Settings.h"

#include <filesystem>
#include <stdexcept>
#include <string_view>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Desktop.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFirstFile =
    "; Configurações deste computador. Linhas que começam com ponto e vírgula são comentários.\n"
    "; O caixa lê este arquivo ao abrir: depois de mudar, feche e abra o caixa.\n"
    "\n"
    "[Fiscal]\n"
    "; A pasta em que o caixa troca arquivos com o aplicativo fiscal. Em branco: a pasta \"cfe\"\n"
    "; ao lado deste arquivo, criada pelo caixa. Outra pasta precisa existir.\n"
    "Pasta=\n"
    "\n"
    "[Impressao]\n"
    "; A4, ou Bobina80 para a bobina de 80 mm.\n"
    "Papel=A4\n"
    "; O nome da impressora no sistema. Em branco: a impressora padrão.\n"
    "; Sem impressora: pdf:PASTA imprime em arquivos PDF numerados nessa pasta.\n"
    "Impressora=\n";

/// What is wrong with a value, as the rest of a sentence; empty when it was taken.
using Take = std::string (*)(Settings& settings, const std::string& folder,
                             const std::string& value);

std::string TakePasta(Settings& settings, const std::string& folder, const std::string& value) {
  if (!value.empty()) settings.pastaFiscal = (fs::path(folder) / value).string();
  return {};
}

std::string TakePapel(Settings& settings, const std::string&, const std::string& value) {
  const std::string name = base::Lower(value);
  if (!name.empty() && name != "a4" && name != "bobina80") {
    return "Papel é A4 ou Bobina80, e não '" + value + "'";
  }
  settings.papel = name == "bobina80" ? Settings::Papel::kBobina80 : Settings::Papel::kA4;
  return {};
}

std::string TakeImpressora(Settings& settings, const std::string&, const std::string& value) {
  settings.impressora = value;
  return {};
}

struct Key {
  std::string_view section, name;
  Take take;
};

constexpr Key kKeys[] = {
    {"fiscal", "pasta", TakePasta},
    {"impressao", "papel", TakePapel},
    {"impressao", "impressora", TakeImpressora},
};

std::string Stripped(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t start = text.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return {};
  return std::string(text.substr(start, text.find_last_not_of(kBlanks) - start + 1));
}

/// Reads one line; the section that it opens holds for the lines after it.
std::string TakeLine(Settings& settings, const std::string& folder, const std::string& line,
                     std::string& section) {
  if (line.empty() || line.starts_with(';')) return {};
  if (line.starts_with('[') && line.ends_with(']')) {
    section = base::Lower(Stripped(line.substr(1, line.size() - 2)));
    return {};
  }
  const std::size_t equals = line.find('=');
  if (equals == std::string::npos) return "falta o sinal de igual em '" + line + "'";
  const std::string name = Stripped(line.substr(0, equals));
  for (const Key& key : kKeys) {
    if (key.section != section || key.name != base::Lower(name)) continue;
    return key.take(settings, folder, Stripped(line.substr(equals + 1)));
  }
  return "'" + name + "' não existe na seção [" + section + "]";
}

}  // namespace

Settings Settings::Read(const std::string& folder) {
  Settings settings;
  const std::string file = (fs::path(folder) / kFileName).string();
  std::string text;
  try {
    text = platform::files::Read(file);
  } catch (const base::RuntimeError& error) {
    if (platform::files::IsAbsence(error)) return settings;
    throw std::runtime_error("Não foi possível ler as configurações em '" + file +
                             "'. Confira as permissões do arquivo.");
  }
  constexpr std::string_view kMark = "\xEF\xBB\xBF";  // Some editors put it in front.
  if (text.starts_with(kMark)) text.erase(0, kMark.size());
  std::string section;
  int number = 0;
  for (const std::string& line : base::Split(text, '\n')) {
    ++number;
    const std::string wrong = TakeLine(settings, folder, Stripped(line), section);
    if (wrong.empty()) continue;
    throw std::runtime_error("A linha " + std::to_string(number) + " de '" + file +
                             "' não foi entendida: " + wrong + ". Corrija e abra o caixa de novo.");
  }
  return settings;
}

void Settings::CreateIfMissing(const std::string& folder) {
  const std::string file = (fs::path(folder) / kFileName).string();
  // One that cannot be looked at may well be there.
  std::error_code ignored;
  if (fs::status(file, ignored).type() != fs::file_type::not_found) return;
  try {
    platform::files::Write(file, kFirstFile);
  } catch (const base::RuntimeError&) {
    // A folder that cannot be written has no settings to change.
  }
}

}  // namespace host
