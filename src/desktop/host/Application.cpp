#include "desktop/host/Application.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "base/DateTime.h"
#include "desktop/Convert.h"
#include "desktop/DesktopQt.h"
#include "desktop/Fonts.h"
#include "desktop/host/MainWindow.h"
#include "desktop/host/Options.h"
#include "desktop/host/PendingCare.h"
#include "desktop/host/Player.h"
#include "desktop/host/Process.h"
#include "desktop/host/ScreenFile.h"
#include "desktop/host/Scripts.h"
#include "desktop/host/Settings.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/Servico.h"
#include "services/Abertura.h"
#include "services/Banco.h"
#include "services/Estacao.h"
#include "services/banco/Session.h"
#include "services/contrato/AjustesDaEmpresa.h"
#include "services/contrato/RegistrarServicos.h"
#include "services/demonstracao/Demonstracao.h"
#include "services/troca/ExportacaoFiscal.h"
#include "services/venda/ConsultaDeCupons.h"
#include "services/venda/FichaDaVenda.h"
#include "siblings/RegistrarTelas.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "caixa";
constexpr const char* kDefaultDatabase = "caixa.db";
constexpr const char* kDemonstrationDatabase = "demonstracao.db";
constexpr const char* kExchangeFolder = "cfe";
constexpr const char* kReceipt = "comprovante.pdf";
constexpr QSize kUsualSize{1024, 768};

/// What a script shows of the papers of a sale; it ends, whether a coupon is answered or not.
constexpr std::pair<const char*, const char*> kShownPapers[] = {
    {"CodigoDoDocumentoComEmissaoPermitida", "11"},
    {"ImprimirComprovanteDeCFeSAT", "Sim"},
    {"SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT", "Sim"},
    {"ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT", "Sim"},
    {"ImprimirComprovanteDePagamento", "Sim"},
    {"VisualizarImpressaoDoComprovanteDePagamento", "Sim"},
    {"ImprimirNotaPromissoria", "Sim"},
    {"SolicitarConfirmacaoParaImprimirNotaPromissoria", "Sim"},
    {"VisualizarImpressaoDaNotaPromissoria", "Sim"},
};

bool HasDisplay() {
  return std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr ||
         std::getenv("QT_QPA_PLATFORM") != nullptr;
}

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

/// A folder that exists from here on.
std::string Made(const std::string& folder) {
  if (!platform::files::MakeFolder(folder)) {
    throw std::runtime_error("Não foi possível criar a pasta '" + folder +
                             "'. Confira o caminho e as permissões.");
  }
  return folder;
}

/// A request of the system to end (logging out, shutting down) closes the window as the operator
/// would, so that nobody stays locked.
class EndRequests {
 public:
  EndRequests(QWidget& window, const desktop::DesktopQt& desktop)
      : window_(window), desktop_(desktop) {
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &window,
        [this](QSessionManager& session) {
          // A session that ends while something is being confirmed has to be ended once more.
          if (!window_.close() && platform::Form::CommandsHeld::Any()) session.cancel();
        },
        Qt::DirectConnection);
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, sockets_) != 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(sockets_[1], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, &window, [this] {
      char signal = 0;
      if (read(sockets_[1], &signal, 1) == 1) Close();
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) std::signal(signal, &Pass);
  }

 private:
  static void Pass(int) {
    const char signal = 1;
    [[maybe_unused]] const auto written = write(sockets_[0], &signal, 1);
  }

  /// Not in the middle of a call to the database, which is painted around.
  void Close() {
    constexpr int kMilliseconds = 50;
    if (!desktop_.IsPainting()) {
      window_.close();
    } else {
      QTimer::singleShot(kMilliseconds, &window_, [this] { Close(); });
    }
  }

  QWidget& window_;
  const desktop::DesktopQt& desktop_;
  static inline int sockets_[2] = {-1, -1};
  std::unique_ptr<QSocketNotifier> notifier_;
};

