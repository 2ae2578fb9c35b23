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

TEST_F(Controls, AnOptionThatIsSetToFalseLeavesItsGroupEmpty) {
  Form1->Option1(0).setValue(false);
  EXPECT_FALSE(Form1->Option1(0).value());
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
  record(Form1->Command1(6).onClick, "c");
  for (const bool repeated : {false, true, true}) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, {}, "\r", repeated);
    QApplication::sendEvent(Form1->Command1(6).widget(), &key);
  }
  EXPECT_EQ(events, "c");
}

TEST_F(Controls, ShowTextAsItIs) {
  Form1->Label7(4).setCaption("<b>&x & <%y%>");
  EXPECT_EQ(static_cast<QLabel*>(Form1->Label7(4).widget())->textFormat(), Qt::PlainText);
  Form1->Command1(8).setCaption("&x & <%y%>");
  const auto* button = static_cast<QAbstractButton*>(Form1->Command1(8).widget());
  EXPECT_TRUE(QKeySequence::mnemonic(button->text()).isEmpty());
}

}  // namespace
