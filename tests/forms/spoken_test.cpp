#include <QAbstractButton>
#include <QAccessible>
#include <QButtonGroup>

#include "support/session.h"
#include "windows/presets.h"
#include "windows/source.h"

namespace {

QAccessibleInterface& spoken(const QWidget* widget) {
  return *QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
}
std::string name(const forms::Control& control) {
  return spoken(control.widget()).text(QAccessible::Name).toStdString();
}

/// All three windows, with a record of what their controls raise. Push buttons do nothing else.
class Spoken : public support::Session {
 protected:
  Spoken() {
    Form2->show(&*Form1);
    Form3->show(&*Form1);
    Form1->EnableSourceButtons(true);
    const auto justNote = [this](auto& button) { button.onClick = [this](int) { events += "click"; }; };
    Form1->Command1.each(justNote);
    justNote(Form2->Command1);
    Form3->Command1.each(justNote);
    const auto noteClick = [this](auto& option) { record(option.onClick, "click"); };
    Form1->Option1.each(noteClick);
    Form1->Option2.each(noteClick);
    Form1->Option3.each(noteClick);
    noteClick(Form1->Check1);
  }

  /// What was announced last on the window of the control.
  static std::string announced(const forms::Control& control) {
    std::string words;
    for (QObject* child : windowOf(control)->children()) {
      QAccessibleInterface* found = QAccessible::queryAccessibleInterface(child);
      if (found != nullptr && found->role() == QAccessible::Notification)
        words = found->text(QAccessible::Name).toStdString();
    }
    return words;
  }

  template <class Widget>
  static QList<Widget*> all() {
    QList<Widget*> widgets;
    for (const forms::Control* control : {&Form1->Command1(0), &Form2->Command1, &Form3->Command1(0)})
      widgets += windowOf(*control)->findChildren<Widget*>();
    return widgets;
  }
  /// Has another button of its group chosen, where it has one.
  static void leave(const QAbstractButton* button) {
    if (button->group() == nullptr) return;
    for (QAbstractButton* other : button->group()->buttons())
      if (other != button) other->click();
  }
};

TEST_F(Spoken, EachActionOnEachButtonIsAClickByHand) {
  int clicked = 0;
  for (QAbstractButton* button : all<QAbstractButton>()) {
    QAccessibleActionInterface* actions = spoken(button).actionInterface();
    for (const QString& action : actions->actionNames()) {
      const bool onlyFocus = action == QAccessibleActionInterface::setFocusAction();
      leave(button);
      const bool before = button->isChecked();
      events.clear();
      actions->doAction(action);
      support::waitFor([&] { return onlyFocus || !events.empty(); });
      const std::string what = (button->objectName() + " " + action).toStdString();
      EXPECT_EQ(events.starts_with("click"), !onlyFocus) << what;
      EXPECT_EQ(button->isChecked() != before, button->isCheckable() && !onlyFocus) << what;
      EXPECT_TRUE(button->window()->focusWidget() == button || !onlyFocus) << what;
      EXPECT_EQ(support::outOfStep(), "") << what;
      clicked += !onlyFocus;
    }
  }
  EXPECT_EQ(clicked, 7 + 1 + 4 + 7 + 2 + 2 + 1) << "buttons of three windows, options and a box";
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

TEST_F(Spoken, GroupsAndTheirOptionsHaveNamesThatCanBeSaid) {
  EXPECT_EQ(name(Form1->Option2(0)), "plus or minus 12 dB");
  EXPECT_EQ(name(Form1->Option2(1)), "plus or minus 6 dB");
  EXPECT_EQ(name(Form1->Option3(0)), "Low Cut On");
  const QAccessibleInterface* group = spoken(Form1->Option2(0).widget()).parent();
  EXPECT_EQ(group->text(QAccessible::Name), "EQ Range");
  EXPECT_EQ(group->role(), QAccessible::Grouping);
}

TEST_F(Spoken, TheFocusIsOnTheTextAgainAfterAListingUnlessTheUserHasMovedIt) {
  Form3->Text1.setText("equalizer=f=19,equalizer=f=20");
  ASSERT_TRUE(support::waitFor([] { return Form3->Text1.widget()->hasFocus(); }));
  Form3->ListIndividualStrings();
  EXPECT_EQ(windowOf(Form3->Text1)->focusWidget(), Form3->Text1.widget());
  QTimer::singleShot(0, [] { Form3->Command1(1).setFocus(); });
  Form3->ListIndividualStrings();
  EXPECT_EQ(windowOf(Form3->Text1)->focusWidget(), Form3->Command1(1).widget());
}

TEST_F(Spoken, WhatIsNewAwayFromTheFocusIsAnnouncedOnce) {
  Form1->Label7(0).setCaption("before");
  for (const auto& [control, act, words] :
       std::initializer_list<std::tuple<forms::Control&, std::function<void()>, std::string>>{
           {Form1->Label7(0), [] { SelectPreset(3); },
            "Preview Audio, Save As, Save Preset, EQ String > Clipboard, Preset Settings: 3"},
           {Form1->Text1, [this] { UseSource(folder.path()); }, "Source file \"" + folder.path() + "\""},
           {Form1->Command1(8), [] { Form1->Command1_Click(8); }, "Data On Clipboard"},
           {Form3->Command1(3), [] { Form3->Command1_Click(3); }, "Data On Clipboard"}}) {
    act();
    const auto isSaid = [&on = control, &said = words] { return announced(on) == said; };
    EXPECT_TRUE(support::waitFor(isSaid)) << announced(control);
  }
}

}  // namespace
