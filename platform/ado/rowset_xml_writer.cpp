#include <set>

#include "platform/ado/date_text.h"
#include "platform/ado/rowset_xml.h"
#include "platform/ado/rowset_xml_types.h"
#include "platform/ado/text.h"
#include "platform/windows/code_page.h"

namespace {

constexpr std::string_view g_strBeginning =
    "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882'\n"
    "    xmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882'\n"
    "    xmlns:rs='urn:schemas-microsoft-com:rowset'\n"
    "    xmlns:z='#RowsetSchema'>\n"
    "<s:Schema id='RowsetSchema'>\n"
    "  <s:ElementType name='row' content='eltOnly' rs:updatable='true'>\n";
constexpr std::string_view g_strAfterColumns = "    <s:extends type='rs:rowbase'/>\n"
                                               "  </s:ElementType>\n"
                                               "</s:Schema>\n"
                                               "<rs:data>\n";
constexpr std::string_view g_strEnd = "</rs:data>\n</xml>\n";

/// An attribute with a value, UTF-8. Line ends and tabs are written as references: a reader would make blanks
/// of them.
std::string Attribute(std::string_view strName, std::string_view strValue) {
    std::string strText = " " + std::string(strName) + "='";
    for (const char c : EscapedForXml(strValue)) {
        switch (c) {
        case '&':
            strText += "&amp;";
            break;
        case '<':
            strText += "&lt;";
            break;
        case '>':
            strText += "&gt;";
            break;
        case '\'':
            strText += "&#39;";
            break;
        case '\t':
        case '\n':
        case '\r':
            strText += "&#" + std::to_string(static_cast<int>(c)) + ";";
            break;
        default:
            strText += c;
        }
    }
    return strText + "'";
}

bool IsPlainName(std::string_view strName) {
    const auto letter = [](char c) { return (LowerAscii(c) >= 'a' && LowerAscii(c) <= 'z') || c == '_'; };
    return !strName.empty() && letter(strName.front()) &&
           strName.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789") ==
               std::string_view::npos;
}

/// The attribute of each column: its own name where that serves, else a made-up one.
std::vector<std::string> AttributeNames(const std::vector<CDbColumn>& arColumns) {
    std::set<std::string> used;
    std::vector<std::string> arNames;
    for (const CDbColumn& column : arColumns) {
        const bool bOwn = IsPlainName(column.m_strName) && used.insert(column.m_strName).second;
        arNames.push_back(bOwn ? column.m_strName : std::string());
    }
    for (std::size_t i = 0; i < arNames.size(); ++i) {
        if (!arNames[i].empty()) continue;
        arNames[i] = "c" + std::to_string(i);
        while (!used.insert(arNames[i]).second)
            arNames[i] += '_';
    }
    return arNames;
}

std::string ColumnXml(const CDbColumn& column, const std::string& strAttribute, std::size_t nNumber) {
    const CXmlType& type = XmlTypeOf(column.m_wType);
    std::string strXml = "    <s:AttributeType" + Attribute("name", strAttribute) +
                         Attribute("rs:number", std::to_string(nNumber));
    if (strAttribute != column.m_strName) strXml += Attribute("rs:name", ToUtf8(column.m_strName));
    strXml += " rs:nullable='true' rs:writeunknown='true'>\n      <s:datatype" +
              Attribute("dt:type", type.m_strType);
    if (!type.m_strDbType.empty()) strXml += Attribute("rs:dbtype", type.m_strDbType);
    if (column.m_nSize > 0) strXml += Attribute("dt:maxLength", std::to_string(column.m_nSize));
    return strXml + "/>\n    </s:AttributeType>\n";
}

std::string ValueText(const CDbCell& cell, DBTYPE wDeclared) {
    std::string strText = CellText(cell);
    if (wDeclared != DBTYPE_DATE) return strText;
    const std::optional<double> dDays = DaysFromText(strText);
    if (!dDays) return strText;
    std::string strDate = DateText(*dDays);
    const std::size_t nBlank = strDate.find(' ');
    return nBlank == std::string::npos ? strDate + "T00:00:00" : strDate.replace(nBlank, 1, "T");
}

} // namespace

std::string RowsetXml(const CDbCursor& cursor, std::span<const std::size_t> arRows) {
    const std::vector<CDbColumn>& arColumns = cursor.Columns();
    const std::vector<std::string> arNames = AttributeNames(arColumns);
    std::string strXml(g_strBeginning);
    for (std::size_t i = 0; i < arColumns.size(); ++i)
        strXml += ColumnXml(arColumns[i], arNames[i], i + 1);
    strXml += g_strAfterColumns;
    for (const std::size_t nRow : arRows) {
        strXml += "  <z:row";
        for (std::size_t i = 0; i < arColumns.size(); ++i) {
            const CDbCell& cell = cursor.Cell(nRow, i);
            if (!std::holds_alternative<std::monostate>(cell))
                strXml += Attribute(arNames[i], ToUtf8(ValueText(cell, arColumns[i].m_wType)));
        }
        strXml += "/>\n";
    }
    return strXml.append(g_strEnd);
}
