#include "drawing/field_filing.h"

#include "platform/acad/result_buffer.h"
#include "platform/windows/code_page.h"

namespace FieldFiling {

void CFieldWriter::operator()(const CString& value, CFiling) const {
    const std::string_view text = value.View();
    m_pFiler->writeString(
        WideFromGbk(text.substr(0, GbkSafeLength(value.GetString(), m_nLongestText))).c_str());
}

void CFieldWriter::operator()(const AcArray<double>& values, CFiling filing) const {
    if (filing == CFiling::Appended) return ShortList(values);
    m_pFiler->writeInt32(values.length());
    for (const double value : values)
        m_pFiler->writeDouble(value);
}

void CFieldWriter::ShortList(const AcArray<double>& values) const {
    // The count is what the record has room for; a longer list turns it negative and leaves its values out.
    const auto nCount = static_cast<Adesk::Int16>(values.length());
    m_pFiler->writeInt16(nCount);
    for (Adesk::Int16 i = 0; i < nCount; ++i)
        m_pFiler->writeDouble(values[i]);
}

void CFieldWriter::operator()(const CArray<AcArray<double>, AcArray<double>>& lists, CFiling) const {
    const auto nCount = static_cast<Adesk::Int16>(lists.GetSize());
    m_pFiler->writeInt16(nCount);
    for (Adesk::Int16 i = 0; i < nCount; ++i)
        ShortList(lists.GetAt(i));
}

void CFieldWriter::operator()(const CStringArray& texts, CFiling filing) const {
    const auto nCount = static_cast<Adesk::Int32>(texts.GetSize());
    m_pFiler->writeInt32(nCount);
    for (Adesk::Int32 i = 0; i < nCount; ++i)
        (*this)(texts.GetAt(i), filing);
}

void CFieldReader::operator()(CString& field, CFiling) const {
    ACHAR* text = nullptr;
    m_pFiler->readString(&text);
    field = GbkFromWide(text).c_str();
    acutDelString(text);
}

void CFieldReader::Append(AcArray<double>& values, Adesk::Int32 nCount) const {
    for (Adesk::Int32 i = 0; i < nCount; ++i) {
        double value = 0.0;
        if (m_pFiler->readDouble(&value) != Acad::eOk) return;
        values.append(value);
    }
}

void CFieldReader::operator()(AcArray<double>& values, CFiling filing) const {
    if (filing == CFiling::Appended) {
        Adesk::Int16 nCount = 0;
        m_pFiler->readInt16(&nCount);
        return Append(values, nCount);
    }
    values.setLogicalLength(0);
    Adesk::Int32 nCount = 0;
    m_pFiler->readInt32(&nCount);
    Append(values, nCount);
}

void CFieldReader::operator()(CArray<AcArray<double>, AcArray<double>>& lists, CFiling) const {
    lists.RemoveAll();
    Adesk::Int16 nLists = 0;
    m_pFiler->readInt16(&nLists);
    for (Adesk::Int16 i = 0; i < nLists; ++i) {
        Adesk::Int16 nCount = 0;
        m_pFiler->readInt16(&nCount);
        if (!Gives()) return;
        AcArray<double> list;
        Append(list, nCount);
        lists.Add(list);
    }
}

void CFieldReader::operator()(CStringArray& texts, CFiling filing) const {
    texts.RemoveAll();
    Adesk::Int32 nCount = 0;
    m_pFiler->readInt32(&nCount);
    for (Adesk::Int32 i = 0; i < nCount && Gives(); ++i) {
        CString text;
        (*this)(text, filing);
        if (Gives()) texts.Add(text);
    }
}

} // namespace FieldFiling
