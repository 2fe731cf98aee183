#pragma once

#include <span>

class CBRENChart;
class CFieldTable;
template <class T>
struct CFieldRow;

/// The rows of CBRENChart in the order of its record.
std::span<const CFieldRow<CBRENChart>> ChartRows();
/// Its fields for those who know the class by name; lives as long as the module.
CFieldTable* ChartFields();
