#pragma once

#include "host/plot/canvas.h"
#include "platform/acad/display_list.h"

#include <optional>

/// Places a text's characters with tracking, width factor and obliquing, its start at the given page point.
/// None for an empty text, a height, width factor or tracking that isn't above 0, or a value that is no
/// finite number.
std::optional<CTextRun> LayOut(const CTextPrimitive& text, const QPointF& position, CFonts& fonts);
