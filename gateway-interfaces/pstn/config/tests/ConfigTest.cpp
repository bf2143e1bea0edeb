#include "ConfigTest.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include <log4cplus/nullappender.h>

#include <velquin/StringVector.h>

#include "LogCapture.h"
#include "ModelText.h"
#include "document/DocumentBuilder.h"

namespace Velquin::Pstn::Test {

const char* const DATA_FOLDER = PSTN_TEST_DATA;
const char* const EXAMPLES_FOLDER = PSTN_TEST_EXAMPLES;
const char* const SCHEMA = PSTN_TEST_SCHEMA;
const char* const ANY_SCHEMA = PSTN_TEST_DATA "/any.rng";

namespace {

std::size_t findOnce( const std::string& in_strText, const std::string& in_strPart ) {
    const std::size_t uPosition = in_strText.find( in_strPart );
    EXPECT_NE( uPosition, std::string::npos ) << "not in the document: " << in_strPart;
    if ( uPosition != std::string::npos ) {
        EXPECT_EQ( in_strText.find( in_strPart, uPosition + 1 ), std::string::npos ) << "twice: " << in_strPart;
    }
    return uPosition;
}

/// The log goes nowhere, except where a test captures it, and documents are built as the program's caller chooses.
class Surroundings : public testing::Environment {
public:
    void SetUp() override {
        const char* const szBuilder = std::getenv( "PSTN_TEST_BUILDER" );
        if ( szBuilder && std::string( szBuilder ) == "native" ) {
            ASSERT_TRUE( setDocumentBuilder( DocumentBuilder::NATIVE ) );
        }
        log4cplus::Logger::getRoot().addAppender( log4cplus::SharedAppenderPtr( new log4cplus::NullAppender() ) );
    }
};
const testing::Environment* const SURROUNDINGS = testing::AddGlobalTestEnvironment( new Surroundings() );

std::map<std::string, std::vector<std::string>>& getRegisteredCases() {
    static std::map<std::string, std::vector<std::string>> s_mapCases;
    return s_mapCases;
}

} // namespace

TestDocument::TestDocument() : m_strText( readFile( std::string( DATA_FOLDER ) + "/complete.xml" ) ) {}

TestDocument& TestDocument::edit( const Edit& in_edit ) {
    const std::size_t uPosition = findOnce( m_strText, in_edit.strFrom );
    if ( uPosition != std::string::npos )
        m_strText.replace( uPosition, in_edit.strFrom.size(), in_edit.strTo );
    m_strLastEdit = in_edit.strTo;
    return *this;
}

TestDocument& TestDocument::edit( const std::vector<Edit>& in_vecEdits ) {
    for ( const Edit& one : in_vecEdits )
        edit( one );
    return *this;
}

unsigned int TestDocument::getLine( const std::string& in_strText ) const {
    const std::size_t uPosition = findOnce( m_strText, in_strText );
    const std::size_t uEnd = m_strText.find( '>', uPosition );
    return static_cast<unsigned int>(
        1 + std::count( m_strText.begin(), m_strText.begin() + static_cast<std::ptrdiff_t>( uEnd ), '\n' ) );
}

std::string TestDocument::expand( std::string in_strExpected, const std::string& in_strFile ) const {
    static const std::regex s_regex( R"(\{(file|schema|line)(?::([^}]*))?\})" );
    std::string strResult;
    std::smatch match;
    while ( std::regex_search( in_strExpected, match, s_regex ) ) {
        strResult += match.prefix();
        if ( match[1] == "file" )
            strResult += in_strFile;
        else if ( match[1] == "schema" )
            strResult += SCHEMA;
        else
            strResult += std::to_string( getLine( match[2].matched ? match[2].str() : m_strLastEdit ) );
        in_strExpected = match.suffix().str();
    }
    return strResult + in_strExpected;
}

TemporaryFile::TemporaryFile( const std::string& in_strContent ) {
    static std::atomic<unsigned int> s_uCount{ 0 };
    // Tests run in several processes at a time.
    const auto uProcess = reinterpret_cast<std::uintptr_t>( &s_uCount ) ^
                          static_cast<std::uintptr_t>( std::chrono::steady_clock::now().time_since_epoch().count() );
    m_strPath = ( std::filesystem::temp_directory_path() /
                  ( "pstn-" + std::to_string( uProcess ) + "-" + std::to_string( ++s_uCount ) + ".xml" ) )
                    .string();
    std::ofstream( m_strPath, std::ios::binary ) << in_strContent;
}

TemporaryFile::~TemporaryFile() {
    std::error_code error;
    std::filesystem::remove( m_strPath, error );
}

std::string readFile( const std::string& in_strPath ) {
    std::ifstream stream( in_strPath, std::ios::binary );
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::string toLine( int in_nLevel, const std::string& in_strLogger, const std::string& in_strText ) {
    static const std::string s_strPrefix = "marovane.pstn.config.";
    static const std::regex s_sourceLine( ", line [0-9]+$" );
    std::string strLogger = in_strLogger;
    if ( strLogger.starts_with( s_strPrefix ) )
        strLogger.erase( 0, s_strPrefix.size() );
    const bool bAssertion = in_strText.starts_with( "Assertion failed: " );
    return std::string( in_nLevel >= Logger::ERROR_LEVEL ? "ERROR " : "WARN " ) + strLogger + ": " +
           ( bAssertion ? std::regex_replace( in_strText, s_sourceLine, ", line N" ) : in_strText );
}

std::vector<std::string> captureLines( const std::function<void()>& in_function ) {
    const Velquin::Test::LogCapture log( Logger::WARNING_LEVEL );
    in_function();
    std::vector<std::string> vecLines;
    for ( const auto& record : log.getRecords( Logger::WARNING_LEVEL ) )
        vecLines.push_back( toLine( record.nLevel, record.strLogger, record.strMessage ) );
    return vecLines;
}

LoadResult load( XmlConfig& out_config, const std::string& in_strFile, const std::string& in_strSchema ) {
    LoadResult result;
    result.vecLines =
        captureLines( [&] { result.bValid = out_config.load( in_strFile.c_str(), in_strSchema.c_str(), false ); } );
    return result;
}

void loadValid( XmlConfig& out_config, const TestDocument& in_document, const std::string& in_strSchema ) {
    const TemporaryFile file( in_document.getText() );
    const LoadResult result = load( out_config, file.getPath(), in_strSchema );
    EXPECT_TRUE( result.bValid );
    EXPECT_EQ( join( result.vecLines ), "" );
}

std::vector<Record> readRecords( const std::string& in_strFile, const std::string& in_strMarks ) {
    std::ifstream stream( DATA_FOLDER + ( "/" + in_strFile ) );
    std::vector<Record> vecRecords;
    char cLastMark = ' ';
    for ( std::string strLine; std::getline( stream, strLine ); ) {
        const char cMark = strLine.empty() ? '#' : strLine[0];
        std::string strText = strLine.size() > 2 ? strLine.substr( 2 ) : "";
        if ( std::isalpha( cMark ) ) {
            strTokenize( strLine, vecRecords.emplace_back().vecWords, ' ' );
        } else if ( cMark != '#' && ( vecRecords.empty() || in_strMarks.find( cMark ) == std::string::npos ) ) {
            ADD_FAILURE() << in_strFile << ": what is this? " << strLine;
        } else if ( cMark == '-' && cLastMark != '-' ) {
            vecRecords.back().vecEdits.push_back( { strText, "" } );
        } else if ( cMark == '-' ) {
            vecRecords.back().vecEdits.back().strFrom += "\n" + strText;
        } else if ( cMark == '+' ) {
            vecRecords.back().vecEdits.back().strTo += ( cLastMark == '+' ? "\n" : "" ) + strText;
        } else if ( cMark != '#' ) {
            if ( strText.ends_with( '$' ) )
                strText.pop_back();
            vecRecords.back().mapLines[cMark].push_back( strText );
        }
        cLastMark = cMark;
    }
    EXPECT_FALSE( vecRecords.empty() ) << in_strFile;
    return vecRecords;
}

std::vector<LoadCase> readCases( const std::string& in_strFile ) {
    std::vector<LoadCase> vecCases;
    for ( Record& record : readRecords( "cases/" + in_strFile, "-+>=" ) ) {
        const bool bSchema = record.vecWords.size() > 3;
        vecCases.push_back( { record.vecWords[1], record.vecEdits, record.vecWords[2] == "valid", record.mapLines['>'],
                              record.mapLines['='], bSchema ? SCHEMA : ANY_SCHEMA } );
    }
    return vecCases;
}

namespace {

/// Of a line of a model's text, what stands in front of the value.
std::string getKey( const std::string& in_strLine ) {
    return in_strLine.substr( 0, in_strLine.find( " = " ) );
}

/// The lines of each key.
std::map<std::string, std::string> groupLines( const StringVector& in_vecLines ) {
    std::map<std::string, std::string> mapLines;
    for ( const std::string& strLine : in_vecLines )
        mapLines[getKey( strLine )] += strLine + "\n";
    return mapLines;
}

/// How the text of a model differs from that of the complete document: all lines of the keys that have others, and "no
/// " with the lines whose key is gone, unless "none" of what holds them says it for all. When nothing differs so, the
/// order of all lines counts, too.
std::string getChanges( const XmlConfig& in_config ) {
    static const std::string s_strComplete = readFile( DATA_FOLDER + std::string( "/complete.model" ) );
    const std::string strModel = Fuzz::describeModel( in_config );
    StringVector vecOld, vecNew;
    strTokenize( s_strComplete, vecOld, '\n' );
    strTokenize( strModel, vecNew, '\n' );
    auto mapOld = groupLines( vecOld );
    const auto mapNew = groupLines( vecNew );
    std::set<std::string> setTold;
    std::string strChanges;
    for ( const std::string& strLine : vecNew ) {
        const std::string strKey = getKey( strLine );
        if ( setTold.insert( strKey ).second && mapOld[strKey] != mapNew.at( strKey ) )
            strChanges += mapNew.at( strKey );
    }
    for ( const std::string& strLine : vecOld ) {
        const std::string strKey = getKey( strLine );
        bool bTold = mapNew.contains( strKey );
        for ( std::size_t u = strKey.find( ' ' ); u != std::string::npos; u = strKey.find( ' ', u + 1 ) )
            bTold = bTold || mapNew.contains( strKey.substr( 0, u ) );
        strChanges += bTold ? "" : "no " + strLine + "\n";
    }
    if ( strChanges.empty() ) {
        EXPECT_EQ( strModel, s_strComplete );
    }
    return strChanges;
}

} // namespace

void check( const LoadCase& in_case ) {
    const TestDocument document = TestDocument().edit( in_case.vecEdits );
    const TemporaryFile file( document.getText() );
    std::vector<std::string> vecExpected;
    for ( const std::string& strLine : in_case.vecLines )
        vecExpected.push_back( document.expand( strLine, file.getPath() ) );
    XmlConfig config;
    const LoadResult result = load( config, file.getPath(), in_case.strSchema );
    EXPECT_EQ( result.bValid, in_case.bValid );
    EXPECT_EQ( join( result.vecLines ), join( vecExpected ) );
    if ( result.bValid ) {
        EXPECT_EQ( getChanges( config ), join( in_case.vecChanges ) );
    }
}

void check( const CallCase& in_case ) {
    EXPECT_EQ( join( captureLines( in_case.call ) ), join( in_case.vecLines ) );
}

std::string assertion( const std::string& in_strExpression, const std::string& in_strFile ) {
    return "ERROR marovane.core.Assertion: Assertion failed: " + in_strExpression + ", file " + in_strFile + ", line N";
}

std::string join( const std::vector<std::string>& in_vecLines ) {
    std::string strText;
    for ( const std::string& strLine : in_vecLines )
        strText.append( strLine ).append( "\n" );
    return strText;
}

template <class TCase>
std::vector<TCase> registerCases( std::vector<TCase> in_vecCases ) {
    for ( const TCase& one : in_vecCases ) {
        if ( !getRegisteredCases().try_emplace( one.strName, one.vecLines ).second )
            ADD_FAILURE() << "two cases are called " << one.strName;
    }
    return in_vecCases;
}
template std::vector<LoadCase> registerCases( std::vector<LoadCase> );
template std::vector<CallCase> registerCases( std::vector<CallCase> );

std::vector<std::string> getLinesOfCase( const std::string& in_strName ) {
    const auto it = getRegisteredCases().find( in_strName );
    if ( it != getRegisteredCases().end() )
        return it->second;
    ADD_FAILURE() << "no case is called " << in_strName;
    return {};
}

} // namespace Velquin::Pstn::Test
