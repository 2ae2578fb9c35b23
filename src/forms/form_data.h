// The stored description of a window, as tables: what stands on it before any code runs.
#pragma once

#include <cstdint>
#include <span>

namespace forms {

/// A colour number 0xBBGGRR, red in the low byte, or one of the desktop's own colours below.
using Color = std::uint32_t;

inline constexpr Color kButtonFace = 0x8000000F;  ///< also of every surface without a colour of its own
inline constexpr Color kButtonText = 0x80000012;
inline constexpr Color kWindowBackground = 0x80000005;  ///< of boxes that take text
inline constexpr Color kWindowText = 0x80000008;

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

/// What a control has beside its kind, place and text, where it differs from the usual.
struct Properties {
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
  bool selected = false;
  bool canBeChosenAgain = false;  ///< option buttons: a click by hand on the selected one counts
};

/// What a slider has beside the properties of all controls. Values rise from left to right, or from top to
/// bottom. A screen reader hears `value * spokenFactor`, with `unit` in the description.
struct SliderData {
  bool vertical;
  int min, max;
  int largeChange, smallChange;
  int tickFrequency;
  int value;
  double spokenFactor;
  const char* unit;
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
  Properties properties = {};
  const char* spokenName = "";  ///< for screen readers, where the text alone does not tell it
  const SliderData* slider = nullptr;
};

/// One line on the surface of its container. The ends are in twips in the form data and in the container's
/// scale from then on, `borderWidth` is in pixels.
struct LineData {
  const char* name = "";
  int index = 0;
  const char* container = "";
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  Color color = 0;
  int borderWidth = 1;
  bool visible = true;
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
  /// The desktop is told to make the window no narrower: outer width in twips, frame included.
  int leastWidth = 0;
  Color back = kButtonFace;
  Scale scale = Scale::Pixels;
  bool oneSize = false;  ///< the program holds the size, and the desktop is told to offer no other
  bool minimiseButton = false;
  bool maximiseButton = false;
  bool owned = false;        ///< belongs to another window, without an entry of its own in the task bar
  bool endsProgram = false;  ///< closing the window ends the program, even while a tool runs
  std::span<const ControlData> controls;
  std::span<const LineData> lines = {};
  std::span<const TimerData> timers = {};
  const char* commonDialog = nullptr;
};

}  // namespace forms
