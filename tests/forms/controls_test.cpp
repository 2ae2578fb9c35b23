#include <unistd.h>

#include <QAbstractButton>
#include <QCloseEvent>
#include <QLabel>
#include <QSlider>
#include <cmath>

#include "support/in_step.h"
#include "support/session.h"

namespace {

using Controls = support::Session;

TEST_F(Controls, OptionsRaiseClickByHandAlwaysAndByAssignmentOnlyForADifference) {
  std::string clicks;
  for (int i = 0; i < 2; ++i)
    Form1->Option2(i).onClick = [&clicks](int index) { clicks += std::to_string(index); };
  click(Form1->Option2(0));
  EXPECT_EQ(clicks, "0") << "a click on the selected one";
  for (const bool value : {true, false}) Form1->Option2(0).setValue(value);
  EXPECT_EQ(clicks, "0");
  EXPECT_FALSE(Form1->Option2(0).value() || Form1->Option2(1).value()) << "the group is empty";
  Form1->Option2(1).setValue(true);
  EXPECT_EQ(clicks, "01");
  ASSERT_TRUE(support::waitFor([] { return QApplication::focusWidget() != nullptr; }));
  Form1->Option2(1).setFocus();
  QTest::keyClick(Form1->Option2(1).widget(), Qt::Key_Up);
  EXPECT_EQ(clicks, "010") << "arrow keys walk the group";
  click(Form1->Option1(3));
  for (const auto* other : {&Form1->Option2(0), &Form1->Option3(1)})
    EXPECT_TRUE(other->value()) << "each container is a group";
}

TEST_F(Controls, ShowTextAsItIsAndNoProgressThatCannotBe) {
  const std::string nasty = "<b>&x.wav & <%y%>";
  Form1->Label7(0).setCaption(nasty);
  Form1->Command1(8).setCaption(nasty);
  const auto* label = static_cast<QLabel*>(Form1->Label7(0).widget());
  EXPECT_EQ(label->text().toStdString(), nasty);
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
  const auto* button = static_cast<QAbstractButton*>(Form1->Command1(8).widget());
  EXPECT_TRUE(QKeySequence::mnemonic(button->text()).isEmpty());
  for (const double value : {60.0, -1.0, 100.5, std::nan("")}) Form2->PBar.setValue(value);
  EXPECT_EQ(Form2->PBar.value(), 60);
}

TEST_F(Controls, APaintOnlyWaitPaintsAndKeepsTicksAndSizesForLater) {
  struct Painted : QObject {
    bool now = false;
    bool eventFilter(QObject*, QEvent* event) override {
      now |= event->type() == QEvent::Paint;
      return false;
    }
  } painted;
  int ticks = 0, depth = 0, ends[2];
  ASSERT_EQ(pipe(ends), 0);
  Form1->Timer3.onTick = [&](int) {
    EXPECT_EQ(++depth, 1) << "a tick inside a tick";
    ++ticks;
    QTest::qWait(30);
    --depth;
  };
  Form1->Timer3.setEnabled(true);
  EXPECT_TRUE(support::waitFor([&] { return ticks >= 2; }));

  QWidget* label = Form1->Label7(0).widget();
  QCloseEvent closing;
  Form1->onQueryUnload = [] { ADD_FAILURE() << "a close inside the wait"; };
  QTimer::singleShot(1, [&] { QApplication::sendEvent(label->window(), &closing); });
  label->installEventFilter(&painted);
  label->update();
  ticks = 0;
  forms::Application::waitPainting(ends[0], 60);
  EXPECT_TRUE(painted.now);
  EXPECT_EQ(ticks, 0) << "a tick inside the wait";
  forms::Application::doEvents();
  EXPECT_GE(ticks, 1) << "what was due in the wait was lost";
  QTimer::singleShot(1, [&] { label->window()->showMinimized(); });
  QTimer::singleShot(1, [] { static_cast<QSlider*>(Form1->Slider1(4).widget())->setValue(-5); });
  forms::Application::waitPainting(ends[0], 60);
  EXPECT_FALSE(AppState.WindowMinimised) << "Resize inside the wait";
  EXPECT_TRUE(support::waitFor([] { return AppState.WindowMinimised; })) << "Resize was lost";
  EXPECT_EQ(AppState.BandGainText[4], "5") << "a step inside the wait was lost";
  // A screen reader is no input that the desktop would hold back.
  QTimer::singleShot(1, [] {
    const forms::Control* const pressed[] = {&Form1->Option2(1), &Form1->Option2(0), &Form1->Option2(1),
                                             &Form1->Option3(0), &Form1->Check1};
    for (const auto* one : pressed) static_cast<QAbstractButton*>(one->widget())->click();
  });
  forms::Application::waitPainting(ends[0], 60);
  forms::Application::doEvents();
  EXPECT_EQ(AppState.RangeIndex, 1) << "what was pressed last inside the wait";
  EXPECT_EQ(support::outOfStep(), "");
  close(ends[1]);
  forms::Application::waitPainting(ends[0], -1);
  close(ends[0]);
}

TEST_F(Controls, ALoadedWindowComesBackFreshAfterAnUnloadOfWhichHandlersHearOnce) {
  std::string order;
  const auto first = std::static_pointer_cast<EqStringWindow>(Form3->shared_from_this());
  Form3->onQueryUnload = [&] { order += "Q", Form3.unload(); };
  Form3->onUnload = [&] { order += "U", Form3->Text1.setText("still there"); };
  Form3->show(&*Form1);
  first->Text1.widget()->window()->close();
  EXPECT_EQ(order, "QU");
  EXPECT_FALSE(Form3.isLoaded());
  EXPECT_EQ(Form3->Text1.text(), "") << "a reference loads a new one";
  EXPECT_NE(&*Form3, first.get());
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
