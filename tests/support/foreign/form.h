#pragma once
// Drawing files as other programs write them.

#include "host/files/dwg_file.h"

/// In what the file of a drawing differs from the one that is saved here. All may come together.
struct CForeignForm {
    bool m_bReversed = false;        ///< objects and sections lie in another order
    bool m_bSpread = false;          ///< handles come in another order, with gaps
    bool m_bNoLinks = false;         ///< neighbours in model space are told by handles that follow each other
    bool m_bRelative = false;        ///< pointers are relative
    bool m_bStrangeClasses = false;  ///< there are unknown classes, and the known have other numbers
    bool m_bStrangeObjects = false;  ///< there are unknown objects, and dictionaries of other programs
    bool m_bStrangeEntities = false; ///< there are unknown entities among those of model space
    bool m_bEscapes = false;         ///< Chinese characters stand as escapes, by their codes
    bool m_bWestern = false;         ///< texts are in code page 1252, with escapes by Unicode
    bool m_bOtherNames = false;      ///< see GiveOtherNames
};

/// A drawing's file, which was saved here with something in model space, in that form.
CBytes InForeignForm(CByteView file, const CForeignForm& form);
