#pragma once

#include "reading/ChildElements.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

/// Walks the entries of a list, in document order, up to the first that is refused. While an entry is read, it is the
/// place of all findings.
/// @param in_read called for each entry; false refuses the entry
/// @return whether all entries were taken
template <class TRead>
bool readEntries( const ChildElements& in_entries, const TRead& in_read ) {
    for ( xmlNode* const pEntry : in_entries ) {
        const ElementPlace place( pEntry );
        if ( !in_read( pEntry ) )
            return false;
    }
    return true;
}

} // namespace Velquin::Pstn
