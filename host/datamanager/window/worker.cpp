#include "host/datamanager/window/worker.h"

#include "host/datamanager/current_failure.h"

CWorker::CWorker(CBusy fnBusy)
    : m_fnBusy(std::move(fnBusy)) {
    m_place.moveToThread(&m_thread);
    m_thread.start();
}

CWorker::~CWorker() {
    m_thread.quit();
    m_thread.wait();
}

void CWorker::Begin(const QString& strWhat, std::function<CAnswer()> fnWork) {
    ++m_nWaiting;
    m_fnBusy(strWhat);
    m_place.Call([this, fnWork = std::move(fnWork)] {
        m_home.Call([this, fnAnswer = fnWork()] {
            End();
            fnAnswer();
        });
    });
}

void CWorker::End() {
    if (--m_nWaiting == 0) m_fnBusy({});
}

QString CWorker::FailureText() {
    return QString::fromUtf8(CurrentFailure().what());
}
