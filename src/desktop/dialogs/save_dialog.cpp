#include "desktop/dialogs/save_dialog.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

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

namespace fs = std::filesystem;

// What the text in the name field means.
struct TypedPath {
  QString refusal;    // a message for the user; empty if the text names a file or a folder
  QString path = {};  // absolute, without "." and ".."
  bool is_folder = false;
};

fs::path ToPath(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return std::u8string(bytes.begin(), bytes.end());
}

fs::file_type TypeOf(const QString& path) {
  std::error_code ignored;
  return fs::status(ToPath(path), ignored).type();
}

QString FaultOf(fs::file_type type) {
  if (type == fs::file_type::not_found) return "There is no folder “%1”.";
  return type == fs::file_type::none ? "The folder “%1” cannot be opened."
                                     : "“%1” is not a folder.";
}

// Reads a text, relative to the absolute path of the folder shown. "~" and "~/" are the user's
// home folder; ".." removes the last folder from the path, even if that is a link. Blanks and
// quotation marks belong to the name. A file need not exist, but its folder must, unless the system
// cannot tell: writing the file then fails with the reason. The folder shown is refused, because it
// names no file; a link to a folder is a folder.
TypedPath ReadTypedPath(const QString& text, const QString& shown_folder) {
  const bool at_home = text == "~" || text.startsWith("~/");
  const QString typed = at_home ? QDir::homePath() + text.mid(1) : text;
  // QDir::absoluteFilePath() would read ":name" as a resource of the program.
  const QString path = QDir::cleanPath(typed.startsWith('/') ? typed : shown_folder + '/' + typed);
  if (typed.trimmed().isEmpty() || path == shown_folder) return {"Type a name for the file."};
  const auto is_control = [](QChar c) { return c.category() == QChar::Other_Control; };
  if (std::any_of(path.begin(), path.end(), is_control)) {
    return {"A file name cannot contain line breaks or tabs. Type the name without them."};
  }
  if (TypeOf(path) == fs::file_type::directory) return {{}, path, true};
  const bool names_folder = typed.endsWith('/') || typed.endsWith("/.");
  const qsizetype name_start = path.lastIndexOf('/');
  const QString folder = names_folder ? path : path.left(std::max<qsizetype>(name_start, 1));
  const fs::file_type type = TypeOf(folder);
  const bool cannot_tell = type == fs::file_type::none && !names_folder;
  if (type == fs::file_type::directory || cannot_tell) return {{}, path};
  return {FaultOf(type).arg(folder) + " Choose another folder."};
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
  // QFileDialog::accept() looks the name up in a list that may not be complete yet, so it might
  // choose another file.
  void accept() override {
    if (!UsesQtsDialog()) {
      QFileDialog::accept();
      return;
    }
    const TypedPath typed = ReadTypedPath(name_->text(), directory().path());
    if (const QString folder = FolderInList(); !folder.isEmpty()) {
      Open(folder, name_->text());
    } else if (!typed.refusal.isEmpty()) {
      Refuse(typed.refusal);
    } else if (typed.is_folder) {
      Open(typed.path, proposed_name_);
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

  // The folder that is selected in the list; empty for none, and while the name field has the
  // focus. With a selected folder, Qt labels the Save button Open.
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
    refusal.setWindowTitle(windowTitle());
    BlockingDialog::Run(refusal);
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
    question.setWindowTitle(windowTitle());
    BlockingDialog::Run(question);
    return question.result() == QMessageBox::Yes;
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
  BlockingDialog::Run(dialog);
  const QString path = dialog.Path();
  if (dialog.result() != QDialog::Accepted || path.isEmpty()) return std::nullopt;
  RunState::Of<SaveFolder>().path = QFileInfo(path).absolutePath();
  return FolderItem(ToPath(path));
}

}  // namespace fundlet
