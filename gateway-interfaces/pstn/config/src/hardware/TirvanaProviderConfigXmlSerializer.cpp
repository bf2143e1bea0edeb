#include "hardware/TirvanaProviderConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>
#include <velquin/XML.h>

#include "hardware/TirvanaProviderConfig.h"
#include "hardware/TirvanaThreadGroupConfigXmlSerializer.h"
#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaProviderConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for tirvana provider  ", "] for tirvana provider  " };

/// Reads `reverseBits` of an optional child; an absent child, or one that doesn't say, leaves the flag alone.
bool readReverseBits( xmlNode* in_pProvider, const char* in_szChild, const Logger& in_logger, bool& out_bReverse ) {
    xmlNode* const pChild = XML::findFirstElement( in_pProvider, in_szChild );
    if ( !pChild )
        return true;
    const ElementReader reader( pChild, in_logger, WORDING );
    return reader.findKeyword( "reverseBits", Keywords::TRUE_FALSE, out_bReverse,
                               "Valid values are: TRUE and FALSE." ) != ReadResult::WRONG;
}

} // namespace

ProviderConfig* TirvanaProviderConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<TirvanaProviderConfig> pProviderConfig( new TirvanaProviderConfig() );
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    if ( !pProviderConfig->setId( reader.getName() ) )
        return nullptr;

    xmlNode* const pBChannelsThreads = reader.requireChild( "BChannelsThreads" );
    if ( !pBChannelsThreads )
        return nullptr;
    xmlNode* const pDChannelsThreads = reader.requireChild( "DChannelsThreads" );
    if ( !pDChannelsThreads )
        return nullptr;

    bool bReverseTx = pProviderConfig->isReverseBitsOfTxMediaStreamsEnabled();
    if ( !readReverseBits( in_pElement, "TxMediaStreams", getLogger(), bReverseTx ) )
        return nullptr;
    pProviderConfig->setReverseBitsOfTxMediaStreams( bReverseTx );
    bool bReverseRx = pProviderConfig->isReverseBitsOfRxMediaStreamsEnabled();
    if ( !readReverseBits( in_pElement, "RxMediaStreams", getLogger(), bReverseRx ) )
        return nullptr;
    pProviderConfig->setReverseBitsOfRxMediaStreams( bReverseRx );

    TirvanaThreadGroupConfigXmlSerializer threadGroupXmlSerializer;
    const UniqueObjPtr<TirvanaThreadGroupConfig> pDChannels(
        threadGroupXmlSerializer.read( pDChannelsThreads, in_xmlConfig ) );
    if ( pDChannels.isNull() )
        return nullptr;
    pProviderConfig->setDChannelsThreadsConfig( *pDChannels );
    const UniqueObjPtr<TirvanaThreadGroupConfig> pBChannels(
        threadGroupXmlSerializer.read( pBChannelsThreads, in_xmlConfig ) );
    if ( pBChannels.isNull() )
        return nullptr;
    pProviderConfig->setBChannelsThreadsConfig( *pBChannels );
    return pProviderConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaProviderConfigXmlSerializer::write( xmlNode* const, const ProviderConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaProviderConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn
