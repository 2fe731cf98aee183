#pragma once

#include <QtGui/QIcon>

#include <string_view>

/// The icon of a button on the toolbar, by the button's name: strokes in the colour of the palette's button
/// texts, sharp at every size. A null icon for a name without one.
QIcon CommandIcon(std::string_view strName);
