#include <QApplication>
#include <QWidget>

// What Qt itself costs: a window of the same size with nothing in it.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setWindowTitle("Empty");
  window.resize(740, 220);
  window.show();
  return QApplication::exec();
}
