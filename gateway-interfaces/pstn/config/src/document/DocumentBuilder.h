#pragma once

#include "PstnConfigExport.h"

namespace Velquin::Pstn {

/// What makes the nodes of a document while libxml2 parses it.
enum class DocumentBuilder {
    NATIVE, ///< libxml2's own functions: with every version
    BLOCKS, ///< DocumentBlocks: with the versions that it was tested with
};

/// Which one is used: BLOCKS where the library was built with the libxml2 that runs and its nodes are known, else
/// NATIVE.
DocumentBuilder getDocumentBuilder() noexcept;

/// Lets tests and benchmarks choose, for the loads that follow in this process.
/// @return false when it can't be used with this libxml2; nothing changes then
VELQUIN_PSTN_CONFIG_EXPORT bool setDocumentBuilder( DocumentBuilder in_eBuilder ) noexcept;

} // namespace Velquin::Pstn
