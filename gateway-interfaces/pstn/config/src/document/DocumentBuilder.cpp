#include "document/DocumentBuilder.h"

#include <algorithm>
#include <atomic>
#include <iterator>

#include "document/LibXml2Compat.h"

namespace Velquin::Pstn {

namespace {

// libxml2 would read beyond the end of a node that it expects to be larger than our headers say. So headers and library
// must be of one version, and all tests must have run with it.
constexpr long TESTED_VERSIONS[] = { 20914, 21504 };

bool areBlocksKnown() noexcept {
    const long nRunning = getRunningLibXml2();
    return nRunning == LIBXML_VERSION &&
           std::count( std::begin( TESTED_VERSIONS ), std::end( TESTED_VERSIONS ), nRunning ) > 0;
}

std::atomic<DocumentBuilder>& getChoice() noexcept {
    static std::atomic<DocumentBuilder> s_eBuilder{ areBlocksKnown() ? DocumentBuilder::BLOCKS
                                                                     : DocumentBuilder::NATIVE };
    return s_eBuilder;
}

} // namespace

DocumentBuilder getDocumentBuilder() noexcept {
    return getChoice().load( std::memory_order_relaxed );
}

bool setDocumentBuilder( DocumentBuilder in_eBuilder ) noexcept {
    if ( in_eBuilder == DocumentBuilder::BLOCKS && !areBlocksKnown() )
        return false;
    getChoice().store( in_eBuilder, std::memory_order_relaxed );
    return true;
}

} // namespace Velquin::Pstn
