#pragma once

#include "chart/chart_entity.h"

/// Fills a chart as generation does, of the readings of a laboratory: a consolidated undrained test of 129
/// readings.
void FillSampleChart(CBRENChart& chart);

/// Adds such charts to the drawing in force, each on the next sheet of a row; their ids in order.
std::vector<AcDbObjectId> AddSampleSheets(int nCharts);
