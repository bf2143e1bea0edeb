// Compares the sequence of a disconnect detector with an independent rule for its text.

#include <algorithm>
#include <string>
#include <string_view>

#include "ErrorCount.h"
#include "FuzzTarget.h"
#include "QuietLog.h"
#include "analog/AnalogDisconnectDetectorConfig.h"

using namespace Velquin::Pstn;

int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    static const QuietLog s_log( log4cplus::WARN_LOG_LEVEL );
    const std::string strInput( reinterpret_cast<const char*>( in_pData ), in_uSize );
    const std::string strText = strInput.c_str(); // up to a zero
    AnalogDisconnectDetectorConfig detector;
    detector.parseSequence( "left/over" );
    const Fuzz::ErrorCount errors;
    const bool bTaken = detector.parseSequence( strText.c_str() );
    Fuzz::require( errors.get() == ( bTaken ? 0U : 1U ), "what is refused is told once" );

    bool bSequence = true;
    auto itItem = detector.getSequence().begin();
    std::string_view strRest = strText;
    for ( bool bMore = !strText.empty(); bMore && bSequence; ) {
        const std::string_view strItem = strRest.substr( 0, strRest.find( ',' ) );
        bMore = strItem.size() < strRest.size();
        strRest.remove_prefix( strItem.size() + ( bMore ? 1 : 0 ) );
        bSequence = !strItem.empty() && std::count( strItem.begin(), strItem.end(), '/' ) <= 1;
        if ( !bTaken || !bSequence )
            continue;
        Fuzz::require( itItem != detector.getSequence().end(), "no item is missing" );
        const auto& [strFirst, strSecond] = *itItem++;
        Fuzz::require( strItem == strFirst + "/" + strSecond || ( strItem == strFirst && strSecond.empty() ),
                       "an item is the text before the slash and the text after it" );
    }
    Fuzz::require( bTaken == bSequence, "a text is taken when it is a sequence" );
    Fuzz::require( itItem == detector.getSequence().end(), "no item is left over" );
    return 0;
}
