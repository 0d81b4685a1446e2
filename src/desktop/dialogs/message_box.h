#pragma once

#include <QMessageBox>

namespace fundlet {

// A box with a plain text, titled with the program's name. A word that is too long for a line is
// broken. If the text makes the box too high for the screen, the text loses its middle, and a field
// below it that scrolls shows the whole text.
class MessageBox : public QMessageBox {
 public:
  MessageBox(QWidget* parent, Icon icon, const QString& text);

  // Adds the only button: Return, Escape and the close box press it too.
  void AddOnlyButton(const QString& caption = "OK");

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void AddFieldWithWholeText();
};

// Shows a box with the program's icon, name and version over the frontmost window, or by itself if
// there is none. Returns when the user has closed it.
void ShowAboutBox();

}  // namespace fundlet
