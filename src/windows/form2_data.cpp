#include "windows/colors.h"
#include "windows/form2.h"

using namespace forms;

namespace {

constexpr Properties kPlain{.back = kLightGrey};
constexpr Properties kPath{.back = kLightGrey, .elided = true};
constexpr Properties kGreen{.back = 0x00C000};
constexpr Properties kYellow{.back = 0x00FFFF};
constexpr Properties kClip{.back = kRed, .alignment = Alignment::Centre, .bold = true};

// Kind, name, index, container; left, top, width, height in twips; place in the tab order; text; properties;
// spoken name.
// clang-format off
constexpr ControlData kControls[] = {
    {Kind::PictureBox, "Picture2", kSingle, "", 240, 1920, 6135, 855, -1, "", {.back = kLightGrey, .border = true, .scale = Scale::Twips}},
    // Below the window's edge; hidden, so that the keyboard does not get there either.
    {Kind::PictureBox, "Picture1", kSingle, "", 360, 3840, 14175, 2295, -1, "", {.border = true, .scale = Scale::Twips, .hidden = true}},
    {Kind::Label, "Label1", 0, "", 240, 240, 1215, 255, -1, "Saving As", kPlain},
    {Kind::Label, "Label1", 1, "", 240, 600, 6015, 255, -1, "<%OutPutFile%>", kPath},
    {Kind::Label, "Label1", 2, "", 240, 1200, 3495, 255, -1, "Progress: 00% Completed", kPlain},
    {Kind::CommandButton, "Command1", kSingle, "", 5160, 1080, 1215, 375, 0, "Close"},
    {Kind::ProgressBar, "PBar", kSingle, "", 240, 1560, 6135, 255, -1, "", {}, "Progress"},
    // A fixed panel of two rows; it shows no level.
    {Kind::Label, "Label2", 0, "Picture2", 120, 120, 3495, 255, -1, "", kGreen},
    {Kind::Label, "Label2", 1, "Picture2", 3600, 120, 975, 255, -1, "", kYellow},
    {Kind::Label, "Label3", 0, "Picture2", 120, 480, 3495, 255, -1, "", kGreen},
    {Kind::Label, "Label3", 1, "Picture2", 3600, 480, 975, 255, -1, "", kYellow},
    {Kind::Label, "Label4", 0, "Picture2", 4560, 120, 1335, 255, -1, "Clip: 1000", kClip},
    {Kind::Label, "Label4", 1, "Picture2", 4560, 480, 1335, 255, -1, "Clip: 1000", kClip},
    {Kind::Shape, "Shape1", kSingle, "Picture2", 120, 120, 4455, 255, -1, ""},
    {Kind::Shape, "Shape2", kSingle, "Picture2", 120, 480, 4455, 255, -1, ""},
    {Kind::Shape, "Shape3", kSingle, "Picture2", 4560, 120, 1335, 255, -1, ""},
    {Kind::Shape, "Shape4", kSingle, "Picture2", 4560, 480, 1335, 255, -1, ""},
    {Kind::MultiLineTextBox, "Text1", kSingle, "Picture1", 1440, 240, 12135, 1575, 1, "", {.back = kWindowBackground, .fore = kWindowText}},
};

constexpr LineData kLines[] = {{"Line1", kSingle, "", 240, 960, 6360, 960, 0xA0A0A0, 1}};
constexpr TimerData kTimers[] = {{"Timer1", 1000, true}};
// clang-format on

}  // namespace

const FormData kForm2Data{
    .name = "Form2",
    .caption = "Saving",
    .width = 6735,
    .height = 2985,
    .back = kLightGrey,
    .scale = Scale::Twips,
    .oneSize = true,
    .minimiseButton = false,
    .maximiseButton = false,
    .owned = true,
    .controls = kControls,
    .lines = kLines,
    .timers = kTimers,
};
