// The shell tests in one program: openings, the shell's windows and start-up.
#include <QApplication>

int runOpeningTests(int argc, char* argv[]);
int runWindowsTests(int argc, char* argv[]);
int runStartupTests(int argc, char* argv[]);

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  return runOpeningTests(argc, argv) + runWindowsTests(argc, argv) + runStartupTests(argc, argv);
}
