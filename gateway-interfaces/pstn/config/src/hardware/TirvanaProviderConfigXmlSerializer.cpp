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
constexpr auto REVERSE = hinted( Keywords::TRUE_FALSE, "Valid values are: TRUE and FALSE." );

/// Reads the flag of an optional child. Leaves the model alone when the child or its flag is absent.
bool readReverseBits( xmlNode* in_pProvider, const char* in_szChild, const Logger& in_logger,
                      TirvanaProviderConfig& out_config, void ( TirvanaProviderConfig::*in_set )( bool ) ) {
    xmlNode* const pChild = XML::findFirstElement( in_pProvider, in_szChild );
    return !pChild || ElementReader( pChild, in_logger, WORDING ).accept( "reverseBits", REVERSE, out_config, in_set );
}

/// Reads a thread group and copies it into the provider.
bool readThreads( xmlNode* in_pThreads, XmlConfig& in_xmlConfig, TirvanaProviderConfig& out_config,
                  void ( TirvanaProviderConfig::*in_set )( const TirvanaThreadGroupConfig& ) ) {
    const UniqueObjPtr<TirvanaThreadGroupConfig> pThreads(
        TirvanaThreadGroupConfigXmlSerializer().read( in_pThreads, in_xmlConfig ) );
    if ( !pThreads.isNull() )
        ( out_config.*in_set )( *pThreads );
    return !pThreads.isNull();
}

} // namespace

ProviderConfig* TirvanaProviderConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<TirvanaProviderConfig> pProviderConfig( new TirvanaProviderConfig() );
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    if ( !pProviderConfig->setId( reader.getName() ) )
        return nullptr;

    xmlNode* const pBChannelsThreads = reader.requireChild( "BChannelsThreads" );
    xmlNode* const pDChannelsThreads = pBChannelsThreads ? reader.requireChild( "DChannelsThreads" ) : nullptr;
    const bool bRead = pDChannelsThreads &&
                       readReverseBits( in_pElement, "TxMediaStreams", getLogger(), *pProviderConfig,
                                        &TirvanaProviderConfig::setReverseBitsOfTxMediaStreams ) &&
                       readReverseBits( in_pElement, "RxMediaStreams", getLogger(), *pProviderConfig,
                                        &TirvanaProviderConfig::setReverseBitsOfRxMediaStreams ) &&
                       readThreads( pDChannelsThreads, in_xmlConfig, *pProviderConfig,
                                    &TirvanaProviderConfig::setDChannelsThreadsConfig ) &&
                       readThreads( pBChannelsThreads, in_xmlConfig, *pProviderConfig,
                                    &TirvanaProviderConfig::setBChannelsThreadsConfig );
    return bRead ? pProviderConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaProviderConfigXmlSerializer::write( xmlNode* const, const ProviderConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaProviderConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn
