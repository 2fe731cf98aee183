#pragma once

#include <QtCore/QString>

#include "platform/mfc/string.h"

/// Text of the process on the screen; bytes that are no character become U+FFFD.
QString FromGbk(std::string_view strText);
/// The same for a caption, whose lines may end as in a module's resources.
QString CaptionFromGbk(std::string_view strCaption);

/// Whether the code page has every character of the text.
bool IsInCodePage(const QString& strText);
/// Text from the screen; a character that is not in the code page becomes '?'.
CString ToGbk(const QString& strText);
