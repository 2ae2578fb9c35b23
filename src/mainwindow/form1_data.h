// The form data of the main window.
#pragma once

#include "forms/form_data.h"

extern const forms::FormData kForm1Data;
