#include <QApplication>
#include <QLabel>

// The least that a window with text costs: one line of text, in a window of the program's size.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QLabel window("One line of text");
  window.setWindowTitle("Text");
  window.resize(740, 220);
  window.show();
  return QApplication::exec();
}
