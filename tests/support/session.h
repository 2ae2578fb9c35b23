// The whole program in this process: started as always, taken down without ending the process.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <functional>

#include "forms/application.h"
#include "support/in_step.h"
#include "support/temp_folder.h"
#include "windows/form2.h"
#include "windows/form3.h"
#include "windows/startup.h"

namespace support {

/// Serves events until `condition` holds; false where it does not within a long time.
inline bool waitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 20000);
}

/// True while the program takes no input.
inline bool isHeldBack() {
  return forms::Application::isDeferring();
}

/// The file dialog that waits for an answer, null where there is none.
inline QFileDialog* openDialog() {
  return qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
}

/// Types `path` into a file dialog and presses Enter.
inline void answer(QFileDialog& dialog, const QString& path) {
  auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
  name->setText(path);
  QTest::keyClick(name, Qt::Key_Return);
}

/// The program after its start, in a folder of its own that has no tools yet. Its controls have to be in step
/// at the end of each test.
class Session : public testing::Test {
 protected:
  Session() { Main(); }
  ~Session() override {
    Form3.unload();
    Form2.unload();
    // The handlers of the main window would end the process.
    Form1->onQueryUnload = nullptr;
    Form1->onUnload = nullptr;
    Form1->onTerminate = nullptr;
    Form1.unload();
    AppState = {};
    forms::Application::doEvents();
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()) << "a window is left over by " << testName();
  }
  void TearDown() override { EXPECT_EQ(outOfStep(), "") << "at the end of " << testName(); }

  static std::string testName() { return testing::UnitTest::GetInstance()->current_test_info()->name(); }
  static QWidget* windowOf(const forms::Control& control) { return control.widget()->window(); }
  static void click(forms::Control& control) { QTest::mouseClick(control.widget(), Qt::LeftButton); }

  /// Notes `name` in `events` each time before the event's handler runs.
  void record(forms::Event& event, const std::string& name) {
    event = [this, name, before = event](int index) {
      events += name;
      before(index);
    };
  }

  /// Acts once, as soon as `condition` holds and the program takes input.
  void once(const std::function<bool()>& condition, const std::function<void()>& act) {
    auto* watch = new QTimer(&watches_);
    QObject::connect(watch, &QTimer::timeout, watch, [watch, condition, act] {
      if (isHeldBack() || !condition()) return;
      watch->stop();
      act();
    });
    // Due in each turn of the event loop: some moments last for one turn.
    watch->start(0);
  }

  /// Answers the dialog that the button opens with `path`, or with a Cancel where it is empty.
  void clickAndAnswer(forms::Control& button, const std::string& path) {
    const auto isOpen = [] { return openDialog() != nullptr; };
    once(isOpen, [this, path] {
      shownFilter = openDialog()->selectedNameFilter().toStdString();
      if (path.empty())
        openDialog()->reject();
      else
        answer(*openDialog(), QString::fromStdString(path));
    });
    click(button);
  }
  void openSource(const std::string& path) { clickAndAnswer(Form1->Command1(0), path); }
  void saveAs(const std::string& path) { clickAndAnswer(Form1->Command1(3), path); }
  /// Has the render of the open progress window begin at once, not a second later.
  static void hastenRender() { windowOf(Form2->PBar)->findChild<QTimer*>()->setInterval(0); }

  OwnFolder folder;
  std::string events;
  /// What the last file dialog showed at first.
  std::string shownFilter;

 private:
  QObject watches_;
};

}  // namespace support
