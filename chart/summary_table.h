#pragma once

class CBRENChart;
class CPictureSink;
struct CTableForm;

/// Describes the table of the soil's name, its index values and the strength values; the values are
/// m_saCells as it stands. It leaves another size in the shared text style.
void DescribeSummaryTable(CPictureSink& sink, const CBRENChart& chart, const CTableForm& form);
