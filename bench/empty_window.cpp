#include <QApplication>
#include <QWidget>

// The least that any window costs: an empty one of the program's size.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setWindowTitle("Empty");
  window.resize(740, 220);
  window.show();
  return QApplication::exec();
}
