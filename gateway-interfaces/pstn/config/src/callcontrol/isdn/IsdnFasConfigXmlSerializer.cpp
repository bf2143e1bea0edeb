#include "callcontrol/isdn/IsdnFasConfigXmlSerializer.h"

#include <new>

#include <velquin/Assertion.h>
#include <velquin/UniqueObjPtr.h>

#include "callcontrol/isdn/IsdnBChannelRange.h"
#include "callcontrol/isdn/IsdnFasConfig.h"
#include "document/Element.h"
#include "hardware/InterfaceReference.h"
#include "loading/XmlConfig.h"
#include "reading/ElementEntries.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnFasConfigXmlSerializer );

namespace {

constexpr ReaderWording ISDN_FAS_WORDING{ "] for isdn fas config  ", "] for isdn fas config " };
constexpr ReaderWording FAS_WORDING{ "] for fas config  ", "] for isdn fas config " };
constexpr IsdnBChannelRange::Wording RANGE_WORDING{ FAS_WORDING, FAS_WORDING, ISDN_FAS_WORDING, "firstChannel" };

/// Reads one entry of `applyTo`: a board or one of its interfaces, and the B-channel ranges.
class InterfaceRefReader {
public:
    InterfaceRefReader( const CallControlConfig& in_callControlConfig, const Config& in_config, const Logger& in_logger,
                        IsdnFasConfig& out_fasConfig ) noexcept
        : m_callControlConfig( in_callControlConfig ),
          m_config( in_config ),
          m_logger( in_logger ),
          m_fasConfig( out_fasConfig ) {}

    bool read( xmlNode* in_pElement ) const {
        const AttributeReader reader( in_pElement, m_logger, FAS_WORDING );
        InterfaceReference<DigitalKind> reference( reader, m_logger, WHOLE_DECIMAL );
        const bool bAdded = reference.readBoard( m_config ) && addInterfaces( reference );
        if ( !bAdded && !AttributeReader::passOver() )
            return false;
        const ChildElements ranges( in_pElement, "BChannelRange" );
        if ( ranges.empty() ) {
            reader.as( ISDN_FAS_WORDING ).reportMissingChild( "BChannelRange" );
            return false;
        }
        const auto vecInterfaces = bAdded ? reference.releaseInterfaces() : DigitalKind::Interfaces();
        return readEntries( ranges, [&]( xmlNode* in_pRange ) { return readRange( in_pRange, vecInterfaces ); } ) &&
               bAdded;
    }

private:
    bool addInterfaces( InterfaceReference<DigitalKind>& inout_reference ) const {
        if ( inout_reference.findInterfaceId() ) {
            if ( !inout_reference.readInterface() )
                return false;
            const auto& hInterface = inout_reference.getInterfaces().front();
            if ( m_fasConfig.addApplyToDigitalInterface( hInterface ) )
                return true;
            VELQUIN_REPORT_ERROR( m_logger, "failed to add Digital interface " << hInterface->getUniqueId( false )
                                                                               << "to FAS config "
                                                                               << m_fasConfig.getId() );
            return false;
        }
        if ( !inout_reference.takeAllInterfaces( "digital" ) )
            return false;
        if ( m_fasConfig.addApplyToDigitalInterfaceVector( inout_reference.getInterfaces() ) )
            return true;
        VELQUIN_REPORT_ERROR( m_logger, "failed to add Digital interfaces from board ID= "
                                            << inout_reference.getBoard()->getId() << " to FAS config "
                                            << m_fasConfig.getId() );
        return false;
    }

    bool readRange( xmlNode* in_pRange, const DigitalKind::Interfaces& in_vecInterfaces ) const {
        const AttributeReader reader( in_pRange, m_logger, FAS_WORDING );
        IsdnBChannelRange range;
        if ( !range.read( reader, m_callControlConfig, RANGE_WORDING, m_logger ) )
            return false;
        for ( const auto& hInterface : in_vecInterfaces ) {
            if ( !range.addTo( m_fasConfig, *hInterface, m_logger ) ) {
                reader.reportDeclared( "Invalid B-Channel range " + getElementPath( in_pRange ) +
                                           " for isdn fas config " + reader.getName(),
                                       "." );
                return false;
            }
        }
        return true;
    }

    const CallControlConfig& m_callControlConfig;
    const Config& m_config;
    const Logger& m_logger;
    IsdnFasConfig& m_fasConfig;
};

} // namespace

IsdnCommonConfig* IsdnFasConfigXmlSerializer::read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                                    xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    const ElementReader reader( in_pElement, getLogger(), ISDN_FAS_WORDING );
    if ( !VELQUIN_ASSERT( !in_hCallControlConfig.isNull() ) )
        return nullptr;
    UniqueObjPtr<IsdnCommonConfig> pCommonConfig(
        IsdnCommonConfigXmlSerializer::read( in_hCallControlConfig, in_pElement, in_xmlConfig ) );
    if ( !VELQUIN_ASSERT( !pCommonConfig.isNull() ) )
        return nullptr;
    auto pFasConfig = dynamicOwnerCast<IsdnFasConfig>( std::move( pCommonConfig ) );
    if ( !VELQUIN_ASSERT( !pFasConfig.isNull() ) )
        return nullptr;

    xmlNode* const pApplyTo = reader.requireChild( "applyTo" );
    if ( !pApplyTo )
        return nullptr;
    const InterfaceRefReader interfaceRefReader( *in_hCallControlConfig, in_xmlConfig, getLogger(), *pFasConfig );
    const bool bApplied = readEntries( ChildElements( pApplyTo ), [&]( xmlNode* in_pInterfaceRef ) {
        return interfaceRefReader.read( in_pInterfaceRef );
    } );
    return bApplied ? pFasConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool IsdnFasConfigXmlSerializer::write( xmlNode* const, const IsdnCommonConfig& ) {
    return reportNotImplemented( getLogger(), "IsdnFasConfigXmlSerializer::write" );
}

IsdnCommonConfig* IsdnFasConfigXmlSerializer::newIsdnCommonConfig() {
    return new ( std::nothrow ) IsdnFasConfig();
}

} // namespace Velquin::Pstn
