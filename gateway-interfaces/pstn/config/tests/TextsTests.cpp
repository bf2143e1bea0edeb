#include "ConfigTest.h"

// Every text of the library is provoked by some case.

namespace Velquin::Pstn::Test {

TEST( Texts, AreProvokedByCases ) {
    const std::string strGiven = getLinesOfCases();
    std::size_t uTexts = 0;
    for ( const std::string& strLine : split( readFile( DATA_FOLDER + "/texts.txt" ), "\n" ) ) {
        std::vector<std::string> vecTexts = split( strLine.starts_with( '#' ) ? "" : strLine, "|" );
        EXPECT_EQ( vecTexts.back(), "" ) << strLine;
        vecTexts.pop_back();
        for ( const std::string& strText : vecTexts )
            EXPECT_NE( strGiven.find( strText ), std::string::npos ) << "no case gives: " << strText;
        uTexts += vecTexts.size();
    }
    EXPECT_GT( uTexts, 150U );
}

} // namespace Velquin::Pstn::Test
