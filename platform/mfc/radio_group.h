#pragma once

#include "platform/mfc/window.h"

/// The radio buttons of the group in which a control of a dialog stands, in tab order. A group begins at a
/// control with CONTROL_GROUP and ends before the next one.
std::vector<CWnd*> RadioGroup(const CWnd& control);
