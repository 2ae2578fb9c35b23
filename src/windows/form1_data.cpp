#include "windows/colors.h"
#include "windows/form1.h"

using namespace forms;

namespace {

constexpr Properties kCentred{.alignment = Alignment::Centre};
constexpr Properties kTitle{.back = kGrey, .fore = kPaleGrey, .alignment = Alignment::Centre};
constexpr Properties kReadOut{.back = kLightGrey, .fore = kDarkGrey};
constexpr Properties kClearReadOut{.back = kLightGrey, .fore = kDarkGrey, .transparent = true};
constexpr Properties kRightReadOut{
    .back = kLightGrey, .fore = kDarkGrey, .alignment = Alignment::Right, .transparent = true};

// Vertical; min, max, large and small change, ticks every, value; how a screen reader says it.
constexpr SliderData kBand{true, -12, 12, 5, 1, 2, 0, -1, "dB"};
constexpr SliderData kGain{false, -10, 10, 5, 1, 1, 0, 20, "%"};
constexpr SliderData kBandwidth{false, 1, 254, 5, 1, 15, 1, 1, ""};

// Kind, name, index, container; left, top, width, height in twips; place in the tab order; text; properties;
// spoken name; slider.
// clang-format off
constexpr ControlData kControls[] = {
    // The boxes first, so that what they hold finds them.
    {Kind::PictureBox, "Picture1", 0, "", 240, 240, 14895, 2295, 1, "", {.border = true}},
    {Kind::PictureBox, "Picture1", 1, "", 240, 2640, 14895, 1335, 2, "", {.border = true}},
    {Kind::PictureBox, "Picture1", 2, "", 15240, 240, 1815, 3735, 3, "", {.border = true}},
    {Kind::PictureBox, "Picture1", 3, "Picture1(2)", 0, 1320, 1815, 495, 9, "", {}, "EQ Range"},
    {Kind::PictureBox, "Picture3", kSingle, "Picture1(2)", 0, 2040, 1815, 495, 27, "", {.scale = Scale::Twips}, "Low Cut Filter"},
    {Kind::PictureBox, "Picture4", kSingle, "", 240, 4080, 16815, 495, 41, "", {.back = kLightGrey, .border = true, .scale = Scale::Twips}},
    {Kind::PictureBox, "Picture2", kSingle, "", 240, 6720, 975, 2415, 6, "", {.back = kLightGrey, .border = true, .hidden = true}},
    {Kind::Label, "Label6", kSingle, "", 480, 120, 255, 75, 38, "", {.alignment = Alignment::Centre, .fontSize = 6.75}},
    {Kind::Label, "Label9", 0, "", 600, 120, 90, 90, 54, "1"},
    // Band strip.
    {Kind::Slider, "Slider1", 0, "Picture1(0)", 240, 1320, 315, 855, 7, "", {}, "", &kBand},
    {Kind::Label, "Label1", 0, "Picture1(0)", 480, 120, 255, 255, 4, "", {.transparent = true}},
    {Kind::Label, "Label2", 0, "Picture1(0)", 480, 360, 135, 255, 5, ""},
    {Kind::Label, "Label2", 1, "Picture1(0)", 480, 600, 135, 255, 39, ""},
    // Command strip.
    {Kind::CommandButton, "Command1", 0, "Picture1(1)", 240, 360, 1695, 375, 0, "Open Source"},
    {Kind::CommandButton, "Command1", 2, "Picture1(1)", 2160, 360, 1815, 375, 32, "Preview Audio"},
    {Kind::CommandButton, "Command1", 3, "Picture1(1)", 4200, 360, 1815, 375, 33, "Save As"},
    {Kind::CommandButton, "Command1", 6, "Picture1(1)", 120, 840, 1935, 375, 34, "FFmpeg EQ String"},
    {Kind::CommandButton, "Command1", 7, "Picture1(1)", 2040, 840, 2055, 375, 35, "Save Preset"},
    {Kind::CommandButton, "Command1", 8, "Picture1(1)", 4080, 840, 1935, 375, 36, " EQ String > Clipboard"},
    {Kind::Slider, "Slider3", kSingle, "Picture1(1)", 6360, 480, 3735, 495, 48, "", {}, "Bandwidth", &kBandwidth},
    {Kind::Label, "Label8", 0, "Picture1(1)", 6480, 240, 1095, 255, 49, "1 Hz "},
    {Kind::Label, "Label8", 1, "Picture1(1)", 7680, 240, 1095, 255, 50, "Bandwidth", kCentred},
    {Kind::Label, "Label8", 2, "Picture1(1)", 8880, 240, 1095, 255, 51, "254 Hz", {.alignment = Alignment::Right}},
    {Kind::Label, "Label8", 3, "Picture1(1)", 6480, 960, 3495, 255, 52, "Current Bandwidth Settings: 001 Hz", kCentred},
    {Kind::Slider, "Slider2", kSingle, "Picture1(1)", 10440, 480, 4095, 495, 8, "", {}, "Gain", &kGain},
    {Kind::Label, "Label4", 0, "Picture1(1)", 12000, 240, 855, 255, 18, "< Gain >", kCentred},
    {Kind::Label, "Label4", 1, "Picture1(1)", 10560, 240, 1215, 255, 19, "Decrease [ - ]"},
    {Kind::Label, "Label4", 2, "Picture1(1)", 13320, 240, 1095, 255, 20, "[ + ] Increase", {.alignment = Alignment::Right}},
    {Kind::Label, "Label4", 3, "Picture1(1)", 11610, 1080, 1755, 210, 21, "Gain:100%", {.alignment = Alignment::Centre, .transparent = true, .autoSize = true}},
    // Over the labels, which reach a pixel into it.
    {Kind::TextBox, "Text1", kSingle, "Picture1(1)", 0, 0, 14895, 255, 22, "<%InputFile%>", {.fore = kWindowText}, "Source file"},
    // Option panel.
    {Kind::Label, "Label3", 0, "Picture1(2)", 0, 0, 1815, 255, 10, "Presets", kTitle},
    {Kind::Label, "Label5", kSingle, "Picture1(2)", 0, 240, 1815, 255, 31, "", {.back = kLightGrey}},
    {Kind::OptionButton, "Option1", 0, "Picture1(2)", 120, 240, 1335, 210, 11, "No Preset", {.back = kLightGrey, .selected = true, .canBeChosenAgain = true}},
    {Kind::OptionButton, "Option1", 1, "Picture1(2)", 120, 600, 495, 210, 12, "1", {.canBeChosenAgain = true}, "Preset 1"},
    {Kind::OptionButton, "Option1", 2, "Picture1(2)", 600, 600, 495, 210, 13, "2", {.canBeChosenAgain = true}, "Preset 2"},
    {Kind::OptionButton, "Option1", 3, "Picture1(2)", 1080, 600, 495, 210, 14, "3", {.canBeChosenAgain = true}, "Preset 3"},
    {Kind::OptionButton, "Option1", 4, "Picture1(2)", 120, 840, 495, 210, 15, "4", {.canBeChosenAgain = true}, "Preset 4"},
    {Kind::OptionButton, "Option1", 5, "Picture1(2)", 600, 840, 495, 210, 16, "5", {.canBeChosenAgain = true}, "Preset 5"},
    {Kind::OptionButton, "Option1", 6, "Picture1(2)", 1080, 840, 495, 210, 17, "6", {.canBeChosenAgain = true}, "Preset 6"},
    {Kind::Label, "Label3", 1, "Picture1(2)", 0, 1080, 1815, 255, 23, "EQ Range", kTitle},
    {Kind::OptionButton, "Option2", 0, "Picture1(3)", 120, 0, 1215, 255, 24, "+/- 12 db", {.selected = true}, "plus or minus 12 dB"},
    {Kind::OptionButton, "Option2", 1, "Picture1(3)", 120, 240, 1215, 255, 25, "+/- 6 db", {}, "plus or minus 6 dB"},
    {Kind::Label, "Label3", 2, "Picture1(2)", 0, 1800, 1815, 255, 26, "Low Cut Filter", kTitle},
    {Kind::OptionButton, "Option3", 0, "Picture3", 120, 0, 1575, 255, 28, "Low Cut On"},
    {Kind::OptionButton, "Option3", 1, "Picture3", 120, 240, 1575, 255, 29, "Low Cut Off", {.selected = true}},
    {Kind::Label, "Label3", 3, "Picture1(2)", 0, 2520, 1815, 255, 30, "Indicators", kTitle},
    {Kind::CheckBox, "Check1", kSingle, "Picture1(2)", 120, 2880, 1575, 210, 40, "Indicator bars", {.selected = true}},
    {Kind::CommandButton, "Command1", 10, "Picture1(2)", 120, 3240, 1575, 375, 37, "Exit"},
    // Status strip.
    {Kind::Label, "Label7", 0, "Picture4", 120, 120, 1575, 255, 42, "Preset Settings: 0", kReadOut},
    {Kind::Label, "Label7", 1, "Picture4", 1800, 120, 1695, 255, 43, "EQ Range: +/- 12 db", kReadOut},
    {Kind::Label, "Label7", 2, "Picture4", 3600, 120, 1455, 255, 44, "Low Cut Filter: Off", kReadOut},
    {Kind::Label, "Label7", 3, "Picture4", 5280, 120, 1215, 255, 45, "Indicators: On", kReadOut},
    {Kind::Label, "Label7", 4, "Picture4", 6600, 120, 2175, 255, 46, "Selected Frequency: 0hz", kReadOut},
    {Kind::Label, "Label7", 5, "Picture4", 11040, 120, 2535, 255, 47, "Gain Settings 100% Of Source", kClearReadOut},
    {Kind::Label, "Label7", 6, "Picture4", 8760, 120, 2055, 255, 53, "Current Bandwidth: 001 Hz", kClearReadOut},
    {Kind::Label, "Label7", 7, "Picture4", 13680, 120, 2535, 255, 55, "Selected Frequency Value:  0db", kRightReadOut},
};

// Name, index, container; the two ends in twips; colour; width in pixels.
constexpr LineData kLines[] = {
    {"Line1", kSingle, "Picture1(0)", 480, 960, 720, 960, kGrey, 1},
    {"Line4", 0, "Picture1(0)", 480, 1080, 480, 1320, kPaleGrey, 1},
    {"Line3", kSingle, "Picture1(1)", 10320, 360, 10320, 1080, kLightGrey, 1},
    {"Line5", kSingle, "Picture1(1)", 120, 795, 6120, 795, kLightGrey, 1},
    {"Line6", kSingle, "Picture1(1)", 2040, 720, 2040, 360, kLightGrey, 1},
    {"Line7", kSingle, "Picture1(1)", 4080, 720, 4080, 360, kLightGrey, 1},
    {"Line8", kSingle, "Picture1(1)", 6120, 1200, 6120, 360, kLightGrey, 1},
    {"Line9", kSingle, "Picture1(1)", 12480, 1080, 12480, 960, kBlue, 2},
    {"Line10", kSingle, "Picture1(1)", 14400, 1080, 10560, 1080, 0xFFFFFF, 2},
    {"Line2", kSingle, "Picture1(2)", 0, 480, 1800, 480, kDarkGrey, 2},
    {"Line11", kSingle, "Picture1(2)", 0, 3120, 1800, 3120, kDarkGrey, 2},
};

// Name, interval in milliseconds, enabled.
constexpr TimerData kTimers[] = {
    {"Timer1", 0, true},
    {"Timer2", 200, false},  // Nothing listens: its ticks would only wake an idle program.
    {"Timer3", 10, true},
};
// clang-format on

}  // namespace

const FormData kForm1Data{
    .name = "Form1",
    .caption = "",
    .width = 17310,
    .height = 5100,
    .back = kGrey,
    .scale = Scale::Pixels,
    .oneSize = true,
    .minimiseButton = true,
    .maximiseButton = false,
    .owned = false,
    .endsProgram = true,
    .controls = kControls,
    .lines = kLines,
    .timers = kTimers,
    .commonDialog = "CDialog",
};
