#include "analog/AnalogCallControlConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>
#include <velquin/XML.h>

#include "analog/AnalogFxoConfigXmlSerializer.h"
#include "analog/AnalogFxsConfigXmlSerializer.h"
#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogCallControlConfigXmlSerializer );

namespace {

constexpr const char* FXO_ELEMENT = "analogFxoConfig";
constexpr const char* FXS_ELEMENT = "analogFxsConfig";

/// Reads one configuration with a reader of its own; null when that fails or makes an object of another class. The
/// caller owns the object.
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
    for ( xmlNode* pElement = XML::findFirstElement( in_pElement, FXO_ELEMENT ); pElement;
          pElement = XML::findNextElement( pElement, FXO_ELEMENT ) ) {
        const ElementPlace place( pElement );
        AnalogFxoConfig* const pNewFXOConfig =
            readConfig<AnalogFxoConfig, AnalogFxoConfigXmlSerializer>( in_hCallControlConfig, pElement, in_xmlConfig );
        if ( !VELQUIN_ASSERT( pNewFXOConfig ) )
            return nullptr;
        if ( !pAnalogConfig->addFXOConfig( pNewFXOConfig ) ) {
            VELQUIN_REPORT_ERROR( getLogger(), "Error while adding analog FXO config" );
            return nullptr;
        }
    }
    // From the first FXS element the walk goes on to FXO elements: later FXS elements are passed over. The schema of
    // the format lets none stand there.
    for ( xmlNode* pElement = XML::findFirstElement( in_pElement, FXS_ELEMENT ); pElement;
          pElement = XML::findNextElement( pElement, FXO_ELEMENT ) ) {
        const ElementPlace place( pElement );
        AnalogFxsConfig* const pNewFXSConfig =
            readConfig<AnalogFxsConfig, AnalogFxsConfigXmlSerializer>( in_hCallControlConfig, pElement, in_xmlConfig );
        if ( !VELQUIN_ASSERT( pNewFXSConfig ) )
            return nullptr;
        if ( !pAnalogConfig->addFXSConfig( pNewFXSConfig ) ) {
            VELQUIN_REPORT_ERROR( getLogger(), "Error while adding analog FXS config" );
            return nullptr;
        }
    }
    return pAnalogConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool AnalogCallControlConfigXmlSerializer::write( xmlNode* const, const AnalogCallControlConfig& ) {
    return assertNotImplemented( getLogger(), "AnalogCallControlConfigXmlSerializer::write", __FILE__, __LINE__ );
}

} // namespace Velquin::Pstn
