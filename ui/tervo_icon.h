#pragma once

#include "platform/mfc/icon_template.h"

/// Two Mohr circles with their tangent, icon of the module's dialogs.
CIconTemplate TervoIcon();
