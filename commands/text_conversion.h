#pragma once

#include "platform/acad/adesk.h"

/// A narrow text as wide, for the platform's interfaces. The result lies in this service's one buffer of 1024
/// characters: it is cut there and holds until the next call, on the main thread only.
const ACHAR* ToWide(const char* pText);

/// The same from wide to narrow; 1024 bytes, cut between characters.
const char* ToNarrow(const ACHAR* pText);
