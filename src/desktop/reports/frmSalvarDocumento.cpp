#include "desktop/reports/frmSalvarDocumento.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>
#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/Text.h"
#include "desktop/Convert.h"
#include "platform/Desktop.h"
#include "platform/Layout.h"

namespace desktop::reports {

using platform::Look;

namespace {

constexpr platform::Color kCorDeRecusa = platform::Rgb(255, 0, 0);
/// File systems take some 250 bytes, and an accented letter has two.
constexpr std::int32_t kLongestName = 100;

}  // namespace

frmSalvarDocumento::frmSalvarDocumento(std::vector<Lugar> lugares, const std::string& nome,
                                       std::vector<Formato> formatos)
    : Form("frmSalvarDocumento"), lugares_(std::move(lugares)), formatos_(std::move(formatos)) {
  Caption.Assign("Salvar em " + formatos_.front().nome);
  const bool varios = formatos_.size() > 1;
  lblFormato.Visible.Assign(varios);
  zvcmbFormato.Visible.Assign(varios);
  const std::int32_t larguraDoNome = varios ? 4770 : 7920;
  Arrange({.size = {8400, 3000},
           .places = {
               {lblLugar, {240, 195, 2400, 240}, "Salvar em"},
               {zvcmbLugar, {240, 450, 2700, 450}},
               {lblPasta, {3090, 195, 5070, 240}, "Pasta*"},
               {zvtxtPasta, {3090, 450, 5070, 450}},
               {lblNome, {240, 1080, larguraDoNome, 240}, "Nome do arquivo*"},
               {zvtxtNome, {240, 1365, larguraDoNome, 450}},
               {lblFormato, {5160, 1080, 3000, 240}, "Formato"},
               {zvcmbFormato, {5160, 1365, 3000, 450}},
               {picRodape, {0, 2100, 8400, 900}, "", Look::kFooter},
               {zvcmdCancelar, {5460, 210, 1230, 480}, "Cancelar"},
               {zvcmdSalvar, {6810, 210, 1350, 480}, "Salvar", Look::kPrimary},
           }});
  defaultButton = &zvcmdSalvar;
  cancelButton = &zvcmdCancelar;
  for (const Lugar& lugar : lugares_) zvcmbLugar.AddItem(lugar.nome);
  for (const Formato& formato : formatos_) {
    zvcmbFormato.AddItem(formato.nome + " (" + formato.final + ")");
  }
  zvcmbFormato.ListIndex = 0;
  zvcmbLugar.Click = [this] { zvcmbLugar_Click(); };
  zvcmdCancelar.Click = [this] { Hide(); };
  zvcmdSalvar.Click = [this] { zvcmdSalvar_Click(); };
  if (!lugares_.empty()) zvcmbLugar.ListIndex = 0;
  zvtxtNome.MaxLength = kLongestName;
  zvtxtNome.Text = nome;
  Activate = [this] { zvtxtNome.SetFocus(); };
}

void frmSalvarDocumento::zvcmbLugar_Click() {
  const std::int32_t index = zvcmbLugar.ListIndex();
  if (index >= 0) zvtxtPasta.Text = lugares_[static_cast<std::size_t>(index)].pasta;
}

void frmSalvarDocumento::Recusar(platform::Label& rotulo, const std::string& frase,
                                 platform::ZVTextBox& campo) {
  rotulo.ForeColor = kCorDeRecusa;
  platform::Desktop::Current().Ask({frase, "Caixa", platform::Icon::kInformation,
                                    platform::Buttons::kOk, platform::Answer::kOk});
  campo.SetFocus();
  campo.SelectAll();
}

void frmSalvarDocumento::zvcmdSalvar_Click() {
  for (platform::Label* rotulo : {&lblPasta, &lblNome}) {
    rotulo->ForeColor = platform::kDefaultColor;
  }
  const QString pasta = ToQt(base::Trim(zvtxtPasta.Text()));
  std::string nome = base::Trim(zvtxtNome.Text());
  if (pasta.isEmpty()) return Recusar(lblPasta, "Informe a pasta.", zvtxtPasta);
  if (!QDir::isAbsolutePath(pasta) || !QFileInfo(pasta).isDir()) {
    return Recusar(lblPasta, "A pasta não existe. Informe outra.", zvtxtPasta);
  }
  if (nome.empty()) return Recusar(lblNome, "Informe o nome do arquivo.", zvtxtNome);
  if (nome.find_first_of("/\\") != std::string::npos) {
    return Recusar(lblNome, "O nome do arquivo não pode ter barras. Informe outro.", zvtxtNome);
  }
  const std::string& final = formatos_[static_cast<std::size_t>(zvcmbFormato.ListIndex())].final;
  if (!base::Lower(nome).ends_with(final)) nome += final;
  const std::string caminho = FromQt(QDir(pasta).filePath(ToQt(nome)));
  if (QFileInfo::exists(ToQt(caminho)) &&
      platform::Desktop::Current().Ask({"Já existe um arquivo com este nome. Substituir?", "Caixa",
                                        platform::Icon::kQuestion, platform::Buttons::kYesNo,
                                        platform::Answer::kNo}) != platform::Answer::kYes) {
    return zvtxtNome.SetFocus();
  }
  if (aoSalvar(caminho)) Hide();
}

std::vector<frmSalvarDocumento::Lugar> UsualPlaces() {
  std::vector<frmSalvarDocumento::Lugar> places;
  const auto add = [&](const QString& name, const QString& folder) {
    const std::string path = FromQt(folder);
    const bool known = std::ranges::any_of(
        places, [&](const frmSalvarDocumento::Lugar& each) { return each.pasta == path; });
    if (!known && QFileInfo(folder).isDir()) places.push_back({FromQt(name), path});
  };
  const auto usual = [](QStandardPaths::StandardLocation location) {
    return QStandardPaths::writableLocation(location);
  };
  add(QStringLiteral("Documentos"), usual(QStandardPaths::DocumentsLocation));
  add(QStringLiteral("Área de trabalho"), usual(QStandardPaths::DesktopLocation));
  add(QStringLiteral("Downloads"), usual(QStandardPaths::DownloadLocation));
  add(QStringLiteral("Pasta pessoal"), QDir::homePath());
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString root = volume.rootPath();
    const bool plugged = root.startsWith(QStringLiteral("/media/")) ||
                         root.startsWith(QStringLiteral("/run/media/"));
    if (volume.isReady() && !volume.isReadOnly() && plugged) add(volume.displayName(), root);
  }
  return places;
}

}  // namespace desktop::reports
