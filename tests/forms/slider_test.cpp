#include <QAccessible>
#include <QSlider>
#include <QWheelEvent>

#include "support/session.h"

namespace {

/// Sliders as a person moves them, with a record of what they raise.
class SliderByHand : public support::Session {
 protected:
  SliderByHand() {
    for (forms::Slider* slider : {&Form1->Slider1(4), &Form1->Slider2, &Form1->Slider3}) {
      slider->onScroll = [this](int i) { events += "S" + std::to_string(i) + " "; };
      slider->onChange = [this](int i) { events += "C" + std::to_string(i) + " "; };
    }
  }

  static void turn(forms::Slider& slider, int eighths) {
    const QPointF middle(slider.widget()->rect().center());
    QWheelEvent event(middle, slider.widget()->mapToGlobal(middle), {}, {0, eighths}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(slider.widget(), &event);
  }

  std::string taken() { return std::exchange(events, {}); }

  std::string events;
};

TEST_F(SliderByHand, KeysMoveTheWayThePictureSays) {
  forms::Slider& band = Form1->Slider1(4);
  const struct {
    Qt::Key key;
    int expected;
  } rows[] = {{Qt::Key_Up, -1},    {Qt::Key_PageUp, -6},   {Qt::Key_Home, -12}, {Qt::Key_Up, -12},
              {Qt::Key_Down, -11}, {Qt::Key_PageDown, -6}, {Qt::Key_End, 12},   {Qt::Key_Right, 11}};
  for (const auto& row : rows) {
    const int before = band.value();
    key(band, row.key);
    EXPECT_EQ(band.value(), row.expected) << "key " << row.key << " from " << before;
    EXPECT_EQ(taken(), before == row.expected ? "" : "S4 C4 ") << "key " << row.key << " from " << before;
  }
  key(Form1->Slider2, Qt::Key_Up);
  EXPECT_EQ(Form1->Slider2.value(), 6);
  key(Form1->Slider3, Qt::Key_PageUp);
  EXPECT_EQ(Form1->Slider3.value(), 6);
}

TEST_F(SliderByHand, OneNotchIsOneStepAndFractionsAddUp) {
  forms::Slider& band = Form1->Slider1(4);
  turn(band, 120);
  EXPECT_EQ(band.value(), -1);
  for (int part = 0; part < 3; ++part) turn(band, 40);
  EXPECT_EQ(band.value(), -2);
  turn(band, 90);
  turn(band, -90);
  turn(band, -30);
  EXPECT_EQ(band.value(), -1) << "a turn back starts anew";
  EXPECT_EQ(taken(), "S4 C4 S4 C4 S4 C4 ");
  turn(Form1->Slider2, 240);
  EXPECT_EQ(Form1->Slider2.value(), 7);
  EXPECT_EQ(taken(), "S0 C0 ") << "two notches at once";
}

TEST_F(SliderByHand, TheMouseDragsTheThumbAndPagesInTheGroove) {
  forms::Slider& band = Form1->Slider1(4);
  QWidget* widget = band.widget();
  const QPoint thumb(widget->width() - 7, widget->height() / 2);
  QTest::mousePress(widget, Qt::LeftButton, {}, thumb);
  QTest::mouseMove(widget, thumb - QPoint(0, 20));
  const int dragged = band.value();
  EXPECT_LT(dragged, -2);
  QTest::mouseMove(widget, thumb - QPoint(0, 300));
  EXPECT_EQ(band.value(), -12);
  QTest::mouseRelease(widget, Qt::LeftButton, {}, thumb);
  EXPECT_TRUE(taken().starts_with("S4 C4 "));
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(thumb.x(), widget->height() - 3));
  EXPECT_EQ(band.value(), -7) << "a page towards the click";
}

TEST_F(SliderByHand, AssignmentRaisesChangeAloneAndOnlyForADifference) {
  forms::Slider& band = Form1->Slider1(4);
  band.setValue(7);
  EXPECT_EQ(taken(), "C4 ");
  band.setValue(7);
  EXPECT_EQ(taken(), "");
  band.setValue(99999);
  EXPECT_EQ(band.value(), 12);
  EXPECT_EQ(taken(), "C4 ");
  band.setMax(6);
  EXPECT_EQ(band.value(), 6) << "a narrower range moves the value";
  EXPECT_EQ(taken(), "") << "and raises nothing";
  band.setMin(9);
  EXPECT_EQ(band.value(), 9);
  EXPECT_EQ(Form1->Slider1(77).value(), 0) << "an index that is not there";
  Form1->Slider1(77).setValue(3);
  EXPECT_EQ(Form1->Slider1.count(), 32);
}

TEST_F(SliderByHand, AScreenReaderHearsTheGainAndNotThePosition) {
  Form1->Slider1(4).setValue(-5);
  Form1->Slider2.setValue(-2);
  const struct {
    forms::Slider& slider;
    const char* name;
    double value, min, max;
  } rows[] = {{Form1->Slider1(4), "33hz", 5, -12, 12},
              {Form1->Slider1(0), "19hz", 0, -12, 12},
              {Form1->Slider2, "Gain", -40, -200, 200},
              {Form1->Slider3, "Bandwidth", 1, 1, 254}};
  for (const auto& row : rows) {
    auto* spoken = QAccessible::queryAccessibleInterface(row.slider.widget());
    ASSERT_NE(spoken->valueInterface(), nullptr) << row.name;
    EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), row.name);
    EXPECT_EQ(spoken->valueInterface()->currentValue().toDouble(), row.value) << row.name;
    EXPECT_EQ(spoken->valueInterface()->minimumValue().toDouble(), row.min) << row.name;
    EXPECT_EQ(spoken->valueInterface()->maximumValue().toDouble(), row.max) << row.name;
  }
  auto* band = QAccessible::queryAccessibleInterface(Form1->Slider1(4).widget());
  band->valueInterface()->setCurrentValue(-3.0);
  EXPECT_EQ(Form1->Slider1(4).value(), 3);
}

}  // namespace
