#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QWindow>

#include "support/session.h"

namespace {

using Controls = support::Session;

TEST_F(Controls, AClickByHandOnAChosenOptionCountsInThePresetsAlone) {
  Form1->Slider1(8).setValue(-3);
  record(Form1->Option1(0).onClick, "P");
  record(Form1->Option2(0).onClick, "R");
  record(Form1->Option2(1).onClick, "r");
  record(Form1->Option3(1).onClick, "L");
  for (forms::OptionButton* chosen : {&Form1->Option1(0), &Form1->Option2(0), &Form1->Option3(1)}) {
    click(*chosen);
    QTest::keyClick(chosen->widget(), Qt::Key_Space);
  }
  EXPECT_EQ(events, "PP");
  Form1->Option2(1).setValue(true);
  click(Form1->Option2(1));
  click(Form1->Option2(0));
  EXPECT_EQ(events, "PPrR");
}

TEST_F(Controls, AnAssignmentToAnOptionRaisesOnlyWhereItSelects) {
  record(Form1->Option1(0).onClick, "0");
  record(Form1->Option1(4).onClick, "4");
  for (const bool value : {true, false}) Form1->Option1(0).setValue(value);
  EXPECT_EQ(events, "");
  EXPECT_FALSE(Form1->Option1(0).value()) << "the group is empty";
  Form1->Option1(4).setValue(true);
  EXPECT_EQ(events, "4");
}

TEST_F(Controls, ArrowKeysWalkThePresetsInOrderAndStopAtTheEnds) {
  for (int i = 0; i <= 6; ++i) record(Form1->Option1(i).onClick, std::to_string(i));
  ASSERT_TRUE(support::waitFor([] { return QApplication::focusWidget() != nullptr; }));
  Form1->Option1(0).setFocus();
  for (int i = 0; i < 7; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(events, "123456");
  for (int i = 0; i < 7; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  EXPECT_EQ(events, "123456543210");
}

TEST_F(Controls, ShowTextAsItIs) {
  const std::string nasty = "<b>&x.wav & <%y%>";
  Form1->Label7(4).setCaption(nasty);
  Form1->Command1(8).setCaption(nasty);
  const auto* label = static_cast<QLabel*>(Form1->Label7(4).widget());
  EXPECT_EQ(label->text().toStdString(), nasty);
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
  const auto* button = static_cast<QAbstractButton*>(Form1->Command1(8).widget());
  EXPECT_TRUE(QKeySequence::mnemonic(button->text()).isEmpty());
}

TEST_F(Controls, AWindowComesBackFreshAfterAnUnloadOfWhichItsHandlersHearOnce) {
  Form3->onQueryUnload = [this](int) {
    events += "Q";
    Form3.unload();
  };
  Form3->onUnload = [this](int) {
    events += "U";
    Form3->Text1.setText("still there");
  };
  Form3->show(&*Form1);
  windowOf(Form3->Text1)->close();
  EXPECT_EQ(events, "QU");
  EXPECT_FALSE(Form3.isLoaded());
  EXPECT_EQ(Form3->Text1.text(), "") << "a reference loads a new one";
}

/// A wait for a tool, in which windows paint and nothing else happens.
class PaintOnlyWait : public support::Session {
 protected:
  PaintOnlyWait() { EXPECT_EQ(pipe(ends_), 0); }
  ~PaintOnlyWait() override {
    close(ends_[0]);
    close(ends_[1]);
  }
  /// Waits for output that does not come, and acts meanwhile.
  void waitWith(const std::function<void()>& act, int milliseconds = 60) {
    QTimer::singleShot(1, act);
    forms::Application::waitPainting(ends_[0], milliseconds);
  }
  QWidget* window = windowOf(Form1->Label6);

 private:
  int ends_[2];
};

TEST_F(PaintOnlyWait, Paints) {
  struct : QObject {
    bool painted = false;
    bool eventFilter(QObject*, QEvent* event) override {
      painted |= event->type() == QEvent::Paint;
      return false;
    }
  } filter;
  forms::Application::doEvents();
  window->installEventFilter(&filter);
  waitWith([this] { window->update(); });
  EXPECT_TRUE(filter.painted);
}

TEST_F(PaintOnlyWait, KeepsTicksForLaterWhichDoNotNest) {
  Form1->Timer3.onTick = [this](int) {
    events += "(";
    QTest::qWait(30);
    events += ")";
  };
  Form1->Timer3.setEnabled(true);
  waitWith([] {});
  EXPECT_EQ(events, "");
  forms::Application::doEvents();
  EXPECT_TRUE(support::waitFor([this] { return events.size() >= 4; }));
  EXPECT_TRUE(events.starts_with("()()")) << events;
}

TEST_F(PaintOnlyWait, KeepsTheClosingOfAWindowForLater) {
  Form3->show(&*Form1);
  waitWith([] { windowOf(Form3->Text1)->close(); });
  EXPECT_TRUE(Form3.isLoaded());
  forms::Application::doEvents();
  EXPECT_FALSE(Form3.isLoaded());
}

TEST_F(PaintOnlyWait, KeepsMouseAndKeysForLaterInTheirOrder) {
  record(Form1->Check1.onClick, "C");
  record(Form1->Option1(0).onClick, "P");
  const auto clickInWindow = [this](const forms::Control& control) {
    const QPoint place = control.widget()->mapTo(window, QPoint(5, 5));
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
  };
  waitWith([&] {
    clickInWindow(Form1->Check1);
    clickInWindow(Form1->Option1(0));
    QTest::keyClick(window->windowHandle(), Qt::Key_Space);
    clickInWindow(Form1->Check1);
  });
  EXPECT_EQ(events, "");
  clickInWindow(Form1->Option1(0));
  EXPECT_TRUE(support::waitFor([this] { return events == "CPPCP"; })) << events;
}

/// Qt posts a key again after the accessibility bus has seen it.
TEST_F(PaintOnlyWait, KeepsAPostedKeyForLater) {
  Form1->Slider1(4).setFocus();
  waitWith([this] {
    auto* key = new QKeyEvent(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::postEvent(window->windowHandle(), key);
  });
  EXPECT_EQ(Form1->Slider1(4).value(), 0);
  forms::Application::doEvents();
  EXPECT_EQ(Form1->Slider1(4).value(), 1);
}

/// The slider would repeat what the press did before it hears of the release.
TEST_F(PaintOnlyWait, EachClickInAGrooveMovesOnePage) {
  const QWidget* slider = Form1->Slider3.widget();
  const QPoint end = slider->mapTo(window, QPoint(slider->width() - 9, slider->height() / 2));
  QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, end);
  waitWith([&] { QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, end); }, 700);
  forms::Application::doEvents();
  EXPECT_EQ(Form1->Slider3.value(), 6);
  waitWith([&] { QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, end); });
  forms::Application::doEvents();
  EXPECT_EQ(Form1->Slider3.value(), 16) << "by a double click";
}

TEST_F(PaintOnlyWait, KeepsComposedTextAndDropsForLaterInTheirOrder) {
  Form3->show(&*Form1);
  QWindow* strings = windowOf(Form3->Text1)->windowHandle();
  ASSERT_TRUE(support::waitFor([] { return Form3->Text1.widget()->hasFocus(); }));
  QMimeData dropped;
  dropped.setText("drop");
  QDropEvent drop(QPointF(500, 20), Qt::CopyAction | Qt::MoveAction, &dropped, Qt::LeftButton, {});
  QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(strings, &enter);
  waitWith([&] {
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_A, Qt::Key_F}) QTest::keyClick(strings, key);
    QInputMethodEvent composed;
    composed.setCommitString("\u00e9");
    QApplication::sendEvent(Form3->Text1.widget(), &composed);
    QTest::keyClick(strings, Qt::Key_Space);
    QApplication::sendEvent(strings, &drop);
    dropped.setText("changed");
  });
  EXPECT_EQ(Form3->Text1.text(), "");
  EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
  forms::Application::doEvents();
  EXPECT_EQ(Form3->Text1.text(), "caf\u00e9 drop");
}

