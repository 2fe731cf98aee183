#pragma once

#include <QtCore/QString>

#include <functional>

#include "host/datamanager/window/call_place.h"

/// Hands the lines that the database layer reports, on whatever thread, to a listener on this object's
/// thread, as long as it lives.
class CReportListener final {
public:
    explicit CReportListener(std::function<void(const QString& strLine)> fnListener);
    /// No other thread reports any more.
    ~CReportListener();
    CReportListener(const CReportListener&) = delete;
    CReportListener& operator=(const CReportListener&) = delete;

private:
    CCallPlace m_home;
};
