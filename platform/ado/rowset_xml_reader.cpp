#include <expat.h>

#include <charconv>
#include <map>
#include <optional>
#include <utility>

#include "platform/ado/com_error.h"
#include "platform/ado/date_text.h"
#include "platform/ado/memory_cursor.h"
#include "platform/ado/number_text.h"
#include "platform/ado/rowset_xml.h"
#include "platform/ado/rowset_xml_types.h"
#include "platform/ado/text.h"
#include "platform/ado/variant_value.h"

namespace {

// Names come as "namespace|name".
constexpr std::string_view g_strSchema = "uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882|";
constexpr std::string_view g_strTypes = "uuid:C2F41010-65B3-11d1-A29F-00AA00C14882|";
constexpr std::string_view g_strRowset = "urn:schemas-microsoft-com:rowset|";
constexpr std::string_view g_strRow = "#RowsetSchema|row";

[[noreturn]] void RaiseUnreadable(const std::string& strWhy) {
    ADODB::RaiseAdoError(ADODB::adErrReadFile, "The file holds no rows in XML: " + strWhy);
}

CDbValue BytesValue(const std::string& strText) {
    std::vector<unsigned char> arBytes(strText.size() / 2);
    for (std::size_t i = 0; i < arBytes.size(); ++i) {
        const char* pFirst = strText.data() + 2 * i;
        if (std::from_chars(pFirst, pFirst + 2, arBytes[i], 16).ptr != pFirst + 2) return strText;
    }
    return strText.size() % 2 == 0 ? CDbValue(std::move(arBytes)) : CDbValue(strText);
}

/// The value that a text, GBK, says in a column; a text that does not suit the column's type stays a text.
CDbValue ValueOf(const std::string& strText, DBTYPE wDeclared) {
    switch (wDeclared) {
    case DBTYPE_BOOL:
        if (EqualNoCase(strText, "true")) return std::int64_t{1};
        if (EqualNoCase(strText, "false")) return std::int64_t{0};
        [[fallthrough]];
    case DBTYPE_I1:
    case DBTYPE_I2:
    case DBTYPE_I4:
    case DBTYPE_UI1:
    case DBTYPE_UI4:
    case DBTYPE_R4:
    case DBTYPE_R8:
    case DBTYPE_DECIMAL:
        if (const auto nWhole = NumberFromText<std::int64_t>(strText)) return *nWhole;
        if (const auto dReal = NumberFromText<double>(strText)) return *dReal;
        return strText;
    case DBTYPE_DATE:
        if (const auto dDays = DaysFromText(strText)) return DateText(*dDays);
        return strText;
    case DBTYPE_BYTES:
        return BytesValue(strText);
    default:
        return strText;
    }
}

/// Builds the rows while the parser runs. An error object must not pass through the parser, which is C, so it
/// is kept until the parser is back.
class CRowsetReader {
public:
    std::unique_ptr<CDbCursor> Read(std::string_view strXml) {
        const std::unique_ptr<XML_ParserStruct, CFree> pParser(XML_ParserCreateNS(nullptr, '|'));
        m_pParser = pParser.get();
        XML_SetUserData(m_pParser, this);
        XML_SetElementHandler(m_pParser, OnStart, OnEnd);
        XML_SetStartDoctypeDeclHandler(m_pParser, OnDoctype);
        const bool bLong = strXml.size() > g_nLongest;
        const auto result =
            bLong ? XML_STATUS_ERROR
                  : XML_Parse(m_pParser, strXml.data(), static_cast<int>(strXml.size()), XML_TRUE);
        if (m_pError) std::rethrow_exception(m_pError);
        if (bLong) RaiseUnreadable("it is too long.");
        if (result != XML_STATUS_OK)
            RaiseUnreadable(std::string(XML_ErrorString(XML_GetErrorCode(m_pParser))) + " in line " +
                            std::to_string(XML_GetCurrentLineNumber(m_pParser)) + ".");
        if (!m_bData) RaiseUnreadable("it has no row data.");
        StartRows();
        return std::move(m_pCursor);
    }

private:
    struct CFree {
        void operator()(XML_Parser pParser) const { XML_ParserFree(pParser); }
    };
    using CAttributes = std::map<std::string, std::string, std::less<>>; // as the parser gives them, UTF-8
    static constexpr std::size_t g_nLongest = 1U << 30U;

