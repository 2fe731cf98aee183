#include "host/files/dxf_xdata.h"

#include "host/files/dxf_output.h"
#include "platform/acad/result_buffer.h"

namespace {

constexpr int g_nApp = 1001;

/// Makes a chain of buffers, the first to the last.
class CChainMaker {
public:
    resbuf& Append(int nCode) {
        *m_ppNext = acutNewRb(nCode);
        resbuf& buffer = **m_ppNext;
        m_ppNext = &buffer.rbnext;
        return buffer;
    }
    resbuf* First() const { return m_pFirst; }

private:
    resbuf* m_pFirst = nullptr;
    resbuf** m_ppNext = &m_pFirst;
};

/// Fills a buffer of the tag's code. The other two coordinates of a point follow in tags of their own, and
/// the last one taken is returned.
const CDxfTag* Fill(resbuf& buffer, const CDxfTag* pTag, const CDxfTag* pEnd, const CDrawingText& encoding) {
    switch (ResbufKind(buffer.restype)) {
    case CResbufKind::Text:
        buffer.resval.rstring = acutNewString(encoding.Decode(pTag->Text()).c_str());
        break;
    case CResbufKind::Real:
        buffer.resval.rreal = std::get<double>(pTag->m_value);
        break;
    case CResbufKind::Short:
        buffer.resval.rint = static_cast<short>(std::get<std::int64_t>(pTag->m_value));
        break;
    case CResbufKind::Long:
        buffer.resval.rlong = static_cast<Adesk::Int32>(std::get<std::int64_t>(pTag->m_value));
        break;
    case CResbufKind::Point:
        buffer.resval.rpoint[0] = std::get<double>(pTag->m_value);
        for (int i = 1; i < 3 && pTag + 1 != pEnd && pTag[1].m_nCode == buffer.restype + 10 * i; ++i)
            buffer.resval.rpoint[i] = std::get<double>((++pTag)->m_value);
        break;
    case CResbufKind::None:
        break;
    }
    return pTag;
}

struct CWriteItem {
    CDxfWriter& m_writer;
    int m_nCode;
    void operator()(const std::wstring& text) const { m_writer.Text(m_nCode, text); }
    void operator()(double value) const { m_writer.Real(m_nCode, value); }
    void operator()(const AcGePoint3d& point) const { m_writer.Point(m_nCode, point); }
    void operator()(Adesk::Int32 value) const { m_writer.Whole(m_nCode, value); }
};

} // namespace

resbuf* ReadDxfXData(const CDxfRecord& record, CDxfDrawing& drawing) {
    CChainMaker chain;
    const CDxfTag* const pEnd = record.m_arXData.data() + record.m_arXData.size();
    for (const CDxfTag* pTag = record.m_arXData.data(); pTag != pEnd; ++pTag) {
        const bool bApp = pTag->m_nCode == g_nApp;
        if (ResbufKind(pTag->m_nCode) == CResbufKind::None || (!bApp && !chain.First())) {
            drawing.Lose("extended data");
            continue;
        }
        if (bApp) drawing.App(record.m_pEncoding->Decode(pTag->Text()));
        pTag = Fill(chain.Append(pTag->m_nCode), pTag, pEnd, *record.m_pEncoding);
    }
    return chain.First();
}

void WriteDxfXDataOf(CDxfWriter& writer, std::wstring_view strApp, const std::vector<CXDataItem>& arItems) {
    writer.Text(g_nApp, strApp);
    for (const CXDataItem& item : arItems)
        std::visit(CWriteItem{writer, item.m_nCode}, item.m_value);
}

void WriteDxfXData(CDxfWriter& writer, const AcDbObject& object) {
    for (const CXDataOfApp& app : object.XData().Apps())
        WriteDxfXDataOf(writer, DxfName(app.m_idApp), app.m_arItems);
}
