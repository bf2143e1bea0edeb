#pragma once

#include <velquin/Export.h>

struct _xmlNode;

namespace Velquin::XML {

/// Initialises libxml2 for a load or a write. Each call needs one call of closeLibrary; see LibraryScope.
VELQUIN_CORE_EXPORT void initializeLibrary();
/// Ends what initializeLibrary began. Leaves libxml2's own global state alone: the program may use it, too.
VELQUIN_CORE_EXPORT void closeLibrary();
/// How many initializeLibrary calls wait for their closeLibrary, over all threads.
VELQUIN_CORE_EXPORT unsigned int getOpenCount();

/// Pairs initializeLibrary and closeLibrary.
class LibraryScope {
public:
    LibraryScope() { initializeLibrary(); }
    LibraryScope( const LibraryScope& ) = delete;
    LibraryScope& operator=( const LibraryScope& ) = delete;
    ~LibraryScope() { closeLibrary(); }
};

/// The first child element of the node, of that local name if a name is given; null when there is none. Skips text,
/// comments and processing instructions.
VELQUIN_CORE_EXPORT _xmlNode* findFirstElement( const _xmlNode* in_pNode, const char* in_szName = nullptr );
/// The next sibling element of the node, of that local name if a name is given; null when there is none.
VELQUIN_CORE_EXPORT _xmlNode* findNextElement( const _xmlNode* in_pNode, const char* in_szName = nullptr );

} // namespace Velquin::XML
