#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>

#include "desktop/DesktopQt.h"
#include "desktop/FormView.h"
#include "desktop/MessageBoxView.h"
#include "desktop/host/MainWindow.h"
#include "desktop/host/Options.h"
#include "desktop/host/PendingCare.h"
#include "desktop/views/View.h"
#include "frame/servicos/Servico.h"
#include "platform/Input.h"
#include "platform/Screens.h"
#include "services/Abertura.h"
#include "services/Banco.h"
#include "services/contrato/AjustesDaEmpresa.h"
#include "services/contrato/RegistrarServicos.h"
#include "services/demonstracao/Demonstracao.h"
#include "services/venda/Travas.h"
#include "services/venda/VendasRegistradas.h"
#include "siblings/RegistrarTelas.h"
#include "tools/vitrine/Options.h"
#include "tools/vitrine/Player.h"
#include "tools/vitrine/Scripts.h"

namespace {

using vitrine::Step;
using Act = Step::Act;

/// The host application in this process, over a demonstration clinic of its own.
class HostTest : public testing::Test {
 protected:
  HostTest() : desktop(folder.path().toStdString()) {
    platform::Desktop::Install(&desktop);
    const std::string address = "sqlite:" + folder.filePath(QStringLiteral("c.db")).toStdString();
    services::CriarBanco(address);
    bank = services::AbrirBanco(address, desktop, desktop.ComputerName());
    users = services::CriarDemonstracao(*bank);
    services::RegistrarServicos(bank, [this] { desktop.ProcessEvents(); });
    siblings::RegistrarTelas();
    window = std::make_unique<host::MainWindow>(desktop);
    window->onClosed = [this] { closed = true; };
    window->resize(1024, 768);
    window->show();
    window->activateWindow();
    window->ShowSignIn();
  }
  ~HostTest() override {
    window.reset();
    servicos::EsquecerTodos();
    bank.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    platform::Desktop::Install(nullptr);
  }