/// One run of the application, its parts in the order in which they need each other.
class Application {
 public:
  explicit Application(const Options& options)
      : options_(options),
        desktop_(Made(options.folder.empty() ? FolderOf(options) : options.folder)) {
    platform::Desktop::Install(&desktop_);
  }
  ~Application() {
    player_.reset();
    window_.reset();
    servicos::EsquecerTodos();
    platform::files::InsteadOfDeleting({});
    platform::Desktop::Install(nullptr);
  }
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// Throws std::runtime_error with a sentence for the operator.
  int Run() {
    ReadSettings();
    OpenDatabase();
    window_ = std::make_unique<MainWindow>(desktop_);
    MeetFiscalApplication();
    window_->onClosed = [] { QCoreApplication::exit(0); };
    const EndRequests requests(*window_, desktop_);
    ShowWindow();
    window_->ShowSignIn();
    std::optional<ScreenFile> told;
    if (!options_.screenFile.empty()) told.emplace(desktop_, options_.screenFile);
    if (IsScripted()) Play();
    if (options_.mode == Options::Mode::kMeasure) Measure();
    const int status = QCoreApplication::exec();
    if (failed_) return 1;
    if (options_.mode == Options::Mode::kDemonstration) TellSale();
    return status;
  }

  /// Tells the operator what stood in the way, on the screen if there is one.
  void TellFailure(const std::string& sentence) {
    std::fprintf(stderr, "%s\n", sentence.c_str());
    const bool offscreen = QGuiApplication::platformName() == QStringLiteral("offscreen");
    if (options_.mode != Options::Mode::kWork || offscreen) return;
    desktop_.Ask(
        {sentence, "Caixa", platform::Icon::kStop, platform::Buttons::kOk, platform::Answer::kOk});
  }

 private:
  static std::string FolderOf(const Options& options) {
    return options.pictures.empty() ? UserFolder() : options.pictures;
  }
  bool IsScripted() const { return !options_.pictures.empty(); }

  void ReadSettings() {
    const std::string folder = desktop_.ModuleFolder();
    // A script leaves nothing but its pictures.
    if (!IsScripted()) Settings::CreateIfMissing(folder);
    settings_ = Settings::Read(folder);
    PrintOn(settings_.papel == Settings::Papel::kBobina80 ? platform::kRoll80Paper
                                                          : platform::kA4Paper);
  }

  void PrintOn(const platform::Paper& paper) {
    desktop::reports::Printing printing{
        .paper = paper, .printer = settings_.impressora, .saveAs = {}};
    if (IsScripted()) {
      // What a script prints and saves is kept beside its pictures.
      const fs::path folder = fs::absolute(options_.pictures);
      printing.printer = "pdf:" + folder.string();
      printing.saveAs = [folder](const std::string&) { return (folder / kReceipt).string(); };
    }
    desktop_.UsePrinting(std::move(printing));
  }

