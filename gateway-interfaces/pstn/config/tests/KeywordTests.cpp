#include "ConfigTest.h"
#include "NumberCheck.h"

// The keywords of the format, each read from a document, and the numbers behind them; numbers in attributes.

namespace Velquin::Pstn::Test {

std::vector<KeywordRow> getKeywordRows() {
    std::vector<KeywordRow> vecRows;
    for ( Record& record : readRecords( "keywords.rows", "@?!" ) ) {
        const std::vector<std::string>& vecWords = record.vecWords;
        const std::vector<std::string> vecPaths = split( vecWords[2], "|" );
        for ( std::size_t u = 0; u < vecPaths.size(); ++u ) {
            KeywordRow& row =
                vecRows.emplace_back( KeywordRow{ vecWords[1], vecPaths[u], vecWords[3], {}, "", record.vecEdits } );
            int nValue = std::stoi( vecWords[4] );
            auto it = vecWords.begin() + 5;
            for ( ; *it != "="; ++it, ++nValue ) {
                for ( const std::string& strKeyword : split( *it, "|" ) )
                    row.vecKeywords.emplace_back( strKeyword, nValue );
            }
            while ( ++it != vecWords.end() ) {
                const std::vector<std::string> vecAlternatives = split( *it, "|" );
                row.strLine += vecAlternatives.at( vecAlternatives.size() > 1 ? u : 0 ) + " ";
            }
            row.bReported = record.mapLines['?'].empty();
            row.strOtherLine = join( record.mapLines[row.bReported ? '!' : '?'] );
        }
    }
    return vecRows;
}

namespace {

using Values = std::map<std::string_view, int>; ///< of keywords

template <class TTable>
Values getValues( const TTable& in_table ) {
    Values mapValues;
    for ( const auto& [strKeyword, value] : in_table.getEntries() )
        mapValues[strKeyword] = static_cast<int>( value );
    return mapValues;
}

template <class... TTables>
std::map<std::string, Values> getTables( const std::pair<const char*, TTables>&... in_tables ) {
    return { { in_tables.first, getValues( in_tables.second ) }... };
}

#define TABLE( name ) std::pair( #name, Keywords::name )
/// The keywords of each table, and the numbers that they stand for.
const auto TABLES = getTables(
    TABLE( TRUE_FALSE ), TABLE( YES_NO ), TABLE( ENABLED_DISABLED ), TABLE( ANALOG_MEDIA_TYPE ), TABLE( FRAMING ),
    TABLE( LINE_ENCODING ), TABLE( DIGITAL_CLOCKING ), TABLE( LOOPBACK_MODE ), TABLE( RECEIVER_SENSITIVITY ),
    TABLE( E1_SIGNALING ), TABLE( E1_TERMINATION ), TABLE( LINE_BUILD_OUT ), TABLE( ANALOG_CLOCKING ), TABLE( COUNTRY ),
    TABLE( PCM_LAW ), TABLE( ECHO_CANCELLATION_MODE ), TABLE( COMFORT_NOISE_MODE ), TABLE( DOUBLE_TALK_BEHAVIOR ),
    TABLE( ACOUSTIC_ECHO_CANCELLATION_MODE ), TABLE( LEVEL_CONTROL_MODE ), TABLE( BACKGROUND_NOISE_ATTENUATION_MODE ),
    TABLE( DTMF_REMOVAL_MODE ), TABLE( VOICE_DIRECTION ), TABLE( CHANNEL_DIRECTION ), TABLE( HUNTING_SCHEME ),
    TABLE( TERMINATION ), TABLE( SWITCH_VARIANT ), TABLE( B_CHANNEL_NEGOTIATION ), TABLE( TONES_GENERATION ),
    TABLE( TONES_INDICATOR ), TABLE( CALLER_NAME_LOCATION ), TABLE( NFAS_D_CHANNEL_MODE ),
    TABLE( FXO_NOTIFY_CONDITION ), TABLE( FXO_INBOUND_CONNECT_CONDITION ), TABLE( FXO_CALLER_ID_TYPE ),
    TABLE( FXO_CONNECT_SUPERVISION ), TABLE( FXO_OUTBOUND_CONNECT_CONDITION ), TABLE( FXS_OUT_OF_SERVICE_BEHAVIOR ),
    TABLE( FXS_NOTIFICATION_MODE ) );
#undef TABLE

std::string swapCase( std::string in_strText ) {
    for ( char& c : in_strText )
        c = static_cast<char>( std::islower( c ) ? std::toupper( c ) : std::tolower( c ) );
    return in_strText;
}

bool hasLine( const XmlConfig& in_config, const std::string& in_strLine ) {
    return ( "\n" + describeLines( in_config ) ).find( "\n" + in_strLine ) != std::string::npos;
}

} // namespace

TEST( Keywords, AreThoseOfTheirTables ) {
    std::map<std::string, Values> mapTables;
    const std::vector<KeywordRow> vecRows = getKeywordRows();
    for ( const KeywordRow& row : vecRows ) {
        for ( const auto& [strKeyword, nValue] : row.vecKeywords )
            mapTables[row.strTable][strKeyword] = nValue;
    }
    mapTables.erase( "PRIORITY" ); // those are of the gateway's core
    EXPECT_EQ( mapTables, TABLES );
}

TEST( Keywords, AreReadExactly ) {
    const Velquin::Test::LogCapture quiet( Logger::ERROR_LEVEL );
    for ( const KeywordRow& row : getKeywordRows() ) {
        const TestDocument needed( row.vecNeeds );
        const auto loadWith = [&]( XmlConfig& out_config, const std::string& in_strValue ) {
            const Edit value{ row.strPath, row.strAttribute + "=\"" + in_strValue + "\"" };
            return loadText( out_config, TestDocument( needed ).edit( value ).getText() );
        };
        for ( const auto& [strKeyword, nValue] : row.vecKeywords ) {
            const int nNumber = nValue; // a lambda takes no structured binding
            SCOPED_TRACE( row.strPath + "/@" + row.strAttribute + "=" + strKeyword );
            XmlConfig config;
            const LoadResult result = loadWith( config, strKeyword );
            EXPECT_EQ( join( result.vecLines ), "" );
            ASSERT_TRUE( result.bValid );
            // Of two keywords with one value, the first is written.
            const auto itWritten = std::find_if( row.vecKeywords.begin(), row.vecKeywords.end(),
                                                 [&]( const auto& in_other ) { return in_other.second == nNumber; } );
            EXPECT_TRUE( hasLine( config, row.strLine + "= \"" + itWritten->first + "\"\n" ) );
            for ( const std::string& strWrong : { swapCase( strKeyword ), strKeyword + " ", " " + strKeyword } ) {
                SCOPED_TRACE( strWrong );
                XmlConfig wrong;
                const LoadResult refusal = loadWith( wrong, strWrong );
                EXPECT_EQ( refusal.bValid, !row.strOtherLine.empty() );
                EXPECT_EQ( !refusal.vecLines.empty(), row.bReported );
                EXPECT_TRUE( row.strOtherLine.empty() || hasLine( wrong, row.strOtherLine ) );
            }
        }
    }
}

// ---- Numbers

// fuzz/number.cpp asks the same of texts at random.
TEST( Numbers, AreTakenAsAStreamTakesThem ) {
    const std::string strZeros( 400, '0' );
    StringVector vecTexts;
    strTokenize( "| |0|-0|+0|00|007|12abc| 12|\t\n\v\f\r12|12 |1 2|+12\f\v |12\x1c|-12 |1.5 |+12|-12|+-1|--1|- "
                 "1|-|+|0x10|0X1F|x|1,000|1.5|.5|"
                 "-.5|5.|.|-.|1.2.3|..1|1e3|1E3|1e+3|1e-3|1e|1e+|1e-|1ee|1e5e5|1e5.5|e5|.e5|0e|inf|-inf|INFINITY|nan|"
                 "NaN|1_0|\xD9\xA1|\xC2\xA0"
                 "1|0b1|1f|1u|1'000|0.1|2147483647|2147483648|-2147483648|-2147483649|"
                 "4294967295|4294967296|-4294967295|-4294967296|18446744073709551615|18446744073709551616|"
                 "-18446744073709551615|-18446744073709551616|99999999999999999999999999|1e308|1.8e308|-1.8e308|1e309|"
                 "4.9e-324|1e-310|2e-324|1e-400|-1e-400|0e999|1e99999999999999999999|1e-99999999999999999999|1e+"
                 "99999999999999999999|"
                 "9007199254740993|0.1000000000000000055511151231257827021181583404541",
                 vecTexts, '|' );
    vecTexts.insert( vecTexts.end(), { "1" + strZeros, "-1" + strZeros, strZeros + "1", "0." + strZeros + "1",
                                       "1" + strZeros + "e-10", "1" + strZeros + "e-400", "0." + strZeros + "1e401",
                                       "0." + strZeros + "1e10", "." + strZeros + "e5" } );
    for ( const std::string& strText : vecTexts )
        EXPECT_STREQ( findNumberFault( strText ), nullptr ) << '"' << strText << '"';
}

} // namespace Velquin::Pstn::Test
