// The form data of the progress window.
#pragma once

#include "forms/form_data.h"

extern const forms::FormData kForm2Data;
