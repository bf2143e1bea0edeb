#pragma once

#include "reading/XmlNodeFwd.h"

namespace Velquin::Pstn {

/// Makes a load go on behind what it refuses, and hears of it. Serves the loads of the thread on which it was made,
/// while it lives: a reader passes over what it can do without, readEntries() leaves a refused entry out,
/// and the loader goes on with the next section, also in a document that the schema refuses.
class EntryListener {
public:
    EntryListener() noexcept;
    EntryListener( const EntryListener& ) = delete;
    EntryListener& operator=( const EntryListener& ) = delete;

    /// The document is read, and the schema has taken or refused it.
    virtual void beginDocument( const xmlNode* in_pRoot ) = 0;
    /// Entries stand in each other: entry and end of entry come in pairs.
    /// @return whether the entry is read; else it is refused without a word
    virtual bool beginEntry( const xmlNode* in_pEntry ) = 0;
    /// @param in_bTaken whether its reader took it
    /// @return whether a load without listener would have taken it, too
    virtual bool endEntry( const xmlNode* in_pEntry, bool in_bTaken ) = 0;
    /// An attribute or a part is missing or refused, and was reported. The model would keep what it begins with.
    /// @return whether the reader of the entry goes on
    virtual bool passOver() = 0;
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
