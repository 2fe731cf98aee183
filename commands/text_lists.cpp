#include "commands/text_lists.h"

void SplitText(const CString& text, char separator, CStringArray& parts) {
    parts.RemoveAll();
    CString rest = text;
    rest.Trim();
    if (rest.IsEmpty()) return;
    for (int at = rest.Find(separator); at >= 0; at = rest.Find(separator)) {
        CString part = rest.Left(at);
        parts.Add(part.Trim());
        rest = rest.Mid(at + 1);
    }
    parts.Add(rest);
}

CString JoinTexts(const CStringArray& texts, char separator) {
    CString joined;
    for (int i = 0; i < texts.GetSize(); ++i) {
        if (i > 0) joined += separator;
        joined += texts[i];
    }
    return joined;
}

int FindText(const CStringArray& texts, const CString& text) {
    for (int i = 0; i < texts.GetSize(); ++i)
        if (texts[i] == text) return i;
    return -1;
}

int FindOrAdd(CStringArray& texts, const CString& text, bool* pbAdded) {
    const int place = FindText(texts, text);
    if (pbAdded) *pbAdded = place < 0;
    return place < 0 ? texts.Add(text) : place;
}
