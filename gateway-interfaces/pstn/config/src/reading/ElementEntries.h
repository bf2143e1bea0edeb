#pragma once

#include "reading/ChildElements.h"
#include "reading/ElementReader.h"
#include "reading/EntryListener.h"

namespace Velquin::Pstn {

/// How far a list of entries was read.
enum class EntriesRead {
    ALL,  ///< each entry was taken
    SOME, ///< some were left out or read in part, and an EntryListener was told
    FAILED,
};

/// Walks the entries of a list, in document order, up to the first that is refused; with an EntryListener, to the end.
/// While an entry is read, it is the place of all findings.
/// @param in_read called for each entry; false refuses the entry
template <class TRead>
EntriesRead walkEntries( const ChildElements& in_entries, const TRead& in_read ) {
    EntryListener* const pListener = EntryListener::getCurrent();
    auto eRead = EntriesRead::ALL;
    for ( xmlNode* const pEntry : in_entries ) {
        const ElementPlace place( pEntry );
        const bool bTaken = ( !pListener || pListener->beginEntry( pEntry ) ) && in_read( pEntry );
        if ( pListener ? pListener->endEntry( pEntry, bTaken ) : bTaken )
            continue;
        if ( !pListener )
            return EntriesRead::FAILED;
        eRead = EntriesRead::SOME;
    }
    return eRead;
}

/// Walks the entries of a list whose owner goes without those that an EntryListener was told of.
/// @return whether the owner goes on
template <class TRead>
bool readEntries( const ChildElements& in_entries, const TRead& in_read ) {
    const EntriesRead eRead = walkEntries( in_entries, in_read );
    if ( eRead == EntriesRead::SOME )
        EntryListener::getCurrent()->refuseFile();
    return eRead != EntriesRead::FAILED;
}

} // namespace Velquin::Pstn
