#pragma once

#include "reading/XmlNodeFwd.h"

namespace Velquin::Pstn {

/// Makes a load go on behind what it refuses, and hears of it. Serves the loads of the thread on which it was made,
/// while it lives: readEntries() leaves a refused entry out, and the loader goes on with the next section, also in a
/// document that the schema refuses.
class EntryListener {
public:
    EntryListener() noexcept;
    EntryListener( const EntryListener& ) = delete;
    EntryListener& operator=( const EntryListener& ) = delete;

    /// The document is read, and the schema has taken or refused it.
    virtual void beginDocument( const xmlNode* in_pRoot ) = 0;
    /// Entries stand in each other: entry and end of entry come in pairs.
    virtual void beginEntry( const xmlNode* in_pEntry ) = 0;
    virtual void endEntry( const xmlNode* in_pEntry, bool in_bTaken ) = 0;
    /// Everything is read and cross-checked. The document still stands.
    virtual void endDocument() = 0;

    /// A load without listener would have ended here.
    void refuseFile() noexcept { m_bRefused = true; }
    bool isFileRefused() const noexcept { return m_bRefused; }

    /// The listener of this thread; null when there is none.
    static EntryListener* getCurrent() noexcept;

protected:
    ~EntryListener();

private:
    EntryListener* m_pOuter;
    bool m_bRefused = false;
};

} // namespace Velquin::Pstn
