#pragma once

class CFieldTable;

/// The fields of CBRENChart in the order of its record; lives as long as the module.
CFieldTable* ChartFields();
