#include "desktop/screen/Operator.h"

#include <QFile>
#include <QJsonDocument>
#include <QThread>
#include <stdexcept>

namespace xscreen {
namespace {

constexpr int kLookEveryMilliseconds = 10;
constexpr int kLooks = 3'000;
constexpr int kPatience = 30'000;
constexpr int kMostTabs = 60;

QJsonObject TargetOf(const QJsonObject& screen, const QString& name) {
  return screen[u"targets"].toObject()[name].toObject();
}

}  // namespace

Operator::Operator(const XScreen& screen, const QString& folder, const QString& database)
    : screen_(screen), file_(folder + QStringLiteral("/tela.json")) {
  TieToUs(program_);
  program_.setProcessEnvironment(screen.Environment());
  program_.setProcessChannelMode(QProcess::ForwardedChannels);
  program_.start(QStringLiteral(VITRINE_PROGRAM),
                 {QStringLiteral("--banco"), database, QStringLiteral("--pasta"), folder,
                  QStringLiteral("--contar-tela"), file_});
}

Operator::~Operator() {
  if (program_.state() == QProcess::NotRunning) return;
  program_.kill();
  program_.waitForFinished(kPatience);
}

QString Operator::Told() const {
  QFile file(file_);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QJsonObject Operator::Look() const {
  return QJsonDocument::fromJson(Told().toUtf8()).object();
}

QJsonObject Operator::Await(const QString& what,
                            const std::function<bool(const QJsonObject&)>& seen, bool atRest) {
  for (int look = 0; look < kLooks; ++look) {
    QJsonObject now = Look();
    if ((!atRest || now[u"resting"].toBool()) && seen(now)) return now;
    if (program_.waitForFinished(0)) throw std::runtime_error("the program ended");
    QThread::msleep(kLookEveryMilliseconds);
  }
  throw std::runtime_error("did not come: " + what.toStdString());
}

void Operator::See(const char* screen) {
  Await(QString::fromUtf8(screen), [&](const QJsonObject& now) {
    return now[u"box"].isNull() && now[u"screen"].toString() == QString::fromUtf8(screen);
  });
}

void Operator::See(const char* control, const char* text) {
  const QString name = QString::fromUtf8(control);
  const QString wanted = QString::fromUtf8(text);
  Await(name + QStringLiteral(" = ") + wanted,
        [&](const QJsonObject& now) { return TargetOf(now, name)[u"text"].toString() == wanted; });
}

void Operator::SeeBox(const char* text) {
  const QString wanted = QString::fromUtf8(text);
  Await(wanted, [&](const QJsonObject& now) {
    return now[u"box"].isString() && now[u"box"].toString().contains(wanted);
  });
}

void Operator::Point(const char* target, const QStringList& act) {
  const QString name = QString::fromUtf8(target);
  const QJsonObject place = TargetOf(
      Await(name, [&](const QJsonObject& now) { return TargetOf(now, name)[u"usable"].toBool(); }),
      name);
  screen_.Send(QStringList{QStringLiteral("mousemove"), QString::number(place[u"x"].toInt()),
                           QString::number(place[u"y"].toInt())} +
               act);
}

void Operator::Click(const char* target) {
  Point(target, {QStringLiteral("click"), QStringLiteral("1")});
}

void Operator::DoubleClick(const char* target) {
  Point(target, {QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
                 QStringLiteral("--delay"), QStringLiteral("20"), QStringLiteral("1")});
}

void Operator::TabTo(const char* control) {
  const QString wanted = QString::fromUtf8(control);
  QString at =
      Await(QStringLiteral("a focus"),
            [](const QJsonObject& now) { return !now[u"focus"].toString().isEmpty(); })[u"focus"]
          .toString();
  for (int tab = 0; at != wanted && tab < kMostTabs; ++tab) {
    Key("Tab");
    at = Await(QStringLiteral("Tab away from ") + at,
               [&](const QJsonObject& now) { return now[u"focus"].toString() != at; })[u"focus"]
             .toString();
  }
  if (at != wanted) throw std::runtime_error("no Tab leads to " + wanted.toStdString());
}

void Operator::Pick(const char* combo, const char* item) {
  Click(combo);
  const QString wanted = QString::fromUtf8(item);
  QString found;
  Await(wanted, [&](const QJsonObject& now) {
    const QJsonObject targets = now[u"targets"].toObject();
    for (auto each = targets.begin(); each != targets.end(); ++each) {
      if (!each.key().endsWith(u']') || each.value()[u"text"].toString() != wanted) continue;
      found = each.key();
      return true;
    }
    return false;
  });
  Click(found.toUtf8().constData());
  See(combo, item);
}

void Operator::Fill(const char* field, const char* text) {
  Click(field);
  const QString name = QString::fromUtf8(field);
  Await(QStringLiteral("the focus on ") + name,
        [&](const QJsonObject& now) { return now[u"focus"].toString() == name; });
  Key("ctrl+a");
  Type(text);
}

void Operator::AwaitKeyboard() {
  Await(
      QStringLiteral("the keyboard"),
      [](const QJsonObject& now) { return now[u"keyboard"].toBool(); }, false);
}

void Operator::Type(const char* text) {
  AwaitKeyboard();
  screen_.Send({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("2"),
                QString::fromUtf8(text)});
}

void Operator::Key(const char* key) {
  AwaitKeyboard();
  screen_.Send({QStringLiteral("key"), QString::fromUtf8(key)});
}

void Operator::Scan(const char* digits) {
  AwaitKeyboard();
  QStringList acts{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("1")};
  for (const QChar digit : QString::fromUtf8(digits)) acts << digit;
  screen_.Send(acts << QStringLiteral("Return"));
}

int Operator::End(const std::function<void(QProcess&)>& how) {
  how(program_);
  if (!program_.waitForFinished(kPatience)) throw std::runtime_error("the program does not end");
  return program_.exitStatus() == QProcess::NormalExit ? program_.exitCode() : -1;
}

}  // namespace xscreen
