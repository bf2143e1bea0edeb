#include "callcontrol/isdn/IsdnNFasConfigXmlSerializer.h"

#include <new>

#include <velquin/Assertion.h>
#include <velquin/UniqueObjPtr.h>

#include "callcontrol/isdn/IsdnNfasConfig.h"
#include "callcontrol/isdn/IsdnNfasGroupMemberConfigXmlSerializer.h"
#include "reading/ElementEntries.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnNFasConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for ISDN NFAS config  ", "" };

} // namespace

IsdnCommonConfig* IsdnNFasConfigXmlSerializer::read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                                     xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    if ( !VELQUIN_ASSERT( !in_hCallControlConfig.isNull() ) )
        return nullptr;
    UniqueObjPtr<IsdnCommonConfig> pCommonConfig(
        IsdnCommonConfigXmlSerializer::read( in_hCallControlConfig, in_pElement, in_xmlConfig ) );
    auto pNFasConfig = dynamicOwnerCast<IsdnNfasConfig>( std::move( pCommonConfig ) );
    if ( !VELQUIN_ASSERT( !pNFasConfig.isNull() ) )
        return nullptr;

    xmlNode* const pMembers = reader.requireChild( "members" );
    if ( !pMembers )
        return nullptr;
    IsdnNfasGroupMemberConfigXmlSerializer memberXmlSerializer;
    const bool bRead = readEntries( ChildElements( pMembers ), [&]( xmlNode* in_pMember ) {
        TSHandle<IsdnNfasGroupMemberConfig> hGroupMember =
            memberXmlSerializer.read( in_hCallControlConfig, pNFasConfig.get(), in_pMember, in_xmlConfig );
        return VELQUIN_ASSERT( !hGroupMember.isNull() ) && pNFasConfig->addMemberInterface( hGroupMember );
    } );
    return bRead ? pNFasConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool IsdnNFasConfigXmlSerializer::write( xmlNode* const, const IsdnCommonConfig& ) {
    return reportNotImplemented( getLogger(), "IsdnNFasConfigXmlSerializer::write" );
}

IsdnCommonConfig* IsdnNFasConfigXmlSerializer::newIsdnCommonConfig() {
    return new ( std::nothrow ) IsdnNfasConfig();
}

} // namespace Velquin::Pstn
