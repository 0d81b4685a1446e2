#include "desktop/save_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

#include "desktop/modal_dialog.h"
#include "desktop/native_window.h"
#include "desktop/qt_text.h"
#include "desktop/window.h"

namespace fundlet {

namespace {

// Where the last file of this run went.
QString& LastFolder() {
  static QString folder;
  return folder;
}

QString StartFolder() {
  if (!LastFolder().isEmpty() && QDir(LastFolder()).exists()) return LastFolder();
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QDir(documents).exists() ? documents : QDir::homePath();
}

}  // namespace

std::optional<FolderItem> GetSaveFolderItem(const std::string& filter,
                                            const std::string& proposed_name) {
  Window* window = Window::Front();
  QFileDialog dialog(window != nullptr ? &window->Native() : nullptr, "Save", StartFolder(),
                     ToQt(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.selectFile(ToQt(proposed_name));
  ModalDialog::Run(dialog, window);
  const QString path = dialog.selectedFiles().value(0);
  if (dialog.result() != QDialog::Accepted || path.isEmpty()) return std::nullopt;
  LastFolder() = QFileInfo(path).absolutePath();
  const QByteArray name = path.toUtf8();
  return FolderItem(std::u8string(name.begin(), name.end()));
}

}  // namespace fundlet
