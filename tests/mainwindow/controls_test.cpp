#include <QClipboard>
#include <QMouseEvent>

#include "support/session.h"

namespace {

constexpr forms::Color kGreen = 0x80FF80;
constexpr forms::Color kYellow = 0x80FFFF;
constexpr forms::Color kRed = 0xFF;

using Window = support::Session;

TEST_F(Window, ShowsABandInBothRangesWithItsBarAndColour) {
  const struct {
    int range, value;
    const char* readOut;
    double length;  ///< pixels above the middle
    forms::Color color;
  } rows[] = {
      {0, -5, "5db", 25, kGreen},  {0, -6, "6db", 30, kYellow}, {0, -10, "10db", 50, kYellow},
      {0, -11, "11db", 55, kRed},  {0, -12, "12db", 60, kRed},  {0, 12, "-12db", -60, kGreen},
      {0, 0, "-0db", 0, kGreen},   {1, -2, "2db", 20, kGreen},  {1, -3, "3db", 30, kYellow},
      {1, -5, "5db", 50, kYellow}, {1, -6, "6db", 60, kRed},    {1, 6, "-6db", -60, kGreen},
  };
  for (const auto& row : rows) {
    click(Form1->Option2(row.range));
    Form1->Slider1(19).setValue(1);
    Form1->Slider1(19).setValue(row.value);
    const forms::Line& bar = Form1->Line4(19);
    EXPECT_EQ(Form1->Label7(4).caption(), "Selected Frequency: 1.25K");
    EXPECT_EQ(Form1->Label7(7).caption(), std::string("Selected Frequency Value: ") + row.readOut);
    EXPECT_EQ(bar.y2() - bar.y1(), row.length) << row.readOut << " in range " << row.range;
    EXPECT_EQ(bar.y2(), Form1->Line1.y1());
    EXPECT_EQ(bar.borderColor(), row.color) << row.readOut << " in range " << row.range;
  }
}

TEST_F(Window, ShowsTheGainOfEveryPositionAndComposesNothing) {
  for (int value = -10; value <= 10; ++value) {
    Form1->Slider2.setValue(value);
    const std::string percent = std::to_string(value * 20) + "%";
    const forms::Color color = value <= 0 || value >= 8 ? kRed : value <= 5 ? kGreen : kYellow;
    EXPECT_EQ(Form1->Label7(5).caption(), "Gain Settings " + percent + " Of Source");
    EXPECT_EQ(Form1->Label4(3).caption(), "Gain:" + percent);
    EXPECT_EQ(Form1->Line10.x1() - Form1->Line10.x2(), value * 12.5);
    EXPECT_EQ(Form1->Line10.borderColor(), color) << value;
    EXPECT_EQ(AppState.AudioGain, value / 5.0);
  }
  EXPECT_EQ(AppState.EqString, "");
}

TEST_F(Window, ShowsTheBandwidthInThreeDigitsAndComposesWithout) {
  for (const auto& [value, text] : {std::pair{254, "254"}, {25, "025"}, {1, "001"}}) {
    Form1->Slider3.setValue(value);
    EXPECT_EQ(Form1->Label8(3).caption(), std::string("Current Bandwidth Settings: ") + text + " Hz");
    EXPECT_EQ(Form1->Label7(6).caption(), std::string("Current Bandwidth: ") + text + " Hz");
    const std::string field = ":width=" + std::to_string(value) + ":g=-0";
    EXPECT_TRUE(AppState.EqString.ends_with(field)) << AppState.EqString;
  }
}

TEST_F(Window, AChangeOfRangeZeroesEveryBandAndKeepsTheBarsOfThoseThatNeverMoved) {
  Form1->Slider1(0).setValue(-12);
  Form1->Slider1(9).setValue(7);
  const double untouched = Form1->Line4(3).y2();
  click(Form1->Option2(1));
  for (int i = 0; i < 32; ++i) {
    const forms::Slider& slider = Form1->Slider1(i);
    EXPECT_TRUE(slider.value() == 0 && slider.min() == -6 && slider.max() == 6 && slider.tickFrequency() == 1)
        << i;
  }
  EXPECT_EQ(Form1->Line4(3).y2(), untouched);
  EXPECT_EQ(Form1->Line4(9).y1(), Form1->Line4(9).y2());
  EXPECT_EQ(Form1->Label7(4).caption(), "Selected Frequency: 80hz");
  EXPECT_EQ(Form1->Label2(0).caption() + Form1->Label2(1).caption(), "+6db-6db");
  EXPECT_EQ(Form1->Label7(1).caption(), "EQ Range: +/- 6 db");
  click(Form1->Option2(0));
  EXPECT_EQ(Form1->Slider1(0).tickFrequency(), 2);
  EXPECT_EQ(Form1->Slider1(0).value(), 0);
  EXPECT_EQ(Form1->Label2(0).caption() + Form1->Label7(1).caption(), "+12dbEQ Range: +/- 12 db");
}

TEST_F(Window, TheCheckBoxHidesTheBarsAndLeavesThemWorking) {
  click(Form1->Check1);
  EXPECT_EQ(Form1->Label7(3).caption(), "Indicators: Off");
  Form1->Slider1(31).setValue(-6);
  for (int i = 0; i < 32; ++i) EXPECT_FALSE(Form1->Line4(i).visible()) << i;
  EXPECT_TRUE(Form1->Line10.visible());
  click(Form1->Check1);
  EXPECT_TRUE(Form1->Line4(31).visible());
  EXPECT_EQ(Form1->Line4(31).borderColor(), kYellow);
  EXPECT_EQ(Form1->Label7(3).caption(), "Indicators: On");
}

TEST_F(Window, TheClipboardButtonTellsOfACopyUntilTheNextChange) {
  Form1->Slider1(0).setValue(1);
  const std::function<void()> changes[] = {[] { Form1->Slider1(0).setValue(Form1->Slider1(0).value() + 1); },
                                           [] { Form1->Slider2_Scroll(); }, [] { Form1->ShowBandWidth(1); }};
  for (const auto& change : changes) {
    Form1->Command1_Click(8);
    EXPECT_EQ(Form1->Command1(8).caption(), "Data On Clipboard");
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), AppState.EqString);
    click(Form1->Option3(0));
    EXPECT_EQ(Form1->Command1(8).caption(), "Data On Clipboard") << "nothing was composed";
    change();
    EXPECT_EQ(Form1->Command1(8).caption(), "EQ String > Clipboard");
  }
}

