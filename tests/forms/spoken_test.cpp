#include <QAbstractButton>
#include <QAccessible>

#include "support/session.h"

namespace {

QAccessibleInterface& spoken(const QWidget* widget) {
  return *QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
}

class Spoken : public support::Session {
 protected:
  /// Does everything that a screen reader can do to a button, which is not the chosen one of its group.
  void doAll(auto& button) {
    const auto* widget = static_cast<QAbstractButton*>(button.widget());
    record(button.onClick, "click");
    QAccessibleActionInterface* actions = spoken(widget).actionInterface();
    for (const QString& action : actions->actionNames()) {
      for (forms::OptionButton* other : {&Form1->Option1(0), &Form1->Option2(0), &Form1->Option3(1)})
        other->setValue(true);
      const bool onlyFocus = action == QAccessibleActionInterface::setFocusAction();
      const bool before = widget->isChecked();
      events.clear();
      actions->doAction(action);
      support::waitFor([&] { return onlyFocus || !events.empty(); });
      const std::string what = (widget->objectName() + " " + action).toStdString();
      EXPECT_EQ(events, onlyFocus ? "" : "click") << what;
      EXPECT_EQ(widget->isChecked() != before, widget->isCheckable() && !onlyFocus) << what;
      EXPECT_TRUE(widget->window()->focusWidget() == widget || !onlyFocus) << what;
    }
  }
};

TEST_F(Spoken, EachActionOnAButtonIsAClickByHand) {
  doAll(Form1->Command1(6));
  doAll(Form1->Option1(2));
  doAll(Form1->Option2(1));
  doAll(Form1->Option3(0));
  doAll(Form1->Check1);
}

TEST_F(Spoken, TextIsWrittenWhereAHandCanWrite) {
  record(Form3->Text1.onChange, "C");
  spoken(Form1->Text1.widget()).editableTextInterface()->insertText(0, "x");
  EXPECT_EQ(static_cast<QLineEdit*>(Form1->Text1.widget())->text().toStdString(), Form1->Text1.text());
  spoken(Form3->Text1.widget()).editableTextInterface()->insertText(0, "x");
  EXPECT_EQ(events, "C");
  EXPECT_EQ(Form3->Text1.text(), "x");
}

TEST_F(Spoken, ABarThatIsEmptiedIsAtItsEndUntilItFillsAgain) {
  const std::pair<double, double> steps[] = {{60, 60}, {0, 100}, {5, 5}};
  for (const auto& [value, heard] : steps) {
    Form2->PBar.setValue(value);
    EXPECT_EQ(spoken(Form2->PBar.widget()).valueInterface()->currentValue(), heard);
  }
}

TEST_F(Spoken, TheFocusIsOnTheTextAgainAfterAListingUnlessTheUserHasMovedIt) {
  Form3->show(&*Form1);
  Form3->Text1.setText("equalizer=f=19,equalizer=f=20");
  ASSERT_TRUE(support::waitFor([] { return Form3->Text1.widget()->hasFocus(); }));
  Form3->ListIndividualStrings();
  EXPECT_EQ(windowOf(Form3->Text1)->focusWidget(), Form3->Text1.widget());
  QTimer::singleShot(0, [] { Form3->Command1(1).setFocus(); });
  Form3->ListIndividualStrings();
  EXPECT_EQ(windowOf(Form3->Text1)->focusWidget(), Form3->Command1(1).widget());
}

}  // namespace
