#include "host/datamanager/window/import_tables.h"

#include <QtCore/QFileInfo>

#include <map>

namespace {

QString FileName(const std::string& strFile) {
    return QFileInfo(QString::fromStdString(strFile)).fileName();
}

/// Text of a file, which may hold any bytes.
QString FileText(const std::string& strText) {
    return QString::fromUtf8(strText);
}

} // namespace

std::vector<CTextColumn> RemarkColumns() {
    return {{u"File"_qs, {}}, {u"Line"_qs, {}, true}, {u"Column"_qs, {}}, {u"Reason"_qs, {}}};
}

std::vector<CTextRow> RemarkRows(std::span<const CImportRemark> arRemarks) {
    std::vector<CTextRow> arRows;
    for (const CImportRemark& remark : arRemarks) {
        const QString strReason =
            (remark.m_bRefusal ? u""_qs : u"warning: "_qs) + FileText(remark.m_strReason);
        arRows.push_back({{FileName(remark.m_strFile), QString::number(remark.m_nLine),
                           FileText(remark.m_strColumn), strReason},
                          remark.m_bRefusal ? RowMark::Wrong : RowMark::None,
                          FileText(RemarkLine(remark))});
    }
    return arRows;
}

std::vector<CTextColumn> PreviewColumns(const CFilePreview& preview) {
    std::vector<CTextColumn> arColumns = {{u"Line"_qs, {}, true}};
    if (preview.m_arRecords.empty()) return arColumns;
    for (const std::string& strField : preview.m_arRecords.front().m_arFields)
        arColumns.push_back({FileText(strField), {}});
    return arColumns;
}

std::vector<CTextRow> PreviewRows(const CFilePreview& preview, std::span<const CImportRemark> arRemarks) {
    std::map<std::size_t, QString> mapRefused;
    for (const CImportRemark& remark : arRemarks)
        if (remark.m_bRefusal && remark.m_strFile == preview.m_strFile) {
            QString& strHint = mapRefused[remark.m_nLine];
            if (!strHint.isEmpty()) strHint += u'\n';
            strHint += FileText(remark.m_strColumn + ": " + remark.m_strReason);
        }
    std::vector<CTextRow> arRows;
    for (std::size_t i = 1; i < preview.m_arRecords.size(); ++i) {
        const CCsvRecord& record = preview.m_arRecords[i];
        CTextRow row{{QString::number(record.m_nLine)}};
        for (const std::string& strField : record.m_arFields)
            row.m_arTexts.append(FileText(strField));
        if (const auto it = mapRefused.find(record.m_nLine); it != mapRefused.end()) {
            row.m_mark = RowMark::Wrong;
            row.m_strHint = it->second;
        }
        arRows.push_back(std::move(row));
    }
    return arRows;
}

int PreviewRowOf(const CFilePreview& preview, std::size_t nLine) {
    for (std::size_t i = 1; i < preview.m_arRecords.size(); ++i)
        if (preview.m_arRecords[i].m_nLine == nLine) return static_cast<int>(i) - 1;
    return -1;
}

QString CountsLine(const CImportCounts& counts) {
    return QString::fromStdString(CountsText(counts)).trimmed().replace(u"\n"_qs, u", "_qs);
}
