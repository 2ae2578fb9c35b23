// The stored description of a window, as tables: what stands on it before any code runs.
#pragma once

#include <span>

#include "forms/color.h"

namespace forms {

/// Twips to one logical pixel in all form data and in the outer size of windows.
inline constexpr int kTwipsPerPixel = 15;

/// Index of a control that is in no array.
inline constexpr int kSingle = -1;

enum class Alignment { Left = 0, Right = 1, Centre = 2 };

/// The unit in which a container counts the geometry of what it holds.
enum class Scale { Twips, Pixels };

enum class Kind {
  PictureBox,
  Label,
  Shape,
  TextBox,
  MultiLineTextBox,
  CommandButton,
  OptionButton,
  CheckBox,
  Slider,
  ProgressBar
};

/// What a control looks like where it differs from the common look.
struct Look {
  Color back = kButtonFace;
  Color fore = kButtonText;
  Alignment alignment = Alignment::Left;
  bool transparent = false;
  bool autoSize = false;
  bool elided = false;  ///< a caption too long for the label loses its middle
  bool bold = false;
  double fontSize = 8.25;  ///< points
  bool border = false;     ///< picture boxes: a thin line around
  Scale scale = Scale::Pixels;
  bool hidden = false;
  bool outOfSight = false;  ///< visible by its own flag, but where neither the eye nor the keyboard gets to
  bool selected = false;
  bool clicksAgain = false;  ///< option buttons: a click by hand counts while it is selected, too
};

/// One control that is a widget. Geometry in twips inside its container ("" is the form, "Picture1(0)" a
/// member of an array).
struct ControlData {
  Kind kind = Kind::Label;
  const char* name = "";
  int index = 0;
  const char* container = "";
  int left = 0, top = 0, width = 0, height = 0;
  int tab = 0;
  const char* text = "";
  Look look = {};
  const char* spokenName = "";  ///< for screen readers, where the text alone does not tell it
};

/// One line on the surface of its container, in twips; `borderWidth` in pixels.
struct LineData {
  const char* name;
  int index;
  const char* container;
  int x1, y1, x2, y2;
  Color color;
  int borderWidth;
};

/// What a slider has beside its row among the controls. Values rise from left to right, or from top to
/// bottom. A screen reader hears `value * spokenFactor`, with `unit` in the description.
struct SliderData {
  const char* name;
  bool vertical;
  int min, max;
  int largeChange, smallChange;
  int tickFrequency;
  int value;
  double spokenFactor;
  const char* unit;
};

/// One timer; `interval` in milliseconds, 0 for one that never ticks.
struct TimerData {
  const char* name;
  int interval;
  bool enabled;
};

/// A whole window. Inner size in twips.
struct FormData {
  const char* name = "";
  const char* caption = "";
  int width = 0, height = 0;
  /// Outer width in twips, frame included, below which the desktop is told to make it no narrower.
  int leastWidth = 0;
  Color back = kButtonFace;
  Scale scale = Scale::Pixels;
  /// The program holds the size, so that the desktop is told to offer no other.
  bool oneSize = false;
  bool minimiseButton = false;
  bool maximiseButton = false;
  /// The window belongs to another and has no entry of its own in the task bar.
  bool owned = false;
  /// Closing the window ends the program, even while a tool runs.
  bool endsProgram = false;
  std::span<const ControlData> controls;
  std::span<const LineData> lines = {};
  std::span<const SliderData> sliders = {};
  std::span<const TimerData> timers = {};
  const char* commonDialog = nullptr;
};

}  // namespace forms
