#pragma once
// The texts of a drawing file and the names in it.

#include "host/files/dwg_file.h"

inline constexpr const char *g_pForeignLayer = "RAHMEN", *g_pForeignStyle = "SCHRIFT";

/// Puts all texts of a file of page 936 into page 1252, with escapes for what that lacks.
void MakeWestern(CDwgFile& file);

/// Writes the Chinese characters of a file of page 936 by their codes.
void EscapeTexts(CDwgFile& file);

/// Puts model space on a layer of its own and gives each style but the standard one another name.
void GiveOtherNames(CDwgFile& file);
