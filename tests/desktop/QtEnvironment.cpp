#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

/// One QApplication for all cases, gone before the program's statics are.
class QtEnvironment final : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The platform's remarks on what it does not support are no news.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static int argc = 1;
    static char name[] = "tests";
    static char* argv[] = {name, nullptr};
    application_ = std::make_unique<QApplication>(argc, argv);
  }
  void TearDown() override { application_.reset(); }

 private:
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const testing::Environment* const kQt =
    testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace
