#include "host/datamanager/window/sample_page.h"

#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <array>

#include "host/datamanager/window/field_rows.h"

namespace {

/// What the columns hold, in the order of ReadingColumns().
constexpr std::array<const char16_t*, 13> g_arReadingMeanings = {
    u"Specimen",
    u"Running number of the reading",
    u"Cell pressure, kPa",
    u"Height of the specimen, mm",
    u"Diameter of the specimen, mm",
    u"Coefficient of the proving ring, N a dial unit",
    u"Pore pressure under the cell pressure, kPa",
    u"Reading of the proving ring, dial units",
    u"Axial deformation, 0.01 mm",
    u"Water drained during shear, cm³",
    u"Pore pressure during shear, kPa",
    u"Water drained in consolidation, cm³",
    u"0 point of the curve, 1 failure state, 2 both"};

/// Why there is nothing to plot.
QString WithoutText(const CSampleReadings& readings, CTestMethod method) {
    if (readings.m_arReadings.empty()) return u"The sample has no readings."_qs;
    if (method == CTestMethod::None)
        return u"The sample has no known test method, so its readings reduce to no stresses."_qs;
    return u"The readings reduce to no finite stresses."_qs;
}

} // namespace

CSamplePage::CSamplePage()
    : m_pTable(
          new CTextTableView(u"Readings"_qs, FieldColumns(ReadingColumns(), g_arReadingMeanings, 0), true)) {
    auto* pSplitter = new QSplitter(Qt::Vertical);
    pSplitter->setChildrenCollapsible(false);
    pSplitter->addWidget(m_pPlot);
    pSplitter->addWidget(m_pTable);
    pSplitter->setStretchFactor(0, 3);
    pSplitter->setStretchFactor(1, 2);
    auto* pAll = new QVBoxLayout(this);
    pAll->addWidget(pSplitter);
    Clear();
}

void CSamplePage::Show(const CSampleReadings& readings, const std::optional<std::string>& strSYFF) {
    const CTestMethod method = TestMethodOf(strSYFF.value_or("").c_str());
    m_pTable->Show(FieldRows(readings.m_arRows));
    std::vector<CSampleCurve> arCurves;
    if (method != CTestMethod::None) arCurves = SampleCurves(readings.m_arReadings, method);
    m_pPlot->Show(std::move(arCurves), WithoutText(readings, method));
}

void CSamplePage::Clear() {
    m_pTable->Show({});
    m_pPlot->Show({}, u"No sample is chosen."_qs);
}
