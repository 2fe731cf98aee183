#pragma once

class CBRENChart;
class CPictureSink;
struct CTableForm;

/// Describes the table of the stresses from which the circles were built: a column of titles, then a column
/// for each failure row. It leaves another size in the shared text style.
void DescribeStressTable(CPictureSink& sink, const CBRENChart& chart, const CTableForm& form);
