#include <QAbstractButton>
#include <QLabel>

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

TEST_F(Controls, AKeyHeldDownClicksOnce) {
  Form1->Command1(6).onClick = [this](int) { events += "c"; };
  for (const bool repeated : {false, true, true}) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, {}, "\r", repeated);
    QApplication::sendEvent(Form1->Command1(6).widget(), &key);
  }
  EXPECT_EQ(events, "c");
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
