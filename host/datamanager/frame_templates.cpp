#include "host/datamanager/frame_templates.h"

#include <array>

#include "host/datamanager/sheet_sketch.h"

namespace {

using enum CellKind;

constexpr double g_dThick = 0.5; // lines of a frame
constexpr double g_dThin = 0.0;

// The A4 sheet. The chart's place is 176 by 257 from (25, 5); its topmost 15 are free for the lowest row,
// into which the sample's number comes at (28, 251). A wide table of stresses reaches to 206.8.
constexpr double g_dPortraitLeft = 25.0;
constexpr double g_dPortraitRight = 208.0;
constexpr double g_dPortraitRow = 7.0;
constexpr double g_dPortraitTitle = 276.75; // so that the sample's number is in the middle of its row

constexpr std::array g_arPortraitProject = {
    CTitleCell{22.0, Caption, "工程名称"}, CTitleCell{92.5, Field, "[GCMC]"},
    CTitleCell{22.0, Caption, "工程编号"}, CTitleCell{46.5, Field, "[GCBH]"}};
constexpr std::array g_arPortraitUnit = {
    CTitleCell{22.0, Caption, "完成单位"}, CTitleCell{92.5, Mark, "[WCDW]"},
    CTitleCell{22.0, Caption, "钻孔编号"}, CTitleCell{46.5, Field, "[ZKBH]"}};
// Its fourth caption stands in the column of the other rows'.
constexpr std::array g_arPortraitPeople = {CTitleCell{14.0, Caption, "试验"}, CTitleCell{24.0, Mark, "[SYZ]"},
                                           CTitleCell{14.0, Caption, "检查"}, CTitleCell{24.0, Mark, "[JCZ]"},
                                           CTitleCell{14.5, Caption, "审核"}, CTitleCell{24.0, Mark, "[SH]"},
                                           CTitleCell{22.0, Caption, "日期"}, CTitleCell{26.5, Mark, "[RQ]"},
                                           CTitleCell{10.5, Caption, "图号"}, CTitleCell{9.5, Mark, "[TH]"}};
constexpr std::array g_arPortraitSample = {CTitleCell{114.5}, CTitleCell{22.0, Caption, "试验方法"},
                                           CTitleCell{46.5, Place, "[SYFF]"}};

// The A3 sheet. The charts' places are 176 by 257 from (13, 10) and (233, 10).
constexpr double g_dLandscapeLeft = 4.0;
constexpr double g_dLandscapeRight = 416.0;
constexpr double g_dLandscapeFoot = 9.0;
constexpr double g_dLandscapeRow = 8.0;

constexpr std::array g_arLandscapeProject = {
    CTitleCell{24.0, Caption, "工程名称"}, CTitleCell{130.0, Field, "[GCMC]"},
    CTitleCell{24.0, Caption, "工程编号"}, CTitleCell{60.0, Field, "[GCBH]"},
    CTitleCell{24.0, Caption, "钻孔编号"}, CTitleCell{60.0, Field, "[ZKBH]"},
    CTitleCell{24.0, Caption, "图    号"}, CTitleCell{66.0, Mark, "[TH]"}};
constexpr std::array g_arLandscapeSample = {
    CTitleCell{24.0, Caption, "试验方法"}, CTitleCell{130.0, Place, "[SYFF]"},
    CTitleCell{24.0, Caption, "文件编号"}, CTitleCell{60.0, Mark, "[WJBH]"},
    CTitleCell{24.0, Caption, "审    核"}, CTitleCell{60.0, Mark, "[SH]"},
    CTitleCell{24.0, Caption, "出图日期"}, CTitleCell{66.0, Mark, "[DQRQ]"}};

// The strip at the A3 sheet's foot: the module writes into its lower row, at 13 above the sheet's edge.
const AcGePoint2d g_ptStripOrigin(-24.0, 5.0);
constexpr double g_dMetres = 0.001;
constexpr double g_dStripTexts = 13.0;
constexpr double g_dStripCaptions = 6.0;

// The title reaches from 120 to 195, the date from 361 to 394.
constexpr std::array g_arStripTexts = {CTitleCell{111.0}, CTitleCell{85.0}, CTitleCell{58.0},
                                       CTitleCell{81.0}, CTitleCell{77.0}};
constexpr std::array g_arStripCaptions = {
    CTitleCell{111.0, Caption, "完成单位"}, CTitleCell{85.0, Caption, "图    名"},
    CTitleCell{58.0, Caption, "试 验 者"}, CTitleCell{81.0, Caption, "检 查 者"},
    CTitleCell{77.0, Caption, "日    期"}};

/// Marks that tell of the charts' places: the first one's corners, and how far it is to the next one's.
void AddLayoutMarks(CSheetSketch* pSketch, const AcGePoint2d& ptLow, const AcGePoint2d& ptHigh) {
    pSketch->Mark({ptLow.x, ptHigh.y}, "[SP]");
    pSketch->Mark({ptHigh.x, ptLow.y}, "[EP]");
    pSketch->Mark(ptLow, "[SP1]");
    pSketch->Mark({ptHigh.x - ptLow.x, ptLow.y}, "[DIST]");
}

} // namespace

std::string PortraitFrame() {
    CSheetSketch sketch;
    sketch.Rectangle({0.0, 0.0}, {210.0, 297.0}, g_dThin);
    sketch.Rectangle({g_dPortraitLeft, 5.0}, {g_dPortraitRight, 292.0}, g_dThick);
    sketch.Caption({g_dPortraitLeft, g_dPortraitTitle}, {g_dPortraitRight, 292.0}, 6.0, "三轴剪切试验成果图");
    double y = g_dPortraitTitle;
    for (const std::span<const CTitleCell> arRow : std::initializer_list<std::span<const CTitleCell>>{
             g_arPortraitProject, g_arPortraitUnit, g_arPortraitPeople, g_arPortraitSample})
        sketch.Row({g_dPortraitLeft, y -= g_dPortraitRow}, g_dPortraitRow, arRow);
    sketch.Line({g_dPortraitLeft, y}, {g_dPortraitRight, y});
    AddLayoutMarks(&sketch, {25.0, 5.0}, {201.0, 262.0});
    return sketch.Bytes();
}

std::string LandscapeFrame() {
    CSheetSketch sketch;
    sketch.Rectangle({0.0, 0.0}, {420.0, 297.0}, g_dThin);
    sketch.Rectangle({g_dLandscapeLeft, g_dLandscapeFoot}, {g_dLandscapeRight, 292.0}, g_dThick);
    double y = 292.0;
    sketch.Row({g_dLandscapeLeft, y -= g_dLandscapeRow}, g_dLandscapeRow, g_arLandscapeProject);
    sketch.Row({g_dLandscapeLeft, y -= g_dLandscapeRow}, g_dLandscapeRow, g_arLandscapeSample);
    sketch.Line({g_dLandscapeLeft, y}, {g_dLandscapeRight, y});
    AddLayoutMarks(&sketch, {13.0, 10.0}, {189.0, 267.0});
    return sketch.Bytes();
}

std::string TitleStrip() {
    CSheetSketch sketch(g_ptStripOrigin, g_dMetres);
    const AcGePoint2d pt(g_dLandscapeLeft, g_dLandscapeFoot);
    sketch.Row(pt, g_dStripTexts, g_arStripTexts);
    sketch.Row({pt.x, pt.y + g_dStripTexts}, g_dStripCaptions, g_arStripCaptions);
    return sketch.Bytes();
}
