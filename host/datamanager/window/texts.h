#pragma once

#include <QtCore/QString>

#include <string>
#include <string_view>

#include "platform/windows/code_page.h"

/// Code page text for the window.
inline QString FromGbk(std::string_view strGbk) {
    return QString::fromStdString(ToUtf8(strGbk));
}
