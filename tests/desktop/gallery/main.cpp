// Pictures of every control in every state, into a folder: galeria FOLDER.

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QPixmap>
#include <QTimer>
#include <cstdio>
#include <functional>
#include <vector>

#include "desktop/DesktopQt.h"
#include "desktop/GalleryCounter.h"
#include "desktop/GalleryDialog.h"
#include "desktop/MessageBoxView.h"
#include "desktop/Photograph.h"
#include "desktop/views/View.h"
#include "platform/Input.h"

namespace {

using platform::Answer;

struct Tour {
  desktop::DesktopQt& desktop;
  QWidget& host;
  platform::WindowHandle handle;
  QDir folder;

  void Photograph(const char* name) {
    QCoreApplication::processEvents();
    const QString path = folder.filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
    if (!desktop::Photograph(host).save(path)) std::fprintf(stderr, "cannot write %s\n", name);
  }

  /// Shows something that waits for the operator, photographs it, and leaves it.
  void During(const char* name, const std::function<void()>& leave,
              const std::function<void()>& act) {
    QTimer::singleShot(60, &host, [this, name, leave] {
      Photograph(name);
      leave();
    });
    platform::input::Run(act);
  }

  void Counter(gallery::Counter& counter) {
    counter.Fill(4);
    counter.SetParent(handle);
    counter.Show();
    Photograph("counter");
    counter.zvfCodigo.SetFocus();
    Photograph("counter-focus-find");
    counter.zvnumQuantidade.SetFocus();
    counter.lblQuantidade.ForeColor = 255;
    Photograph("counter-refused");
    counter.lblQuantidade.ForeColor = 4802889;
    counter.optProduto.SetFocus();
    Photograph("counter-focus-option");
    counter.chkEntrega.Value = true;
    counter.chkEntrega.SetFocus();
    Photograph("counter-focus-check");
    counter.zvcmdAdicionar.SetFocus();
    Photograph("counter-focus-button");
    counter.Fill(60);
    counter.msfgGrade.SetFocus();
    Photograph("counter-full-grid");
    counter.zvcmbComissionado.SetFocus();
    const auto toCombo = [&](int key) {
      QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
      QCoreApplication::sendEvent(QApplication::activePopupWidget() != nullptr
                                      ? QApplication::activePopupWidget()
                                      : QApplication::focusWidget(),
                                  &press);
    };
    toCombo(Qt::Key_F4);
    toCombo(Qt::Key_Down);
    toCombo(Qt::Key_Down);
    Photograph("counter-combo-open");
    toCombo(Qt::Key_Escape);
  }

  void WaitPanel(gallery::Counter& counter) {
    desktop.Dim(handle, 1);
    counter.picMensagem.CornerRadius = 30;
    counter.picMensagem.Left = (counter.Width() - counter.picMensagem.Width()) / 2;
    counter.picMensagem.Top = (counter.Height() - counter.picMensagem.Height()) / 2;
    counter.picMensagem.BringToFront();
    counter.picMensagem.Visible = true;
    Photograph("wait-panel");
    counter.picMensagem.Visible = false;
    desktop.Undim(handle);
  }

  void Boxes() {
    const auto ask = [&](const char* name, const platform::MessageBox& box) {
      During(
          name, [this] { QMetaObject::invokeMethod(&host, [this] { desktop.Box()->close(); }); },
          [&] { desktop.Ask(box); });
    };
    ask("box-information", {"Entrada efetuada.", "Caixa", platform::Icon::kInformation,
                            platform::Buttons::kOk, Answer::kOk});
    ask("box-question", {"Deseja utilizar as informações do(a) cliente Ana?", "Caixa",
                         platform::Icon::kQuestion, platform::Buttons::kYesNo, Answer::kNo});
    ask("box-stop",
        {"A leitura do arquivo 'C:\\SAT\\retorno.txt' não foi possível neste computador. "
         "\n\n53-Não "
         "foi encontrado o arquivo.\n\nPara corrigir esta situação:\n\n\t1. Entre em contato com o "
         "suporte técnico, e informe o erro identificado.\n\n\t2. Não inclua produto(s) na grade "
         "de itens de vendas.",
         "Caixa", platform::Icon::kStop, platform::Buttons::kOk, Answer::kOk});
  }

  void Dialog() {
    gallery::Dialog dialog;
    dialog.Fill();
    desktop.Dim(handle, 0);
    const auto dialogPicture = [&](const char* name) {
      During(
          name, [&] { dialog.Hide(); }, [&] { dialog.ShowModal(); });
    };
    dialogPicture("dialog");
    for (platform::Control* control : dialog.TabOrder()) {
      dialog.Show();
      control->SetFocus();
      const std::string name = "dialog-focus-" + control->Name();
      Photograph(name.c_str());
      dialog.Hide();
    }
    desktop.Undim(handle);
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 2) {
    std::fputs("usage: galeria FOLDER\n", stderr);
    return 2;
  }
  QDir().mkpath(arguments.at(1));
  desktop::DesktopQt desktop(".");
  platform::Desktop::Install(&desktop);
  QWidget host;
  host.resize(1024, 768);
  host.show();
  host.activateWindow();
  QCoreApplication::processEvents();
  Tour tour{desktop, host, desktop.Register(host), QDir(arguments.at(1))};

  gallery::Counter counter;
  tour.Counter(counter);
  tour.WaitPanel(counter);
  tour.Boxes();
  tour.Dialog();
  return 0;
}
