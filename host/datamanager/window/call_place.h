#pragma once

#include <QtCore/QObject>

#include <functional>

/// Takes calls from any thread and makes them one after another on the thread it lives on. Calls that have
/// not begun when it goes are dropped.
class CCallPlace final : public QObject {
public:
    /// Has fnCall called from the event loop, later also when this is its thread already.
    void Call(std::function<void()> fnCall);

protected:
    bool event(QEvent* pEvent) override;
};
