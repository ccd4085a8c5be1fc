// A small window that the AT-SPI harness drives to check its own plumbing:
// a combo box, a spin box, a button and a menu, each with an accessible
// name. Pressing the button prints the combo's text and the spin's value
// on standard output, so the harness can check what it typed and chose.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <cstdio>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("Probe"));
  auto* central = new QWidget(&window);
  auto* layout = new QVBoxLayout(central);
  auto* mode = new QComboBox(central);
  mode->addItems({QStringLiteral("Backward"), QStringLiteral("Forward")});
  mode->setAccessibleName(QStringLiteral("Mode"));
  auto* modeLabel = new QLabel(QStringLiteral("Mode"), central);
  modeLabel->setBuddy(mode);
  auto* hours = new QSpinBox(central);
  hours->setAccessibleName(QStringLiteral("Hours"));
  auto* apply = new QPushButton(QStringLiteral("Apply"), central);
  apply->setAccessibleName(QStringLiteral("Apply"));
  for (QWidget* control : std::initializer_list<QWidget*>{modeLabel, mode, hours, apply}) layout->addWidget(control);
  window.setCentralWidget(central);
  QMenu* file = window.menuBar()->addMenu(QStringLiteral("&File"));
  file->addAction(QStringLiteral("&Quit"), &app, &QApplication::quit);
  QObject::connect(apply, &QPushButton::clicked, &app, [&] {
    std::printf("%s %d\n", qPrintable(mode->currentText()), hours->value());
    std::fflush(stdout);
  });
  window.show();
  return app.exec();
}