/// What a screen reader does is no input that the desktop would hold back.
TEST_F(PaintOnlyWait, KeepsStepsAndPressedButtonsForLaterAndOfAGroupTheLastOne) {
  waitWith([] {
    for (const forms::Control* pressed : std::initializer_list<forms::Control*>{
             &Form1->Option2(1), &Form1->Option2(0), &Form1->Option2(1), &Form1->Check1})
      static_cast<QAbstractButton*>(pressed->widget())->click();
    static_cast<QAbstractSlider*>(Form1->Slider3.widget())->setValue(7);
  });
  EXPECT_EQ(AppState.RangeIndex, 0);
  EXPECT_EQ(AppState.BandWidth, 1);
  forms::Application::doEvents();
  EXPECT_EQ(AppState.RangeIndex, 1);
  EXPECT_EQ(AppState.BandWidth, 7);
  EXPECT_EQ(Form1->Label7(3).caption(), "Indicators: Off");
}

TEST_F(Controls, AnUnknownIndexIsAFaultThatChangesNothing) {
  const auto select = [] { Form1->Option2(2).setValue(true); };
#ifdef NDEBUG
  select();
  EXPECT_FALSE(Form1->Option2(2).widget()->isVisible());
  EXPECT_EQ(Form1->Option2.count(), 2);
#else
  EXPECT_DEATH(select(), "no member");
#endif
}

}  // namespace
