#include "host/datamanager/window/call_place.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

#include <utility>

namespace {

class CCallEvent final : public QEvent {
public:
    explicit CCallEvent(std::function<void()> fnCall)
        : QEvent(User)
        , m_fnCall(std::move(fnCall)) {}

    const std::function<void()> m_fnCall;
};

} // namespace

void CCallPlace::Call(std::function<void()> fnCall) {
    QCoreApplication::postEvent(this, new CCallEvent(std::move(fnCall)));
}

bool CCallPlace::event(QEvent* pEvent) {
    const auto* pCall = dynamic_cast<const CCallEvent*>(pEvent);
    if (!pCall) return QObject::event(pEvent);
    pCall->m_fnCall();
    return true;
}
