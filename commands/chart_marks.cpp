#include "commands/chart_marks.h"

#include <algorithm>
#include <array>

#include "commands/text_lists.h"
#include "platform/windows/profile.h"

namespace {

constexpr char g_cSeparator = '@';
constexpr char g_cMark = '*';

bool IsMarked(const CString& entry) {
    return !entry.IsEmpty() && entry[0] == g_cMark;
}

CString EntryText(const CListBox& list, int index) {
    CString text;
    list.GetText(index, text);
    return text;
}

CStringArray ReadKey(const char* section, const char* key, const char* file) {
    std::array<char, 520> text{};
    GetPrivateProfileStringA(section, key, "", text.data(), static_cast<DWORD>(text.size()), file);
    CStringArray marks;
    SplitText(text.data(), g_cSeparator, marks);
    return marks;
}

std::vector<int> SelectedEntries(const CListBox& list) {
    std::vector<int> indices;
    for (int i = 0; i < list.GetCount(); ++i)
        if (list.GetSel(i) > 0) indices.push_back(i);
    return indices;
}

// The entry loses its selection with this.
void ReplaceEntry(CListBox& list, int index, const CString& text) {
    list.DeleteString(index);
    list.InsertString(index, text);
}

} // namespace

CString WithoutMark(const CString& entry) {
    return IsMarked(entry) ? entry.Mid(1) : entry;
}

void WriteMarks(const char* section, const char* key, const CStringArray& marks, const char* file) {
    WritePrivateProfileStringA(section, key, JoinTexts(marks, g_cSeparator), file);
}

void LoadMarks(const char* section, const char* key, CWnd* pList, const char* file) {
    auto* pBox = dynamic_cast<CListBox*>(pList);
    if (!pBox) return;
    const CStringArray marks = ReadKey(section, key, file);
    if (marks.IsEmpty()) return;
    CStringArray found;
    for (int i = 0; i < pBox->GetCount(); ++i) {
        const CString entry = EntryText(*pBox, i);
        if (FindText(marks, entry) >= 0) ReplaceEntry(*pBox, i, g_cMark + entry);
        if (IsMarked(EntryText(*pBox, i))) found.Add(WithoutMark(EntryText(*pBox, i)));
    }
    WriteMarks(section, key, found, file);
}

void SaveMarks(const char* section, const char* key, const CWnd* pList, const char* file) {
    const auto* pBox = dynamic_cast<const CListBox*>(pList);
    if (!pBox) return;
    CStringArray marks = ReadKey(section, key, file);
    for (const int index : SelectedEntries(*pBox))
        FindOrAdd(marks, WithoutMark(EntryText(*pBox, index)));
    WriteMarks(section, key, marks, file);
}

void ClearMarks(const char* section, const char* key, CWnd* pList, const char* file) {
    auto* pBox = dynamic_cast<CListBox*>(pList);
    if (!pBox) return;
    CStringArray marks = ReadKey(section, key, file);
    for (const int index : SelectedEntries(*pBox)) {
        const CString plain = WithoutMark(EntryText(*pBox, index));
        const int place = FindText(marks, plain);
        if (place < 0) continue;
        ReplaceEntry(*pBox, index, plain);
        marks.RemoveAt(place);
    }
    WriteMarks(section, key, marks, file);
}

int AllDone(const CWnd* pList) {
    const auto* pBox = dynamic_cast<const CListBox*>(pList);
    if (!pBox) return 0;
    for (int i = 0; i < pBox->GetCount(); ++i)
        if (pBox->GetSel(i) <= 0 && !IsMarked(EntryText(*pBox, i))) return 0;
    return 1;
}

int AnyMarked(const CWnd* pList) {
    const auto* pBox = dynamic_cast<const CListBox*>(pList);
    if (!pBox) return 0;
    for (int i = 0; i < pBox->GetCount(); ++i)
        if (IsMarked(EntryText(*pBox, i))) return 1;
    return 0;
}
