#include "windows/colors.h"
#include "windows/form3.h"

using namespace forms;

namespace {

// Kind, name, index, container; left, top, width, height in twips; place in the tab order; text; properties;
// spoken name.
// clang-format off
constexpr ControlData kControls[] = {
    {Kind::MultiLineTextBox, "Text1", kSingle, "", 120, 120, 8295, 2895, 0, "", {.back = kWindowBackground, .fore = kWindowText}, "Filter chain"},
    {Kind::CommandButton, "Command1", 0, "", 240, 3240, 1695, 495, 1, "Save As..."},
    {Kind::CommandButton, "Command1", 1, "", 6600, 3240, 1695, 495, 2, "Close"},
    {Kind::CommandButton, "Command1", 2, "", 2040, 3240, 1695, 495, 3, "List The Strings"},
    {Kind::CommandButton, "Command1", 3, "", 3840, 3240, 1695, 495, 4, "Copy to Clipboard"},
};

constexpr TimerData kTimers[] = {{"Timer1", 1500, true}};
// clang-format on

}  // namespace

const FormData kForm3Data{
    .name = "Form3",
    .caption = "FFmpeg Equalizer String",
    .width = 8580,
    .height = 3810,
    .leastWidth = 8820,  // The four buttons need it.
    .back = kLightGrey,
    .scale = Scale::Pixels,
    .oneSize = false,
    .minimiseButton = true,
    .maximiseButton = true,
    .owned = true,
    .controls = kControls,
    .timers = kTimers,
};
