#pragma once
// Drawings and their files. Paths are UTF-8; all throw CDrawingFailure.

#include "host/files/drawing_format.h"

/// Throws with eUserBreak when fnGoesOn gives it up.
CReadDrawing LoadDrawing(const std::string& utf8Path, const CReadGoesOn& fnGoesOn = {});

/// Puts a drawing's bytes in place of what the path stands for, and keeps that beside with the ending .bak.
/// A link is followed. Refused, and nothing changed, where that is no ordinary file, is write-protected, or
/// is a link to nothing.
void StoreDrawing(const std::string& utf8Path, std::string_view bytes);
