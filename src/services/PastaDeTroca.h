#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/Clock.h"

namespace services {

/// The exchange folder as one workstation uses it; its files and their names are told in
/// ExportacaoFiscal.h. Several threads and processes may use one folder at the same time.
class PastaDeTroca {
 public:
  /// Both names of an export, as full paths.
  struct Arquivos {
    std::string envio, retorno;
  };

  PastaDeTroca(const std::string& pasta, const base::Clock& relogio, std::string_view computador);

  /// Sets late answers aside, then puts the bytes into a file of `especie` ("CFE-ENVIO-") of which
  /// nothing is seen until it is whole and durable. On failure, the run-time error of a
  /// FalhaNaExportacao, nothing of it is left in the folder.
  Arquivos Gravar(std::string_view especie, std::string_view bytes) const;

 private:
  /// Puts aside the answers to this workstation's earlier exports for which nobody waits any more,
  /// and removes what a process that died left half-written. As well as it can: neither stands in
  /// the way of an export, whose names are its own.
  void Arrumar() const;
  void PorDeLado(const std::filesystem::path& resposta) const;

  std::filesystem::path pasta_;
  const base::Clock& relogio_;
  std::string computador_;  ///< As it stands in the stems.
};

}  // namespace services
