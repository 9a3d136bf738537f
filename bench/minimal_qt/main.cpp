// The least that a program with Qt Widgets does: a window with a text. What Korvane's start is
// measured against.

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QWidget window;
  QVBoxLayout layout(&window);
  layout.addWidget(new QLabel("Minimal", &window));
  window.show();
  return QApplication::exec();
}
