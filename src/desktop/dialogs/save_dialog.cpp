#include "desktop/dialogs/save_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QStandardPaths>

#include "desktop/base/qt_text.h"
#include "desktop/base/run_state.h"
#include "desktop/windows/modal_dialog.h"
#include "desktop/windows/native_window.h"
#include "desktop/windows/window.h"

namespace fundlet {

namespace {

// Where the last file of this run went, empty before there is one.
struct SaveFolder {
  QString path;
};

QString StartFolder() {
  const QString& last = RunState::Of<SaveFolder>().path;
  if (!last.isEmpty() && QDir(last).exists()) return last;
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QDir(documents).exists() ? documents : QDir::homePath();
}

bool MayReplace(QWidget& asking, const QString& path) {
  QMessageBox question(&asking);
  question.setTextFormat(Qt::PlainText);
  question.setWindowTitle("Save");
  question.setIcon(QMessageBox::Warning);
  question.setText(QFileInfo(path).fileName() + " already exists.\nDo you want to replace it?");
  question.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  question.setDefaultButton(QMessageBox::No);
  ModalDialog::Run(question);
  asking.activateWindow();
  return question.result() == QMessageBox::Yes;
}

// Qt's own question about a file that is there already would keep the windows beneath from
// being closed.
class SaveWidget : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

 protected:
  void accept() override {
    const QString path = selectedFiles().value(0);
    const bool asks = testOption(DontConfirmOverwrite) && QFileInfo(path).isFile();
    if (!asks || MayReplace(*this, path)) QFileDialog::accept();
  }
};

}  // namespace

std::optional<FolderItem> GetSaveFolderItem(const std::string& filter,
                                            const std::string& proposed_name) {
  Window* window = Window::Front();
  SaveWidget dialog(window != nullptr ? &window->Native() : nullptr, "Save", StartFolder(),
                    ToQt(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
#ifdef Q_OS_LINUX
  dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
#endif
  // The list that pops up beneath a name being typed takes the keyboard from it and gives it back;
  // on Wayland a letter typed meanwhile is lost.
  if (auto* name = dialog.findChild<QLineEdit*>("fileNameEdit")) name->setCompleter(nullptr);
  dialog.selectFile(ToQt(proposed_name));
  Window::RunDialog(dialog, window);
  const QString path = dialog.selectedFiles().value(0);
  if (dialog.result() != QDialog::Accepted || path.isEmpty()) return std::nullopt;
  RunState::Of<SaveFolder>().path = QFileInfo(path).absolutePath();
  const QByteArray name = path.toUtf8();
  return FolderItem(std::u8string(name.begin(), name.end()));
}

}  // namespace fundlet
