#pragma once

#include "host/files/dwg_classes.h"
#include "host/files/dwg_record.h"

/// The classes, without fixed type codes, of objects that every drawing file has.
inline constexpr std::uint16_t g_nDwgDefaultDictionaryClass = 500, g_nDwgPlaceholderClass = 501,
                               g_nDwgLayoutClass = 502;
std::vector<CDwgClass> DwgStandardClasses();

/// The objects that every drawing file has though a drawing here knows nothing of them: tables of views,
/// viewports and dimension styles, layouts, dictionaries of groups and styles. They stand under the fixed
/// handles.
std::vector<CDwgRecord> DwgStandardObjects();
