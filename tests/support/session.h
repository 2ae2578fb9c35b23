// The whole program in this process: started as always, taken down without ending the process.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <functional>

#include "core/app_state.h"
#include "forms/application.h"
#include "support/temp_folder.h"
#include "windows/form1.h"
#include "windows/form2.h"
#include "windows/form3.h"
#include "windows/startup.h"

namespace support {

/// Serves events until `condition` holds; false where it does not within a long time.
inline bool waitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 20000);
}

/// The program after its start, in a folder of its own that has no tools yet.
class Session : public testing::Test {
 protected:
  Session() { Main(); }
  ~Session() override {
    Form3.unload();
    Form2.unload();
    // The handlers of the main window would end the process.
    Form1->onQueryUnload = Form1->onUnload = Form1->onTerminate = nullptr;
    Form1.unload();
    AppState = {};
    forms::Application::doEvents();
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()) << "a window is left over";
  }

  static void click(forms::Control& control) { QTest::mouseClick(control.widget(), Qt::LeftButton); }
  static void openSource(const std::string& path) { clickAndAnswer(Form1->Command1(0), path); }
  static void saveAs(const std::string& path) { clickAndAnswer(Form1->Command1(3), path); }
  static void clickAndAnswer(forms::Control& button, const std::string& path) {
    answerDialog(path);
    click(button);
  }
  /// Answers the next file dialog with `path`, or with a Cancel where it is empty.
  static void answerDialog(const std::string& path) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, path] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer->deleteLater();
      timer->stop();
      if (path.empty()) return dialog->reject();
      auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
      name->setText(QString::fromStdString(path));
      QTest::keyClick(name, Qt::Key_Return);
    });
    timer->start(1);
  }

  OwnFolder folder;
};

}  // namespace support