    template <class Call>
    void Guard(const Call& call) {
        try {
            if (!m_pError) call();
        } catch (...) {
            m_pError = std::current_exception();
            XML_StopParser(m_pParser, XML_FALSE);
        }
    }

    static void XMLCALL OnStart(void* pSelf, const XML_Char* pszName, const XML_Char** ppszAttributes) {
        auto* pReader = static_cast<CRowsetReader*>(pSelf);
        pReader->Guard([&] {
            CAttributes attributes;
            for (; *ppszAttributes; ppszAttributes += 2)
                attributes[ppszAttributes[0]] = ppszAttributes[1];
            pReader->Start(pszName, attributes);
        });
    }
    static void XMLCALL OnEnd(void* pSelf, const XML_Char* pszName) {
        auto* pReader = static_cast<CRowsetReader*>(pSelf);
        pReader->Guard([&] { pReader->End(pszName); });
    }
    /// Rows need no document type, and entities of one could fill the memory.
    static void XMLCALL OnDoctype(void* pSelf, const XML_Char*, const XML_Char*, const XML_Char*, int) {
        static_cast<CRowsetReader*>(pSelf)->Guard([] { RaiseUnreadable("it has a document type."); });
    }

    static std::string Value(const CAttributes& attributes, std::string_view strName) {
        const auto found = attributes.find(strName);
        return found == attributes.end() ? std::string() : found->second;
    }
    static std::string In(std::string_view strNamespace, std::string_view strName) {
        return std::string(strNamespace).append(strName);
    }

    void Start(std::string_view strName, const CAttributes& attributes) {
        if (strName == In(g_strSchema, "AttributeType") && !m_pCursor) {
            const std::string strAttribute = Value(attributes, "name");
            const std::string strOwnName = Value(attributes, In(g_strRowset, "name"));
            m_arAttributes.push_back(strAttribute);
            m_arColumns.push_back(
                {GbkFromUtf8OrRaise(strOwnName.empty() ? strAttribute : UnescapedFromXml(strOwnName)),
                 TypeOfXml(Value(attributes, In(g_strTypes, "type")),
                           Value(attributes, In(g_strRowset, "dbtype")))});
        } else if (strName == In(g_strSchema, "datatype") && !m_arColumns.empty() && !m_pCursor) {
            CDbColumn& column = m_arColumns.back();
            column.m_wType = TypeOfXml(Value(attributes, In(g_strTypes, "type")),
                                       Value(attributes, In(g_strRowset, "dbtype")));
            column.m_nSize =
                NumberFromText<std::size_t>(Value(attributes, In(g_strTypes, "maxLength"))).value_or(0);
        } else if (strName == In(g_strRowset, "data")) {
            m_bData = true;
        } else if (strName == In(g_strRowset, "update") || strName == In(g_strRowset, "delete")) {
            RaiseUnreadable("it has changes that are not stored yet.");
        } else if (strName == g_strRow && m_bData) {
            AddRow(attributes);
        }
    }

    void End(std::string_view strName) {
        if (strName == In(g_strRowset, "data")) StartRows();
    }

    /// The schema is complete.
    void StartRows() {
        if (m_pCursor) return;
        if (m_arColumns.empty()) RaiseUnreadable("it has no columns.");
        m_pCursor = std::make_unique<CMemoryCursor>(m_arColumns);
    }

    void AddRow(const CAttributes& attributes) {
        StartRows();
        std::vector<CDbChange> arRow;
        for (std::size_t i = 0; i < m_arColumns.size(); ++i) {
            const auto found = attributes.find(m_arAttributes[i]);
            if (found == attributes.end()) continue;
            const std::string strText = GbkFromUtf8OrRaise(UnescapedFromXml(found->second));
            arRow.push_back({i, ValueOf(strText, m_arColumns[i].m_wType)});
        }
        m_pCursor->InsertRow(arRow);
    }

    XML_Parser m_pParser = nullptr;
    std::exception_ptr m_pError;
    std::vector<std::string> m_arAttributes;
    std::vector<CDbColumn> m_arColumns;
    std::unique_ptr<CMemoryCursor> m_pCursor;
    bool m_bData = false;
};

} // namespace

std::unique_ptr<CDbCursor> ReadRowsetXml(std::string_view strXml) {
    return CRowsetReader().Read(strXml);
}
