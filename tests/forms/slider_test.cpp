#include <QAccessible>
#include <QWheelEvent>

#include "support/session.h"

namespace {

/// Sliders as a person moves them, with a record of what they raise.
class SliderByHand : public support::Session {
 protected:
  SliderByHand() {
    for (forms::Slider* slider : {&band, &gain}) {
      slider->onScroll = [this](int) { events += "S"; };
      slider->onChange = [this](int) { events += "C"; };
    }
  }
  std::string taken() { return std::exchange(events, {}); }
  forms::Slider& band = Form1->Slider1(4);
  forms::Slider& gain = Form1->Slider2;
  std::string events;
};

TEST_F(SliderByHand, KeysAndTheWheelMoveTheWayThePictureSays) {
  const std::tuple<forms::Slider&, Qt::Key, int> keys[] = {
      {band, Qt::Key_Home, -12},    {band, Qt::Key_Up, -12}, {band, Qt::Key_Down, -11},
      {band, Qt::Key_PageDown, -6}, {band, Qt::Key_End, 12}, {band, Qt::Key_PageUp, 7},
      {band, Qt::Key_Up, 6},        {gain, Qt::Key_Up, 6},   {gain, Qt::Key_PageDown, 1}};
  for (const auto& [slider, pressed, expected] : keys) {
    const char* raised = slider.value() == expected ? "" : "SC";
    QTest::keyClick(slider.widget(), pressed);
    EXPECT_EQ(slider.value(), expected) << "key " << pressed;
    EXPECT_EQ(taken(), raised) << "key " << pressed;
  }
  // One notch is one step; fractions of it add up until the wheel turns back.
  const std::pair<int, int> turns[] = {{120, 5}, {80, 5}, {40, 4}, {90, 4}, {-120, 5}, {240, 3}};
  for (const auto& [eighths, expected] : turns) {
    QWheelEvent event({}, {}, {}, {0, eighths}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(band.widget(), &event);
    EXPECT_EQ(band.value(), expected) << "turned by " << eighths;
  }
  EXPECT_EQ(taken(), "SCSCSCSC");
}

TEST_F(SliderByHand, AScreenReaderHearsWhatAnAssignmentStandsFor) {
  for (const int value : {-5, -5, 99}) band.setValue(value);
  EXPECT_EQ(taken(), "CC") << "for a difference alone";
  const std::tuple<forms::Slider&, const char*, int, int, int> rows[] = {
      {band, "33hz", -12, -12, 12}, {gain, "Gain", 100, -200, 200}, {Form1->Slider3, "Bandwidth", 1, 1, 254}};
  for (const auto& [slider, name, value, min, max] : rows) {
    auto* spoken = QAccessible::queryAccessibleInterface(slider.widget());
    EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), name);
    EXPECT_EQ(spoken->valueInterface()->currentValue(), value) << name;
    EXPECT_EQ(spoken->valueInterface()->minimumValue(), min) << name;
    EXPECT_EQ(spoken->valueInterface()->maximumValue(), max) << name;
    spoken->valueInterface()->setCurrentValue(max);
  }
  EXPECT_EQ(band.value(), -12) << "set by a screen reader";
}

}  // namespace
