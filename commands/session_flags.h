#pragma once

#include "platform/acad/adesk.h"

/// 1 from the start of the command QUIT to the start of the next command: texts are not measured meanwhile.
extern Adesk::Int32 g_bQuitting;
