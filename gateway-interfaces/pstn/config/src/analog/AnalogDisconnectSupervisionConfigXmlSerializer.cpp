#include "analog/AnalogDisconnectSupervisionConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>
#include <velquin/XML.h>

#include "analog/AnalogWording.h"
#include "reading/ChildElements.h"
#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogDisconnectSupervisionConfigXmlSerializer );

namespace {

bool readRingCadence( xmlNode* in_pElement, const Logger& in_logger, AnalogDisconnectSupervisionConfig& out_config ) {
    const ElementReader reader( in_pElement, in_logger, FXO_WORDING );
    bool bActive = false;
    if ( !reader.requireKeyword( "active", Keywords::YES_NO, bActive ) )
        return false;
    unsigned int uDelayMs = AnalogDisconnectSupervisionConfig::NO_DELAY_MS;
    if ( bActive && !reader.requireNumber( "ringCadenceOffDelayMs", POSITIVE_INTEGER, uDelayMs ) )
        return false;
    out_config.setRingCadenceDetectionState( bActive );
    out_config.setRingCadenceOffDelayMs( uDelayMs );
    return true;
}

bool readDetector( xmlNode* in_pElement, const Logger& in_logger, AnalogDisconnectSupervisionConfig& inout_config ) {
    const ElementReader reader( in_pElement, in_logger, FXO_WORDING );
    UniqueObjPtr<AnalogDisconnectDetectorConfig> pDetectorConfig( new ( std::nothrow )
                                                                      AnalogDisconnectDetectorConfig() );
    if ( !VELQUIN_ASSERT( !pDetectorConfig.isNull() ) )
        return false;
    AttributeText name;
    if ( !reader.requireText( "name", name ) || !pDetectorConfig->setName( name.c_str() ) )
        return false;
    AttributeText sequence;
    if ( !reader.requireText( "sequence", sequence ) )
        return false;
    if ( !pDetectorConfig->parseSequence( sequence.c_str() ) ) {
        VELQUIN_REPORT_ERROR( in_logger, "Could not parse detector sequence for disconnect detector "
                                             << pDetectorConfig->getName() );
        return false;
    }
    // A second detector of one name is dropped; the configuration stays good.
    static_cast<void>( inout_config.addDisconnectDetector( pDetectorConfig.release() ) );
    return true;
}

} // namespace

AnalogDisconnectSupervisionConfig* AnalogDisconnectSupervisionConfigXmlSerializer::read( xmlNode* const in_pElement,
                                                                                         XmlConfig& ) try {
    const ElementReader reader( in_pElement, getLogger(), FXO_WORDING );
    UniqueObjPtr<AnalogDisconnectSupervisionConfig> pDisconnectConfig( new ( std::nothrow )
                                                                           AnalogDisconnectSupervisionConfig() );
    if ( !VELQUIN_ASSERT( !pDisconnectConfig.isNull() ) )
        return nullptr;
    xmlNode* const pDetectors = reader.requireChild( "disconnectDetectors" );
    if ( !pDetectors )
        return nullptr;
    xmlNode* const pRingCadence = XML::findFirstElement( pDetectors, "ringCadenceDetector" );
    if ( pRingCadence && !readRingCadence( pRingCadence, getLogger(), *pDisconnectConfig ) )
        return nullptr;
    for ( xmlNode* const pDetector : ChildElements( pDetectors, "detector" ) ) {
        if ( !readDetector( pDetector, getLogger(), *pDisconnectConfig ) )
            return nullptr;
    }
    return pDisconnectConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool AnalogDisconnectSupervisionConfigXmlSerializer::write( xmlNode* const, const AnalogDisconnectSupervisionConfig& ) {
    return assertNotImplemented( getLogger(), "AnalogDisconnectSupervisionConfigXmlSerializer::write", __FILE__,
                                 __LINE__ );
}

} // namespace Velquin::Pstn
