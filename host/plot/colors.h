#pragma once

#include "platform/acad/adesk.h"

#include <QtGui/QColor>

/// What a colour index looks like on white paper. Index 7, and 0 and 256 and above, which name no colour of
/// their own, print black.
QColor PaperColor(Adesk::UInt16 nIndex);
