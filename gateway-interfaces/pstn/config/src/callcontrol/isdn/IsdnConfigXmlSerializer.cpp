#include "callcontrol/isdn/IsdnConfigXmlSerializer.h"

#include <velquin/Assertion.h>
#include <velquin/UniqueObjPtr.h>

#include "callcontrol/isdn/IsdnFasConfigXmlSerializer.h"
#include "callcontrol/isdn/IsdnNFasConfigXmlSerializer.h"
#include "reading/ElementEntries.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnConfigXmlSerializer );

namespace {

/// Reads one group with a reader of its own. The caller owns the result; it is null when reading fails or gives an
/// object of another class.
template <class TConfig, class TXmlSerializer>
TConfig* readGroup( TSHandle<CallControlConfig>& in_hCallControlConfig, xmlNode* in_pElement,
                    XmlConfig& in_xmlConfig ) {
    UniqueObjPtr<IsdnCommonConfig> pConfig( TXmlSerializer().read( in_hCallControlConfig, in_pElement, in_xmlConfig ) );
    return dynamicOwnerCast<TConfig>( std::move( pConfig ) ).release();
}

} // namespace

IsdnConfig* IsdnConfigXmlSerializer::read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                           xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<IsdnConfig> pIsdnConfig( new IsdnConfig() );
    const auto readNfasGroup = [&]( xmlNode* in_pGroup ) {
        IsdnNfasConfig* const pNewNFasConfig =
            readGroup<IsdnNfasConfig, IsdnNFasConfigXmlSerializer>( in_hCallControlConfig, in_pGroup, in_xmlConfig );
        if ( !VELQUIN_ASSERT( pNewNFasConfig ) )
            return false;
        if ( pIsdnConfig->addNfasConfig( pNewNFasConfig ) )
            return true;
        VELQUIN_REPORT_ERROR( getLogger(), "failed to add NFAS group to ISDN config" );
        return false;
    };
    const auto readFasGroup = [&]( xmlNode* in_pGroup ) {
        IsdnFasConfig* const pNewFasConfig =
            readGroup<IsdnFasConfig, IsdnFasConfigXmlSerializer>( in_hCallControlConfig, in_pGroup, in_xmlConfig );
        if ( !pNewFasConfig )
            return false;
        if ( pIsdnConfig->addFasConfig( pNewFasConfig ) )
            return true;
        VELQUIN_REPORT_ERROR( getLogger(), "failed to add FAS group to ISDN config" );
        return false;
    };
    if ( !readEntries( ChildElements( in_pElement, "nfasGroup" ), readNfasGroup ) ||
         !readEntries( ChildElements( in_pElement, "fasConfig" ), readFasGroup ) )
        return nullptr;
    return pIsdnConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool IsdnConfigXmlSerializer::write( xmlNode* const, const IsdnConfig& ) {
    return reportNotImplemented( getLogger(), "IsdnConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn
