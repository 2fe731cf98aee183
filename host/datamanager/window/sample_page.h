#pragma once

#include <QtWidgets/QWidget>

#include <optional>
#include <string>

#include "host/datamanager/window/readings_plot.h"
#include "host/datamanager/window/sample_readings.h"
#include "host/datamanager/window/text_table.h"

/// The readings of a sample: their plot, and below it the table.
class CSamplePage final : public QWidget {
public:
    CSamplePage();

    /// Shows readings under the sample's method, GBK.
    void Show(const CSampleReadings& readings, const std::optional<std::string>& strSYFF);
    void Clear();

private:
    CReadingsPlot* m_pPlot = new CReadingsPlot;
    CTextTableView* m_pTable;
};
