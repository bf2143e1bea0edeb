#include "hardware/TirvanaThreadGroupConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaThreadGroupConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for thread group ", "] for thread group " };

bool readPriority( const ElementReader& in_reader, TirvanaThreadGroupConfig& out_config ) {
    AttributeText text;
    if ( !in_reader.requireText( "priority", text ) )
        return AttributeReader::passOver();
    const Priority priority( std::string( text.view() ) );
    if ( !priority.isValid() ) {
        in_reader.reportInvalid( "priority", text.view(),
                                 "Please specify one of the following prioritie values: " +
                                     Priority::getSupportedPrioritiesDescription() );
        return AttributeReader::passOver();
    }
    out_config.setThreadsPriority( priority );
    return true;
}

} // namespace

TirvanaThreadGroupConfig* TirvanaThreadGroupConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& ) try {
    UniqueObjPtr<TirvanaThreadGroupConfig> pThreadGroupConfig( new TirvanaThreadGroupConfig() );
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    const bool bRead =
        reader.require( "count", LEADING_DECIMAL, *pThreadGroupConfig, &TirvanaThreadGroupConfig::setThreadCount ) &&
        readPriority( reader, *pThreadGroupConfig );
    return bRead ? pThreadGroupConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaThreadGroupConfigXmlSerializer::write( xmlNode* const, const TirvanaThreadGroupConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaThreadGroupConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn
