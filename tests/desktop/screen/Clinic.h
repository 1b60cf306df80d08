#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <string>

#include "desktop/screen/Operator.h"

namespace xscreen {

/// The program on a screen, over the demonstration clinic, and the second command that proves what
/// stands in the database.
class Clinic : public testing::Test {
 protected:
  void SetUp() override;

  QString Database() const;
  /// What `caixa-banco` tells; moments are "(agora)".
  std::string Bank(const QStringList& command);
  /// Does the work on a screen; where it gets stuck, tells so and leaves a picture.
  void OnScreen(bool windowManager, const std::function<void(Operator&)>& work);
  void ExpectBalancedAndFree();

  QTemporaryDir folder;
};

/// From the sign-in to the open register of the reception, with the mouse.
void SignInAndOpenTheRegister(Operator& at);

}  // namespace xscreen
