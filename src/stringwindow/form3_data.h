// The form data of the string window.
#pragma once

#include "forms/form_data.h"

extern const forms::FormData kForm3Data;
