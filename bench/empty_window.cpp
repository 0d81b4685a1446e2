#include <QApplication>
#include <QWidget>

// Opens an empty window of the main window's size: what any Qt window costs, for bench/opening.py.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setWindowTitle("Empty");
  window.resize(740, 220);
  window.show();
  return QApplication::exec();
}
