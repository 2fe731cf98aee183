#pragma once
// An entity's picture as files keep it, for programs that don't know the entity's class.

#include "host/files/bytes.h"
#include "host/files/drawing_text.h"
#include "platform/acad/db_entity.h"

#include <functional>

/// The picture's bytes, texts in the drawing's code page. Colours are kept, and of line types ByLayer and
/// ByBlock. Bulges become arcs, wide lines filled outlines, splines chords that differ from them by less than
/// shows on paper. What has a number that is not finite is left out.
CBytes WriteProxyGraphics(const CDisplayList& picture, const CDrawingText& text);

/// Makes wide text of a file's narrow one.
using CProxyTextDecoder = std::function<std::wstring(std::string_view)>;

/// The picture that the bytes of whatever program hold; what they don't say is as the entity has it. A chunk
/// that is not known, is too short for its type or holds a number that is not finite is left out; the picture
/// ends where the size of one is impossible.
CDisplayList ReadProxyGraphics(CByteView bytes, const AcDbEntity& entity, const CProxyTextDecoder& decode);
