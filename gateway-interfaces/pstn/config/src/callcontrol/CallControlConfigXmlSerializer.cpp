#include "callcontrol/CallControlConfigXmlSerializer.h"

#include <new>

#include <velquin/XML.h>

#include "analog/AnalogCallControlConfigXmlSerializer.h"
#include "callcontrol/ChannelGroupConfigXmlSerializer.h"
#include "callcontrol/isdn/IsdnConfigXmlSerializer.h"
#include "reading/ElementEntries.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( CallControlConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ " for call control config ", "", "Missing element " };

} // namespace

TSHandle<CallControlConfig> CallControlConfigXmlSerializer::read( xmlNode* const in_pElement,
                                                                  XmlConfig& in_xmlConfig ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    TSHandle<CallControlConfig> hCallControlConfig( new ( std::nothrow ) CallControlConfig() );
    if ( !VELQUIN_ASSERT( !hCallControlConfig.isNull() ) )
        return {};

    xmlNode* const pChannelGroups = reader.requireChild( "channelGroups" );
    if ( !pChannelGroups )
        return {};
    ChannelGroupConfigXmlSerializer channelGroupXmlSerializer;
    const auto readChannelGroup = [&]( xmlNode* in_pChannelGroup ) {
        ChannelGroupConfig* const pChannelGroup = channelGroupXmlSerializer.read( in_pChannelGroup, in_xmlConfig );
        return pChannelGroup && hCallControlConfig->addChannelGroupConfig( pChannelGroup );
    };
    if ( !readEntries( ChildElements( pChannelGroups ), readChannelGroup ) )
        return {};

    if ( xmlNode* const pIsdn = XML::findFirstElement( in_pElement, "isdn" ) ) {
        IsdnConfigXmlSerializer isdnXmlSerializer;
        IsdnConfig* const pIsdnConfig = isdnXmlSerializer.read( hCallControlConfig, pIsdn, in_xmlConfig );
        if ( !pIsdnConfig )
            return {};
        if ( !hCallControlConfig->setIsdnConfig( pIsdnConfig ) ) {
            VELQUIN_REPORT_ERROR( getLogger(), "could not set Isdn call control config." );
            return {};
        }
    }
    if ( xmlNode* const pAnalog = XML::findFirstElement( in_pElement, "analog" ) ) {
        AnalogCallControlConfigXmlSerializer analogXmlSerializer;
        AnalogCallControlConfig* const pAnalogConfig =
            analogXmlSerializer.read( hCallControlConfig, pAnalog, in_xmlConfig );
        if ( !pAnalogConfig )
            return {};
        if ( !hCallControlConfig->setAnalogConfig( pAnalogConfig ) ) {
            VELQUIN_REPORT_ERROR( getLogger(), "Could not set analog call control config." );
            return {};
        }
    }
    return hCallControlConfig;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool CallControlConfigXmlSerializer::write( xmlNode* const, const CallControlConfig& ) {
    return reportNotImplemented( getLogger(), "CallControlConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn
