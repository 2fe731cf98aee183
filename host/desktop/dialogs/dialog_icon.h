#pragma once

#include <QtGui/QIcon>

#include "platform/mfc/icon_template.h"

/// The icon in its own size and in half of it.
QIcon DialogIcon(const CIconTemplate& icon);
