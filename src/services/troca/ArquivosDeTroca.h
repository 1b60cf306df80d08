#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string_view>

namespace services {

// What PastaDeTroca does with files: each is whole and durable before it bears its name, readable
// for those alone who may take it, and never put over another one.

/// The run-time error of a FalhaNaExportacao for an error of the system, with the system's own
/// words in brackets behind the sentence, for the support.
[[noreturn]] void FalharNaTroca(int codigo, const std::filesystem::path& onde);

/// Whether anything bears the name, a link that leads nowhere included.
bool ExisteNaTroca(const std::filesystem::path& caminho);

/// The exchange folder, open, and who takes files from it: whom its administrator lets write there.
/// What is written there is for its owner alone where nobody else may; for the folder's group, or
/// to be read by everybody, where they may take files from it.
class PastaAberta {
 public:
  /// Run-time error of a FalhaNaExportacao.
  explicit PastaAberta(const std::filesystem::path& pasta);
  ~PastaAberta();
  PastaAberta(const PastaAberta&) = delete;
  PastaAberta& operator=(const PastaAberta&) = delete;

  /// Writes a new file and has it on the disk; false when the name is taken. On failure, a run-time
  /// error, it may be there in part.
  bool Escrever(const std::filesystem::path& arquivo, std::string_view bytes) const;
  /// Makes the names in the folder durable; false when they may not be. Some network folders have
  /// no such thing.
  bool Firmar() const;
  /// A folder of ours within it, made when it is not there.
  std::filesystem::path Dentro(const char* nome) const;

 private:
  void Partilhar(int arquivo) const;

  std::filesystem::path pasta_;
  int numero_;
  mode_t modo_ = 0;
  gid_t grupo_ = 0;
};

/// Renames a file into a folder under this name, or with "-2", "-3" and so on behind its stem where
/// that is taken. False when the file is not there or cannot be moved.
bool MoverNaTroca(const std::filesystem::path& arquivo, const std::filesystem::path& pasta,
                  const std::filesystem::path& nome);

}  // namespace services
