#pragma once
// Which object of a cloning became which.

#include "platform/acad/db_object_id.h"

#include <unordered_map>
#include <vector>

class AcDbIdPair {
public:
    AcDbIdPair() = default;
    explicit AcDbIdPair(AcDbObjectId key, AcDbObjectId value = AcDbObjectId::kNull, bool bCloned = false,
                        bool bPrimary = false)
        : m_idKey(key)
        , m_idValue(value)
        , m_bCloned(bCloned)
        , m_bPrimary(bPrimary) {}
    AcDbObjectId key() const { return m_idKey; }     ///< the original
    AcDbObjectId value() const { return m_idValue; } ///< what stands for it
    bool isCloned() const { return m_bCloned; }      ///< false for an object that was there already
    bool isPrimary() const { return m_bPrimary; }    ///< it was asked for, not brought along
    void setKey(AcDbObjectId key) { m_idKey = key; }

private:
    AcDbObjectId m_idKey, m_idValue;
    bool m_bCloned = false, m_bPrimary = false;
};

class AcDbIdMapping {
public:
    /// Fills in the pair of that key; false when there is none, and then the pair is as it was.
    bool compute(AcDbIdPair& pair) const;
    /// Puts a pair in place of the one of its key, or behind the others.
    void assign(const AcDbIdPair& pair);
    const std::vector<AcDbIdPair>& Pairs() const { return m_arPairs; } ///< in the order they came

private:
    friend class CCloner;
    std::vector<AcDbIdPair> m_arPairs;
    std::unordered_map<const CDbStub*, std::size_t> m_mapPlaces; ///< of keys in the list
    std::size_t m_nRead = 0; ///< so many of the first pairs have their clones' records read
};
