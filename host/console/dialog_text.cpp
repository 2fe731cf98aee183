#include "host/console/dialog_text.h"

#include <array>
#include <cstdio>

#include "platform/mfc/property_sheet.h"
#include "platform/windows/code_page.h"

namespace {

CString CaptionOf(const CWnd& window) {
    CString caption;
    window.GetWindowText(caption);
    return caption;
}

std::string DateText(std::chrono::year_month_day date) {
    std::array<char, 32> text{};
    (void)std::snprintf(text.data(), text.size(), "\"%04d-%02u-%02u\"", static_cast<int>(date.year()),
                        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return text.data();
}

std::string ValueOf(const CControl& control) {
    switch (control.m_kind) {
    case CControlKind::List:
    case CControlKind::MultiList:
    case CControlKind::Combo:
        return std::to_string(control.m_arEntries.size());
    case CControlKind::Check:
    case CControlKind::Radio:
        return std::to_string(control.m_nCheck);
    case CControlKind::Edit:
        return QuotedText(control.m_strText);
    case CControlKind::Date:
        return DateText(control.m_date);
    default:
        return "\"\"";
    }
}

void AddControl(const CControl& control, std::vector<std::string>* lines) {
    const bool bEdit = control.m_kind == CControlKind::Edit; // its text is its value
    lines->push_back(std::to_string(control.m_nId) + " " + KindName(control.m_kind) +
                     (control.m_bEnabled ? " enabled " : " disabled ") +
                     QuotedText(bEdit ? CString() : control.m_strText) + " " + ValueOf(control));
    for (const CListEntry& entry : control.m_arEntries)
        lines->push_back(std::string(entry.m_bSelected ? "  > " : "    ") + QuotedText(entry.m_strText));
}

} // namespace

const char* KindName(CControlKind kind) {
    switch (kind) {
    case CControlKind::List:
        return "list";
    case CControlKind::MultiList:
        return "multilist";
    case CControlKind::Combo:
        return "combo";
    case CControlKind::Edit:
        return "edit";
    case CControlKind::Check:
        return "check";
    case CControlKind::Radio:
        return "radio";
    case CControlKind::Button:
        return "button";
    case CControlKind::Date:
        return "date";
    case CControlKind::Label:
        return "label";
    case CControlKind::Dialog:
        break;
    }
    return "dialog";
}

std::string QuotedText(const CString& text) {
    std::string quoted = "\"";
    for (const char c : ToUtf8(text.View())) {
        if (c == '\r') continue;
        if (c == '\n') {
            quoted += "\\n";
        } else {
            quoted.append(c == '"' ? 2 : 1, c);
        }
    }
    return quoted + "\"";
}

std::vector<CWnd*> VisibleItems(const CModalWindow& window) {
    std::vector<CWnd*> items = window.GetItems();
    std::erase_if(items, [](const CWnd* pItem) { return !pItem->IsWindowVisible(); });
    return items;
}

std::string NamesOfItems(const CModalWindow& window) {
    std::string names;
    for (const CWnd* pItem : VisibleItems(window)) {
        names += (names.empty() ? "" : ", ") + std::to_string(pItem->GetDlgCtrlID()) + " " +
                 KindName(pItem->GetControl()->m_kind);
        if (!pItem->IsWindowEnabled()) names += " disabled";
    }
    return names;
}

std::vector<std::string> DialogLines(const CModalWindow& window) {
    std::vector<std::string> lines{"dialog " + std::to_string(window.GetNumber()) + " " +
                                   QuotedText(CaptionOf(window))};
    if (const auto* pSheet = dynamic_cast<const CPropertySheet*>(&window))
        lines.push_back("page " + QuotedText(CaptionOf(*pSheet->GetActivePage())));
    for (const CWnd* pItem : VisibleItems(window))
        AddControl(*pItem->GetControl(), &lines);
    return lines;
}
