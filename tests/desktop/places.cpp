// Prints where the controls of the program are, for scripts that click them: a line for each caption and each
// spoken name, with the window's title, the name, and the control's middle in pixels of the window's inside.
// In a window that changes its height the middle is counted from the lower edge, below zero.

#include <QPoint>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

#include "forms/application.h"
#include "windows/form1.h"
#include "windows/form2.h"
#include "windows/form3.h"
#include "windows/startup.h"

namespace {

void printPlaces(const forms::FormData& data, const QWidget* window) {
  for (const forms::ControlData& row : data.controls) {
    const std::string member = row.index == forms::kSingle ? "" : "(" + std::to_string(row.index) + ")";
    const auto* control = window->findChild<QWidget*>(QString::fromStdString(row.name + member));
    QPoint middle = control->mapTo(window, control->rect().center());
    if (!data.oneSize) middle.ry() -= window->height();
    for (const QString name : {row.text, row.spokenName})
      std::printf("%s\t%s\t%d\t%d\n", qPrintable(window->windowTitle()), qPrintable(name.trimmed()),
                  middle.x(), middle.y());
  }
}

}  // namespace

int main() {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const forms::Application application;
  Main();
  Form3->show(&*Form1);
  printPlaces(kForm1Data, Form1->Text1.widget()->window());
  printPlaces(kForm2Data, Form2->PBar.widget()->window());
  printPlaces(kForm3Data, Form3->Text1.widget()->window());
  std::fflush(stdout);
  CleanUnload();  // Ends the process.
}
