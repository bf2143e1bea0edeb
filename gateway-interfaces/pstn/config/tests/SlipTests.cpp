#include <algorithm>
#include <random>
#include <regex>

#include "SurveyRun.h"
#include "reading/ChildElements.h"

// A slip at each place of the complete document in turn: each is one finding, and its places are those of the slip.

namespace Velquin::Pstn::Test {

namespace {

std::string cutName( const xmlChar* in_pName ) {
    const std::string strName = fromXml( in_pName );
    return strName.substr( 0, strName.size() - 1 );
}

void slip( xmlAttr* in_pAttribute, std::size_t in_uKind ) {
    xmlNode* const pElement = in_pAttribute->parent;
    const XmlStringPtr pValue( xmlNodeListGetString( pElement->doc, in_pAttribute->children, 1 ) );
    const std::string strCutName = cutName( in_pAttribute->name );
    switch ( in_uKind % 4 ) {
    case 0:
        xmlSetProp( pElement, in_pAttribute->name, toXml( "" ) );
        break;
    case 1:
        xmlSetProp( pElement, in_pAttribute->name, toXml( "77" ) );
        break;
    case 2:
        xmlNewProp( pElement, toXml( strCutName.c_str() ), pValue.get() );
        [[fallthrough]];
    default:
        xmlRemoveProp( in_pAttribute );
    }
}

void slip( xmlNode* in_pElement, std::size_t in_uKind ) {
    switch ( in_uKind % 5 ) {
    case 0:
        xmlNodeSetName( in_pElement, toXml( cutName( in_pElement->name ).c_str() ) );
        break;
    case 1:
        xmlAddNextSibling( in_pElement, xmlDocCopyNode( in_pElement, in_pElement->doc, 1 ) );
        break;
    case 2:
        xmlAddChild( in_pElement->parent, in_pElement );
        break;
    case 3:
        xmlAddPrevSibling( in_pElement->parent->children, in_pElement );
        break;
    default:
        xmlUnlinkNode( in_pElement );
        xmlFreeNode( in_pElement );
    }
}

/// A piece of a line of the text.
std::string cutOut( const std::string& in_strText, const SourceSpan& in_span ) {
    const std::vector<std::string> vecLines = split( in_strText, "\n" );
    if ( in_span.ullLine == 0 || in_span.ullLine > vecLines.size() || in_span.ullColumn == 0 ||
         in_span.ullEndColumn < in_span.ullColumn )
        return "no place";
    const auto isBegin = []( char in_c ) { return ( static_cast<unsigned char>( in_c ) & 0xC0U ) != 0x80U; };
    std::string strPiece;
    unsigned long long ullColumn = 0;
    for ( const char c : vecLines[in_span.ullLine - 1] ) {
        ullColumn += isBegin( c ) ? 1 : 0;
        if ( ullColumn >= in_span.ullColumn && ullColumn < in_span.ullEndColumn )
            strPiece += c;
    }
    return ullColumn + 1 < in_span.ullEndColumn ? "no place" : strPiece;
}

/// The line on which an offset of the text stands.
unsigned long long getLineOf( const std::string& in_strText, std::size_t in_uOffset ) {
    const auto itOffset = in_strText.begin() + static_cast<std::ptrdiff_t>( in_uOffset );
    return 1 + static_cast<unsigned long long>( std::count( in_strText.begin(), itOffset, '\n' ) );
}

} // namespace

TEST( Slips, OfTheModelAreOneMistake ) {
    const std::string strComplete = readFile( COMPLETE );
    std::size_t uInvalid = 0;
    for ( std::size_t uSlip = 0;; ++uSlip ) {
        const Element root( strComplete );
        std::vector<xmlAttr*> vecAttributes;
        std::vector<xmlNode*> vecElements{ root.get() };
        for ( std::size_t u = 0; u < vecElements.size(); ++u ) {
            for ( xmlAttr* p = vecElements[u]->properties; p; p = p->next )
                vecAttributes.push_back( p );
            for ( xmlNode* const pChild : ChildElements( vecElements[u] ) )
                vecElements.push_back( pChild );
        }
        if ( uSlip + 1 >= vecAttributes.size() + vecElements.size() )
            break;
        if ( uSlip < vecAttributes.size() )
            slip( vecAttributes[uSlip], uSlip );
        else
            slip( vecElements[uSlip - vecAttributes.size() + 1], uSlip );
        const std::string strText = getXmlText( root.get()->doc );
        const SurveyResult result = survey( strText );
        std::set<std::string> setErrors; // a line that lost its configuration is missed on each board
        for ( const Finding& finding : result.vecMistakes ) {
            const bool bOfLine = finding.strRule == "no-physical-config" || finding.strRule == "no-call-control";
            if ( finding.nLevel >= Logger::ERROR_LEVEL )
                setErrors.insert( bOfLine ? finding.strRule : describeFinding( finding ) );
        }
        XmlConfig config;
        EXPECT_EQ( loadText( config, strText, SCHEMA ).bValid, result.bLoads );
        EXPECT_EQ( setErrors.size(), result.bLoads ? 0U : 1U ) << uSlip << '\n' << result.strText;
        uInvalid += result.bLoads ? 0 : 1;
    }
    EXPECT_GT( uInvalid, 250U );
}

// Each attribute stands on a line of its own.
TEST( Slips, OfAttributesAreFoundWhereTheyStand ) {
    const std::string strComplete =
        std::regex_replace( readFile( COMPLETE ), std::regex( "\" (?=[A-Za-z]+=\")" ), "\"\n\t" );
    static const std::regex s_attribute( "\n\t([A-Za-z]+)=\"([^\"]*)\"" );
    const auto itBoards = strComplete.begin() + static_cast<std::ptrdiff_t>( strComplete.find( "<boards>" ) );
    std::map<Finding::Kind, unsigned int> mapFound;
    unsigned int uSlip = 0;
    for ( std::sregex_iterator it( itBoards, strComplete.end(), s_attribute ), end; it != end; ++it, ++uSlip ) {
        const std::string strName = ( *it )[1];
        const std::size_t uName = static_cast<std::size_t>( ( *it )[1].first - strComplete.begin() );
        const std::size_t uValue = static_cast<std::size_t>( ( *it )[2].first - strComplete.begin() );
        std::string strText = strComplete;
        Finding::Kind eKind = Finding::Kind::INVALID_VALUE;
        std::string strPlace = strName + "=\"7\u260e7\"";
        if ( uSlip % 3 == 0 ) {
            strText.replace( uValue, ( *it )[2].str().size(), "7\u260e7" );
        } else if ( uSlip % 3 == 1 ) {
            strText.insert( uName, "my" );
            eKind = Finding::Kind::UNKNOWN_ATTRIBUTE;
            strPlace = "my" + strName + "=\"" + ( *it )[2].str() + "\"";
        } else {
            strText.erase( uName, strName.size() + ( *it )[2].str().size() + 3 );
            eKind = Finding::Kind::MISSING_ATTRIBUTE;
        }
        SCOPED_TRACE( ( *it ).str() );
        for ( const Finding& finding : survey( strText ).vecMistakes ) {
            const std::string strFound = cutOut( strText, finding.span );
            for ( const Finding::Related& related : finding.vecRelated )
                EXPECT_NE( cutOut( strText, related.span ), "no place" ) << describeFinding( finding );
            if ( finding.eKind != eKind ) {
                EXPECT_NE( strFound, "no place" ) << describeFinding( finding );
                continue;
            }
            ++mapFound[eKind];
            const std::string strElement = finding.strElementPath.substr( finding.strElementPath.rfind( '/' ) + 1 );
            EXPECT_EQ( strFound, eKind == Finding::Kind::MISSING_ATTRIBUTE
                                     ? "<" + strElement.substr( 0, strElement.find( '[' ) )
                                     : strPlace );
            if ( eKind == Finding::Kind::INVALID_VALUE ) {
                EXPECT_EQ( cutOut( strText, finding.valueSpan ), finding.strValue );
            }
            if ( eKind != Finding::Kind::MISSING_ATTRIBUTE ) {
                EXPECT_EQ( finding.span.ullLine, getLineOf( strText, uName ) );
            }
        }
    }
    EXPECT_EQ( mapFound.size(), 3U );
    for ( const auto& [eKind, uFound] : mapFound )
        EXPECT_GT( uFound, 50U ) << static_cast<int>( eKind );
}

// What ends the element of a tag, or begins or ends a tag, a value or a name, is lost, or stands twice.
TEST( Slips, OfTheSyntaxAreFoundOnTheirLine ) {
    const std::string strComplete = readFile( COMPLETE );
    const std::size_t uRoot = strComplete.find( "<pstnConfig" );
    unsigned int uIllFormed = 0;
    const auto expectOnLine = [&]( std::size_t in_uOffset, std::size_t in_uLength, const std::string& in_strNew ) {
        std::string strText = strComplete;
        strText.replace( in_uOffset, in_uLength, in_strNew );
        const SurveyResult result = survey( strText );
        const unsigned long long ullLine = getLineOf( strComplete, in_uOffset );
        SCOPED_TRACE( split( strText, "\n" )[ullLine - 1] + '\n' + result.strText );
        EXPECT_FALSE( result.bLoads );
        if ( result.vecMistakes.empty() || result.vecMistakes[0].strRule != "ill-formed" )
            return;
        ++uIllFormed;
        EXPECT_EQ( result.vecMistakes.size(), 1U );
        const Finding& finding = result.vecMistakes[0];
        EXPECT_EQ( finding.span.ullLine, ullLine );
        EXPECT_NE( cutOut( strText, finding.span ), "no place" );
        EXPECT_NE( finding.strHint, "" );
        for ( const Finding::Related& related : finding.vecRelated )
            EXPECT_NE( cutOut( strText, related.span ), "no place" ) << related.strLabel;
    };
    static const std::regex s_mark( "</|<|/>|>|=|\"" );
    for ( std::sregex_iterator
              it( strComplete.begin() + static_cast<std::ptrdiff_t>( uRoot ), strComplete.end(), s_mark ),
          end;
          it != end; ++it ) {
        const std::size_t uMark = uRoot + static_cast<std::size_t>( it->position() );
        const std::string strMark = it->str();
        expectOnLine( uMark, strMark.size(), "" );
        if ( strMark.size() == 2 )
            expectOnLine( uMark + ( strMark == "</" ? 1 : 0 ), 1, "" );
        if ( strMark != ">" )
            expectOnLine( uMark, 0, strMark == "=" ? "&=" : strMark.substr( 0, 1 ) );
    }
    EXPECT_GT( uIllFormed, 1000U );
}

// A line with the start tag or the end tag of a holder is lost, or the start tag ends it. The indentation tells.
TEST( Slips, OfWholeTagsAreFoundWhereTheyBelong ) {
    static const std::regex s_begin( " +<[a-zA-Z0-9]+( [^>]*)?[^/]>" );
    static const std::regex s_end( " +</[a-zA-Z0-9]+>" );
    unsigned int uTags = 0;
    for ( const char* const szExample : { "branch-office", "carrier-nfas", "e1-trunks", "every-attribute" } ) {
        const std::vector<std::string> vecLines = split( readFile( EXAMPLES_FOLDER + "/" + szExample + ".xml" ), "\n" );
        const auto surveyWith = [&]( std::size_t in_uLine, const std::string& in_strLine ) {
            std::vector<std::string> vecChanged = vecLines;
            if ( in_strLine.empty() )
                vecChanged.erase( vecChanged.begin() + static_cast<std::ptrdiff_t>( in_uLine ) );
            else
                vecChanged[in_uLine] = in_strLine;
            const SurveyResult result = survey( join( vecChanged ) );
            EXPECT_EQ( result.vecMistakes.size(), 1U ) << result.strText;
            return result;
        };
        for ( std::size_t uLine = 0; uLine < vecLines.size(); ++uLine ) {
            const std::string& strLine = vecLines[uLine];
            SCOPED_TRACE( szExample + ( ":" + std::to_string( uLine + 1 ) ) + strLine );
            const bool bBegin = std::regex_match( strLine, s_begin );
            if ( !bBegin && !std::regex_match( strLine, s_end ) )
                continue;
            ++uTags;
            const Finding lost = surveyWith( uLine, "" ).vecMistakes.at( 0 );
            ASSERT_EQ( lost.vecRelated.size(), 1U ) << describeFinding( lost );
            const unsigned long long ullPlace = bBegin ? lost.span.ullLine : lost.vecRelated[0].span.ullLine;
            EXPECT_GE( ullPlace, uLine + 1 ) << describeFinding( lost );
            EXPECT_LE( ullPlace, uLine + 4 ) << describeFinding( lost ); // a comment may stand in front of the tag
            if ( !bBegin )
                continue;
            const Finding ended =
                surveyWith( uLine, strLine.substr( 0, strLine.size() - 1 ) + "/>" ).vecMistakes.at( 0 );
            EXPECT_EQ( ended.span.ullLine, uLine + 1 ) << describeFinding( ended );
        }
    }
    EXPECT_GT( uTags, 100U );
}

TEST( Slips, OfAnyTextHaveAPlaceInIt ) {
    static const std::vector<std::string> s_vecPieces{ "<a>",
                                                       "</a>",
                                                       "<a/>",
                                                       "<b c='d'",
                                                       " e=\"f\"",
                                                       ">",
                                                       "/",
                                                       "<",
                                                       "'",
                                                       "\"",
                                                       "=",
                                                       "&amp;",
                                                       "&",
                                                       ";",
                                                       "&#x;",
                                                       "<!--",
                                                       "-->",
                                                       "--",
                                                       "<![CDATA[",
                                                       "]]>",
                                                       "<?p",
                                                       "?>",
                                                       " ",
                                                       "\n",
                                                       "g",
                                                       "\u260e",
                                                       "\xE4",
                                                       "\x01",
                                                       "<!DOCTYPE a [",
                                                       "]",
                                                       "<?xml version='1.0'?>" };
    std::mt19937 random( 1 ); // the same texts each time, on each system
    unsigned int uIllFormed = 0;
    for ( int nText = 0; nText < 3000; ++nText ) {
        std::string strText = nText % 2 == 0 ? "<r>" : "";
        for ( auto uPieces = 1 + random() % 8; uPieces > 0; --uPieces )
            strText += s_vecPieces[random() % s_vecPieces.size()];
        strText += nText % 4 == 0 ? "</r>" : "";
        SCOPED_TRACE( strText );
        const SurveyResult result = survey( strText, ANY_SCHEMA );
        EXPECT_FALSE( result.bLoads );
        ASSERT_FALSE( result.vecMistakes.empty() );
        const Finding& finding = result.vecMistakes[0];
        if ( finding.strRule != "ill-formed" )
            continue;
        ++uIllFormed;
        EXPECT_EQ( result.vecMistakes.size(), 1U ) << result.strText;
        EXPECT_TRUE( finding.span.ullColumn == 0 || cutOut( strText, finding.span ) != "no place" ) << result.strText;
        EXPECT_GE( getLineOf( strText, strText.size() ), finding.span.ullLine );
        for ( const Finding::Related& related : finding.vecRelated )
            EXPECT_NE( cutOut( strText, related.span ), "no place" ) << related.strLabel;
    }
    EXPECT_GT( uIllFormed, 2000U );
}

} // namespace Velquin::Pstn::Test
