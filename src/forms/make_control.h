// One control from its row of form data.
#pragma once

#include <memory>

#include "forms/control.h"

namespace forms {

std::unique_ptr<Control> makeControl(Form& form, const ControlData& row);

}  // namespace forms
