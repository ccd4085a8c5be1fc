// The shell tests: openings through the document controller, and start-up.
#include <QApplication>
#include <QTest>

#include "OpeningTest.h"
#include "StartupTest.h"
#include "WindowsTest.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  int failed = 0;
  OpeningTest opening;
  failed += QTest::qExec(&opening, argc, argv);
  WindowsTest windows;
  failed += QTest::qExec(&windows, argc, argv);
  StartupTest startup;
  failed += QTest::qExec(&startup, argc, argv);
  return failed;
}
