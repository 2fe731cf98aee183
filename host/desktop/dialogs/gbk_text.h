#pragma once

#include <QtCore/QString>

#include "host/window_text.h"
#include "platform/mfc/string.h"

/// FromGbk for a caption, whose lines may end as in a module's resources.
QString CaptionFromGbk(std::string_view strCaption);

/// Whether the code page has every character of the text.
bool IsInCodePage(const QString& strText);
/// Text from the screen; a character that is not in the code page becomes '?'.
CString ToGbk(const QString& strText);
