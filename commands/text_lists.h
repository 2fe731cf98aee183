#pragma once
// Lists of texts and their written form.

#include "platform/mfc/collections.h"

/// Cuts a text at each separator. Every piece is trimmed but the one behind the last separator; an empty or
/// blank text gives an empty list.
void SplitText(const CString& text, char separator, CStringArray& parts);

/// The texts of a list with the separator between them.
CString JoinTexts(const CStringArray& texts, char separator);

/// Place of the text in the list, -1 when it is not in it.
int FindText(const CStringArray& texts, const CString& text);

/// Place of the text in the list, at whose end it is put when it is not in it; *pbAdded, if given, tells.
int FindOrAdd(CStringArray& texts, const CString& text, bool* pbAdded = nullptr);
