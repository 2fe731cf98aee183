#pragma once

#include <span>

class CBRENFrame;
class CFieldTable;
template <class T>
struct CFieldRow;

/// The rows of CBRENFrame in the order of its record.
std::span<const CFieldRow<CBRENFrame>> FrameRows();
/// Its fields for those who know the class by name; lives as long as the module.
CFieldTable* FrameFields();
