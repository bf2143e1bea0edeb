#include <fstream>

#include "ConfigTest.h"

// Every text of the library is provoked by some case: the list says by which.

namespace Velquin::Pstn::Test {

TEST( Texts, AreProvokedByTheirCases ) {
    std::ifstream list( std::string( DATA_FOLDER ) + "/texts.txt" );
    unsigned int uTexts = 0;
    for ( std::string strLine; std::getline( list, strLine ); ) {
        const std::size_t uEnd = strLine.rfind( "| " );
        if ( strLine.starts_with( '#' ) || strLine.empty() )
            continue;
        ASSERT_NE( uEnd, std::string::npos ) << strLine;
        const std::string strText = strLine.substr( 0, uEnd );
        const std::string strCase = strLine.substr( uEnd + 2 );
        EXPECT_NE( join( getLinesOfCase( strCase ) ).find( strText ), std::string::npos )
            << strCase << " doesn't give: " << strText;
        ++uTexts;
    }
    EXPECT_GT( uTexts, 150U );
}

} // namespace Velquin::Pstn::Test
