#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/host/Application.h"
#include "services/demonstracao/Demonstracao.h"
#include "tools/vitrine/Options.h"
#include "tools/vitrine/Player.h"
#include "tools/vitrine/ScreenFile.h"

namespace vitrine {

/// The host application with a script at its keys, in a demonstration clinic of its own. It leaves
/// pictures, papers and that clinic's database, and nothing else.
class Showcase final : public host::Application {
 public:
  explicit Showcase(const Options& options);

  int Run() override;
  void TellFailure(const std::string& sentence) override;

 private:
  std::string DatabaseAddress() override;
  bool LeavesTraces() const override { return false; }
  desktop::reports::Printing PrintingOn(const platform::Paper& paper) const override;
  void ShowWindow() override;
  void Begin() override;
  void TellSale() const;

  Options options_;
  std::shared_ptr<services::Banco> clinic_;
  std::vector<services::UsuarioDeDemonstracao> users_;
  std::unique_ptr<Player> player_;
  bool failed_ = false;
};

/// The host application as it is at work, looked at from outside: its screen told in a file, or its
/// start measured.
class Watched final : public host::Application {
 public:
  explicit Watched(const Options& options);

 private:
  void Begin() override;
  void Measure();

  Options options_;
  std::optional<ScreenFile> screen_;
};

}  // namespace vitrine
