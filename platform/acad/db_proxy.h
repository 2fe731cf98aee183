#pragma once
// What stands in a drawing for an object whose class is not known at present: the class's name, the object's
// record and, for an entity, its picture.

#include "platform/acad/db_entity.h"
#include "platform/acad/memory_filer.h"

#include <memory>
#include <optional>
#include <string>
#include <type_traits>

/// What a class is called in drawings and by its users, and what may be done with its objects where it is not
/// known.
struct CProxyOrigin {
    std::wstring m_strClassName, m_strDxfName, m_strAppName;
    int m_nProxyFlags = 0;
};

/// What both kinds of proxy know of the class that their object has when its module is there.
class CProxy {
public:
    virtual ~CProxy() = default;
    const ACHAR* originalClassName() const { return m_origin.m_strClassName.c_str(); }
    const ACHAR* originalDxfName() const { return m_origin.m_strDxfName.c_str(); }
    const ACHAR* applicationDescription() const { return m_origin.m_strAppName.c_str(); }
    const CProxyOrigin& Origin() const { return m_origin; }
    void SetOrigin(CProxyOrigin origin) { m_origin = std::move(origin); }
    const CDbRecord& ClassPart() const { return m_classPart; } ///< what its class wrote
    void SetClassPart(CDbRecord part) { m_classPart = std::move(part); }

protected:
    CProxyOrigin m_origin;
    CDbRecord m_classPart;
};

/// A proxy with the platform's part of the record read as such, so that layer, colour, reactors and extended
/// data can be seen and changed, and its class's part kept as it stands. Its own record is the original's.
template <class Self, class Base>
class CProxyOf : public Base, public CProxy {
public:
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override {
        const Acad::ErrorStatus status = Base::dwgOutFields(pFiler);
        return status == Acad::eOk ? pFiler->writeRest(m_classPart) : status;
    }
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override {
        const Acad::ErrorStatus status = Base::dwgInFields(pFiler);
        return status == Acad::eOk ? pFiler->readRest(&m_classPart) : status;
    }
    std::unique_ptr<AcDbObject> NewOfSameClass() const override {
        auto pOther = std::make_unique<Self>();
        pOther->SetOrigin(m_origin);
        if constexpr (std::is_base_of_v<AcDbEntity, Base>)
            pOther->SetPicture(Base::Picture()); // which no record holds
        return pOther;
    }
};

class AcDbProxyObject : public CProxyOf<AcDbProxyObject, AcDbObject> {
public:
    ACRX_DECLARE_MEMBERS(AcDbProxyObject)
};

/// It shows the picture that its entity drew last. Only its class could move it or take it apart.
class AcDbProxyEntity : public CProxyOf<AcDbProxyEntity, AcDbEntity> {
public:
    ACRX_DECLARE_MEMBERS(AcDbProxyEntity)

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
};

/// Puts proxies for the objects of a class that goes, in all open drawings; none of them may be open.
void MakeProxies(const AcRxClass& going);

/// Puts objects of a class that has come for their proxies, in all open drawings. A proxy stays when its
/// class does not read the whole record.
void ReviveProxies(const AcRxClass& come);

/// Puts objects for the proxies of one drawing whose classes are known by now; the same holds for these.
void ReviveProxies(AcDbDatabase& database);

/// What a class has written of an object, its own part of the record; nothing when it fails to.
std::optional<CDbRecord> ClassPartOf(const AcDbObject& object);
