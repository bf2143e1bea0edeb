#pragma once

#include <velquin/Export.h>

struct _xmlNode;

namespace Velquin::XML {

/// Initialises libxml2 for a load or a write. Every call is paired with one of closeLibrary; see LibraryScope.
VELQUIN_CORE_EXPORT void initializeLibrary();
/// Ends what initializeLibrary began. libxml2's own global state is left alone: the program may use it too.
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

/// The first child of the node that is an element (of that local name, when one is given). Text, comments and
/// processing instructions are skipped. Null when there is none.
VELQUIN_CORE_EXPORT _xmlNode* findFirstElement( const _xmlNode* in_pNode, const char* in_szName = nullptr );
/// The next sibling of the node that is an element (of that local name, when one is given). Null when there is none.
VELQUIN_CORE_EXPORT _xmlNode* findNextElement( const _xmlNode* in_pNode, const char* in_szName = nullptr );

} // namespace Velquin::XML
