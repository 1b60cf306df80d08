#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/DateTime.h"

namespace services {

inline constexpr std::string_view kArquivoDeEnvio = "CFE-ENVIO-";
inline constexpr std::string_view kArquivoDeRetorno = "CFE-RETORNO-";
inline constexpr std::string_view kArquivoDeAdministracao = "CFE-ADMIN-";
inline constexpr std::string_view kArquivoSendoGravado = "GRAVANDO-";
inline constexpr std::string_view kExtensaoDeTexto = ".txt";
inline constexpr std::string_view kExtensaoTemporaria = ".tmp";

/// Who may still wait for what bears a stem.
enum class Dono { kEsteProcesso, kOutroProcesso, kNinguem };

/// The stems of one workstation's exports, as ExportacaoFiscal.h draws them.
class NomesDaTroca {
 public:
  /// `marca` tells the workstation from any other of its name; empty where it has none.
  NomesDaTroca(std::string_view computador, std::string_view marca);

  /// A stem that no export of any workstation has had.
  std::string Novo(base::DateTime agora) const;

  /// A stem that was found in the folder.
  struct Achado {
    Dono dono = Dono::kNinguem;
    bool semMarca = false;  ///< Of an earlier version: it may be of another computer of this name.
  };
  /// Nothing for a file of another workstation's, of another form, or of no making of ours.
  std::optional<Achado> Ler(std::string_view arquivo, std::string_view especie,
                            std::string_view extensao) const;

 private:
  std::string computador_;  ///< As it stands in the stems.
  std::string marca_;
};

}  // namespace services
