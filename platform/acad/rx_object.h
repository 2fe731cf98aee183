#pragma once

class AcRxClass;

/// Root of everything that knows its class at run time.
class AcRxObject {
public:
    AcRxObject() = default;
    AcRxObject(const AcRxObject&) = delete;
    AcRxObject& operator=(const AcRxObject&) = delete;
    virtual ~AcRxObject() = default;

    static AcRxClass* desc();
    virtual AcRxClass* isA() const;

    bool isKindOf(const AcRxClass* pClass) const;
    /// The protocol extension that the object's class, or its nearest parent, has for pProtocol; null if
    /// none.
    AcRxObject* queryX(const AcRxClass* pProtocol) const;
};

// NOLINTBEGIN(bugprone-macro-parentheses): a class name takes no parentheses
/// Declares the run-time class members of a platform class; ACRX_DEFINE_MEMBERS gives their bodies.
#define ACRX_DECLARE_MEMBERS(CLASS)                                                                          \
    static AcRxClass* desc();                                                                                \
    AcRxClass* isA() const override {                                                                        \
        return CLASS::desc();                                                                                \
    }                                                                                                        \
    static CLASS* cast(const AcRxObject* pObject);
// NOLINTEND(bugprone-macro-parentheses)
