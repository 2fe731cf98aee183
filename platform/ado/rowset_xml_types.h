#pragma once

#include <string>
#include <string_view>

#include "platform/ado/types.h"

/// How the rowset schema names a column type.
struct CXmlType {
    DBTYPE m_wType;
    std::string_view m_strType;   ///< of attribute dt:type
    std::string_view m_strDbType; ///< of attribute rs:dbtype; empty where there is none
};

const CXmlType& XmlTypeOf(DBTYPE wType);
/// DBTYPE_BSTR for a type that is not known.
DBTYPE TypeOfXml(std::string_view strType, std::string_view strDbType);

/// A text without characters that XML cannot hold, both UTF-8, and back.
std::string EscapedForXml(std::string_view strUtf8);
std::string UnescapedFromXml(std::string_view strUtf8);
