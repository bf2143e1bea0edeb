#include <fstream>

#include <velquin/StringVector.h>

#include "ConfigTest.h"

// Every text of the library is provoked by some case: the list says by which.

namespace Velquin::Pstn::Test {

TEST( Texts, AreProvokedByTheirCases ) {
    std::ifstream list( std::string( DATA_FOLDER ) + "/texts.txt" );
    std::size_t uTexts = 0;
    for ( std::string strLine; std::getline( list, strLine ); ) {
        if ( strLine.starts_with( '#' ) || strLine.empty() )
            continue;
        const std::size_t uBlank = strLine.find( ' ' );
        const std::string strCase = strLine.substr( 0, uBlank );
        StringVector vecTexts;
        strTokenize( strLine.substr( uBlank + 1 ), vecTexts, '|' );
        EXPECT_EQ( vecTexts.back(), "" ) << strLine;
        vecTexts.pop_back();
        for ( const std::string& strText : vecTexts )
            EXPECT_NE( join( getLinesOfCase( strCase ) ).find( strText ), std::string::npos )
                << strCase << " doesn't give: " << strText;
        uTexts += vecTexts.size();
    }
    EXPECT_GT( uTexts, 150U );
}

} // namespace Velquin::Pstn::Test
