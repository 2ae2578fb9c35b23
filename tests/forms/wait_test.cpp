#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QDialog>
#include <QMimeData>
#include <QWheelEvent>
#include <QWindow>

#include "support/session.h"

namespace {

/// A wait for a tool, in which windows paint and nothing else happens.
class PaintOnlyWait : public support::Session {
 protected:
  PaintOnlyWait() { EXPECT_EQ(pipe(ends), 0); }
  ~PaintOnlyWait() override {
    close(ends[0]);
    close(ends[1]);
  }
  /// Waits for output that does not come, and acts meanwhile; then once more, at once.
  void waitWith(const std::function<void()>& act, int milliseconds = 60) {
    QTimer::singleShot(1, act);
    forms::Application::waitPainting(ends[0], milliseconds);
    forms::Application::waitPainting(ends[0], 20);
  }
  QPoint placeOn(const forms::Control& control, const QPoint& place) const {
    return control.widget()->mapTo(window, place);
  }
  QWidget* window = windowOf(Form1->Label6);
  QWindow* input = window->windowHandle();
  int ends[2];
};

TEST_F(PaintOnlyWait, Paints) {
  struct Painted : QWidget {
    int end = 0;
    ssize_t written = 0;
    void paintEvent(QPaintEvent*) override { written = write(end, "x", 1); }
  } painted;
  painted.end = ends[1];
  painted.setParent(window);
  waitWith([&] { painted.show(); }, 20000);
  EXPECT_EQ(painted.written, 1);
}

TEST_F(PaintOnlyWait, MakesOneOfTheTicksThatCameDueWhichDoNotNest) {
  Form1->Timer3.onTick = [this](int) {
    events += "(";
    QTest::qWait(30);
    events += ")";
  };
  Form1->Timer3.setEnabled(true);
  waitWith([] {});
  EXPECT_EQ(events, "");
  Form1->Timer3.setEnabled(false);
  Form1->Timer3.setEnabled(true);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(events, "()");
  EXPECT_TRUE(support::waitFor([this] { return events.size() >= 4; }));
  EXPECT_TRUE(events.starts_with("()()")) << events;
}

TEST_F(PaintOnlyWait, DropsWhatWasMeantForAWindowBehindADialogThatHasComeUpSince) {
  record(Form1->Check1.onClick, "C");
  waitWith([this] { QTest::mouseClick(input, Qt::LeftButton, {}, placeOn(Form1->Check1, QPoint(5, 5))); });
  QDialog dialog;
  dialog.open();
  forms::Application::doEvents();
  EXPECT_EQ(events, "");
}

/// Qt posts a key again after the accessibility bus has seen it.
TEST_F(PaintOnlyWait, KeepsMouseWheelAndKeysForLaterInTheirOrder) {
  record(Form1->Check1.onClick, "C");
  record(Form1->Option1(0).onClick, "P");
  record(Form1->Slider2.onScroll, "S");
  const auto click = [this](const forms::Control& control) {
    QTest::mouseClick(input, Qt::LeftButton, {}, placeOn(control, QPoint(5, 5)));
  };
  waitWith([&] {
    click(Form1->Check1);
    click(Form1->Option1(0));
    QTest::keyClick(input, Qt::Key_Space);
    QWheelEvent wheel(placeOn(Form1->Slider2, {9, 9}), {}, {}, {0, 120}, {}, {}, {}, false);
    QApplication::sendEvent(input, &wheel);
    click(Form1->Check1);
    QCoreApplication::postEvent(input, new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, {}));
    QCoreApplication::postEvent(input, new QKeyEvent(QEvent::KeyRelease, Qt::Key_Space, {}));
  });
  EXPECT_EQ(events, "");
  click(Form1->Option1(0));
  EXPECT_TRUE(support::waitFor([this] { return events.ends_with("P"); }));
  EXPECT_TRUE(support::waitFor([this] { return events == "CPPSCCP"; })) << events;
}

