#include "desktop/dialogs/message_dialog.h"

#include <QApplication>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>

#include "desktop/base/qt_text.h"
#include "desktop/dialogs/message_box.h"
#include "desktop/windows/blocking_dialog.h"
#include "desktop/windows/native_window.h"
#include "desktop/windows/window.h"

namespace fundlet {

namespace {

constexpr int kFieldLines = 4;          // the height of the field with the whole text
constexpr qsizetype kShortestEnd = 40;  // each end of a shortened text has more characters
constexpr QChar kBreak = u'\u200B';     // zero width space
constexpr int kPictureSize = 64;        // pixels
constexpr int kAboutWidth = 160;  // pixels, the least width of the text, so that the title fits

// Puts a break after each backslash, and after 40 characters, which may have marks (\X), without a
// blank or a slash: QLabel breaks lines only at those, and would cut off a file name wider than the
// message.
QString WithBreaks(QString text) {
  static const QRegularExpression part(R"((\\|(?:(?![\s/\\])\X){40}(?=[^\s/\\])))");
  return text.replace(part, R"(\1)" + QString(kBreak));
}

}  // namespace

MessageBox::MessageBox(QWidget* parent, Icon icon, const QString& text) : QMessageBox(parent) {
  setTextFormat(Qt::PlainText);
  setWindowTitle(QApplication::applicationName());
  setIcon(icon);
  setText(WithBreaks(text));
  if (auto* label = findChild<QLabel*>("qt_msgbox_label")) label->setAccessibleName(text);
}

void MessageBox::AddOnlyButton(const QString& caption) {
  QPushButton* button = addButton(caption, AcceptRole);
  setDefaultButton(button);
  setEscapeButton(button);
}

// The height is known only here, because QMessageBox sets its size in its own showEvent(), and then
// in each setText().
void MessageBox::showEvent(QShowEvent* event) {
  QMessageBox::showEvent(event);
  const int highest = BlockingDialog::LargestSize(*this).height();
  if (height() <= highest) return;
  const QString whole = text();
  AddFieldWithWholeText();
  const int wanted = highest * 2 / 3;
  for (qsizetype end = whole.size() / 2; height() > wanted && end > kShortestEnd; end -= end / 8) {
    setText(whole.left(end) + "…" + whole.right(end));
  }
}

void MessageBox::AddFieldWithWholeText() {
  auto* field = new QPlainTextEdit(text().remove(kBreak), this);
  field->setReadOnly(true);
  field->setTabChangesFocus(true);
  field->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  field->setFixedHeight(kFieldLines * field->fontMetrics().lineSpacing());
  field->setAccessibleName("Whole message");
  field->show();
  if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
    grid->addWidget(field, grid->rowCount(), 0, 1, -1);
  }
}

const MessageDialogButton& MessageDialog::ShowModalWithin(Window* window) {
  MessageBox box(window != nullptr ? &window->Native() : nullptr,
                 Icon == kCaution ? QMessageBox::Warning : QMessageBox::NoIcon, ToQt(Message));
  box.AddOnlyButton(ToQt(ActionButton.Caption));
  BlockingDialog::Run(box);
  return ActionButton;
}

void ShowAboutBox() {
  Window* window = Window::Front();
  const QString name = QApplication::applicationName();
  MessageBox box(window != nullptr ? &window->Native() : nullptr, QMessageBox::NoIcon, name);
  box.setWindowTitle("About " + name);
  box.setInformativeText("Version " + QApplication::applicationVersion());
  box.setIconPixmap(QApplication::windowIcon().pixmap(kPictureSize));
  box.AddOnlyButton();
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
    grid->setColumnMinimumWidth(grid->columnCount() - 1, kAboutWidth);
  }
  BlockingDialog::Run(box);
}

void Beep() { QApplication::beep(); }

}  // namespace fundlet
