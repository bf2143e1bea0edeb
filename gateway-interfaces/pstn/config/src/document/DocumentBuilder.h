#pragma once

#include "PstnConfigExport.h"

namespace Velquin::Pstn {

/// What makes the nodes of a document while libxml2 parses it.
enum class DocumentBuilder {
    NATIVE, ///< libxml2's own functions; works with every version
    BLOCKS, ///< DocumentBlocks; works with the versions that all tests ran with
};

/// The builder that loads use: BLOCKS where the library was built with the libxml2 that runs, and all tests ran with
/// that version; otherwise NATIVE.
DocumentBuilder getDocumentBuilder() noexcept;

/// Lets tests and benchmarks choose the builder of all further loads in this process.
/// @return false when the builder doesn't work with this libxml2; then nothing changes
VELQUIN_PSTN_CONFIG_EXPORT bool setDocumentBuilder( DocumentBuilder in_eBuilder ) noexcept;

} // namespace Velquin::Pstn
