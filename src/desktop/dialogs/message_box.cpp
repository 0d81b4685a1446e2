#include "desktop/dialogs/message_box.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "desktop/windows/blocking_dialog.h"

namespace fundlet {

namespace {

constexpr int kFieldLines = 4;          // of the field with the whole text
constexpr qsizetype kShortestEnd = 40;  // characters that are shown of each end of a text
constexpr int kLongestWord = 40;        // characters; longer words are broken
constexpr QChar kBreak = u'\u200B';     // zero width space

// QLabel breaks no word, and would cut off a file name wider than the message.
QString WithBreaks(const QString& text) {
  QString broken;
  int word = 0;
  for (const QChar c : text) {
    const bool part_of_last = c.isLowSurrogate() || c.isMark();
    if (word >= kLongestWord && !part_of_last) {
      broken += kBreak;
      word = 0;
    }
    broken += c;
    word = c.isSpace() || c == '/' ? 0 : word + 1;
  }
  return broken;
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

// QMessageBox sets its size when it is shown, and then whenever its text changes.
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
  auto* grid = qobject_cast<QGridLayout*>(layout());
  field->show();
  if (grid != nullptr) grid->addWidget(field, grid->rowCount(), 0, 1, -1);
}

}  // namespace fundlet
