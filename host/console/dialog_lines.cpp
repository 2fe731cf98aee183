#include "host/console/dialog_lines.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "host/console/dialog_text.h"
#include "host/console/words.h"
#include "platform/mfc/property_sheet.h"
#include "platform/mfc/time.h"
#include "platform/mfc/user_actions.h"
#include "platform/windows/code_page.h"

namespace {

using CWords = std::vector<CWord>;

CString GbkOf(const std::string& strText) {
    std::string gbk, refused;
    if (!Utf8ToGbk(strText, &gbk, &refused))
        throw CBadDialogLine("the character " + refused + " is not in the code page");
    return {gbk};
}

std::optional<unsigned> NumberOf(const std::string& strText) {
    unsigned number = 0;
    const char* end = strText.data() + strText.size();
    const auto [stop, error] = std::from_chars(strText.data(), end, number);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number;
}

// The control, which the user can reach.
CWnd& Usable(const CModalWindow& window, const std::string& strNumber) {
    const auto number = NumberOf(strNumber);
    std::string what = "no control " + strNumber;
    for (CWnd* pItem : number ? window.GetItems() : std::vector<CWnd*>()) {
        if (pItem->GetDlgCtrlID() != *number) continue;
        if (pItem->IsWindowVisible() && pItem->IsWindowEnabled()) return *pItem;
        what = "control " + strNumber + (pItem->IsWindowVisible() ? " is disabled" : " is hidden");
        break;
    }
    throw CBadDialogLine(what + "; controls here: " + NamesOfItems(window));
}

std::string NameOf(const CWnd& control) {
    return std::string(KindName(control.GetControl()->m_kind)) + " " + std::to_string(control.GetDlgCtrlID());
}

CWnd& UsableOf(const CModalWindow& window, const CWord& number, std::initializer_list<CControlKind> kinds) {
    CWnd& control = Usable(window, number.m_strText);
    if (std::find(kinds.begin(), kinds.end(), control.GetControl()->m_kind) != kinds.end()) return control;
    std::string wanted;
    for (const CControlKind kind : kinds)
        wanted += (wanted.empty() ? "" : " or ") + std::string(KindName(kind));
    throw CBadDialogLine(NameOf(control) + " is no " + wanted + "; controls here: " + NamesOfItems(window));
}

void NeedWords(const CWords& words, size_t least, size_t most, const char* usage) {
    if (words.size() < least || words.size() > most) throw CBadDialogLine(std::string("usage: ") + usage);
}

// A mark before an entry need not be given.
bool IsEntry(const CListEntry& entry, const CString& text) {
    const CString& own = entry.m_strText;
    return own == text || (!own.IsEmpty() && own[0] == '*' && own.Mid(1) == text);
}

int EntryOf(const CWnd& list, const CString& text) {
    int found = -1;
    const auto& entries = list.GetControl()->m_arEntries;
    for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
        if (!IsEntry(entries[i], text)) continue;
        if (found >= 0) throw CBadDialogLine(NameOf(list) + " has more than one entry " + QuotedText(text));
        found = i;
    }
    if (found < 0) throw CBadDialogLine(NameOf(list) + " has no entry " + QuotedText(text));
    return found;
}

void NeedOneEntry(const CWnd& list, size_t count) {
    if (count > 1 && list.GetControl()->m_kind != CControlKind::MultiList)
        throw CBadDialogLine(NameOf(list) + " takes one entry");
}

void SelectAll(const CModalWindow& window, CWnd& list) {
    const auto& entries = list.GetControl()->m_arEntries;
    NeedOneEntry(list, entries.size());
    for (size_t i = 0; i < entries.size() && window.ContinueModal(); ++i)
        UserSelect(list, static_cast<int>(i), i > 0);
}

void SelectNone(const CModalWindow& window, CWnd& list) {
    const auto& entries = list.GetControl()->m_arEntries;
    for (size_t i = 0; i < entries.size() && window.ContinueModal(); ++i)
        if (entries[i].m_bSelected) UserDeselect(list, static_cast<int>(i));
}

void SelectTexts(const CModalWindow& window, CWnd& list, const CWords& words) {
    std::vector<CString> texts;
    for (size_t i = 2; i < words.size(); ++i) {
        const bool bKeyword =
            !words[i].m_bQuoted && (words[i].m_strText == "all" || words[i].m_strText == "none");
        if (bKeyword) throw CBadDialogLine(words[i].m_strText + " stands alone, or in quotes as a text");
        texts.push_back(GbkOf(words[i].m_strText));
    }
    NeedOneEntry(list, texts.size());
    for (const CString& text : texts)
        EntryOf(list, text); // all or nothing
    for (size_t i = 0; i < texts.size() && window.ContinueModal(); ++i)
        UserSelect(list, EntryOf(list, texts[i]), i > 0);
}

void Select(CModalWindow& window, const CWords& words) {
    NeedWords(words, 3, words.size(), "select N TEXT...");
    CWnd& list =
        UsableOf(window, words[1], {CControlKind::List, CControlKind::MultiList, CControlKind::Combo});
    const bool bPlain = words.size() == 3 && !words[2].m_bQuoted;
    if (bPlain && words[2].m_strText == "all") {
        SelectAll(window, list);
    } else if (bPlain && words[2].m_strText == "none") {
        SelectNone(window, list);
    } else {
        SelectTexts(window, list, words);
    }
}