/// What follows the mouse.
class Hints : public Window {
 protected:
  /// Moves the mouse over the middle of a widget, with no button down.
  static void hover(QWidget* widget) {
    const QPointF middle(widget->rect().center());
    QMouseEvent move(QEvent::MouseMove, middle, widget->mapToGlobal(middle), Qt::NoButton, {}, {});
    QApplication::sendEvent(widget, &move);
  }
  static void hover(forms::Control& control) { hover(control.widget()); }

  static std::string blueLabels() {
    std::string blue;
    Form1->Label4.each([&](const forms::Label& label) {
      if (label.foreColor() == 0xFF0000) blue += std::to_string(label.index());
    });
    return blue;
  }
};

TEST_F(Hints, MarkTheBandUnderTheMouseUntilItReachesTheBareForm) {
  QWidget* form = Form1->Label6.widget()->window();
  hover(Form1->Slider1(7));
  hover(Form1->Slider1(30));
  EXPECT_TRUE(Form1->Label6.visible());
  EXPECT_EQ(Form1->Label6.left(), Form1->Slider1(30).left() + 16 + 8.5);
  for (int i = 0; i < 32; ++i) EXPECT_EQ(Form1->Label1(i).foreColor(), i == 30 ? kRed : 0) << i;
  EXPECT_EQ(Form1->Label7(4).caption(), "Selected Frequency: 0hz") << "hovering selects nothing";
  for (forms::Control* other : std::initializer_list<forms::Control*>{
           &Form1->Picture1(0), &Form1->Label1(3), &Form1->Label9(3), &Form1->Picture4, &Form1->Label7(1)}) {
    hover(*other);
    EXPECT_TRUE(Form1->Label6.visible())
        << other->widget()->objectName().toStdString() << " let a move through";
  }
  hover(form);
  EXPECT_FALSE(Form1->Label6.visible());
  EXPECT_EQ(Form1->Label1(30).foreColor(), 0U);
}

TEST_F(Hints, LightOneGainLabelUntilAResettingPlaceIsReached) {
  for (forms::Control* place : std::initializer_list<forms::Control*>{
           &Form1->Picture1(2), &Form1->Picture4, &Form1->Text1, &Form1->Slider1(0), &Form1->Slider2}) {
    hover(Form1->Label4(1));
    hover(Form1->Label4(3));
    hover(Form1->Label4(2));
    EXPECT_EQ(blueLabels(), "2");
    for (QWidget* other :
         {Form1->Label8(0).widget(), Form1->Slider3.widget(), Form1->Label6.widget()->window()}) {
      hover(other);
      EXPECT_EQ(blueLabels(), "2") << other->objectName().toStdString();
    }
    hover(*place);
    EXPECT_EQ(blueLabels(), "") << place->widget()->objectName().toStdString();
  }
}

TEST_F(Hints, GainLabelsWorkOnReleaseOfAnyButton) {
  QWidget* less = Form1->Label4(1).widget();
  QTest::mousePress(less, Qt::RightButton);
  EXPECT_EQ(Form1->Slider2.value(), 5);
  QTest::mouseRelease(less, Qt::RightButton);
  EXPECT_EQ(Form1->Slider2.value(), 4);
  click(Form1->Label4(2));
  click(Form1->Label4(2));
  EXPECT_EQ(Form1->Slider2.value(), 6);
  click(Form1->Label4(3));
  EXPECT_EQ(Form1->Slider2.value(), 6);
  for (int i = 0; i < 20; ++i) click(Form1->Label4(1));
  EXPECT_EQ(Form1->Slider2.value(), -10);
  EXPECT_EQ(Form1->Label4(3).caption(), "Gain:-200%");
  click(Form1->Label4(0));
  EXPECT_EQ(Form1->Slider2.value(), 0);
}

TEST_F(Hints, LowCutTipsFollowTheSelectionAtTheNextMove) {
  const std::string off = " (Not Selected) Cuts Potentially Damaging Frequencies 25Hz 20Hz 19Hz ";
  hover(Form1->Option3(1));
  EXPECT_EQ(Form1->Option3(0).toolTipText(), off);
  EXPECT_EQ(Form1->Option3(1).toolTipText(), " (Selected) Allows Frequencies 25Hz 20Hz 19Hz ");
  click(Form1->Option3(0));
  hover(Form1->Option3(0));
  EXPECT_EQ(Form1->Option3(0).toolTipText(),
            " (Selected) Cuts Potentially Damaging Frequencies 25Hz 20Hz 19Hz ");
  EXPECT_EQ(Form1->Option3(1).toolTipText(), off);
}

}  // namespace
