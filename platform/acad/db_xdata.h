#pragma once
// Extended data: values that an application hangs on an object under its registered name.

#include "platform/acad/db_object_id.h"
#include "platform/acad/error_status.h"
#include "platform/acad/geometry.h"

#include <string>
#include <variant>
#include <vector>

class AcDbDwgFiler;
struct resbuf;

/// One value with its group code (1000 to 1071).
struct CXDataItem {
    Adesk::Int16 m_nCode = 1000;
    std::variant<std::wstring, double, AcGePoint3d, Adesk::Int16, Adesk::Int32> m_value;
    bool operator==(const CXDataItem&) const = default;
};

/// All that one application has on an object.
struct CXDataOfApp {
    AcDbObjectId m_idApp; ///< its record of registered applications
    std::vector<CXDataItem> m_arItems;
};

/// The extended data of an object, in the order in which the applications came.
class CXData {
public:
    const std::vector<CXDataOfApp>& Apps() const { return m_arApps; }

    /// The chain of one application (all for null): group 1001 with its name, then its values. The caller's
    /// to release; null when there is none.
    resbuf* Chain(const ACHAR* appName) const;
    /// Puts the chain's applications in place of what they had; one without values is taken away. Each part
    /// begins with group 1001. eInvalidInput for another chain, eRegappIdNotFound for a name that the drawing
    /// (null: the working one) has not registered; then nothing changed.
    Acad::ErrorStatus Put(const resbuf* pChain, const AcDbDatabase* pDatabase);

    /// Puts what an application has in place of what it had; one without values is taken away.
    void PutApp(CXDataOfApp app);

    void Write(AcDbDwgFiler* pFiler) const;
    void Read(AcDbDwgFiler* pFiler);

private:
    std::vector<CXDataOfApp> m_arApps;
};

/// Registers an application's name in the working drawing. RTNORM also when it is known already, RTERROR for
/// an empty name and without a drawing.
int acdbRegApp(const ACHAR* appName);
