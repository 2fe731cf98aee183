#include "host/console/plot_drawing.h"

#include "host/console/layer_look.h"
#include "host/console/sheet_pages.h"
#include "platform/acad/editor.h"

namespace {

double DotsPerInch() {
    resbuf value;
    constexpr double dUnlessSet = 150.0;
    return acedGetVar(L"PLOTDPI", &value) == RTNORM ? value.resval.rint : dUnlessSet;
}

} // namespace

CPlotOptions PlotOptionsOf(AcDbDatabase& drawing) {
    CPlotOptions options;
    options.m_fnLinetype = [&drawing](const std::string& strName) { return DashesOf(drawing, strName); };
    options.m_dLinetypeScale = drawing.ltscale();
    options.m_dDotsPerInch = DotsPerInch();
    return options;
}

bool PlotDrawing(AcDbDatabase& drawing, CFonts& fonts, const std::filesystem::path& path,
                 const CPlotGoesOn& fnGoesOn, std::string* pReason) {
    const CPlottedDrawing plotted(drawing);
    const std::vector<CPlotPage> arPages = plotted.Pages();
    CPlotOptions options = PlotOptionsOf(drawing);
    if (fnGoesOn) options.m_fnGoesOn = [&](std::size_t nDone) { return fnGoesOn(nDone, arPages.size()); };
    return Plot(arPages, options, fonts, path, pReason);
}
