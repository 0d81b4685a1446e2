#include "desktop/save_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

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
  const QString path =
      QFileDialog::getSaveFileName(window != nullptr ? &window->Native() : nullptr, "Save",
                                   QDir(StartFolder()).filePath(ToQt(proposed_name)), ToQt(filter));
  if (window != nullptr) window->DialogClosed();
  if (path.isEmpty()) return std::nullopt;
  LastFolder() = QFileInfo(path).absolutePath();
  const QByteArray name = path.toUtf8();
  return FolderItem(std::u8string(name.begin(), name.end()));
}

}  // namespace fundlet
