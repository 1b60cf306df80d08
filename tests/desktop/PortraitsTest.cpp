// What the screens look like: portraits taken anew are those that stand in docs/retratos.

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>

namespace {

constexpr int kSeen = 24;  ///< Levels of a colour that nobody tells apart.

/// How many pixels of a picture are another colour than in the other; -1 when the sizes differ.
int Difference(const QImage& one, const QImage& other) {
  if (one.isNull() || one.size() != other.size()) return -1;
  int different = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QColor a = one.pixelColor(x, y);
      const QColor b = other.pixelColor(x, y);
      const int far = std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                std::abs(a.blue() - b.blue())});
      if (far > kSeen) ++different;
    }
  }
  return different;
}

TEST(Portraits, AreThoseOfTheManual) {
  // Another version of the toolkit or of a font draws letters otherwise, and rightly so.
  if (qVersion() != QLatin1String("6.4.2")) GTEST_SKIP() << "drawn by Qt " << qVersion();
  const QDir folder(QStringLiteral(CAIXA_PORTRAITS));
  const QTemporaryDir anew;
  QProcess program;
  program.setProcessChannelMode(QProcess::MergedChannels);
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  program.setProcessEnvironment(environment);
  program.start(QStringLiteral(VITRINE_PROGRAM), {QStringLiteral("--retratos"), anew.path()});
  ASSERT_TRUE(program.waitForFinished(280'000));
  ASSERT_EQ(program.exitCode(), 0) << program.readAll().toStdString();
  const QStringList names = folder.entryList({QStringLiteral("*.png")});
  EXPECT_EQ(names, QDir(anew.path()).entryList({QStringLiteral("*.png")}));
  for (const QString& name : names) {
    // It tells the path of a file, another one each time.
    const int allowed = name.startsWith(QStringLiteral("aplicativo-fiscal")) ? 8'000 : 0;
    const int found = Difference(QImage(folder.filePath(name)), QImage(anew.filePath(name)));
    EXPECT_TRUE(found >= 0 && found <= allowed)
        << name.toStdString() << ": " << found << " pixels differ. Look at it; if it is as it "
        << "should be: caixa-vitrine --retratos docs/retratos";
  }
}

}  // namespace
