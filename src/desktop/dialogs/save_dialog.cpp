#include "desktop/dialogs/save_dialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStandardPaths>

#include "desktop/base/qt_text.h"
#include "desktop/base/run_state.h"
#include "desktop/dialogs/message_box.h"
#include "desktop/dialogs/typed_path.h"
#include "desktop/windows/blocking_dialog.h"
#include "desktop/windows/native_window.h"
#include "desktop/windows/window.h"

namespace fundlet {

namespace {

// The folder of the last file that the dialog gave in this run; empty before the first.
struct SaveFolder {
  QString path;
};

QString StartFolder() {
  const QString& last = RunState::Of<SaveFolder>().path;
  if (!last.isEmpty() && QDir(last).exists()) return last;
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QDir(documents).exists() ? documents : QDir::homePath();
}

class SaveWidget : public QFileDialog {
 public:
  SaveWidget(QWidget* parent, const QString& filter, const QString& proposed_name)
      : QFileDialog(parent, "Save", StartFolder(), filter), proposed_name_(proposed_name) {
    setAcceptMode(AcceptSave);
    const QString platform = QGuiApplication::platformName();
    if (platform != "windows" && platform != "cocoa") UseQtsDialog();
    selectFile(proposed_name);
  }

  // The file that has been chosen.
  QString Path() const { return UsesQtsDialog() ? path_ : selectedFiles().value(0); }

 protected:
  // QFileDialog looks the name up in a list that may not be complete yet, and may so choose another
  // file.
  void accept() override {
    if (!UsesQtsDialog()) {
      QFileDialog::accept();
      return;
    }
    const TypedPath typed = ReadTypedPath(name_->text(), directory().path());
    if (const QString folder = FolderInList(); !folder.isEmpty()) {
      Open(folder, name_->text());
    } else if (typed.kind == TypedPath::Kind::Folder) {
      Open(typed.path, proposed_name_);
    } else if (typed.kind == TypedPath::Kind::Refused) {
      Refuse(typed.reason);
    } else if (MayWrite(typed.path)) {
      path_ = typed.path;
      done(Accepted);
    }
  }

  // Qt disables Save while its list does not know the folder of the name.
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == save_ && event->type() == QEvent::EnabledChange) save_->setEnabled(true);
    return QFileDialog::eventFilter(object, event);
  }

 private:
  void UseQtsDialog() {
    setOption(DontUseNativeDialog);
    name_ = findChild<QLineEdit*>("fileNameEdit");
    list_ = findChild<QListView*>("listView");
    save_ = findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Save);
    // The popup of QCompleter takes the keyboard focus from the name and gives it back; on Wayland
    // a letter typed meanwhile is lost.
    name_->setCompleter(nullptr);
    // While a name is typed, Qt would select the file in the list that the name seems to mean.
    disconnect(name_, &QLineEdit::textChanged, this, nullptr);
    connect(name_, &QLineEdit::textEdited, list_->selectionModel(),
            &QItemSelectionModel::clearSelection);
    save_->installEventFilter(this);
    save_->setEnabled(true);
    resize(sizeHint().boundedTo(BlockingDialog::LargestSize(*this)));
  }
  bool UsesQtsDialog() const { return testOption(DontUseNativeDialog); }

  // The folder selected in the list when Save is clicked, which then says Open; empty for none.
  QString FolderInList() const {
    if (name_->hasFocus()) return {};
    const QModelIndex selected = list_->selectionModel()->selectedRows().value(0);
    const QString path = selected.data(QFileSystemModel::FilePathRole).toString();
    return QFileInfo(path).isDir() ? path : QString();
  }

  void Open(const QString& folder, const QString& name) {
    setDirectory(folder);
    name_->setText(name);
    name_->selectAll();
    name_->setFocus();
  }

  void Refuse(const QString& reason) {
    MessageBox refusal(this, QMessageBox::Warning, reason);
    refusal.AddOnlyButton();
    RunOver(refusal);
    name_->setFocus();
  }

  // Qt's own question about a file that exists would keep the windows beneath from being closed.
  bool MayWrite(const QString& path) {
    if (!QFileInfo(path).isFile()) return true;
    MessageBox question(
        this, QMessageBox::Warning,
        QFileInfo(path).fileName() + " already exists.\nDo you want to replace it?");
    question.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    question.setDefaultButton(QMessageBox::No);
    RunOver(question);
    // The dialog may have been closed after the answer was given.
    return question.result() == QMessageBox::Yes && isVisible();
  }

  void RunOver(MessageBox& box) {
    box.setWindowTitle(windowTitle());
    BlockingDialog::Run(box);
    activateWindow();
  }

  QString proposed_name_;
  QString path_;
  QLineEdit* name_ = nullptr;    // null where the platform's own dialog is used
  QListView* list_ = nullptr;    // likewise
  QPushButton* save_ = nullptr;  // likewise
};

}  // namespace

std::optional<FolderItem> GetSaveFolderItem(const std::string& filter,
                                            const std::string& proposed_name) {
  Window* window = Window::Front();
  SaveWidget dialog(window != nullptr ? &window->Native() : nullptr, ToQt(filter),
                    ToQt(proposed_name));
  Window::RunDialog(dialog, window);
  const QString path = dialog.Path();
  if (dialog.result() != QDialog::Accepted || path.isEmpty()) return std::nullopt;
  RunState::Of<SaveFolder>().path = QFileInfo(path).absolutePath();
  return FolderItem(ToPath(path));
}

}  // namespace fundlet
