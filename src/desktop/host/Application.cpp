#include "desktop/host/Application.h"

#include <QApplication>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/host/EndRequests.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/Servico.h"
#include "services/Abertura.h"
#include "services/Banco.h"
#include "services/Estacao.h"
#include "services/banco/Session.h"
#include "services/contrato/RegistrarServicos.h"
#include "services/troca/ExportacaoFiscal.h"
#include "services/venda/ConsultaDeCupons.h"
#include "siblings/RegistrarTelas.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "caixa";
constexpr const char* kDefaultDatabase = "caixa.db";
constexpr const char* kExchangeFolder = "cfe";
constexpr QSize kUsualSize{1024, 768};

/// Qt's remarks on the platform mean nothing to the operator.
void TellOnlyTrouble(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) {
    // Nothing of ours runs yet: Qt gives up when it cannot reach the screen.
    std::fputs("Não foi possível usar a tela. Confira se o ambiente gráfico está aberto.\n",
               stderr);
    std::_Exit(1);
  }
  if (type == QtCriticalMsg) std::fprintf(stderr, "%s\n", desktop::FromQt(text).c_str());
}

std::string UserFolder() {
  return desktop::FromQt(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

}  // namespace

bool HasDisplay() {
  return std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr ||
         std::getenv("QT_QPA_PLATFORM") != nullptr;
}

std::string Made(const std::string& folder) {
  if (!platform::files::MakeFolder(folder)) {
    throw std::runtime_error("Não foi possível criar a pasta '" + folder +
                             "'. Confira o caminho e as permissões.");
  }
  return folder;
}

Application::Application(const Options& options)
    : options_(options), desktop_(Made(options.folder.empty() ? UserFolder() : options.folder)) {
  platform::Desktop::Install(&desktop_);
}

Application::~Application() {
  window_.reset();
  servicos::EsquecerTodos();
  platform::files::InsteadOfDeleting({});
  platform::Desktop::Install(nullptr);
}

int Application::Run() {
  ReadSettings();
  OpenDatabase();
  window_ = std::make_unique<MainWindow>(desktop_);
  MeetFiscalApplication();
  window_->onClosed = [] { QCoreApplication::exit(0); };
  const EndRequests requests(*window_, desktop_);
  window_->resize(kUsualSize);
  ShowWindow();
  window_->activateWindow();
  window_->ShowSignIn();
  Begin();
  return QCoreApplication::exec();
}

void Application::TellFailure(const std::string& sentence) {
  std::fprintf(stderr, "%s\n", sentence.c_str());
  if (QGuiApplication::platformName() == QStringLiteral("offscreen")) return;
  desktop_.Ask(
      {sentence, "Caixa", platform::Icon::kStop, platform::Buttons::kOk, platform::Answer::kOk});
}

void Application::ReadSettings() {
  const std::string folder = desktop_.ModuleFolder();
  if (LeavesTraces()) Settings::CreateIfMissing(folder);
  settings_ = Settings::Read(folder);
  PrintOn(settings_.papel == Settings::Papel::kBobina80 ? platform::kRoll80Paper
                                                        : platform::kA4Paper);
}

desktop::reports::Printing Application::PrintingOn(const platform::Paper& paper) const {
  return {.paper = paper, .printer = settings_.impressora, .saveAs = {}};
}

/// A cash desk has the screen to itself.
void Application::ShowWindow() {
  window_->showMaximized();
}

/// The default folder is ours to make; one that was chosen may be out of reach for now, which an
/// export tells.
void Application::MeetFiscalApplication() {
  std::string folder =
      options_.fiscalFolder.empty() ? settings_.pastaFiscal : options_.fiscalFolder;
  if (folder.empty()) {
    folder = (fs::path(desktop_.ModuleFolder()) / kExchangeFolder).string();
    Made(folder);
  }
  services::RegistrarExportacaoFiscal(bank_, folder, frame::ExibirRelato);
  platform::files::InsteadOfDeleting(services::ArquivoDaTroca(*bank_, folder));
  bank_->AoAvisar([this](const std::string& sentence) {
    if (window_ != nullptr) window_->Tell(sentence);
  });
  window_->onSignedIn = [this, folder] {
    services::RetomarCupons(bank_, folder);
    const std::string left = services::AvisoDeCupons(*bank_);
    if (!left.empty()) window_->Tell(left);
  };
}

std::string Application::DatabaseAddress() {
  if (!options_.database.empty()) return options_.database;
  return "sqlite:" + (fs::path(Made(UserFolder())) / kDefaultDatabase).string();
}

void Application::OpenDatabase() {
  const std::string address = DatabaseAddress();
  const std::string folder = desktop_.ModuleFolder();
  const std::string mark = LeavesTraces() ? services::MarcaDaEstacao(folder) : "";
  bank_ = services::AbrirBanco(address, desktop_, desktop_.ComputerName(), mark);
  if (LeavesTraces()) bank_->LembrarRegistros(folder, address);
  bank_->Sessao().WhileWaiting([this] { desktop_.Paint(); });
  services::RegistrarServicos(bank_, [this] { desktop_.ProcessEvents(); });
  care_.emplace(desktop_, bank_);
  siblings::RegistrarTelas();
}

int RunWithScreen(char** argv, const std::function<std::unique_ptr<Application>()>& made) {
  qInstallMessageHandler(&TellOnlyTrouble);
  int qtArguments = 1;
  QApplication qt(qtArguments, argv);
  QCoreApplication::setApplicationName(QString::fromLatin1(kName));
  QApplication::setFont(desktop::fonts::Text());
  // The close of the window ends the loop itself, once everything has unwound.
  QApplication::setQuitOnLastWindowClosed(false);
  std::unique_ptr<Application> application;
  try {
    application = made();
    return application->Run();
  } catch (const std::runtime_error& failure) {
    if (application != nullptr) {
      application->TellFailure(failure.what());
    } else {
      std::fprintf(stderr, "%s\n", failure.what());
    }
    return 1;
  }
}

}  // namespace host
