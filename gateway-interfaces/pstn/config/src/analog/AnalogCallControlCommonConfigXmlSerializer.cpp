#include "analog/AnalogCallControlCommonConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogCallControlCommonConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for analog config  ", "] for analog config  " };

} // namespace

AnalogCallControlCommonConfig* AnalogCallControlCommonConfigXmlSerializer::read( TSHandle<CallControlConfig>&,
                                                                                 xmlNode* const in_pElement,
                                                                                 XmlConfig& ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    UniqueObjPtr<AnalogCallControlCommonConfig> pCommonConfig( newAnalogCallControlCommonConfig() );
    // The blank is part of the assertion's text.
    // clang-format off
    if ( !VELQUIN_ASSERT( ! pCommonConfig.isNull() ) )
        return nullptr;
    // clang-format on

    using Config = AnalogCallControlCommonConfig;
    if ( !reader.requireKey( "ID", LEADING_DECIMAL, *pCommonConfig, &Config::setId ) ||
         !reader.require( "displayName", ANY_TEXT, *pCommonConfig, &Config::setDisplayName ) )
        return nullptr;
    return pCommonConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool AnalogCallControlCommonConfigXmlSerializer::write( xmlNode* const, const AnalogCallControlCommonConfig& ) {
    return assertNotImplemented( getLogger(), "AnalogCallControlCommonConfigXmlSerializer::write", __FILE__, __LINE__ );
}

AnalogCallControlCommonConfig* AnalogCallControlCommonConfigXmlSerializer::newAnalogCallControlCommonConfig() {
    return nullptr;
}

} // namespace Velquin::Pstn
