#include "callcontrol/isdn/IsdnConfigXmlSerializer.h"

#include <velquin/Assertion.h>
#include <velquin/UniqueObjPtr.h>

#include "callcontrol/isdn/IsdnFasConfigXmlSerializer.h"
#include "callcontrol/isdn/IsdnNFasConfigXmlSerializer.h"
#include "reading/ChildElements.h"
#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnConfigXmlSerializer );

IsdnConfig* IsdnConfigXmlSerializer::read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                           xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<IsdnConfig> pIsdnConfig( new IsdnConfig() );
    IsdnNFasConfigXmlSerializer nfasXmlSerializer;
    for ( xmlNode* const pGroup : ChildElements( in_pElement, "nfasGroup" ) ) {
        const ElementPlace place( pGroup );
        UniqueObjPtr<IsdnCommonConfig> pGroupConfig(
            nfasXmlSerializer.read( in_hCallControlConfig, pGroup, in_xmlConfig ) );
        IsdnNfasConfig* const pNewNFasConfig = dynamicOwnerCast<IsdnNfasConfig>( std::move( pGroupConfig ) ).release();
        if ( !VELQUIN_ASSERT( pNewNFasConfig ) )
            return nullptr;
        if ( !pIsdnConfig->addNfasConfig( pNewNFasConfig ) ) {
            VELQUIN_REPORT_ERROR( getLogger(), "failed to add NFAS group to ISDN config" );
            return nullptr;
        }
    }
    IsdnFasConfigXmlSerializer fasXmlSerializer;
    for ( xmlNode* const pGroup : ChildElements( in_pElement, "fasConfig" ) ) {
        const ElementPlace place( pGroup );
        UniqueObjPtr<IsdnCommonConfig> pGroupConfig(
            fasXmlSerializer.read( in_hCallControlConfig, pGroup, in_xmlConfig ) );
        IsdnFasConfig* const pNewFasConfig = dynamicOwnerCast<IsdnFasConfig>( std::move( pGroupConfig ) ).release();
        if ( !pNewFasConfig )
            return nullptr;
        if ( !pIsdnConfig->addFasConfig( pNewFasConfig ) ) {
            VELQUIN_REPORT_ERROR( getLogger(), "failed to add FAS group to ISDN config" );
            return nullptr;
        }
    }
    return pIsdnConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool IsdnConfigXmlSerializer::write( xmlNode* const, const IsdnConfig& ) {
    return reportNotImplemented( getLogger(), "IsdnConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn
