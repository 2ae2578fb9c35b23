#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QLabel>
#include <cmath>

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

TEST_F(Controls, ArrowKeysWalkTheOptionsOfOneContainer) {
  ASSERT_TRUE(support::waitFor([] { return QApplication::focusWidget() != nullptr; }));
  Form1->Option2(0).setFocus();
  QTest::keyClick(Form1->Option2(0).widget(), Qt::Key_Down);
  EXPECT_TRUE(Form1->Option2(1).value());
  EXPECT_TRUE(Form1->Option1(0).value());
  EXPECT_TRUE(Form1->Option3(1).value());
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

TEST_F(Controls, ShowNoProgressThatCannotBe) {
  for (const double value : {60.0, -1.0, 100.5, std::nan("")}) Form2->PBar.setValue(value);
  EXPECT_EQ(Form2->PBar.value(), 60);
}

TEST_F(Controls, AWindowComesBackFreshAfterAnUnloadOfWhichItsHandlersHearOnce) {
  Form3->onQueryUnload = [this] {
    events += "Q";
    Form3.unload();
  };
  Form3->onUnload = [this] {
    events += "U";
    Form3->Text1.setText("still there");
  };
  Form3->show(&*Form1);
  windowOf(Form3->Text1)->close();
  EXPECT_EQ(events, "QU");
  EXPECT_FALSE(Form3.isLoaded());
  EXPECT_EQ(Form3->Text1.text(), "") << "a reference loads a new one";
}

TEST_F(Controls, ATimerDoesNotTickInsideItsOwnTick) {
  int ticks = 0;
  int depth = 0;
  Form1->Timer3.onTick = [&](int) {
    EXPECT_EQ(++depth, 1);
    QTest::qWait(30);
    --depth;
    ++ticks;
  };
  Form1->Timer3.setEnabled(true);
  EXPECT_TRUE(support::waitFor([&] { return ticks >= 2; }));
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
  void waitWith(const std::function<void()>& act) {
    QTimer::singleShot(1, act);
    forms::Application::waitPainting(ends_[0], 60);
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

TEST_F(PaintOnlyWait, KeepsTicksForLater) {
  int ticks = 0;
  Form1->Timer3.onTick = [&ticks](int) { ++ticks; };
  Form1->Timer3.setEnabled(true);
  waitWith([] {});
  EXPECT_EQ(ticks, 0);
  forms::Application::doEvents();
  EXPECT_GE(ticks, 1);
}

TEST_F(PaintOnlyWait, KeepsAMinimisedWindowForLater) {
  waitWith([this] { window->showMinimized(); });
  EXPECT_FALSE(AppState.WindowMinimised);
  EXPECT_TRUE(support::waitFor([] { return AppState.WindowMinimised; }));
}

TEST_F(PaintOnlyWait, LetsNoWindowClose) {
  Form3->show(&*Form1);
  Form3->onQueryUnload = [this] { events += "Q"; };
  waitWith([] { windowOf(Form3->Text1)->close(); });
  EXPECT_EQ(events, "");
}

// What a screen reader does is no input that the desktop would hold back.

TEST_F(PaintOnlyWait, KeepsAStepOfASliderForLater) {
  waitWith([] { static_cast<QAbstractSlider*>(Form1->Slider1(4).widget())->setValue(-5); });
  EXPECT_EQ(AppState.BandGainText[4], "0");
  forms::Application::doEvents();
  EXPECT_EQ(AppState.BandGainText[4], "5");
}

TEST_F(PaintOnlyWait, KeepsPressedButtonsForLaterAndOfAGroupTheLastOne) {
  waitWith([] {
    for (const forms::Control* pressed : std::initializer_list<forms::Control*>{
             &Form1->Option2(1), &Form1->Option2(0), &Form1->Option2(1), &Form1->Check1})
      static_cast<QAbstractButton*>(pressed->widget())->click();
  });
  EXPECT_EQ(AppState.RangeIndex, 0);
  forms::Application::doEvents();
  EXPECT_EQ(AppState.RangeIndex, 1);
  EXPECT_EQ(Form1->Label7(3).caption(), "Indicators: Off");
}

TEST_F(Controls, AnUnknownIndexIsAFaultThatChangesNothing) {
#ifdef NDEBUG
  for (const int unknown : {-1, 2, 99}) {
    Form1->Slider1(unknown + 40).setValue(5);
    Form1->Option2(unknown).setValue(true);
    Form1->Line4(unknown + 40).setVisible(true);
    Form1->Label1(unknown + 40).setFocus();
  }
  EXPECT_FALSE(Form1->Option2(-1).widget()->isVisible());
  EXPECT_EQ(Form1->Option2.count(), 2);
  EXPECT_EQ(support::outOfStep(), "");
#else
  EXPECT_DEATH(Form1->Option2(2).setValue(true), "no member");
#endif
}

}  // namespace
