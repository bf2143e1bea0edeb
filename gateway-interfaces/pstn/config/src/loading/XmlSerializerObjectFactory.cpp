#include "loading/XmlSerializerObjectFactory.h"

#include <string_view>

#include <velquin/Finding.h>

#include "RuleNames.h"
#include "hardware/TirvanaAnalogBoardConfig.h"
#include "hardware/TirvanaAnalogBoardConfigXmlSerializer.h"
#include "hardware/TirvanaDigitalBoardConfig.h"
#include "hardware/TirvanaDigitalBoardConfigXmlSerializer.h"
#include "hardware/TirvanaDigitalVirtualBoardConfig.h"
#include "hardware/TirvanaDigitalVirtualBoardConfigXmlSerializer.h"
#include "hardware/TirvanaProviderConfigXmlSerializer.h"
#include "physical/TirvanaAnalogInterfacePhysicalConfigXmlSerializer.h"
#include "physical/TirvanaDigitalInterfacePhysicalConfigXmlSerializer.h"
#include "physical/audio/HardwareAcousticEchoCancellationConfigXmlSerializer.h"
#include "physical/audio/HardwareBackgroundNoiseAttenuationConfigXmlSerializer.h"
#include "physical/audio/HardwareDtmfRemovalConfigXmlSerializer.h"
#include "physical/audio/HardwareEchoCancellationConfigXmlSerializer.h"
#include "physical/audio/HardwareLevelControlConfigXmlSerializer.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( XmlSerializerObjectFactory );

namespace {

constexpr const char* HARDWARE = "HARDWARE";
constexpr const char* UNKNOWN_BOARD = "unkown board config type: ";

template <class TBase>
struct Entry {
    std::string_view strKeyword;
    TBase* ( *create )();
};

template <class TBase, class TXmlSerializer>
TBase* create() {
    return new TXmlSerializer();
}

constexpr Entry<ProviderConfigXmlSerializer> PROVIDERS[] = {
    { "tirvana", &create<ProviderConfigXmlSerializer, TirvanaProviderConfigXmlSerializer> },
};
constexpr Entry<BoardConfigXmlSerializer> BOARDS[] = {
    { "tirvanaDigitalBoard", &create<BoardConfigXmlSerializer, TirvanaDigitalBoardConfigXmlSerializer> },
    { "tirvanaAnalogBoard", &create<BoardConfigXmlSerializer, TirvanaAnalogBoardConfigXmlSerializer> },
    { "tirvanaVirtualDigitalBoard", &create<BoardConfigXmlSerializer, TirvanaDigitalVirtualBoardConfigXmlSerializer> },
};
constexpr Entry<InterfacePhysicalConfigXmlSerializer> PHYSICAL_CONFIGS[] = {
    { "tirvanaDigitalConfig",
      &create<InterfacePhysicalConfigXmlSerializer, TirvanaDigitalInterfacePhysicalConfigXmlSerializer> },
    { "tirvanaAnalogConfig",
      &create<InterfacePhysicalConfigXmlSerializer, TirvanaAnalogInterfacePhysicalConfigXmlSerializer> },
};
constexpr Entry<EchoCancellationConfigXmlSerializer> ECHO_CANCELLATIONS[] = {
    { HARDWARE, &create<EchoCancellationConfigXmlSerializer, HardwareEchoCancellationConfigXmlSerializer> },
};
constexpr Entry<AcousticEchoCancellationConfigXmlSerializer> ACOUSTIC_ECHO_CANCELLATIONS[] = {
    { HARDWARE,
      &create<AcousticEchoCancellationConfigXmlSerializer, HardwareAcousticEchoCancellationConfigXmlSerializer> },
};
constexpr Entry<LevelControlConfigXmlSerializer> LEVEL_CONTROLS[] = {
    { HARDWARE, &create<LevelControlConfigXmlSerializer, HardwareLevelControlConfigXmlSerializer> },
};
constexpr Entry<BackgroundNoiseAttenuationConfigXmlSerializer> BACKGROUND_NOISE_ATTENUATIONS[] = {
    { HARDWARE,
      &create<BackgroundNoiseAttenuationConfigXmlSerializer, HardwareBackgroundNoiseAttenuationConfigXmlSerializer> },
};
constexpr Entry<DtmfRemovalConfigXmlSerializer> DTMF_REMOVALS[] = {
    { HARDWARE, &create<DtmfRemovalConfigXmlSerializer, HardwareDtmfRemovalConfigXmlSerializer> },
};

/// @param in_szUnknown logged, with the keyword, when nothing matches
/// @param in_szAttribute the attribute that has the keyword; null for the name of an element
template <class TBase, std::size_t N>
TBase* createByKeyword( const Entry<TBase> ( &in_aEntries )[N], const char* in_szKeyword, const char* in_szUnknown,
                        const Logger& in_logger, const char* in_szAttribute = nullptr ) noexcept try {
    const std::string_view strKeyword( in_szKeyword ? in_szKeyword : "" );
    for ( const auto& entry : in_aEntries ) {
        if ( entry.strKeyword == strKeyword )
            return entry.create();
    }
    Fault fault{ Rules::UNKNOWN_ELEMENT, in_szKeyword ? in_szKeyword : "", {}, {}, Finding::Kind::UNKNOWN_ELEMENT };
    if ( in_szAttribute )
        fault = { Rules::INVALID_VALUE, in_szAttribute, std::string( strKeyword ),
                  describeValues( std::vector{ in_aEntries[0].strKeyword } ) };
    VELQUIN_REPORT( in_logger, std::move( fault ), in_szUnknown << strKeyword );
    return nullptr;
}
VELQUIN_CATCH_AND_RETURN( in_logger, nullptr )

} // namespace

