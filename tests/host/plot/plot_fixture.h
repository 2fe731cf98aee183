#pragma once
// What the tests of this folder share: a temporary folder, programs' output, a canvas that notes what it is
// told, and builders of primitives.

#include "host/plot/canvas.h"
#include "host/plot/headless.h"
#include "platform/acad/display_list.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// The style font of charts and frames.
inline const std::string CHART_FONT = "仿宋_GB2312";

class CTempFolder {
public:
    CTempFolder() {
        std::string strName = (std::filesystem::temp_directory_path() / "plot-XXXXXX").string();
        m_path = mkdtemp(strName.data());
    }
    ~CTempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;
    std::filesystem::path operator/(const std::string& strName) const { return m_path / strName; }
    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// What a program prints; fails the test when it doesn't end with 0.
inline std::string OutputOf(const std::string& strCommand) {
    std::string strOutput;
    FILE* pPipe = popen(strCommand.c_str(), "r");
    if (!pPipe) {
        ADD_FAILURE() << strCommand;
        return strOutput;
    }
    std::array<char, 4096> szBuffer{};
    while (const std::size_t nRead = fread(szBuffer.data(), 1, szBuffer.size(), pPipe))
        strOutput.append(szBuffer.data(), nRead);
    EXPECT_EQ(pclose(pPipe), 0) << strCommand;
    return strOutput;
}

/// Keeps what is painted.
class CNotingCanvas final : public CCanvas {
public:
    std::vector<std::pair<QPainterPath, CStroke>> m_arStrokes;
    std::vector<std::pair<QPainterPath, QColor>> m_arFills;
    std::vector<CTextRun> m_arTexts;

    void StrokePath(const QPainterPath& path, const CStroke& stroke) override {
        m_arStrokes.emplace_back(path, stroke);
    }
    void FillPath(const QPainterPath& path, const QColor& color) override {
        m_arFills.emplace_back(path, color);
    }
    void DrawText(const CTextRun& run) override { m_arTexts.push_back(run); }
};

/// Qt started, and the fonts.
class PlotTest : public testing::Test {
protected:
    PlotTest() { StartHeadlessQt(); }
};

inline CPrimitive Primitive(CShape shape, Adesk::UInt16 nColor = 7,
                            const std::string& strLinetype = "ByLayer") {
    CPrimitive primitive;
    primitive.m_nColor = nColor;
    primitive.m_strLinetype = strLinetype;
    primitive.m_shape = std::move(shape);
    return primitive;
}

inline CPolylinePrimitive Line(double x0, double y0, double x1, double y1) {
    return {{AcGePoint3d(x0, y0, 0.0), AcGePoint3d(x1, y1, 0.0)}};
}

inline CPolylineVertex Vertex(double x, double y, double dBulge = 0.0, double dStartWidth = -1.0,
                              double dEndWidth = -1.0) {
    return {AcGePoint2d(x, y), dBulge, dStartWidth, dEndWidth};
}

/// A dot as charts draw it: two half circles of radius 0.25, as wide as their diameter.
inline CPlinePrimitive Dot(double x, double y) {
    return {{Vertex(x - 0.25, y, 1.0, 0.5, 0.5), Vertex(x + 0.25, y, 1.0, 0.5, 0.5)}, true};
}

inline CTextPrimitive Text(const std::string& strText, double x, double y, double dHeight, bool bVertical) {
    CTextPrimitive text;
    text.m_ptPosition = AcGePoint3d(x, y, 0.0);
    text.m_vecNormal = AcGeVector3d(0.0, 0.0, 1.0);
    text.m_vecDirection = bVertical ? AcGeVector3d(0.0, 1.0, 0.0) : AcGeVector3d(1.0, 0.0, 0.0);
    text.m_strText = strText;
    text.m_dHeight = dHeight;
    text.m_dTracking = 80.0;
    text.m_strFont = CHART_FONT;
    return text;
}

inline CArcPrimitive HalfCircle(double x, double y, double dRadius) {
    return {AcGePoint3d(x, y, 0.0), dRadius, AcGeVector3d(0.0, 0.0, 1.0), AcGeVector3d(1.0, 0.0, 0.0),
            3.1415926};
}
