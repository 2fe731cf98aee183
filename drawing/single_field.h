#pragma once

#include "drawing/graph_filed.h"

/// The value of a field that has a query of its own; empty when it finds nothing.
CString SingleFieldValue(const CGraphFiled& field, const CString& strGCSY, const CString& strZKBH);
