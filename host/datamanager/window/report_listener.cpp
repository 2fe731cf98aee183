#include "host/datamanager/window/report_listener.h"

#include "host/window_text.h"
#include "platform/ado/report.h"

CReportListener::CReportListener(std::function<void(const QString& strLine)> fnListener) {
    SetReportSink([this, fnListener = std::move(fnListener)](const std::string& strLine) {
        m_home.Call([fnListener, strShown = FromGbk(strLine)] { fnListener(strShown); });
    });
}

CReportListener::~CReportListener() {
    SetReportSink({});
}
