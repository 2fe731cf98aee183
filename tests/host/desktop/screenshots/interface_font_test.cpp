#include "host/interface_font.h"

#include <QtGui/QGlyphRun>
#include <QtGui/QRawFont>
#include <QtGui/QTextLayout>

#include <gtest/gtest.h>

namespace {

/// The family that shows a text in the windows.
std::string FamilyOf(const QString& strText) {
    QTextLayout layout(strText, QApplication::font());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    return layout.glyphRuns().value(0).rawFont().familyName().toStdString();
}

} // namespace

TEST(InterfaceFont, ShowsChineseInASansSerifAndLatinInTheOwnFont) {
    const QString strOwn = QApplication::font().family();
    EXPECT_EQ(FamilyOf(u"试样"_qs), "WenQuanYi Micro Hei");
    EXPECT_EQ(FamilyOf(u"Text…"_qs), strOwn.toStdString());
    UseInterfaceFont(); // is not heaped up
    EXPECT_EQ(QApplication::font().family(), strOwn);
    EXPECT_EQ(QApplication::font().families().size(), 2);
}
