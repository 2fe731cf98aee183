#pragma once

#include <QtCore/QStringList>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

/// What is wrong with the look of a window that is shown: it leaves the screen, a text that it shows is cut
/// or lacks a glyph, a control lies outside of it. A line each; empty when nothing is wrong.
QStringList LookFaults(const QWidget& window);

/// Whether nothing at all is to be seen.
bool IsOfOneColor(const QImage& picture);

/// Whether some character of a text has no glyph in the font, nor in those that stand in for it.
bool LacksGlyph(const QString& strText, const QFont& font);
