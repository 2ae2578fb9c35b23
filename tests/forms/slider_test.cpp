#include <QAccessible>
#include <QWheelEvent>

#include "support/session.h"

namespace {

/// Sliders as a person moves them, with a record of what they raise.
class SliderByHand : public support::Session {
 protected:
  SliderByHand() {
    for (forms::Slider* slider : {&band, &gain, &width}) {
      record(slider->onScroll, "S");
      record(slider->onChange, "C");
    }
  }
  forms::Slider& band = Form1->Slider1(4);
  forms::Slider& gain = Form1->Slider2;
  forms::Slider& width = Form1->Slider3;
};

TEST_F(SliderByHand, KeysMoveItTheWayThePictureSaysWithAScrollAndAChange) {
  const std::tuple<forms::Slider&, Qt::Key, int> keys[] = {
      {band, Qt::Key_Home, -12},    {band, Qt::Key_Up, -12}, {band, Qt::Key_Down, -11},
      {band, Qt::Key_PageDown, -6}, {band, Qt::Key_End, 12}, {band, Qt::Key_PageUp, 7},
      {band, Qt::Key_Up, 6},        {gain, Qt::Key_Up, 6},   {gain, Qt::Key_PageDown, 1}};
  for (const auto& [slider, pressed, expected] : keys) {
    const char* raised = slider.value() == expected ? "" : "SC";
    events.clear();
    QTest::keyClick(slider.widget(), pressed);
    EXPECT_EQ(slider.value(), expected) << "key " << pressed;
    EXPECT_EQ(events, raised) << "key " << pressed;
  }
}

TEST_F(SliderByHand, ANotchOfTheWheelIsOneStepAndPartsOfItAddUpUntilItTurnsBack) {
  const std::tuple<forms::Slider&, int, int> turns[] = {
      {band, 120, -1}, {band, 80, -1}, {band, 40, -2},  {band, 90, -2},  {band, -120, -1},
      {band, 240, -3}, {gain, 120, 6}, {gain, -240, 4}, {width, 240, 3}, {width, -120, 2}};
  for (const auto& [slider, eighths, expected] : turns) {
    QWheelEvent event({}, {}, {}, {0, eighths}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(slider.widget(), &event);
    EXPECT_EQ(slider.value(), expected) << "turned by " << eighths;
  }
}

TEST_F(SliderByHand, AScreenReaderHearsAndSetsWhatThePositionStandsFor) {
  for (const int value : {-5, -5, 99}) band.setValue(value);
  EXPECT_EQ(events, "CC") << "an assignment raises Change for a difference";
  const std::tuple<forms::Slider&, const char*, int, int, int> rows[] = {
      {band, "33hz", -12, -12, 12}, {gain, "Gain", 100, -200, 200}, {width, "Bandwidth", 1, 1, 254}};
  for (const auto& [slider, name, value, min, max] : rows) {
    auto* spoken = QAccessible::queryAccessibleInterface(slider.widget());
    EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), name);
    EXPECT_EQ(spoken->valueInterface()->currentValue(), value) << name;
    EXPECT_EQ(spoken->valueInterface()->minimumValue(), min) << name;
    EXPECT_EQ(spoken->valueInterface()->maximumValue(), max) << name;
    events.clear();
    spoken->valueInterface()->setCurrentValue(max);
    EXPECT_EQ(events, "SC") << name << " as by hand";
    EXPECT_EQ(spoken->valueInterface()->currentValue(), max) << name;
  }
}

}  // namespace
