#include "analog/AnalogDisconnectDetectorConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/StringVector.h>

#include "RuleNames.h"
#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogDisconnectDetectorConfig );

bool AnalogDisconnectDetectorConfig::setName( const char* in_szName ) {
    return assignText( m_strName, in_szName, getLogger() );
}

bool AnalogDisconnectDetectorConfig::parseSequence( const char* in_szSequence ) try {
    m_vecSequence.clear();
    if ( !VELQUIN_ASSERT( in_szSequence != nullptr ) )
        return false;
    StringVector vecItems;
    strTokenize( in_szSequence, vecItems, ',' );
    std::vector<Sequencemenber> vecSequence;
    vecSequence.reserve( vecItems.size() );
    for ( const std::string& strItem : vecItems ) {
        StringVector vecParts;
        strTokenize( strItem, vecParts, '/' );
        if ( vecParts.empty() || vecParts.size() > 2 ) {
            VELQUIN_REPORT( getLogger(),
                            ( Fault{ Rules::INVALID_SEQUENCE, "sequence", in_szSequence,
                                     "no item between commas is empty or has two slashes: busy/3,silence" } ),
                            "Invalid sequence for disconnect supervison" );
            return false;
        }
        vecSequence.emplace_back( vecParts.front(), vecParts.size() == 2 ? vecParts.back() : std::string() );
    }
    m_vecSequence = std::move( vecSequence );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn
