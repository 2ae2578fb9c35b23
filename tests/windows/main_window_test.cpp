#include <QAbstractButton>
#include <QClipboard>
#include <QLabel>
#include <QMouseEvent>

#include "support/session.h"

namespace {

constexpr forms::Color kRed = 0xFF;
constexpr forms::Color kBlue = 0xFF0000;

class MainWindowTest : public support::Session {
 protected:
  /// Moves the mouse over a widget, with no button down.
  static void hover(QWidget* widget) {
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), widget->mapToGlobal(QPointF(3, 3)), {}, {}, {});
    QApplication::sendEvent(widget, &move);
  }
  static void hover(const forms::Control& control) { hover(control.widget()); }
  QWidget* window = windowOf(Form1->Label6);
};

TEST_F(MainWindowTest, ReachesTheFirstIdleState) {
  EXPECT_EQ(Form1->caption(), "Tessavane Graphic Equalizer");
  EXPECT_EQ(Form1->Command1(8).caption(), " EQ String > Clipboard");
  for (const int button : {2, 3, 7, 8}) EXPECT_FALSE(Form1->Command1(button).enabled()) << button;
  EXPECT_FALSE(Form1->Label6.visible());
  EXPECT_FALSE(Form1->Timer3.enabled());
  EXPECT_FALSE(window->windowFlags() & Qt::WindowMaximizeButtonHint);
  EXPECT_TRUE(window->windowFlags() & Qt::WindowMinimizeButtonHint);
}

TEST_F(MainWindowTest, NoControlsThatTakeTheMouseOverlap) {
  QRegion covered;
  for (const QWidget* widget : window->findChildren<QWidget*>()) {
    if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus)) continue;
    // Neighbours in a row share a column of pixels.
    const QRect place(widget->mapTo(window, QPoint(1, 1)), widget->size() - QSize(2, 2));
    EXPECT_FALSE(covered.intersects(place)) << widget->objectName().toStdString();
    covered += place;
  }
}

TEST_F(MainWindowTest, PlacesEveryBandWithItsNumberAndItsBarAcrossOneLine) {
  const forms::Line& zero = Form1->Line1;
  const std::vector<double> place{zero.x1(), zero.y1(), zero.x2(), zero.y2()};
  EXPECT_EQ(place, (std::vector<double>{5, 83, 981, 83}));
  EXPECT_EQ(zero.borderColor(), 0x808080U);
  for (int i = 0; i < 32; ++i) {
    EXPECT_EQ(Form1->Slider1(i).left(), 25 + 30 * i);
    EXPECT_EQ(Form1->Line4(i).y1(), 20) << i;
    EXPECT_EQ(Form1->Line4(i).borderWidth(), 3) << i;
    EXPECT_EQ(Form1->Label9(i).caption(), std::to_string(i + 1));
    EXPECT_NEAR(Form1->Label9(i).widget()->geometry().center().x(), 51 + 30 * i, 8) << i;
  }
}

TEST_F(MainWindowTest, ClipsNoCaptionAtItsLongest) {
  Form1->Slider2.setValue(-10);
  Form1->Slider3.setValue(254);
  Form1->Slider1(29).setValue(12);
  const auto fits = [](const auto* widget, int edges) {
    if (widget->text().isEmpty()) return;
    const int needed = widget->fontMetrics().horizontalAdvance(widget->text()) + edges;
    EXPECT_LE(needed, widget->width()) << qPrintable(widget->text());
    EXPECT_LE(widget->fontMetrics().ascent(), widget->height()) << qPrintable(widget->text());
  };
  Form2->Label1(1).setCaption("/a folder/" + std::string(200, 'm'));
  Form2->show(&*Form1);
  Form3->show(&*Form1);
  click(Form3->Command1(3));
  for (QWidget* each : QApplication::topLevelWidgets()) {
    each->grab();
    for (const auto* label : each->findChildren<QLabel*>()) fits(label, 0);
    for (const auto* button : each->findChildren<QAbstractButton*>())
      fits(button, button->isCheckable() ? 18 : 8);
  }
}