  /// The default folder is ours to make; one that was chosen may be out of reach for now, which an
  /// export tells.
  void MeetFiscalApplication() {
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

  void OpenDatabase() {
    std::string address = options_.database;
    if (IsScripted()) {
      address = CreateDemonstration();
    } else if (address.empty()) {
      address = "sqlite:" + (fs::path(Made(UserFolder())) / kDefaultDatabase).string();
    }
    // A script leaves nothing but its pictures.
    const std::string mark = IsScripted() ? "" : services::MarcaDaEstacao(desktop_.ModuleFolder());
    bank_ = services::AbrirBanco(address, desktop_, desktop_.ComputerName(), mark);
    if (!IsScripted()) bank_->LembrarRegistros(desktop_.ModuleFolder(), address);
    bank_->Sessao().WhileWaiting([this] { desktop_.Paint(); });
    services::RegistrarServicos(bank_, [this] { desktop_.ProcessEvents(); });
    care_.emplace(desktop_, bank_);
    siblings::RegistrarTelas();
  }

  std::string CreateDemonstration() {
    const fs::path file = fs::path(Made(options_.pictures)) / kDemonstrationDatabase;
    std::error_code ignored;
    for (const char* suffix : {"", "-wal", "-shm"}) fs::remove(file.string() + suffix, ignored);
    std::string address = "sqlite:" + file.string();
    services::CriarBanco(address);
    demonstration_ = services::AbrirBanco(address, desktop_, desktop_.ComputerName());
    users_ = services::CriarDemonstracao(*demonstration_);
    services::AlterarEmpresa(*demonstration_, {std::begin(kShownPapers), std::end(kShownPapers)});
    return address;
  }

  /// What became of the demonstration's sale, as it stands in the database.
  void TellSale() {
    const auto sale = services::LerFichaDaVenda(*demonstration_, 1);
    if (!sale) throw std::runtime_error("A demonstração terminou sem registrar a venda.");
    const std::string& key = sale->venda.chaveSat;
    const std::string& folder = options_.pictures;
    Tell(key.empty() ? "A venda foi registrada sem cupom: nenhum aplicativo fiscal o emitiu. Um "
                       "simulado se abre antes, com: integrador-simulado " +
                           folder + "/" + kExchangeFolder
                     : "A venda foi registrada com o cupom de chave " + key + ".");
    Tell("Para conferir: caixa-banco sqlite:" + folder + "/" + kDemonstrationDatabase + " venda 1");
    Tell("O comprovante está em " + folder + "/" + kReceipt + ", os retratos das telas em " +
         folder + ".");
  }

  static void Tell(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
  }

  void ShowWindow() {
    window_->resize(kUsualSize);
    // A cash desk has the screen to itself; pictures are all of one size.
    IsScripted() ? window_->show() : window_->showMaximized();
    window_->activateWindow();
  }

  void Play() {
    const bool sale = options_.mode == Options::Mode::kDemonstration;
    player_ = std::make_unique<Player>(desktop_, *window_,
                                       sale ? scripts::Demonstration() : scripts::Portraits());
    player_->folder = options_.pictures;
    player_->numbered = sale;
    player_->words = {{"pasta", options_.pictures}};
    constexpr const char* kRoles[] = {"administrador", "supervisor", "operador"};
    for (std::size_t i = 0; i < std::size(kRoles) && i < users_.size(); ++i) {
      player_->words[kRoles[i]] = users_[i].nome;
      player_->words[std::string("senha do ") + kRoles[i]] = users_[i].senha;
    }
    player_->words["vencimento"] =
        base::Format(desktop_.Now().PlusMonths(1), base::DateMask::kDayMonthYear);
    player_->tell = Tell;
    player_->usePaper = [this](const std::string& name) {
      PrintOn(name == "Bobina80" ? platform::kRoll80Paper : platform::kA4Paper);
    };
    player_->onEnd = [this](bool done, const std::string& why) {
      failed_ = !done;
      if (failed_) std::fprintf(stderr, "A demonstração parou: %s.\n", why.c_str());
      window_->close();
    };
    player_->Start();
  }

  /// Tells how long it took to bring the sign-in up, and how much memory, once it is painted.
  void Measure() {
    QTimer::singleShot(0, window_.get(), [this] {
      QCoreApplication::processEvents();
      window_->repaint();
      std::printf("entrada em %.2f s, %ld MB\n", process::SecondsSinceStart(),
                  process::PeakMemory() / 1024 / 1024);
      window_->close();
    });
  }

  const Options& options_;
  desktop::DesktopQt desktop_;
  Settings settings_;
  std::shared_ptr<services::Banco> bank_;
  std::optional<PendingCare> care_;
  std::shared_ptr<services::Banco> demonstration_;
  std::vector<services::UsuarioDeDemonstracao> users_;
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<Player> player_;
  bool failed_ = false;
};

int RunWithScreen(const Options& options) {
  std::optional<Application> application;
  try {
    application.emplace(options);
  } catch (const std::runtime_error& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
  try {
    return application->Run();
  } catch (const std::runtime_error& failure) {
    application->TellFailure(failure.what());
    return 1;
  }
}

}  // namespace

int Run(int argc, char** argv) {
  Options options;
  try {
    options = Options::Read({argv + 1, argv + argc});
  } catch (const BadOption& bad) {
    std::fprintf(stderr, "%s\n\n%s", bad.what(), Options::Help());
    return 2;
  }
  if (options.mode == Options::Mode::kHelp) {
    std::fputs(Options::Help(), stdout);
    return 0;
  }
  if (!HasDisplay()) {
    if (options.mode == Options::Mode::kWork) {
      std::fputs(
          "Não há uma tela em que abrir o caixa. Abra-o em um ambiente gráfico, ou peça\n"
          "uma demonstração sem tela com: caixa --demonstracao PASTA\n",
          stderr);
      return 1;
    }
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
  }
  qInstallMessageHandler(&TellOnlyTrouble);
  int qtArguments = 1;
  QApplication application(qtArguments, argv);
  QCoreApplication::setApplicationName(QString::fromLatin1(kName));
  QApplication::setFont(desktop::fonts::Text());
  // The close of the window ends the loop itself, once everything has unwound.
  QApplication::setQuitOnLastWindowClosed(false);
  return RunWithScreen(options);
}

}  // namespace host
