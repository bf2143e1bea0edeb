#include "ConfigTest.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <regex>

#include <log4cplus/nullappender.h>

#include "document/DocumentBuilder.h"
#include "survey/Survey.h"

namespace Velquin::Pstn::Test {

namespace {

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

std::size_t findOnce( const std::string& in_strText, const std::string& in_strPart ) {
    const std::size_t uPosition = in_strText.find( in_strPart );
    EXPECT_NE( uPosition, std::string::npos ) << "not in the document: " << in_strPart;
    EXPECT_EQ( in_strText.rfind( in_strPart ), uPosition ) << "twice: " << in_strPart;
    return uPosition;
}

/// Where the start tag stands in the text, and how long it is.
struct Tag {
    std::size_t uBegin = 0;
    std::size_t uLength = 0;
};

Tag findTag( const std::string& in_strText, const std::string& in_strPath ) {
    static const std::regex s_step( R"(/([^/[]+)(?:\[(\d+)\])?)" );
    Tag tag;
    for ( std::sregex_iterator it( in_strPath.begin(), in_strPath.end(), s_step ), end; it != end; ++it ) {
        const std::string strTag = "<" + ( *it )[1].str();
        for ( int nLeft = ( *it )[2].matched ? std::stoi( ( *it )[2] ) : 1; nLeft > 0; --nLeft ) {
            do
                tag.uBegin = in_strText.find( strTag, tag.uBegin + 1 );
            while ( tag.uBegin != std::string::npos && !std::strchr( " />", in_strText[tag.uBegin + strTag.size()] ) );
        }
        if ( tag.uBegin == std::string::npos ) {
            ADD_FAILURE() << "not in the document: " << in_strPath;
            return {};
        }
    }
    tag.uLength = in_strText.find( '>', tag.uBegin ) + 1 - tag.uBegin;
    return tag;
}

/// The element that begins with the tag; none of its name stands in it.
std::string getElement( const std::string& in_strText, const Tag& in_tag ) {
    const std::string strTag = in_strText.substr( in_tag.uBegin, in_tag.uLength );
    if ( strTag.ends_with( "/>" ) )
        return strTag;
    const std::string strEnd = "</" + strTag.substr( 1, strTag.find_first_of( " >" ) - 1 ) + ">";
    return in_strText.substr( in_tag.uBegin, in_strText.find( strEnd, in_tag.uBegin ) + strEnd.size() - in_tag.uBegin );
}

} // namespace

TestDocument::TestDocument( const std::vector<Edit>& in_vecEdits ) : m_strText( readFile( COMPLETE ) ) {
    for ( const Edit& one : in_vecEdits )
        edit( one );
}

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

void TestDocument::editElement( const Edit& in_edit ) {
    const Tag tag = findTag( m_strText, in_edit.strFrom );
    const std::string strElement = getElement( m_strText, tag );
    const std::string strRest = in_edit.strTo.substr( 1 );
    std::string strNew = strElement;
    m_uLastEdit = tag.uBegin;
    if ( in_edit.strTo == "-" ) {
        strNew.clear();
    } else if ( const char cKind = in_edit.strTo[0]; cKind == '^' ) {
        strNew = strRest + strElement;
    } else if ( cKind == '+' || cKind == '*' ) {
        strNew += cKind == '+' ? strRest : getElement( m_strText, findTag( m_strText, strRest ) );
        m_uLastEdit += strElement.size();
    } else if ( cKind == '<' ) {
        const std::string strName = strElement.substr( 1, strElement.find_first_of( " />" ) - 1 );
        strNew = std::regex_replace( strElement, std::regex( "(</?)" + strName + "(?=[ />])" ), "$1" + strRest );
    } else {
        static const std::regex s_attribute( R"re((-?)([\w:]+)(?:="([^"]*)")?)re" );
        std::string strTag = strElement.substr( 0, tag.uLength );
        for ( std::sregex_iterator it( in_edit.strTo.begin(), in_edit.strTo.end(), s_attribute ), end; it != end;
              ++it ) {
            const std::string strName = " " + ( *it )[2].str() + "=\"";
            strTag = std::regex_replace( strTag, std::regex( strName + "[^\"]*\"" ), "" );
            if ( !( *it )[1].length() )
                strTag.insert( strTag.size() - ( strTag.ends_with( "/>" ) ? 2 : 1 ),
                               strName + ( *it )[3].str() + "\"" );
        }
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
        if ( match[1] == "line" )
            strResult += std::to_string( match[2].matched ? getLine( match[2] ) : getLineOfTag( m_uLastEdit ) );
        else
            strResult += match[1] == "file" ? in_strFile : SCHEMA;
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
    std::ostringstream text;
    text << std::ifstream( in_strPath, std::ios::binary ).rdbuf();
    return text.str();
}

std::string getXmlText( xmlDoc* in_pDocument ) {
    xmlChar* pText = nullptr;
    int nLength = 0;
    xmlDocDumpMemory( in_pDocument, &pText, &nLength );
    return fromXml( XmlStringPtr( pText ).get() );
}

std::vector<std::string> split( const std::string& in_strText, const std::string& in_strSeparator ) {
    std::vector<std::string> vecParts;
    std::size_t uBegin = 0;
    for ( std::size_t uEnd; ( uEnd = in_strText.find( in_strSeparator, uBegin ) ) != std::string::npos; ) {
        vecParts.push_back( in_strText.substr( uBegin, uEnd - uBegin ) );
        uBegin = uEnd + in_strSeparator.size();
    }
    vecParts.push_back( in_strText.substr( uBegin ) );
    return vecParts;
}

std::string join( const std::vector<std::string>& in_vecLines ) {
    std::string strText;
    for ( const std::string& strLine : in_vecLines )
        strText.append( strLine ).append( "\n" );
    return strText;
}

std::vector<std::string> captureLines( const std::function<void()>& in_function ) {
    static const std::regex s_prefix( "^marovane\\.pstn\\.config\\." );
    static const std::regex s_sourceLine( "^(Assertion failed: [^]*, line )[0-9]+$" );
    const Velquin::Test::LogCapture log( Logger::WARNING_LEVEL );
    in_function();
    std::vector<std::string> vecLines;
    for ( const auto& [nLevel, strLogger, strText] : log.getRecords( Logger::WARNING_LEVEL ) )
        vecLines.push_back( ( nLevel >= Logger::ERROR_LEVEL ? "ERROR " : "WARN " ) +
                            std::regex_replace( strLogger, s_prefix, "" ) + ": " +
                            std::regex_replace( strText, s_sourceLine, "$1N" ) );
    return vecLines;
}

LoadResult load( XmlConfig& out_config, const std::string& in_strFile, const std::string& in_strSchema ) {
    LoadResult result;
    const bool bOfFileOnly = out_config.getDigitalBoardsConfig().empty() && out_config.getAnalogBoardsConfig().empty();
    result.vecLines =
        captureLines( [&] { result.bValid = out_config.load( in_strFile.c_str(), in_strSchema.c_str(), false ); } );
    if ( !bOfFileOnly )
        return result;
    // A survey has the verdict of the load, a reason for it, and hears what the load ended at.
    const Velquin::Test::LogCapture quiet( Logger::ERROR_LEVEL );
    Survey survey;
    EXPECT_EQ( survey.run( in_strFile.c_str(), in_strSchema.c_str() ), result.bValid );
    const auto& vecFindings = survey.getFindings();
    EXPECT_TRUE( result.bValid || std::any_of( vecFindings.begin(), vecFindings.end(), []( const Finding& in_finding ) {
                     return !in_finding.bEcho && in_finding.nLevel >= Logger::ERROR_LEVEL;
                 } ) );
    if ( !result.vecLines.empty() && !result.bValid ) {
        const std::string strEnd = result.vecLines[0].substr( result.vecLines[0].find( ": " ) + 2 );
        EXPECT_TRUE( std::any_of( vecFindings.begin(), vecFindings.end(),
                                  [&]( const Finding& in_finding ) {
                                      return strEnd.starts_with( "Assertion failed: " ) || in_finding.strText == strEnd;
                                  } ) )
            << "no finding of the survey: " << strEnd;
    }
    return result;
}

LoadResult loadText( XmlConfig& out_config, const std::string& in_strText, const std::string& in_strSchema ) {
    return load( out_config, TemporaryFile( in_strText ).getPath(), in_strSchema );
}

void loadValid( XmlConfig& out_config, const TestDocument& in_document, const std::string& in_strSchema ) {
    const LoadResult result = loadText( out_config, in_document.getText(), in_strSchema );
    EXPECT_TRUE( result.bValid );
    EXPECT_EQ( join( result.vecLines ), "" );
}

namespace {

std::string replaceAll( std::string in_strText, const std::map<std::string, std::string>& in_mapReplacements ) {
    for ( const auto& [strFrom, strTo] : in_mapReplacements ) {
        for ( std::size_t u = 0; ( u = in_strText.find( strFrom, u ) ) != std::string::npos; u += strTo.size() )
            in_strText.replace( u, strFrom.size(), strTo );
    }
    return in_strText;
}

} // namespace

std::vector<Record> readRecords( const std::string& in_strFile, const std::string& in_strMarks ) {
    static const std::regex s_each( R"(\{each:([^}]*)\})" );
    const std::regex nextMark( " (?=[" + in_strMarks + "]( |$))" );
    static const std::regex s_nextRow( " (?=[!?:;] )" );
    std::vector<Record> vecRecords;
    for ( std::string strRest : split( readFile( DATA_FOLDER + "/" + in_strFile ), "\n" ) ) {
        while ( !strRest.empty() && strRest[0] != '#' ) {
            const char cMark = strRest[0];
            std::string strText = std::exchange( strRest, "" );
            const bool bRow = std::strchr( "!?:;", cMark );
            if ( std::smatch end; ( bRow || std::isalpha( cMark ) || cMark == '@' || cMark == '<' ) &&
                                  std::regex_search( strText, end, bRow ? s_nextRow : nextMark ) ) {
                strRest = end.suffix();
                strText = end.prefix();
            }
            if ( std::isalpha( cMark ) ) {
                vecRecords.push_back( { strText, split( strText, " " ), {}, {} } );
                continue;
            }
            EXPECT_NE( in_strMarks.find( cMark ), std::string::npos ) << in_strFile << ": what is this? " << strText;
            strText.erase( 0, 2 );
            if ( const std::size_t uBlank = strText.find( ' ' ); cMark == '@' ) {
                vecRecords.back().vecEdits.push_back( { strText.substr( 0, uBlank ), strText.substr( uBlank + 1 ) } );
                continue;
            }
            if ( strText.ends_with( '$' ) )
                strText.pop_back();
            std::smatch each;
            const bool bEach = std::regex_search( strText, each, s_each );
            for ( const std::string& strOne : split( bEach ? each[1].str() : "", "|" ) )
                vecRecords.back().mapLines[cMark].push_back( bEach ? replaceAll( strText, { { each.str(), strOne } } )
                                                                   : strText );
        }
    }
    EXPECT_FALSE( vecRecords.empty() ) << in_strFile;
    return vecRecords;
}

namespace {

using Chains = std::map<std::string, std::vector<std::string>>;

void append( std::vector<std::string>& inout_vecLines, const std::vector<std::string>& in_vecMore ) {
    inout_vecLines.insert( inout_vecLines.end(), in_vecMore.begin(), in_vecMore.end() );
}

/// What the words behind the third say: the chain of lines, the schema.
void addChain( const Record& in_record, const Chains& in_mapChains, Case& inout_case ) {
    for ( std::size_t u = 3; u < in_record.vecWords.size(); ++u ) {
        append( inout_case.vecLines, in_mapChains.at( in_record.vecWords[u] ) );
        if ( in_record.vecWords[u] == "schema" )
            inout_case.strSchema = SCHEMA;
    }
}

/// The cases of an element: what is missing, wrong, or read.
/// @param in_record "element NAME PATH [CHAIN]"
void addRows( Record& in_record, Record& in_texts, const Chains& in_mapChains, std::vector<Case>& out_vecCases ) {
    const std::string strPath = in_record.vecWords[2];
    const std::string strLast = strPath.substr( strPath.rfind( '/' ) + 1 );
    std::map<std::string, unsigned int> mapNames;
    const auto add = [&]( const std::string& in_strName, const Edit& in_edit ) -> Case& {
        const unsigned int uSame = ++mapNames[in_strName];
        Case& one = out_vecCases.emplace_back();
        one.strName = in_record.vecWords[1] + in_strName + ( uSame > 1 ? std::to_string( uSame ) : "" );
        one.vecEdits = in_record.vecEdits;
        one.vecEdits.push_back( in_edit );
        return one;
    };
    const auto addRefusal = [&]( std::string in_strWhat, const char* in_szHow, const Edit& in_edit, char in_cText,
                                 const std::string& in_strValue, const std::vector<std::string>& in_vecRow ) {
        const std::map<std::string, std::string> mapReplacements{
            { "{attribute}", in_strWhat },
            { "{hint}", in_vecRow[1] },
            { "{line}", "{line:" + strPath + "}" },
            { "{name}", strLast.substr( 0, strLast.find( '[' ) ) },
            { "{path}", strPath },
            { "{value}", in_strValue } };
        in_strWhat[0] = static_cast<char>( std::toupper( in_strWhat[0] ) );
        Case& one = add( in_strWhat + in_szHow, in_edit );
        one.vecChanges = in_texts.mapLines['='];
        one.bValid = !one.vecChanges.empty();
        if ( !in_vecRow[2].empty() )
            one.vecLines.push_back( in_vecRow[2] );
        EXPECT_FALSE( in_texts.mapLines[in_cText].empty() ) << one.strName;
        for ( const std::string& strText : in_texts.mapLines[in_cText] )
            one.vecLines.push_back( replaceAll( strText, mapReplacements ) );
        addChain( in_record, in_mapChains, one );
    };
    for ( const char cMark : { '!', '?', ':', ';' } ) {
        for ( const std::string& strRow : in_record.mapLines[cMark] ) {
            std::vector<std::string> vecRow = split( strRow, " | " );
            vecRow.resize( 3 );
            const std::size_t uValue = vecRow[0].find( " = " );
            for ( std::string& strWhat : split( vecRow[0].substr( 0, uValue ), " " ) ) {
                const bool bElement = strWhat.starts_with( '<' );
                strWhat.erase( 0, bElement ? 1 : 0 );
                const Edit removal = bElement ? Edit{ strPath + "/" + strWhat, "-" } : Edit{ strPath, "-" + strWhat };
                if ( cMark == '!' || cMark == ':' )
                    addRefusal( strWhat, "Missing", removal, '!', "", { "", "", "" } );
                if ( uValue == std::string::npos )
                    continue;
                const std::string strValue = vecRow[0].substr( uValue + 3 );
                addRefusal( strWhat, "Wrong", { strPath, strWhat + "=\"" + strValue + "\"" },
                            cMark == '!' || cMark == '?' ? '?' : ';', strValue, vecRow );
            }
        }
    }
    for ( const std::string& strRow : in_record.mapLines['='] ) {
        std::vector<std::string> vecParts = split( strRow, " | " );
        Case& one = add( "IsRead", { strPath, vecParts[0] } );
        one.vecChanges.assign( vecParts.begin() + 1, vecParts.end() );
        one.bValid = true;
    }
}

/// Of a reader's lines, "texts READER|MISSING|WRONG|", those that it doesn't have of its own.
void shape( Record& inout_texts, const Record& in_shape ) {
    const std::vector<std::string> vecParts = split( inout_texts.strHead.substr( 5 ), "|" );
    if ( vecParts.size() < 3 )
        return;
    for ( const auto& [cMark, vecLines] : in_shape.mapLines ) {
        if ( inout_texts.mapLines[cMark].empty() )
            inout_texts.mapLines[cMark] = {
                replaceAll( vecLines[0], { { "{reader}", vecParts[0].substr( 1 ) },
                                           { "{missing}", vecParts[1] },
                                           { "{wrong}", vecParts[vecParts.size() - 2] } } ) };
    }
}

} // namespace

namespace {

void addLines( const Json& in_value, const std::string& in_strKey, std::string& out_strLines ) {
    if ( in_value.is_object() && !in_value.empty() ) {
        for ( const auto& [strKey, value] : in_value.items() ) {
            if ( !isListOfDefaults( strKey, value ) )
                addLines( value, in_strKey + ( in_strKey.empty() ? "" : " " ) + strKey, out_strLines );
        }
    } else if ( in_value.is_array() && !in_value.empty() ) {
        for ( const Json& value : in_value )
            out_strLines += in_strKey + " = " + toText( value ) + "\n";
    } else {
        out_strLines += in_strKey + " = " + toText( in_value ) + "\n";
    }
}

} // namespace

std::string describeLines( const Config& in_config ) {
    std::string strLines;
    addLines( describeModel( in_config ), "", strLines );
    return strLines;
}

std::vector<Case> readCases( const std::string& in_strFile ) {
    std::vector<Case> vecCases;
    Chains mapChains{ { "schema", {} } };
    Record shapes, texts;
    for ( const std::string& strFile : { std::string( "common" ), in_strFile } ) {
        for ( Record& record : readRecords( "cases/" + strFile, "@>=!?:;" ) ) {
            const std::vector<std::string>& vecWords = record.vecWords;
            if ( vecWords[0] == "shape" ) {
                shapes = record;
            } else if ( vecWords[0] == "texts" ) {
                shape( texts = record, shapes );
            } else if ( vecWords[0] == "element" ) {
                addRows( record, texts, mapChains, vecCases );
            } else if ( vecWords[0] == "chain" ) {
                mapChains[vecWords[1]] = record.mapLines['>'];
                if ( vecWords.size() > 2 )
                    append( mapChains[vecWords[1]], mapChains.at( vecWords[2] ) );
            } else {
                Case& one = vecCases.emplace_back(
                    Case{ vecWords[1], {}, record.mapLines['>'], record.vecEdits, vecWords[2] == "valid" } );
                for ( const std::string& strLine : record.mapLines['='] )
                    append( one.vecChanges, split( strLine, " | " ) );
                addChain( record, mapChains, one );
            }
        }
    }
    return vecCases;
}

namespace {

/// Of a line of a model, what stands in front of the value.
std::string getKey( const std::string& in_strLine ) {
    return in_strLine.substr( 0, in_strLine.find( " = " ) );
}

/// The lines of the values of others, of which each may tell several of one object: "WHERE A = 1; B = 2", with a colon
/// behind WHERE when A is more than a word.
std::vector<std::string> splitValues( const std::vector<std::string>& in_vecLines ) {
    std::vector<std::string> vecLines;
    for ( const std::string& strLine : in_vecLines ) {
        const std::size_t uWhere = std::min( strLine.find( ':' ), strLine.rfind( ' ', strLine.find( " = " ) - 1 ) );
        for ( const std::string& strValue : split( strLine.substr( uWhere + ( strLine[uWhere] == ':' ) ), ";" ) )
            vecLines.push_back( strLine.substr( 0, uWhere ) + strValue );
    }
    return vecLines;
}

/// The lines of each key.
std::map<std::string, std::string> groupLines( const std::vector<std::string>& in_vecLines ) {
    std::map<std::string, std::string> mapLines;
    for ( const std::string& strLine : in_vecLines )
        mapLines[getKey( strLine )] += strLine + "\n";
    return mapLines;
}

/// How the lines of a model differ from those of the complete document: all lines of the keys that have others, and "no
/// " with the lines whose key is gone, unless null in place of what holds them says it for all. When nothing differs
/// so, the order of all lines counts, too.
std::string getChanges( const XmlConfig& in_config ) {
    std::vector<std::string> vecOld = split( readFile( DATA_FOLDER + "/complete.model" ), "\n" );
    std::vector<std::string> vecNew = split( describeLines( in_config ), "\n" );
    vecOld.pop_back();
    vecNew.pop_back();
    vecOld = splitValues( vecOld );
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

std::map<std::string, std::vector<std::string>>& getRegisteredCases() {
    static std::map<std::string, std::vector<std::string>> s_mapCases;
    return s_mapCases;
}

} // namespace

void CaseTest::check( const Case& in_case ) {
    if ( in_case.call ) {
        EXPECT_EQ( join( captureLines( in_case.call ) ), join( in_case.vecLines ) );
        return;
    }
    const TestDocument document( in_case.vecEdits );
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
        const std::vector<std::string> vecParts = split( inout_vecExpected[u], s_strWords );
        std::vector<std::string> vecSaid;
        for ( std::size_t uLine = u; vecParts.size() > 1 && uLine < in_vecLines.size(); ++uLine ) {
            const std::string& strLine = in_vecLines[uLine];
            if ( strLine.size() <= vecParts[0].size() + vecParts[1].size() || !strLine.starts_with( vecParts[0] ) ||
                 !strLine.ends_with( vecParts[1] ) )
                break;
            vecSaid.push_back( strLine );
        }
        if ( vecSaid.empty() )
            continue;
        const auto itNext = inout_vecExpected.erase( inout_vecExpected.begin() + static_cast<std::ptrdiff_t>( u ) );
        inout_vecExpected.insert( itNext, vecSaid.begin(), vecSaid.end() );
        u += vecSaid.size() - 1;
    }
}

std::vector<std::string> assertions( const std::string& in_strAll ) {
    std::vector<std::string> vecLines;
    for ( const std::string& strPart : split( in_strAll, "; " ) ) {
        const std::size_t uFile = strPart.find( ": " );
        for ( const std::string& strExpression : split( strPart.substr( uFile + 2 ), ", " ) )
            vecLines.push_back( "ERROR marovane.core.Assertion: Assertion failed: " + strExpression + ", file " +
                                strPart.substr( 0, uFile ) + ", line N" );
    }
    return vecLines;
}

std::vector<std::string> notImplemented( const std::vector<std::string>& in_vecClasses ) {
    std::vector<std::string> vecLines;
    for ( const std::string& strClass : in_vecClasses )
        vecLines.push_back( "ERROR " + strClass + ": Not implemented : " + strClass + "::write" );
    return vecLines;
}

std::vector<Case> registerCases( std::vector<Case> in_vecCases ) {
    for ( const Case& one : in_vecCases ) {
        if ( !getRegisteredCases().try_emplace( one.strName, one.vecLines ).second )
            ADD_FAILURE() << "two cases are called " << one.strName;
    }
    return in_vecCases;
}

std::string getLinesOfCases() {
    std::string strLines;
    for ( const auto& [strName, vecLines] : getRegisteredCases() )
        strLines += join( vecLines );
    return strLines;
}

} // namespace Velquin::Pstn::Test
