#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "base/DateTime.h"
#include "services/troca/NomesDaTroca.h"

namespace services {

/// The exchange folder as one workstation uses it; its files and their names are told in
/// ExportacaoFiscal.h. Several threads and processes may use one folder at the same time.
class PastaDeTroca {
 public:
  static constexpr const char* kAtrasadas = "respostas-atrasadas";
  static constexpr const char* kArquivo = "arquivo";

  /// Both names of an export, as full paths.
  struct Arquivos {
    std::string envio, retorno;
  };
  using AntesDeSair = std::function<void(const Arquivos&)>;

  /// `marca` tells the workstation from any other of its name; it may be empty.
  PastaDeTroca(const std::string& pasta, std::string_view computador, std::string_view marca);

  /// Puts the bytes into a file of `especie` ("CFE-ENVIO-") of which nothing is seen until it is
  /// whole and durable, and `antesDeSair` has returned. On failure, the run-time error of a
  /// FalhaNaExportacao or what that one throws, nothing of it is left to be taken; from the moment
  /// that `antesDeSair` is called it is then in the archive.
  Arquivos Gravar(std::string_view especie, std::string_view bytes, base::DateTime agora,
                  const AntesDeSair& antesDeSair = {}) const;

  /// Puts aside the answers to this workstation's earlier exports for which nobody waits any more,
  /// and what a process that died never let out. As well as it can: neither stands in the way of an
  /// export, whose names are its own. The run-time error of a FalhaNaExportacao when the folder is
  /// not there.
  void Arrumar() const;

  /// Moves a file of the folder into the archive; false when it is none, or cannot be moved: the
  /// application may have taken it.
  bool Guardar(const std::string& arquivo) const;
  /// For what the module deletes in the folder: moves it into the archive. False for a file that is
  /// to be deleted after all: one of another folder, and an outbound file that cannot be kept, for
  /// it must not be taken any more. Run-time error 70 for any other that cannot be kept: it stays.
  bool GuardarEmVezDeApagar(const std::string& arquivo) const;
  /// Removes from the archive what was written more than 30 days ago.
  void LimparArquivo() const;

  /// Whether another program of this workstation that is still running made the export.
  bool EDeOutroPrograma(const std::string& envio) const;

 private:
  std::filesystem::path pasta_;
  NomesDaTroca nomes_;
};

}  // namespace services
