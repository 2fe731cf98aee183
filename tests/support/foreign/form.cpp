#include "tests/support/foreign/form.h"

#include "tests/support/foreign/arrangement.h"
#include "tests/support/foreign/names.h"
#include "tests/support/foreign/strangers.h"

CBytes InForeignForm(CByteView bytes, const CForeignForm& form) {
    CDwgFile file = ReadDwgFile(bytes);
    if (form.m_bEscapes) EscapeTexts(file);
    if (form.m_bWestern) MakeWestern(file);
    if (form.m_bOtherNames) GiveOtherNames(file);
    if (form.m_bStrangeClasses) AddStrangeClasses(file);
    if (form.m_bStrangeObjects) AddStrangeObjects(file);
    if (form.m_bStrangeEntities) AddStrangeEntities(file);
    if (form.m_bSpread) SpreadHandles(file);
    if (form.m_bNoLinks) OmitNeighbours(file);
    if (form.m_bRelative) MakeRelative(file);
    return form.m_bReversed ? WriteReversed(file) : WriteDwgFile(file);
}
