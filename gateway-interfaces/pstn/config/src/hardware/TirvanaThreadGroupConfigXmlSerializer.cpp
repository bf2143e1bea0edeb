#include "hardware/TirvanaThreadGroupConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaThreadGroupConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for thread group ", "] for thread group " };

} // namespace

TirvanaThreadGroupConfig* TirvanaThreadGroupConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& ) try {
    UniqueObjPtr<TirvanaThreadGroupConfig> pThreadGroupConfig( new TirvanaThreadGroupConfig() );
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    AttributeText priorityText;
    if ( !reader.require( "count", LEADING_DECIMAL, *pThreadGroupConfig, &TirvanaThreadGroupConfig::setThreadCount ) ||
         !reader.requireText( "priority", priorityText ) )
        return nullptr;
    const Priority priority( std::string( priorityText.view() ) );
    if ( !priority.isValid() ) {
        reader.reportInvalid( "priority", priorityText.view(),
                              "Please specify one of the following prioritie values: " +
                                  Priority::getSupportedPrioritiesDescription() );
        return nullptr;
    }
    pThreadGroupConfig->setThreadsPriority( priority );
    return pThreadGroupConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaThreadGroupConfigXmlSerializer::write( xmlNode* const, const TirvanaThreadGroupConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaThreadGroupConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn
