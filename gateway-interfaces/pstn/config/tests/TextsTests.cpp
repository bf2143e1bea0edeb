#include <fstream>

#include <velquin/StringVector.h>

#include "ConfigTest.h"

// Every text of the library is provoked by some case.

namespace Velquin::Pstn::Test {

TEST( Texts, AreProvokedByCases ) {
    std::ifstream list( std::string( DATA_FOLDER ) + "/texts.txt" );
    const std::string strGiven = getLinesOfCases();
    std::size_t uTexts = 0;
    for ( std::string strLine; std::getline( list, strLine ); ) {
        if ( strLine.starts_with( '#' ) || strLine.empty() )
            continue;
        StringVector vecTexts;
        strTokenize( strLine, vecTexts, '|' );
        EXPECT_EQ( vecTexts.back(), "" ) << strLine;
        vecTexts.pop_back();
        for ( const std::string& strText : vecTexts )
            EXPECT_NE( strGiven.find( strText ), std::string::npos ) << "no case gives: " << strText;
        uTexts += vecTexts.size();
    }
    EXPECT_GT( uTexts, 150U );
}

} // namespace Velquin::Pstn::Test
