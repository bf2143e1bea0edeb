#include "analog/AnalogCallControlConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "analog/AnalogFxoConfigXmlSerializer.h"
#include "analog/AnalogFxsConfigXmlSerializer.h"
#include "reading/ElementEntries.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogCallControlConfigXmlSerializer );

namespace {

constexpr const char* FXO_ELEMENT = "analogFxoConfig";
constexpr const char* FXS_ELEMENT = "analogFxsConfig";

/// Reads one configuration with a reader of its own. The caller owns the result; it is null when reading fails or gives
/// an object of another class.
template <class TConfig, class TXmlSerializer>
TConfig* readConfig( TSHandle<CallControlConfig>& in_hCallControlConfig, xmlNode* in_pElement,
                     XmlConfig& in_xmlConfig ) {
    TXmlSerializer xmlSerializer;
    return dynamicOwnerCast<TConfig>( UniqueObjPtr<AnalogCallControlCommonConfig>(
                                          xmlSerializer.read( in_hCallControlConfig, in_pElement, in_xmlConfig ) ) )
        .release();
}

} // namespace

AnalogCallControlConfig* AnalogCallControlConfigXmlSerializer::read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                                                     xmlNode* const in_pElement,
                                                                     XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<AnalogCallControlConfig> pAnalogConfig( new AnalogCallControlConfig() );
    const auto readFxo = [&]( xmlNode* in_pFxo ) {
        AnalogFxoConfig* const pNewFXOConfig =
            readConfig<AnalogFxoConfig, AnalogFxoConfigXmlSerializer>( in_hCallControlConfig, in_pFxo, in_xmlConfig );
        if ( !VELQUIN_ASSERT( pNewFXOConfig ) )
            return false;
        if ( pAnalogConfig->addFXOConfig( pNewFXOConfig ) )
            return true;
        VELQUIN_REPORT_ERROR( getLogger(), "Error while adding analog FXO config" );
        return false;
    };
    const auto readFxs = [&]( xmlNode* in_pFxs ) {
        AnalogFxsConfig* const pNewFXSConfig =
            readConfig<AnalogFxsConfig, AnalogFxsConfigXmlSerializer>( in_hCallControlConfig, in_pFxs, in_xmlConfig );
        if ( !VELQUIN_ASSERT( pNewFXSConfig ) )
            return false;
        if ( pAnalogConfig->addFXSConfig( pNewFXSConfig ) )
            return true;
        VELQUIN_REPORT_ERROR( getLogger(), "Error while adding analog FXS config" );
        return false;
    };
    // Behind the first FXS element the walk looks for FXO elements, and passes over further FXS elements. The format's
    // schema allows neither there.
    if ( !readEntries( ChildElements( in_pElement, FXO_ELEMENT ), readFxo ) ||
         !readEntries( ChildElements( in_pElement, FXS_ELEMENT, FXO_ELEMENT ), readFxs ) )
        return nullptr;
    return pAnalogConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool AnalogCallControlConfigXmlSerializer::write( xmlNode* const, const AnalogCallControlConfig& ) {
    return assertNotImplemented( getLogger(), "AnalogCallControlConfigXmlSerializer::write", __FILE__, __LINE__ );
}

} // namespace Velquin::Pstn