ProviderConfigXmlSerializer*
XmlSerializerObjectFactory::newProviderConfigXmlSerializer( const char* in_szKeyword ) const {
    return createByKeyword( PROVIDERS, in_szKeyword, "unkown provider: ", getLogger() );
}

BoardConfigXmlSerializer* XmlSerializerObjectFactory::newBoardConfigXmlSerializer( BoardConfig& in_boardConfig ) const
    try {
    if ( dynamic_cast<TirvanaDigitalBoardConfig*>( &in_boardConfig ) )
        return new TirvanaDigitalBoardConfigXmlSerializer();
    if ( dynamic_cast<TirvanaAnalogBoardConfig*>( &in_boardConfig ) )
        return new TirvanaAnalogBoardConfigXmlSerializer();
    if ( dynamic_cast<TirvanaDigitalVirtualBoardConfig*>( &in_boardConfig ) )
        return new TirvanaDigitalVirtualBoardConfigXmlSerializer();
    VELQUIN_REPORT_ERROR( getLogger(), UNKNOWN_BOARD );
    return nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

BoardConfigXmlSerializer* XmlSerializerObjectFactory::newBoardConfigXmlSerializer( const char* in_szKeyword ) const {
    return createByKeyword( BOARDS, in_szKeyword, UNKNOWN_BOARD, getLogger() );
}

InterfacePhysicalConfigXmlSerializer*
XmlSerializerObjectFactory::newInterfacePhysicalConfigXmlSerializer( const char* in_szKeyword ) const {
    return createByKeyword( PHYSICAL_CONFIGS, in_szKeyword, "unkown physical config type: ", getLogger() );
}

EchoCancellationConfigXmlSerializer*
XmlSerializerObjectFactory::newEchoCancellationConfigXmlSerializer( const char* in_szKeyword ) const {
    return createByKeyword( ECHO_CANCELLATIONS, in_szKeyword, "unkown echo cancellation config type: ", getLogger(),
                            "type" );
}

AcousticEchoCancellationConfigXmlSerializer*
XmlSerializerObjectFactory::newAcousticEchoCancellationConfigXmlSerializer( const char* in_szKeyword ) const {
    return createByKeyword( ACOUSTIC_ECHO_CANCELLATIONS, in_szKeyword,
                            "unkown acoustic echo cancellation config type: ", getLogger(), "type" );
}

LevelControlConfigXmlSerializer*
XmlSerializerObjectFactory::newLevelControlConfigXmlSerializer( const char* in_szKeyword ) const {
    return createByKeyword( LEVEL_CONTROLS, in_szKeyword, "unkown level control config type: ", getLogger(), "type" );
}

BackgroundNoiseAttenuationConfigXmlSerializer*
XmlSerializerObjectFactory::newBackgroundNoiseAttenuationConfigXmlSerializer( const char* in_szKeyword ) const {
    return createByKeyword( BACKGROUND_NOISE_ATTENUATIONS, in_szKeyword,
                            "unkown background noise attenuation config type: ", getLogger(), "type" );
}

DtmfRemovalConfigXmlSerializer*
XmlSerializerObjectFactory::newDtmfRemovalConfigXmlSerializer( const char* in_szKeyword ) const {
    return createByKeyword( DTMF_REMOVALS, in_szKeyword, "unkown DTMF removal config type: ", getLogger(), "type" );
}

} // namespace Velquin::Pstn
