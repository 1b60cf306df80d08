#include "services/troca/RespostasDaTroca.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "base/RuntimeError.h"
#include "services/troca/ArquivosDeTroca.h"
#include "services/troca/PastaDeTroca.h"

namespace services {
namespace {

namespace fs = std::filesystem;

/// Where an answer may lie, the place at which it is awaited first.
std::array<fs::path, 3> Lugares(const fs::path& retorno) {
  const fs::path pasta = retorno.parent_path();
  return {retorno, pasta / PastaDeTroca::kAtrasadas / retorno.filename(),
          pasta / PastaDeTroca::kArquivo / retorno.filename()};
}

std::optional<fs::path> Onde(const fs::path& retorno) {
  std::error_code ignorado;
  for (const fs::path& lugar : Lugares(retorno)) {
    if (fs::is_regular_file(fs::symlink_status(lugar, ignorado))) return lugar;
  }
  return std::nullopt;
}

/// An application may write its answer piece by piece: it counts once it has been left alone for a
/// moment. A date to come is that of another computer's clock, and says nothing.
bool EstaQuieto(const fs::path& arquivo) {
  constexpr auto kMomento = std::chrono::seconds(2);
  std::error_code falha;
  const auto gravado = fs::last_write_time(arquivo, falha);
  const auto idade = fs::file_time_type::clock::now() - gravado;
  return !falha && (idade >= kMomento || idade <= -kMomento);
}

}  // namespace

std::optional<std::string> LerResposta(const std::string& retorno) {
  const std::optional<fs::path> onde = Onde(retorno);
  if (!onde || !EstaQuieto(*onde)) return std::nullopt;
  std::ifstream arquivo(*onde, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(arquivo), {}};
  if (!arquivo.is_open() || arquivo.bad()) return std::nullopt;
  return bytes;
}

bool FoiRetirado(const std::string& envio) {
  const fs::path caminho(envio);
  return ExisteNaTroca(caminho.parent_path() / PastaDeTroca::kArquivo / caminho.filename());
}

bool DevolverResposta(const std::string& retorno, std::string_view bytes) {
  const fs::path caminho(retorno);
  const std::optional<fs::path> onde = Onde(caminho);
  if (onde == caminho) return true;
  if (onde) return MoverNaTroca(*onde, caminho.parent_path(), caminho.filename());
  if (bytes.empty()) return false;
  // Written under a name that nobody reads, so that it is whole when it appears.
  const fs::path aoLado = caminho.string() + ".novo";
  std::error_code ignorado;
  fs::remove(aoLado, ignorado);
  try {
    const PastaAberta pasta(caminho.parent_path());
    if (pasta.Escrever(aoLado, bytes) &&
        MoverNaTroca(aoLado, caminho.parent_path(), caminho.filename())) {
      return true;
    }
  } catch (const base::RuntimeError&) {
    // Without it the coupon cannot serve here; its key stands in the database all the same.
  }
  fs::remove(aoLado, ignorado);
  return false;
}

}  // namespace services
