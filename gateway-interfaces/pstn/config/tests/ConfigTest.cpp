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

#include "DocumentPath.h"
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
        if ( szBuilder ) {
            const bool bNative = std::string( szBuilder ) == "native";
            ASSERT_TRUE( setDocumentBuilder( bNative ? DocumentBuilder::NATIVE : DocumentBuilder::BLOCKS ) )
                << "Do the tests pass with blocks and this libxml2? Then add its version to DocumentBuilder.cpp.";
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
    if ( in_edit.strFrom.starts_with( '/' ) ) {
        editElement( in_edit );
        return *this;
    }
    m_uLastEdit = findOnce( m_strText, in_edit.strFrom );
    if ( m_uLastEdit != std::string::npos )
        m_strText.replace( m_uLastEdit, in_edit.strFrom.size(), in_edit.strTo );
    return *this;
}

TestDocument& TestDocument::edit( const std::vector<Edit>& in_vecEdits ) {
    for ( const Edit& one : in_vecEdits )
        edit( one );
    return *this;
}

void TestDocument::editElement( const Edit& in_edit ) {
    const auto getElement = [this]( const Tag& in_tag ) {
        return m_strText.substr( in_tag.uBegin, getElementLength( m_strText, in_tag ) );
    };
    const Tag tag = findTag( m_strText, in_edit.strFrom );
    const std::string strElement = getElement( tag );
    const std::string strRest = in_edit.strTo.substr( 1 );
    std::string strNew = strElement;
    m_uLastEdit = tag.uBegin;
    if ( in_edit.strTo == "-" ) {
        strNew.clear();
    } else if ( const char cKind = in_edit.strTo[0]; cKind == '+' || cKind == '*' ) {
        strNew += cKind == '+' ? strRest : getElement( findTag( m_strText, strRest ) );
        m_uLastEdit += strElement.size();
    } else if ( cKind == '<' ) {
        const std::string strName = strElement.substr( 1, strElement.find_first_of( " />" ) - 1 );
        strNew = std::regex_replace( strElement, std::regex( "(</?)" + strName + "(?=[ />])" ), "$1" + strRest );
    } else {
        static const std::regex s_attribute( R"re((-?)([\w:]+)(?:="([^"]*)")?)re" );
        std::string strTag = strElement.substr( 0, tag.uLength );
        for ( std::sregex_iterator it( in_edit.strTo.begin(), in_edit.strTo.end(), s_attribute ), end; it != end; ++it )
            strTag = ( *it )[1].length() ? removeAttribute( strTag, ( *it )[2] )
                                         : setAttribute( strTag, ( *it )[2], ( *it )[3] );
        strNew = strTag + strElement.substr( tag.uLength );
    }
    m_strText.replace( tag.uBegin, strElement.size(), strNew );
}

unsigned int TestDocument::getLineOfTag( std::size_t in_uPosition ) const {
    const auto itTag = m_strText.begin() + static_cast<std::ptrdiff_t>( m_strText.find( '>', in_uPosition ) );
    return static_cast<unsigned int>( 1 + std::count( m_strText.begin(), itTag, '\n' ) );
}

unsigned int TestDocument::getLine( const std::string& in_strText ) const {
    return getLineOfTag( in_strText.starts_with( '/' ) ? findTag( m_strText, in_strText ).uBegin
                                                       : findOnce( m_strText, in_strText ) );
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
            strResult += std::to_string( match[2].matched ? getLine( match[2] ) : getLineOfTag( m_uLastEdit ) );
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
    static const std::regex s_each( R"(\{each:([^}]*)\})" );
    std::vector<Record> vecRecords;
    char cLastMark = ' ';
    for ( std::string strLine; std::getline( stream, strLine ); ) {
        const char cMark = strLine.empty() ? '#' : strLine[0];
        std::string strText = strLine.size() > 2 ? strLine.substr( 2 ) : "";
        if ( std::isalpha( cMark ) ) {
            strTokenize( strLine, vecRecords.emplace_back().vecWords, ' ' );
        } else if ( cMark != '#' && ( vecRecords.empty() || in_strMarks.find( cMark ) == std::string::npos ) ) {
            ADD_FAILURE() << in_strFile << ": what is this? " << strLine;
        } else if ( cMark == '@' ) {
            const std::size_t uBlank = strText.find( ' ' );
            vecRecords.back().vecEdits.push_back( { strText.substr( 0, uBlank ), strText.substr( uBlank + 1 ) } );
        } else if ( cMark == '-' && cLastMark != '-' ) {
            vecRecords.back().vecEdits.push_back( { strText, "" } );
        } else if ( cMark == '-' ) {
            vecRecords.back().vecEdits.back().strFrom += "\n" + strText;
        } else if ( cMark == '+' ) {
            vecRecords.back().vecEdits.back().strTo += ( cLastMark == '+' ? "\n" : "" ) + strText;
        } else if ( cMark != '#' ) {
            if ( strText.ends_with( '$' ) )
                strText.pop_back();
            StringVector vecAlternatives{ "" };
            std::smatch each;
            if ( std::regex_search( strText, each, s_each ) )
                strTokenize( each[1].str(), vecAlternatives, '|' );
            for ( const std::string& strOne : vecAlternatives )
                vecRecords.back().mapLines[cMark].push_back(
                    each.empty() ? strText : each.prefix().str() + strOne + each.suffix().str() );
        }
        cLastMark = cMark;
    }
    EXPECT_FALSE( vecRecords.empty() ) << in_strFile;
    return vecRecords;
}

namespace {

std::string replaceAll( std::string in_strText, const std::map<std::string, std::string>& in_mapReplacements ) {
    for ( const auto& [strFrom, strTo] : in_mapReplacements ) {
        for ( std::size_t u = 0; ( u = in_strText.find( strFrom, u ) ) != std::string::npos; u += strTo.size() )
            in_strText.replace( u, strFrom.size(), strTo );
    }
    return in_strText;
}

using Chains = std::map<std::string, StringVector>;

/// What the words behind the third say: the chain of lines, the schema.
void addChain( const Record& in_record, const Chains& in_mapChains, LoadCase& inout_case ) {
    for ( std::size_t u = 3; u < in_record.vecWords.size(); ++u ) {
        const StringVector& vecLines = in_mapChains.at( in_record.vecWords[u] );
        inout_case.vecLines.insert( inout_case.vecLines.end(), vecLines.begin(), vecLines.end() );
        if ( in_record.vecWords[u] == "schema" )
            inout_case.strSchema = SCHEMA;
    }
}

/// The cases of an element: what is missing, wrong, or read.
/// @param in_record "element NAME PATH [CHAIN]"
void addRows( Record& in_record, Record& in_texts, const Chains& in_mapChains, std::vector<LoadCase>& out_vecCases ) {
    static const std::regex s_row( R"(([\w< ]+?)(?: = (.*?)(?: \| (.*?)(?: \| (.*))?)?)?)" );
    const std::string strPath = in_record.vecWords[2];
    const std::string strLast = strPath.substr( strPath.rfind( '/' ) + 1 );
    const std::string strElement = strLast.substr( 0, strLast.find( '[' ) );
    std::map<std::string, unsigned int> mapNames;
    const auto add = [&]( const std::string& in_strName, const Edit& in_edit, bool in_bValid ) -> LoadCase& {
        LoadCase& one = out_vecCases.emplace_back();
        const unsigned int uSame = ++mapNames[in_strName];
        one.strName = in_record.vecWords[1] + in_strName + ( uSame > 1 ? std::to_string( uSame ) : "" );
        one.vecEdits = in_record.vecEdits;
        one.vecEdits.push_back( in_edit );
        one.bValid = in_bValid;
        return one;
    };
    const auto addRefusal = [&]( std::string in_strWhat, const char* in_szHow, const Edit& in_edit, char in_cText,
                                 const std::vector<std::string>& in_vecRow ) {
        const std::map<std::string, std::string> mapReplacements{
            { "{attribute}", in_strWhat }, { "{hint}", in_vecRow[3] }, { "{line}", "{line:" + strPath + "}" },
            { "{name}", strElement },      { "{path}", strPath },      { "{value}", in_vecRow[2] } };
        in_strWhat[0] = static_cast<char>( std::toupper( in_strWhat[0] ) );
        LoadCase& one = add( in_strWhat + in_szHow, in_edit, !in_texts.mapLines['='].empty() );
        one.vecChanges = in_texts.mapLines['='];
        if ( !in_vecRow[4].empty() )
            one.vecLines.push_back( in_vecRow[4] );
        EXPECT_FALSE( in_texts.mapLines[in_cText].empty() ) << one.strName;
        for ( const std::string& strText : in_texts.mapLines[in_cText] )
            one.vecLines.push_back( replaceAll( strText, mapReplacements ) );
        addChain( in_record, in_mapChains, one );
    };
    for ( const char cMark : { '!', '?', ':', ';' } ) {
        for ( const std::string& strRow : in_record.mapLines[cMark] ) {
            std::smatch row;
            EXPECT_TRUE( std::regex_match( strRow, row, s_row ) ) << strRow;
            StringVector vecAttributes;
            strTokenize( row[1].str(), vecAttributes, ' ' );
            for ( std::string& strWhat : vecAttributes ) {
                const bool bElement = strWhat.starts_with( '<' );
                strWhat.erase( 0, bElement ? 1 : 0 );
                const Edit removal = bElement ? Edit{ strPath + "/" + strWhat, "-" } : Edit{ strPath, "-" + strWhat };
                if ( cMark == '!' || cMark == ':' )
                    addRefusal( strWhat, "Missing", removal, '!', std::vector<std::string>( 5 ) );
                if ( row[2].matched )
                    addRefusal( strWhat, "Wrong", { strPath, strWhat + "=\"" + row[2].str() + "\"" },
                                cMark == '!' || cMark == '?' ? '?' : ';', { row.begin(), row.end() } );
            }
        }
    }
    for ( const std::string& strRow : in_record.mapLines['='] ) {
        StringVector vecParts;
        strTokenize( replaceAll( strRow, { { " | ", "\n" } } ), vecParts, '\n' );
        LoadCase& one = add( "IsRead", { strPath, vecParts[0] }, true );
        one.vecChanges.assign( vecParts.begin() + 1, vecParts.end() );
    }
}

} // namespace

std::vector<LoadCase> readCases( const std::string& in_strFile ) {
    std::vector<LoadCase> vecCases;
    Chains mapChains{ { "schema", {} } };
    Record texts;
    for ( Record& record : readRecords( "cases/" + in_strFile, "@-+>=!?:;" ) ) {
        const StringVector& vecWords = record.vecWords;
        if ( vecWords[0] == "texts" ) {
            texts = record;
        } else if ( vecWords[0] == "element" ) {
            addRows( record, texts, mapChains, vecCases );
        } else if ( vecWords[0] == "chain" ) {
            StringVector& vecLines = mapChains[vecWords[1]] = record.mapLines['>'];
            if ( vecWords.size() > 2 )
                vecLines.insert( vecLines.end(), mapChains[vecWords[2]].begin(), mapChains[vecWords[2]].end() );
        } else {
            vecCases.push_back(
                { vecWords[1], record.vecEdits, vecWords[2] == "valid", record.mapLines['>'], record.mapLines['='] } );
            addChain( record, mapChains, vecCases.back() );
        }
    }
    return vecCases;
}

namespace {

/// Of a line of a model's text, what stands in front of the value.
std::string getKey( const std::string& in_strLine ) {
    return in_strLine.substr( 0, in_strLine.find( " = " ) );
}

/// The lines of the values of others, of which each may tell several of one object: "WHERE A = 1; B = 2".
StringVector splitValues( const StringVector& in_vecLines ) {
    StringVector vecLines;
    for ( const std::string& strLine : in_vecLines ) {
        const std::string strWhere = strLine.substr( 0, strLine.rfind( ' ', strLine.find( " = " ) - 1 ) );
        StringVector vecValues;
        strTokenize( strLine.substr( strWhere.size() ), vecValues, ';' );
        for ( const std::string& strValue : vecValues )
            vecLines.push_back( strWhere + strValue );
    }
    return vecLines;
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
    StringVector vecOld, vecNew;
    strTokenize( readFile( DATA_FOLDER + std::string( "/complete.model" ) ), vecOld, '\n' );
    vecOld.pop_back();
    vecOld = splitValues( vecOld );
    strTokenize( describeModel( in_config ), vecNew, '\n' );
    vecNew.pop_back();
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
        EXPECT_EQ( join( vecNew ), join( vecOld ) );
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
    takeWordsOfLibXml2( vecExpected, result.vecLines );
    EXPECT_EQ( result.bValid, in_case.bValid );
    EXPECT_EQ( join( result.vecLines ), join( vecExpected ) );
    if ( result.bValid ) {
        EXPECT_EQ( getChanges( config ), join( splitValues( in_case.vecChanges ) ) );
    }
}

void takeWordsOfLibXml2( std::vector<std::string>& inout_vecExpected, const std::vector<std::string>& in_vecLines ) {
    static const std::string s_strWords = "{libxml2}";
    for ( std::size_t u = 0; u < inout_vecExpected.size(); ++u ) {
        const std::string strExpected = inout_vecExpected[u];
        const std::size_t uWords = strExpected.find( s_strWords );
        if ( uWords == std::string::npos )
            continue;
        std::vector<std::string> vecSaid;
        for ( std::size_t uLine = u; uLine < in_vecLines.size(); ++uLine ) {
            const std::string& strLine = in_vecLines[uLine];
            if ( strLine.size() + s_strWords.size() <= strExpected.size() ||
                 !strLine.starts_with( strExpected.substr( 0, uWords ) ) ||
                 !strLine.ends_with( strExpected.substr( uWords + s_strWords.size() ) ) )
                break;
            vecSaid.push_back( strLine );
        }
        if ( vecSaid.empty() )
            continue;
        inout_vecExpected.erase( inout_vecExpected.begin() + static_cast<std::ptrdiff_t>( u ) );
        inout_vecExpected.insert( inout_vecExpected.begin() + static_cast<std::ptrdiff_t>( u ), vecSaid.begin(),
                                  vecSaid.end() );
        u += vecSaid.size() - 1;
    }
}

void check( const CallCase& in_case ) {
    EXPECT_EQ( join( captureLines( in_case.call ) ), join( in_case.vecLines ) );
}

std::string assertion( const std::string& in_strExpression, const std::string& in_strFile ) {
    return "ERROR marovane.core.Assertion: Assertion failed: " + in_strExpression + ", file " + in_strFile + ", line N";
}

std::vector<std::string> assertions( const std::string& in_strAll ) {
    static const std::regex s_part( R"((?:(\w+): )?([^,;]+)(?:[,;] |$))" );
    std::vector<std::string> vecLines;
    std::string strFile;
    for ( std::sregex_iterator it( in_strAll.begin(), in_strAll.end(), s_part ), end; it != end; ++it ) {
        strFile = ( *it )[1].matched ? ( *it )[1].str() : strFile;
        vecLines.push_back( assertion( ( *it )[2], strFile ) );
    }
    return vecLines;
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

std::string getLinesOfCases() {
    std::string strLines;
    for ( const auto& [strName, vecLines] : getRegisteredCases() )
        strLines += join( vecLines );
    return strLines;
}

} // namespace Velquin::Pstn::Test
