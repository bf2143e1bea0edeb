#include "analog/AnalogDisconnectSupervisionConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>
#include <velquin/XML.h>

#include "analog/AnalogWording.h"
#include "reading/ElementEntries.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogDisconnectSupervisionConfigXmlSerializer );

namespace {

bool readRingCadence( xmlNode* in_pElement, const Logger& in_logger, AnalogDisconnectSupervisionConfig& out_config ) {
    using Config = AnalogDisconnectSupervisionConfig;
    const ElementReader reader( in_pElement, in_logger, FXO_WORDING );
    return reader.requireKey( "active", Keywords::YES_NO, out_config, &Config::setRingCadenceDetectionState ) &&
           ( !out_config.isRingCadenceDetectionEnabled() ||
             reader.requireKey( "ringCadenceOffDelayMs", POSITIVE_INTEGER, out_config,
                                &Config::setRingCadenceOffDelayMs ) );
}

bool readDetector( xmlNode* in_pElement, const Logger& in_logger, AnalogDisconnectSupervisionConfig& inout_config ) {
    const AttributeReader reader( in_pElement, in_logger, FXO_WORDING );
    UniqueObjPtr<AnalogDisconnectDetectorConfig> pDetectorConfig( new ( std::nothrow )
                                                                      AnalogDisconnectDetectorConfig() );
    if ( !VELQUIN_ASSERT( !pDetectorConfig.isNull() ) )
        return false;
    AttributeText sequence;
    if ( !reader.require( "name", ANY_TEXT, *pDetectorConfig, &AnalogDisconnectDetectorConfig::setName ) ||
         !reader.requireText( "sequence", sequence ) )
        return false;
    if ( !pDetectorConfig->parseSequence( sequence.c_str() ) ) {
        VELQUIN_REPORT_ERROR( in_logger, "Could not parse detector sequence for disconnect detector "
                                             << pDetectorConfig->getName() );
        return false;
    }
    // A second detector of the same name is dropped; the configuration stays valid.
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
    const EntriesRead eRead = walkEntries( ChildElements( pDetectors, "detector" ), [&]( xmlNode* in_pDetector ) {
        return readDetector( in_pDetector, getLogger(), *pDisconnectConfig );
    } );
    return eRead == EntriesRead::ALL ? pDisconnectConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool AnalogDisconnectSupervisionConfigXmlSerializer::write( xmlNode* const, const AnalogDisconnectSupervisionConfig& ) {
    return assertNotImplemented( getLogger(), "AnalogDisconnectSupervisionConfigXmlSerializer::write", __FILE__,
                                 __LINE__ );
}

} // namespace Velquin::Pstn
