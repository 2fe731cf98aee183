#pragma once

#include "host/files/drawing_failure.h"

#include <functional>

/// Whether the reading of a file goes on, with so much of all of it done. May be empty: then it does.
using CReadGoesOn = std::function<bool(std::size_t nDone, std::size_t nAll)>;

/// Throws CDrawingFailure, eUserBreak, when the reading is given up. Nothing may be open then that only its
/// own code would close.
inline void CheckReadGoesOn(const CReadGoesOn& fnGoesOn, std::size_t nDone, std::size_t nAll) {
    if (fnGoesOn && !fnGoesOn(nDone, nAll)) throw CDrawingFailure(Acad::eUserBreak, "it was given up");
}
