#include "desktop/screen/Clinic.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <stdexcept>

#include "desktop/screen/XScreen.h"

namespace xscreen {

void Clinic::SetUp() {
  Bank({QStringLiteral("criar")});
  Bank({QStringLiteral("demonstracao")});
}

QString Clinic::Database() const {
  return QStringLiteral("sqlite:") + folder.filePath(QStringLiteral("clinica.db"));
}

std::string Clinic::Bank(const QStringList& command) {
  QProcess bank;
  bank.start(QStringLiteral(CAIXA_BANCO_PROGRAM), QStringList{Database()} + command);
  EXPECT_TRUE(bank.waitForFinished(60'000));
  EXPECT_EQ(bank.exitCode(), 0) << bank.readAllStandardError().toStdString();
  // When, and on which computer, is another one each time.
  QString told = QString::fromUtf8(bank.readAllStandardOutput());
  told.replace(QRegularExpression(QStringLiteral(R"(\d\d/\d\d/\d{4} \d\d:\d\d:\d\d)")),
               QStringLiteral("(agora)"));
  return told.toStdString();
}

void Clinic::OnScreen(bool windowManager, const std::function<void(Operator&)>& work) {
  const XScreen screen(folder.path(), windowManager);
  Operator at(screen, folder.path(), Database());
  try {
    work(at);
  } catch (const std::runtime_error& stuck) {
    const QString picture =
        QDir(QStringLiteral(CAIXA_PICTURES)).filePath(QStringLiteral("falha-na-tela.png"));
    ADD_FAILURE() << stuck.what() << "\nthe screen: "
                  << (screen.Save(picture) ? picture.toStdString() : "(no picture)")
                  << "\nand it told: " << at.Told().toStdString();
  }
}

void Clinic::ExpectBalancedAndFree() {
  EXPECT_TRUE(
      Bank({QStringLiteral("conferir")}).ends_with("As contas de todas as vendas fecham.\n"));
  EXPECT_EQ(Bank({QStringLiteral("travas")}), "Nenhum cliente em atendimento.\n");
}

void SignInAndOpenTheRegister(Operator& at) {
  at.See("frmEntrada");
  at.Fill("zvtxtUsuario", "marina\t");
  at.See("zvtxtUsuario", "marina");
  at.Type("girassol-41");
  at.Key("Return");
  at.See("frmCaixaOperar");
  at.Pick("zvcmbCaixas", "Recepção");
  at.Click("tbMenuCaixa.Abertura");
  at.See("frmCaixaAbrir");
  at.Fill("zvnumValorEmDinheiro", "150,00");
  at.Click("zvcmdSalvar");
  at.See("lblSituacaoDoCaixa", "Aberto");
}

}  // namespace xscreen
