#include "commands/br_editor_reactor.h"

#include "chart/chart_entity.h"
#include "commands/brcf_command.h"
#include "commands/session_flags.h"
#include "commands/text_conversion.h"
#include "data/show_message.h"

#include <algorithm>
#include <array>
#include <string_view>

CEdBRReactor* g_pEdReactor = nullptr;
Adesk::Int32 g_bQuitting = 0;

namespace {
constexpr std::string_view g_strQuit = "QUIT";
/// Commands that leave the drawing or begin new charts; those of the suite's other modules among them.
constexpr std::array<std::string_view, 12> g_arWatched = {
    "OPEN", "NEW", "QUIT", "QNEW", "MVGEN", "MVEDIT", "PLGEN", "PLEDIT", "NWRPT", "SWRPT", "BREN", "BROPEN"};

/// A change of an envelope line would be lost: lets the user store it first.
void AskToStore() {
    switch (ShowMessage("三轴剪切图中有关数据已改变,是否入库?", MB_YESNO)) {
    case IDYES:
        BrcfCommand();
        break;
    case IDNO:
        g_bChartDataChanged = 0;
        break;
    default: // no box could be shown
        break;
    }
}
} // namespace

void CEdBRReactor::commandWillStart(const ACHAR* pName) {
    const std::string strName = ToNarrow(pName);
    g_bQuitting = 0;
    if (g_bChartDataChanged && std::ranges::count(g_arWatched, strName)) AskToStore();
    if (strName == g_strQuit) g_bQuitting = 1;
}