/// Qt makes mouse events of a touch that no window takes.
TEST_F(PaintOnlyWait, TakesNoTouchAndNoShortcut) {
  QEvent touch(QEvent::TouchBegin);
  QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_O, Qt::ControlModifier);
  shortcut.ignore();
  bool isTaken = true;
  waitWith([&] {
    isTaken = !QApplication::sendEvent(input, &touch) || touch.isAccepted();
    QApplication::sendEvent(Form1->Text1.widget(), &shortcut);
  });
  EXPECT_FALSE(isTaken) << "a touch";
  EXPECT_TRUE(shortcut.isAccepted()) << "a shortcut is looked for";
}

/// The slider would repeat what the press did before it hears of the release.
TEST_F(PaintOnlyWait, EachClickInAGrooveMovesOnePage) {
  const QWidget* slider = Form1->Slider3.widget();
  const QPoint end = placeOn(Form1->Slider3, QPoint(slider->width() - 9, slider->height() / 2));
  QTest::mousePress(input, Qt::LeftButton, {}, end);
  const auto releaseAndClick = [&] {
    QTest::mouseRelease(input, Qt::LeftButton, {}, end);
    QTest::mouseClick(input, Qt::LeftButton, {}, end);
  };
  waitWith(releaseAndClick, 700);
  forms::Application::doEvents();
  EXPECT_EQ(Form1->Slider3.value(), 11);
  waitWith([&] { QTest::mouseDClick(input, Qt::LeftButton, {}, end); });
  forms::Application::doEvents();
  EXPECT_EQ(Form1->Slider3.value(), 21) << "by a double click";
}

TEST_F(PaintOnlyWait, KeepsComposedTextAndDropsForLaterInTheirOrder) {
  Form3->show(&*Form1);
  QWindow* strings = windowOf(Form3->Text1)->windowHandle();
  ASSERT_TRUE(support::waitFor([] { return Form3->Text1.widget()->hasFocus(); }));
  QMimeData dropped;
  QDropEvent drop(QPointF(500, 20), Qt::CopyAction | Qt::MoveAction, &dropped, Qt::LeftButton, {});
  QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(strings, &enter);
  waitWith([&] {
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_A, Qt::Key_F}) QTest::keyClick(strings, key);
    QInputMethodEvent composed;
    composed.setCommitString("\u00e9");
    QApplication::sendEvent(Form3->Text1.widget(), &composed);
    QTest::keyClick(strings, Qt::Key_Space);
    for (const char* text : {"drop", "ped"}) {
      dropped.setText(text);
      QApplication::sendEvent(strings, &drop);
    }
  });
  EXPECT_EQ(Form3->Text1.text(), "");
  EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
  forms::Application::doEvents();
  EXPECT_EQ(Form3->Text1.text(), "caf\u00e9 dropped");
}

/// None of this is input that the desktop would hold back.
TEST_F(PaintOnlyWait, KeepsClosingAndWhatAScreenReaderDoesForLaterAndOfAGroupTheLastOption) {
  Form3->show(&*Form1);
  waitWith([] {
    windowOf(Form3->Text1)->close();
    for (const forms::Control* pressed : std::initializer_list<forms::Control*>{
             &Form1->Option2(1), &Form1->Option2(0), &Form1->Option2(1), &Form1->Check1})
      static_cast<QAbstractButton*>(pressed->widget())->click();
    static_cast<QAbstractSlider*>(Form1->Slider3.widget())->setValue(7);
  });
  EXPECT_TRUE(windowOf(Form3->Text1)->isVisible());
  EXPECT_EQ(AppState.RangeIndex, 0);
  EXPECT_EQ(AppState.BandWidth, 1);
  forms::Application::doEvents();
  EXPECT_FALSE(windowOf(Form3->Text1)->isVisible());
  EXPECT_EQ(AppState.RangeIndex, 1);
  EXPECT_EQ(AppState.BandWidth, 7);
  EXPECT_EQ(Form1->Label7(3).caption(), "Indicators: Off");
}

}  // namespace
