#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <string>

/// What the screen shows where the window stands, once all is painted.
QImage PictureOf(QWidget& window);

/// Keeps a picture as a file of this name, when TERVO_PICTURES names a folder.
void Keep(const QImage& picture, const std::string& strName);

/// Looks at a window that the user sees: keeps its picture under a name, and expects this caption and no
/// fault.
void ExpectGoodLook(QWidget& window, const std::string& strName, const QString& strCaption);
