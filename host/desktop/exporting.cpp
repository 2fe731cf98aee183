#include "host/desktop/exporting.h"

#include "host/desktop/question_dialogs.h"
#include "host/files/drawing_failure.h"
#include "host/files/drawing_format.h"
#include "host/files/drawing_storage.h"

std::string AskExportPath(QWidget* pParent) {
    return AskFileToSave("Export", ".pdf .svg .png .dxf", pParent);
}

bool IsDxfPath(const std::string& strPath) {
    return FormatOfEnding(strPath) == CDrawingFormat::Dxf;
}

std::string ExportDxf(const AcDbDatabase& drawing, const std::string& strPath) {
    try {
        const CWrittenDrawing written = WriteDrawing(drawing, CDrawingFormat::Dxf);
        StoreDrawing(strPath, written.m_strBytes);
        return written.m_losses.empty()
                   ? "exported to " + strPath
                   : strPath + " does not hold of the drawing: " + LossesText(written.m_losses);
    } catch (const CDrawingFailure& failure) {
        return strPath + " cannot be written: " + failure.what();
    }
}

std::string QuotedWord(const std::string& strText) {
    std::string strWord = "\"";
    for (const char c : strText)
        strWord += c == '"' ? std::string("\"\"") : std::string(1, c);
    return strWord + "\"";
}