  /// Plays the script, then `next` within the loops that it left open; until the window closes.
  void Play(std::vector<Step> script, const std::function<void()>& next) {
    vitrine::Player player(desktop, *window, std::move(script));
    player.words = {{"usuario", users.front().nome}, {"senha", users.front().senha}};
    player.tell = [](const std::string&) {};
    player.folder = folder.path().toStdString();
    player.onEnd = [&](bool done, const std::string& why) {
      EXPECT_TRUE(done) << why;
      next();
    };
    player.Start();
    EXPECT_TRUE(QTest::qWaitFor([this] { return closed; }, 60'000));
  }

  QTemporaryDir folder;
  desktop::DesktopQt desktop;
  std::shared_ptr<services::Banco> bank;
  std::vector<services::UsuarioDeDemonstracao> users;
  std::unique_ptr<host::MainWindow> window;
  bool closed = false;
};

const std::vector<Step> kUpToCustomer{
    {Act::kType, "zvtxtUsuario", "{usuario}"},
    {Act::kKey, "", "Enter"},
    {Act::kType, "zvtxtSenha", "{senha}"},
    {Act::kKey, "", "Enter"},
    {Act::kSettle, "frmCaixaOperar"},
    {Act::kPick, "zvcmbCaixas", "Recep"},
    {Act::kTool, "tbMenuCaixa", "Abertura"},
    {Act::kClick, "zvcmdSalvar"},
    {Act::kSettle, "frmCaixaOperar"},
    {Act::kType, "zvfCodigoDoCliente", "2"},
    {Act::kKey, "", "Enter"},
    {Act::kSettle, "frmCaixaOperar"},
};

TEST_F(HostTest, ClosingAtRestFreesTheCustomerWhoIsBeingServed) {
  Play(kUpToCustomer, [&] {
    EXPECT_EQ(services::ListarTravas(*bank).size(), 1U);
    window->close();
  });
  EXPECT_TRUE(services::ListarTravas(*bank).empty());
}

TEST_F(HostTest, WhoCouldNotBeFreedIsFreedAtRest) {
  const host::PendingCare care(desktop, bank, std::chrono::milliseconds(5));
  Play(kUpToCustomer, [&] {
    bank->LiberarDepois(2, bank->Estacao());
    const auto freed = [this] { return services::ListarTravas(*bank).empty(); };
    platform::input::Run([&] { EXPECT_FALSE(QTest::qWaitFor(freed, 50)) << "within an act"; });
    EXPECT_TRUE(QTest::qWaitFor(freed, 60'000));
    window->close();
  });
}

TEST_F(HostTest, WhoCouldNotBeFreedIsFreedAtTheLatestAtTheEnd) {
  {
    const host::PendingCare care(desktop, bank, std::chrono::hours(1));
    Play(kUpToCustomer, [&] {
      services::TravarCliente(*bank, 3, bank->Estacao(), "ana");
      bank->LiberarDepois(3, bank->Estacao());
      window->close();
    });
    EXPECT_EQ(1U, services::ListarTravas(*bank).size());
  }
  EXPECT_TRUE(services::ListarTravas(*bank).empty());
}

TEST_F(HostTest, ClosingInMidWorkUnwindsFirstAndThenFreesTheCustomer) {
  std::vector<Step> script = kUpToCustomer;
  script.push_back({Act::kPick, "zvcmbTiposDeServicos", "Cl"});
  script.push_back({Act::kSettle, "frmCaixaOperar"});
  script.push_back({Act::kType, "zvfCodigoDoServico", "1"});
  script.push_back({Act::kKey, "", "Enter"});
  script.push_back({Act::kSettle, "frmCaixaOperar"});
  script.push_back({Act::kClick, "zvcmdAdicionar"});
  script.push_back({Act::kClick, "zvcmdPagamento"});
  script.push_back({Act::kScreen, "frmCaixaPagar"});
  script.push_back({Act::kClick, "zvcmdAdicionar"});  // Without a method: a box over the dialog.
  script.push_back({Act::kBox, "", "Informe a forma de pagamento."});
  Play(script, [&] {
    window->close();
    EXPECT_FALSE(closed) << "the box still stood on the stack";
    EXPECT_EQ(services::ListarTravas(*bank).size(), 1U);
  });
  EXPECT_EQ(platform::screens::Modal(), nullptr);
  EXPECT_TRUE(services::ListarTravas(*bank).empty());
}

/// From the counter to the box that is the last thing before a sale is over.
std::vector<Step> UpToTheReceipt() {
  std::vector<Step> script = kUpToCustomer;
  script.push_back({Act::kClick, "optProduto"});
  script.push_back({Act::kType, "zvfCodigoDeBarrasDoProduto", "7890000010030"});
  script.push_back({Act::kKey, "", "Enter"});
  script.push_back({Act::kSettle, "frmCaixaOperar"});
  script.push_back({Act::kClick, "zvcmdAdicionar"});
  script.push_back({Act::kClick, "zvcmdPagamento"});
  script.push_back({Act::kScreen, "frmCaixaPagar"});
  script.push_back({Act::kPick, "zvcmbFormaDePagamento", "1-D"});
  script.push_back({Act::kSettle, "frmCaixaPagar"});
  script.push_back({Act::kClick, "zvcmdAdicionar"});
  script.push_back({Act::kClick, "zvcmdConfirmar"});
  script.push_back({Act::kBox, "", "Deseja imprimir o comprovante de pagamento?"});
  return script;
}

TEST_F(HostTest, StaysOpenWhileASaleIsConfirmedAndThenClosesByItself) {
  services::AlterarEmpresa(*bank,
                           {{"ImprimirComprovanteDePagamento", "Sim"},
                            {"SolicitarConfirmacaoParaImprimirComprovanteDePagamento", "Sim"}});
  Play(UpToTheReceipt(), [&] {
    for (int presses = 0; presses < 2; ++presses) window->close();
    QTest::qWait(120);
    EXPECT_FALSE(closed) << "the handler still ran";
    const auto* const notice = window->findChild<QWidget*>(QStringLiteral("aviso"));
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(window->children().last(), notice) << "over the box";
    ASSERT_NE(desktop.Box(), nullptr);
    QTest::keyClick(desktop.Box(), Qt::Key_N);
  });
  EXPECT_EQ(services::UltimasVendas(*bank, 2).size(), 1U);
  EXPECT_TRUE(services::ListarTravas(*bank).empty());
}

TEST_F(HostTest, StaysOpenWhileAMovementIsConfirmed) {
  std::vector<Step> script(kUpToCustomer.begin(), kUpToCustomer.end() - 3);
  script.push_back({Act::kTool, "tbMenuCaixa", "Entradas"});
  script.push_back({Act::kClick, "zvcmdSalvar"});
  script.push_back({Act::kBox, "", "Informe o valor."});
  Play(script, [&] {
    window->close();
    QTest::qWait(120);
    EXPECT_FALSE(closed) << "the handler still ran";
    EXPECT_FALSE(desktop.IsIdle());
    ASSERT_NE(desktop.Box(), nullptr);
    QTest::keyClick(desktop.Box(), Qt::Key_Return);
  });
}

TEST_F(HostTest, TellsWhatIsNewOnceTheCounterRests) {
  window->onSignedIn = [&] {
    for (const char* news : {"Um cupom ficou sem venda.", "A venda 7 foi registrada."}) {
      window->Tell(news);
    }
  };
  std::vector<Step> script(kUpToCustomer.begin(), kUpToCustomer.begin() + 4);
  script.push_back({Act::kBox, "", "Um cupom ficou sem venda."});
  script.push_back({Act::kAnswer, "", "ok"});
  script.push_back({Act::kBox, "", "A venda 7 foi registrada."});
  Play(script, [&] { window->close(); });
}

TEST_F(HostTest, NoCaptionOfCounterAndPaymentIsCut) {
  std::vector<Step> script = kUpToCustomer;
  for (const std::string_view product : {"7890000010030", "7890000010061"}) {
    script.push_back({Act::kClick, "optProduto"});
    script.push_back({Act::kType, "zvfCodigoDeBarrasDoProduto", product});
    script.push_back({Act::kKey, "", "Enter"});
    script.push_back({Act::kSettle, "frmCaixaOperar"});
    script.push_back({Act::kClick, "zvcmdAdicionar"});
  }
  script.push_back({Act::kClick, "zvcmdPagamento"});
  script.push_back({Act::kScreen, "frmCaixaPagar"});
  script.push_back({Act::kPick, "zvcmbFormaDePagamento", "6-A"});  // Brings up the due date.
  script.push_back({Act::kSettle, "frmCaixaPagar"});
  Play(script, [&] {
    window->grab();
    int captions = 0;
    for (const platform::Form* form : platform::screens::Loaded()) {
      for (const platform::Control* control : form->Controls()) {
        const desktop::View* const view = desktop.ViewOf(*control);
        if (view == nullptr || !view->isVisible() || control->Words().empty()) continue;
        ++captions;
        EXPECT_FALSE(view->IsCut()) << form->Name() << '.' << control->Name();
      }
    }
    EXPECT_GT(captions, 50);
    window->close();
  });
}

TEST_F(HostTest, ClosingWhileThePasswordIsVerifiedEndsTheSignIn) {
  bool inTheMiddle = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (desktop.IsIdle() || inTheMiddle) return;
    inTheMiddle = true;
    window->close();
    EXPECT_FALSE(closed) << "the sign-in still stood on the stack";
  });
  watch.start(1);
  Play({{Act::kType, "zvtxtUsuario", "{usuario}"},
        {Act::kType, "zvtxtSenha", "{senha}"},
        {Act::kClick, "zvcmdEntrar"}},
       [] {});
  EXPECT_TRUE(inTheMiddle) << "the screen stood still";
  EXPECT_EQ(platform::screens::Front()->Name(), "frmEntrada");
}

TEST_F(HostTest, AWrongPasswordIsToldOnTheSpot) {
  const std::vector<Step> script{
      {Act::kClick, "zvcmdEntrar"},
      {Act::kTell, "lblRecusa", ""},
      {Act::kType, "zvtxtUsuario", "{usuario}"},
      {Act::kType, "zvtxtSenha", "errada"},
      {Act::kKey, "", "Enter"},
      {Act::kTell, "lblRecusa", ""},
  };
  Play(script, [&] {
    const platform::Form& form = *platform::screens::Front();
    EXPECT_EQ(form.Name(), "frmEntrada");
    EXPECT_EQ(form.ActiveControl()->Name(), "zvtxtSenha");
    EXPECT_FALSE(form.FindControl("lblRecusa")->Words().empty());
    window->close();
  });
}

/// The program itself.
class ProgramTest : public testing::Test {
 protected:
  struct Ended {
    int status = -1;
    std::string said, complained;
  };
  Ended Run(const QStringList& arguments, bool display = true, const char* name = CAIXA_PROGRAM) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), folder.filePath(QStringLiteral("dados")));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    if (display) {
      environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    }
    program.setProcessEnvironment(environment);
    program.start(QString::fromUtf8(name), arguments);
    EXPECT_TRUE(program.waitForFinished(60'000)) << "it did not end";
    return {program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1,
            program.readAllStandardOutput().toStdString(),
            program.readAllStandardError().toStdString()};
  }
  QString Path(const char* name) { return folder.filePath(QString::fromLatin1(name)); }
  void Write(const char* name, const char* bytes) {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QTemporaryDir folder;
};

TEST_F(ProgramTest, WhatItDoesNotUnderstandEndsWithTwo) {
  EXPECT_EQ(Run({QStringLiteral("--bano"), QStringLiteral("x")}).status, 2);
  EXPECT_EQ(Run({QStringLiteral("--banco")}).status, 2);
  const Ended both = Run({QStringLiteral("--retratos"), Path("a"), QStringLiteral("--banco"),
                          QStringLiteral("sqlite:x.db")},
                         true, VITRINE_PROGRAM);
  EXPECT_EQ(both.status, 2);
  EXPECT_NE(both.complained.find("Uso: caixa-vitrine"), std::string::npos);
  EXPECT_EQ(Run({QStringLiteral("--ajuda")}, false).status, 0);
}

TEST_F(ProgramTest, ADatabaseThatCannotBeOpenedIsToldAndLeftAsItIs) {
  Write("texto.db", "isto não é um banco de dados, e é comprido o bastante para parecer um");
  Write("vazio.db", "");
  for (const char* name : {"texto.db", "vazio.db", "nao-existe.db"}) {
    const Ended ended = Run({QStringLiteral("--banco"), QStringLiteral("sqlite:") + Path(name)});
    EXPECT_EQ(ended.status, 1) << name;
    EXPECT_FALSE(ended.complained.empty()) << name;
  }
  EXPECT_FALSE(QFile::exists(Path("nao-existe.db")));
  EXPECT_EQ(QFile(Path("vazio.db")).size(), 0);
  EXPECT_EQ(Run({QStringLiteral("--banco"), QStringLiteral("oracle:x")}).status, 1);
  EXPECT_EQ(Run({QStringLiteral("--pasta"), QStringLiteral("/proc/caixa")}).status, 1);
}

TEST_F(ProgramTest, WithoutAScreenItSaysSo) {
  const Ended ended = Run({}, false);
  EXPECT_EQ(ended.status, 1);
  EXPECT_NE(ended.complained.find("--demonstracao"), std::string::npos);
}

TEST_F(ProgramTest, TheDemonstrationSellsThroughTheWindowsWithCouponAndReceipt) {
  QProcess integrator;
  ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("demo/cfe")));
  integrator.start(QStringLiteral(INTEGRATOR_PROGRAM), {Path("demo/cfe")});
  const Ended ended = Run({QStringLiteral("--demonstracao"), Path("demo")}, false, VITRINE_PROGRAM);
  integrator.kill();
  integrator.waitForFinished();
  const QString answered = QString::fromUtf8(integrator.readAllStandardOutput());
  EXPECT_EQ(ended.status, 0) << ended.complained;
  EXPECT_NE(ended.said.find("Líquido a pagar: 320,40"), std::string::npos) << ended.said;
  EXPECT_NE(ended.said.find("Troco: -29,60"), std::string::npos);
  const QString key = answered.section(QStringLiteral("Emitido: "), 1).left(44);
  EXPECT_EQ(key.size(), 44) << answered.toStdString();
  EXPECT_NE(ended.said.find("com o cupom de chave " + key.toStdString()), std::string::npos)
      << ended.said;
  EXPECT_TRUE(QFile::exists(Path("demo/comprovante.pdf")));
  const QStringList pictures = QDir(Path("demo")).entryList({QStringLiteral("*.png")});
  EXPECT_GE(pictures.size(), 12);
  EXPECT_FALSE(pictures.contains(QStringLiteral("falha.png")));
}

}  // namespace