void DoubleClick(CModalWindow& window, const CWords& words) {
    NeedWords(words, 3, 3, "dblclick N TEXT");
    CWnd& list = UsableOf(window, words[1], {CControlKind::List, CControlKind::MultiList});
    UserDoubleClick(list, EntryOf(list, GbkOf(words[2].m_strText)));
}

void Check(CModalWindow& window, const CWords& words) {
    NeedWords(words, 2, 2, "check N");
    CWnd& control = UsableOf(window, words[1], {CControlKind::Check, CControlKind::Radio});
    if (control.GetControl()->m_nCheck == 0) UserClick(control);
}

void Uncheck(CModalWindow& window, const CWords& words) {
    NeedWords(words, 2, 2, "uncheck N");
    CWnd& control = UsableOf(window, words[1], {CControlKind::Check});
    if (control.GetControl()->m_nCheck != 0) UserClick(control);
}

std::chrono::year_month_day DateOf(const std::string& strText) {
    const bool bForm = strText.size() == 10 && strText[4] == '-' && strText[7] == '-';
    const auto year = bForm ? NumberOf(strText.substr(0, 4)) : std::nullopt;
    const auto month = bForm ? NumberOf(strText.substr(5, 2)) : std::nullopt;
    const auto day = bForm ? NumberOf(strText.substr(8, 2)) : std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(year.value_or(0))),
                                           std::chrono::month(month.value_or(0)),
                                           std::chrono::day(day.value_or(0))};
    if (!year || !date.ok()) throw CBadDialogLine(strText + " is no date like 2024-03-09");
    if (static_cast<int>(date.year()) < CTime::FIRST_YEAR)
        throw CBadDialogLine(strText + " is before " + std::to_string(CTime::FIRST_YEAR));
    return date;
}

void Set(CModalWindow& window, const CWords& words) {
    NeedWords(words, 3, 3, "set N TEXT");
    CWnd& control = UsableOf(window, words[1], {CControlKind::Edit, CControlKind::Date});
    if (control.GetControl()->m_kind == CControlKind::Date)
        return UserSetDate(control, DateOf(words[2].m_strText));
    if (control.GetControl()->m_bReadOnly) throw CBadDialogLine(NameOf(control) + " is read-only");
    UserSetText(control, GbkOf(words[2].m_strText));
}

void Click(CModalWindow& window, const CWords& words) {
    NeedWords(words, 2, 2, "click N");
    UserClick(UsableOf(window, words[1], {CControlKind::Button}));
}

void PressOk(CModalWindow& window, const CWords& words) {
    NeedWords(words, 0, 1, "ok");
    UserClick(Usable(window, std::to_string(ID_OK)));
}

void PressCancel(CModalWindow& window, const CWords& words) {
    NeedWords(words, 1, 1, "cancel");
    UserClick(Usable(window, std::to_string(ID_CANCEL)));
}

void ShowPage(CModalWindow& window, const CWords& words) {
    NeedWords(words, 2, 2, "page TEXT");
    auto* pSheet = dynamic_cast<CPropertySheet*>(&window);
    if (!pSheet) throw CBadDialogLine("this dialog has no pages");
    const CString caption = GbkOf(words[1].m_strText);
    std::string pages;
    for (int i = 0; i < pSheet->GetPageCount(); ++i) {
        CPropertyPage& page = *pSheet->GetPage(i);
        if (pSheet->GetPageCaption(page) == caption) return (void)pSheet->SetActivePage(&page);
        pages += (i > 0 ? ", " : "") + QuotedText(pSheet->GetPageCaption(page));
    }
    throw CBadDialogLine("no page " + QuotedText(caption) + "; pages here: " + pages);
}

struct CVerb {
    const char* m_name;
    void (*m_pRun)(CModalWindow& window, const CWords& words);
};

constexpr CVerb g_arVerbs[] = {
    {"page", ShowPage}, {"select", Select},   {"dblclick", DoubleClick},
    {"check", Check},   {"uncheck", Uncheck}, {"set", Set},
    {"click", Click},   {"ok", PressOk},      {"cancel", PressCancel},
};

} // namespace

std::vector<std::string> RunDialogLine(CModalWindow& window, const std::string& strLine) {
    CWords words;
    std::string reason;
    if (!SplitWords(strLine, &words, &reason)) throw CBadDialogLine(reason);
    if (words.empty()) {
        PressOk(window, words);
        return {};
    }
    const std::string strVerb = words[0].m_bQuoted ? "" : words[0].m_strText;
    if (strVerb == "show") {
        NeedWords(words, 1, 1, "show");
        return DialogLines(window);
    }
    for (const CVerb& verb : g_arVerbs) {
        if (strVerb != verb.m_name) continue;
        verb.m_pRun(window, words);
        return {};
    }
    throw CBadDialogLine("no dialog line " + words[0].m_strText + "; controls here: " + NamesOfItems(window));
}
