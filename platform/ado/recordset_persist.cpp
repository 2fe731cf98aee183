#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/ado/adodb_recordset.h"
#include "platform/ado/rowset_xml.h"
#include "platform/ado/variant_value.h"
#include "platform/windows/code_page.h"
#include "platform/windows/file_bytes.h"
#include "platform/windows/path.h"

using namespace ADODB;

void Recordset::OpenFile(const std::wstring& strPath) {
    const std::string strGbk = GbkOrRaise(strPath);
    OpenRows([strGbk] {
        std::string strUtf8;
        std::string strXml;
        if (!ResolvePath("", strGbk, &strUtf8) || !ReadFileWhole(strUtf8, &strXml))
            RaiseAdoError(adErrReadFile, "The file " + strGbk + " cannot be read.");
        return ReadRowsetXml(strXml);
    });
    m_strFile = strPath;
}

void Recordset::Save(const std::wstring& strPath, PersistFormatEnum format) {
    LeaveRow();
    if (format != adPersistXML) RaiseAdoError(adErrFeatureNotAvailable, "Rows are saved as XML only.");
    const std::wstring& strTarget = strPath.empty() ? m_strFile : strPath;
    if (strTarget.empty()) RaiseAdoError(adErrInvalidArgument, "No file is named.");
    const std::string strGbk = GbkOrRaise(strTarget);
    std::string strUtf8;
    if (ResolvePath("", strGbk, &strUtf8) && strTarget != m_strFile)
        RaiseAdoError(adErrFileExists, "The file " + strGbk + " exists already.");
    std::vector<std::size_t> arRows;
    for (long i = 0; i < m_view.Count(); ++i)
        arRows.push_back(m_view.RowAt(i));
    if (!WriteFileWhole(strUtf8, RowsetXml(m_pRows->Cursor(), arRows)))
        RaiseAdoError(adErrWriteFile,
                      "The file " + strGbk + " cannot be written: " + std::strerror(errno) + ".");
    m_strFile = strTarget;
    if (m_view.Count() > 0) ArriveAt(0);
}

std::wstring Recordset::GetString(StringFormatEnum /*format*/, long nRows, const std::wstring& strColumnEnd,
                                  const std::wstring& strRowEnd, const std::wstring& strNull) {
    LeaveRow();
    if (nRows < adGetRowsRest) RaiseAdoError(adErrInvalidArgument);
    (void)RequireRow();
    std::wstring strText;
    for (long n = 0; !m_view.IsEOF() && (nRows < 0 || n < nRows); ++n) {
        const std::size_t nRow = RequireRow();
        const CDbCursor& cursor = m_pRows->Cursor();
        for (std::size_t i = 0; i < cursor.Columns().size(); ++i) {
            const CVariant value = VariantOfCell(cursor.Cell(nRow, i), cursor.Columns()[i].m_wType);
            strText += (i > 0 ? strColumnEnd : L"") + (value.IsNull() ? strNull : VariantText(value));
        }
        strText += strRowEnd;
        m_view.MoveBy(1);
        ArriveAt(m_view.Place());
    }
    return strText;
}
