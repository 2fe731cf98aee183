#pragma once

#include <QtGui/QFont>
#include <QtGui/QFontInfo>
#include <QtWidgets/QApplication>

// The fonts of windows and dialogs. Drawings and plots choose theirs by themselves.

/// The font with a sans serif beside it that has Chinese characters.
inline QFont WithChinese(QFont font, const QString& strChineseFamily) {
    font.setFamilies(
        {QFontInfo(font).family(), strChineseFamily}); // an alias would not be found among several
    return font;
}

/// Makes it so of the application's font.
inline void UseInterfaceFont() {
    QApplication::setFont(WithChinese(QApplication::font(), u"WenQuanYi Micro Hei"_qs));
}
