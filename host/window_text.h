#pragma once

#include <QtCore/QString>

#include <string_view>

#include "platform/windows/code_page.h"

/// Text of the process for windows; bytes that are no character become U+FFFD.
inline QString FromGbk(std::string_view strGbk) {
    return QString::fromStdWString(WideFromGbk(strGbk));
}
