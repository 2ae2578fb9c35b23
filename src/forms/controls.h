// All kinds of controls, for the windows that hold them.
#pragma once

#include "forms/buttons.h"
#include "forms/common_dialog.h"
#include "forms/label.h"
#include "forms/line.h"
#include "forms/picture_box.h"
#include "forms/progress_bar.h"
#include "forms/slider.h"
#include "forms/text_box.h"
#include "forms/timer.h"