/// The name of a box stands for that option button in it that takes the focus.
TEST_F(MainWindowTest, TabsWalkTheStoredOrderFromTheFirstButton) {
  ASSERT_TRUE(support::waitFor([] { return Form1->Command1(0).widget()->hasFocus(); }));
  QString order;
  for (int i = 0; i < 42; ++i) {
    order += QApplication::focusWidget()->objectName() + " ";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_TRUE(order.startsWith("Command1(0) Slider1(0) Slider1(1) ")) << order.toStdString();
  EXPECT_TRUE(
      order.endsWith("Slider1(30) Slider1(31) Slider2 Option1(0) Text1 Option2(0) Option3(1) "
                     "Command1(6) Command1(10) Check1 Slider3 "))
      << order.toStdString();
}

TEST_F(MainWindowTest, ShowsEachPositionOfABandAndOfTheGainAlsoWhileBarsAreHidden) {
  forms::Slider& band = Form1->Slider1(19);
  for (int gain = -10; gain <= 10; ++gain) {
    Form1->Slider2.setValue(gain);
    EXPECT_EQ(support::outOfStep(), "");
  }
  EXPECT_EQ(AppState.EqString, "") << "the gain composes";
  click(Form1->Check1);
  for (const int range : {1, 0}) {
    band.setValue(3);
    click(Form1->Option2(range));
    EXPECT_EQ(band.value(), 0) << "not put to 0";
    for (int value = band.max(); value >= band.min(); --value) {
      band.setValue(value);
      EXPECT_EQ(support::outOfStep(), "");
    }
    EXPECT_EQ(Form1->Label7(4).caption(), "Selected Frequency: 1.25K");
    EXPECT_EQ(Form1->Label7(7).caption(), "Selected Frequency Value: " + std::to_string(band.max()) + "db");
  }
}

TEST_F(MainWindowTest, TheClipboardButtonTellsOfACopyUntilTheNextChange) {
  for (forms::Slider* changed : {&Form1->Slider3, &Form1->Slider1(0), &Form1->Slider2}) {
    Form1->Command1_Click(8);
    click(Form1->Option3(0));
    EXPECT_EQ(Form1->Command1(8).caption(), "Data On Clipboard") << "nothing was composed";
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), AppState.EqString);
    changed->setValue(changed->value() + 1);
    EXPECT_EQ(Form1->Command1(8).caption(), "EQ String > Clipboard");
  }
}

TEST_F(MainWindowTest, MarksTheBandUnderTheMouseUntilItReachesTheBareWindow) {
  for (const int band : {7, 30}) hover(Form1->Slider1(band));
  for (forms::Label* label : {&Form1->Label1(3), &Form1->Label9(3), &Form1->Label7(1)}) hover(*label);
  EXPECT_TRUE(Form1->Label6.visible()) << "a label let a move through";
  EXPECT_EQ(Form1->Label6.left(), Form1->Slider1(30).left() + 16 + 8.5);
  for (int i = 0; i < 32; ++i) EXPECT_EQ(Form1->Label1(i).foreColor(), i == 30 ? kRed : 0) << i;
  hover(window);
  EXPECT_FALSE(Form1->Label6.visible());
  EXPECT_EQ(Form1->Label1(30).foreColor(), 0U);
}

TEST_F(MainWindowTest, TellsWhatTheLowCutIs) {
  const std::string cuts = "Selected) Cuts Potentially Damaging Frequencies 25Hz 20Hz 19Hz ";
  hover(Form1->Option3(1));
  EXPECT_EQ(Form1->Option3(0).toolTipText(), " (Not " + cuts);
  EXPECT_EQ(Form1->Option3(1).toolTipText(), " (Selected) Allows Frequencies 25Hz 20Hz 19Hz ");
  click(Form1->Option3(0));
  hover(Form1->Option3(0));
  EXPECT_EQ(Form1->Option3(0).toolTipText(), " (" + cuts);
  EXPECT_EQ(Form1->Option3(1).toolTipText(), " (Not " + cuts);
}

TEST_F(MainWindowTest, AGainLabelStaysLitUntilTheMouseReachesAPlaceThatResetsIt) {
  for (forms::Control* place : std::initializer_list<forms::Control*>{
           &Form1->Picture1(2), &Form1->Picture4, &Form1->Text1, &Form1->Slider1(0), &Form1->Slider2}) {
    for (const int label : {1, 2}) hover(Form1->Label4(label));
    for (QWidget* other : {Form1->Label8(0).widget(), Form1->Slider3.widget(), window}) hover(other);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(Form1->Label4(i).foreColor(), i == 2 ? kBlue : 0) << i;
    hover(*place);
    EXPECT_EQ(Form1->Label4(2).foreColor(), 0U) << place->widget()->objectName().toStdString();
  }
}

TEST_F(MainWindowTest, GainLabelsWorkOnReleaseOfAnyButton) {
  QTest::mousePress(Form1->Label4(1).widget(), Qt::RightButton);
  EXPECT_EQ(Form1->Slider2.value(), 5);
  QTest::mouseRelease(Form1->Label4(1).widget(), Qt::RightButton);
  for (const auto& [label, expected] : {std::pair{3, 4}, {2, 5}, {0, 0}, {1, -1}}) {
    click(Form1->Label4(label));
    EXPECT_EQ(Form1->Slider2.value(), expected) << "label " << label;
  }
}

}  // namespace
