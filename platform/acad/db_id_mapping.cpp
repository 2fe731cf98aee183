#include "platform/acad/db_id_mapping.h"

bool AcDbIdMapping::compute(AcDbIdPair& pair) const {
    const auto found = m_mapPlaces.find(pair.key().Stub());
    if (found == m_mapPlaces.end()) return false;
    pair = m_arPairs[found->second];
    return true;
}

void AcDbIdMapping::assign(const AcDbIdPair& pair) {
    const auto [place, bNew] = m_mapPlaces.emplace(pair.key().Stub(), m_arPairs.size());
    if (bNew) {
        m_arPairs.push_back(pair);
    } else {
        m_arPairs[place->second] = pair;
    }
}
