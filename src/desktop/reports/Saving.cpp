#include "desktop/reports/Saving.h"

#include <QDir>
#include <QFileInfo>
#include <stdexcept>
#include <string>

#include "desktop/Convert.h"

namespace desktop::reports {
namespace {

/// What stood in the way, as far as it can be told, and what to do about it.
QString Reason(const QFileInfo& file) {
  const QFileInfo folder(file.absolutePath());
  if (!folder.isDir()) return QStringLiteral("A pasta não existe: escolha outra.");
  if (file.isDir()) return QStringLiteral("Já existe uma pasta com este nome: escolha outro.");
  if (!folder.isWritable()) return QStringLiteral("A pasta não permite gravar: escolha outra.");
  if (file.exists() && !file.isWritable()) {
    return QStringLiteral("O arquivo que já existe está protegido: escolha outro nome.");
  }
  return QStringLiteral(
      "Confira se há espaço no disco e se a pasta ainda está disponível, e tente de novo.");
}

}  // namespace

void FailToSave(std::string_view what, const QString& path) {
  throw std::runtime_error("Não foi possível gravar " + std::string(what) + " em \"" +
                           FromQt(QDir::toNativeSeparators(path)) + "\". " +
                           FromQt(Reason(QFileInfo(path))));
}

}  // namespace desktop::reports
