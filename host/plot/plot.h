#pragma once

#include "host/plot/page.h"
#include "host/plot/painter.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// A display list on a page. Not owned; must live while the page is plotted.
struct CPlotPicture {
    const CDisplayList* m_pList = nullptr;
    Adesk::UInt16 m_nLayerColor = 7; ///< what colour 256 (ByLayer) means in it
};

struct CPlotPage {
    CPageBox m_box;
    std::vector<CPlotPicture> m_arPictures; ///< the first lies lowest
};

struct CPlotOptions {
    CLinetypeLookup m_fnLinetype; ///< may be empty: all lines continuous
    double m_dLinetypeScale = 1.0;
    double m_dDotsPerInch = 150.0; ///< of a PNG
    /// Asked before each page with the number of those done; false gives the plot up. May be empty.
    std::function<bool(std::size_t nDone)> m_fnGoesOn;
};

/// Paints a page's pictures in order on a canvas of its millimetres. For the rest see Plot.
void PaintPage(const CPlotPage& page, const CPlotOptions& options, CFonts& fonts, CCanvas& canvas);

/// Whether the path's ending, in any case, is one of a form that Plot writes: .pdf, .svg or .png.
bool IsPlotFile(const std::filesystem::path& path);

/// The file of a page (from 0): the path itself where there is one page or the file holds all, else with
/// "-1", "-2", ... before its ending.
std::filesystem::path PlotFileOf(const std::filesystem::path& path, std::size_t nPage, std::size_t nPages);

/// Writes the pages at 1:1 by the path's ending: .pdf (one file), .svg or .png (a page a file). Each file is
/// saved whole, or what stood there stays. False with *pError (GBK, without a line end) for another ending, a
/// page without size or too large for a picture, a file that can't be written, and a plot given up. Needs
/// Qt's graphics started.
bool Plot(const std::vector<CPlotPage>& arPages, const CPlotOptions& options, CFonts& fonts,
          const std::filesystem::path& path, std::string* pError);
