#include "SurveyRun.h"

// What a survey finds in wrong files: each mistake, once, at its line.

namespace Velquin::Pstn::Test {

namespace {

/// A mistake that is made, and how it must be reported.
struct Mistake {
    std::string strRule;
    std::string strWords;
    std::string strPlace = "{line}";
    std::vector<Edit> vecEdits;
};

std::vector<Mistake> readMistakes() {
    std::vector<Mistake> vecMistakes;
    for ( const Record& record : readRecords( "mistakes.rows", "@" ) ) {
        Mistake mistake{ record.vecWords[1], record.strHead.substr( 9 + record.vecWords[1].size() ), "{line}",
                         record.vecEdits };
        if ( const std::size_t uAt = mistake.strWords.rfind( " at /" ); uAt != std::string::npos ) {
            mistake.strPlace = "{line:" + mistake.strWords.substr( uAt + 4 ) + "}";
            mistake.strWords.erase( uAt );
        }
        vecMistakes.push_back( mistake );
    }
    return vecMistakes;
}

void expectOne( const SurveyResult& in_result, const std::string& in_strLine, const std::string& in_strRule,
                const std::string& in_strWords ) {
    ASSERT_EQ( in_result.vecMistakes.size(), 1U ) << in_result.strText;
    const Finding& finding = in_result.vecMistakes[0];
    EXPECT_EQ( in_strLine, in_strLine.empty() ? "" : std::to_string( finding.span.ullLine ) ) << in_result.strText;
    std::string strFound = describeFinding( finding );
    for ( const Finding::Related& related : finding.vecRelated )
        strFound += " | " + related.strLabel + " " + std::to_string( related.ullLine );
    EXPECT_THAT( strFound, testing::HasSubstr( in_strWords ) );
    EXPECT_EQ( finding.strRule, in_strRule.empty() ? finding.strRule : in_strRule );
}

} // namespace

TEST( Survey, FindsEachSingleMistakeOnce ) {
    for ( const Mistake& mistake : readMistakes() ) {
        SCOPED_TRACE( mistake.vecEdits[0].strFrom + " " + mistake.vecEdits[0].strTo );
        const TestDocument document( mistake.vecEdits );
        expectOne( survey( document.getText() ), document.expand( mistake.strPlace, "" ), mistake.strRule,
                   document.expand( mistake.strWords, "" ) );
    }
}

TEST( Survey, SaysOfADisplayNameWhatTheSchemaSays ) {
    for ( const std::string strPath : { "/tirvanaDigitalBoard[1]", "/tirvanaDigitalBoard[1]/interface[1]" } ) {
        const TestDocument document( { { strPath, "displayName=\"PBX:1\"" } } );
        for ( const std::string& strSchema : { std::string( SCHEMA ), ANY_SCHEMA } )
            expectOne( survey( document.getText(), strSchema ), document.expand( "{line}", "" ), "invalid-value",
                       "displayName=\"PBX:1\": the value must be a text of letters (a to z, A to Z), digits, blanks" );
    }
}

TEST( Survey, FindsEachMissingOrWrongAttributeOnce ) {
    unsigned int uMistakes = 0;
    for ( const char* const szFile :
          { "hardware.cases", "physical.cases", "callcontrol.cases", "isdn.cases", "analog.cases", "schema.cases" } ) {
        for ( const Case& one : readCases( szFile ) ) {
            const bool bMissing = one.strName.ends_with( "Missing" );
            if ( one.vecEdits.size() != 1 || ( !bMissing && !one.strName.ends_with( "Wrong" ) ) )
                continue;
            SCOPED_TRACE( one.strName );
            const TestDocument document( one.vecEdits );
            const SurveyResult result = survey( document.getText() );
            if ( result.bLoads )
                continue; // the case is about readers behind another schema
            const bool bOfParent = one.vecEdits[0].strTo == "-";
            expectOne( result, bOfParent ? "" : document.expand( "{line}", "" ), "", "" );
            ++uMistakes;
        }
    }
    EXPECT_GE( uMistakes, 200U );
}

TEST( Survey, FindsFiveMistakesInOneRunInTheirOrder ) {
    for ( const Record& record : readRecords( "five.rows", "@>" ) ) {
        SCOPED_TRACE( record.strHead );
        std::vector<std::string> vecRules = split( record.mapLines.at( '>' )[0], " " );
        EXPECT_EQ( vecRules.size(), 5U );
        ASSERT_EQ( record.vecEdits.size(), vecRules.size() );
        TestDocument document;
        for ( std::size_t u = 0; u < vecRules.size(); ++u ) {
            document.edit( record.vecEdits[u] );
            vecRules[u] = document.expand( "{line} ", "" ) + vecRules[u];
        }
        std::vector<std::string> vecFound;
        const SurveyResult result = survey( document.getText() );
        for ( const Finding& finding : result.vecMistakes )
            vecFound.push_back( std::to_string( finding.span.ullLine ) + " " + finding.strRule );
        EXPECT_EQ( vecFound, vecRules ) << result.strText;
    }
}

TEST( Survey, TellsTheOrderThatAnotherSchemaWants ) {
    const auto find = []( const std::string& in_strContent, const std::string& in_strChildren ) {
        const auto expand = []( const std::string& in_strLetters, const std::string& in_strHead ) {
            std::string strText;
            for ( const char c : in_strLetters )
                strText += c >= 'A' && c <= 'C' ? in_strHead + c + ( in_strHead == "<" ? "/>" : "'><empty/></element>" )
                                                : std::string( 1, c );
            return strText;
        };
        const TemporaryFile schema( "<grammar xmlns='http://relaxng.org/ns/structure/1.0'><start><element "
                                    "name='pstnConfig'>" +
                                    expand( in_strContent, "<element name='" ) + "</element></start></grammar>" );
        std::string strFound;
        for ( const Finding& finding :
              survey( "<pstnConfig>" + expand( in_strChildren, "<" ) + "</pstnConfig>", schema.getPath() ).vecMistakes )
            if ( finding.strRule == "unknown-element" || finding.strRule == "unexpected-text" )
                strFound += describeFinding( finding ) + "; ";
        return strFound;
    };
    const std::string strList = "A<optional>B</optional><zeroOrMore>C</zeroOrMore>";
    for ( const std::string strRight : { "A", "AB", "ACCC", "ABC" } )
        EXPECT_EQ( find( strList, strRight ), "" ) << strRight;
    EXPECT_EQ( find( strList, "ACB" ), "unexpected element \"B\": move it in front of C; " );
    EXPECT_EQ( find( strList, "ABBC" ),
               "unexpected element \"B\": only one may stand in pstnConfig; remove one of them; " );
    const std::string strMixed = "<interleave>AB<zeroOrMore>C</zeroOrMore></interleave>";
    EXPECT_EQ( find( strMixed, "CBCA" ), "" );
    EXPECT_EQ( find( strMixed, "CABA" ),
               "unexpected element \"A\": only one may stand in pstnConfig; remove one of them; " );
    EXPECT_EQ( find( strMixed, "Ax B" ),
               "text \"x\" in element pstnConfig: remove it: this format has attributes and elements only; " );
    EXPECT_EQ( find( "<mixed>AB</mixed>", "Ax B" ), "" );
    EXPECT_EQ( find( "<choice>A<group>BC</group></choice>", "BC" ), "" );
    EXPECT_EQ( find( "<choice>A<group>BC</group></choice>", "ABC" ),
               "unexpected element \"A\": C excludes it; remove one of them; " );
    EXPECT_EQ( find( "<oneOrMore><choice>AB</choice></oneOrMore>", "ABBA" ), "" );
    EXPECT_EQ( find( "<div>A</div>", "BA" ), "" ) << "advice from a schema that isn't followed";
}

TEST( Survey, TellsLinesAndColumnsInFilesOfAnyEncoding ) {
    const std::string strHead = "<!-- Gr\u00f6\u00dfe < > \" -->\n<!DOCTYPE a [ <!-- ]> --> <!ELEMENT a ANY> ]>\n";
    const std::string strText = strHead + "<pstnConfig\n\tversion = '2.4'><?pi <a>?><![CDATA[<b>]]>\n"
                                          "<!-- \u260e --><boards><x\n y='\u260e'/></boards></pstnConfig>";
    const auto find = []( const std::string& in_strBytes ) {
        const TemporaryFile file( in_strBytes );
        const Velquin::Test::LogCapture quiet( Logger::ERROR_LEVEL );
        Survey survey;
        EXPECT_FALSE( survey.run( file.getPath().c_str(), SCHEMA ) );
        std::vector<std::string> vecFound;
        for ( const Finding& finding : survey.getFindings() ) {
            if ( finding.bEcho )
                continue;
            std::ostringstream place;
            place << finding.span.ullLine << ':' << finding.span.ullColumn << '-' << finding.span.ullEndColumn << ' '
                  << finding.valueSpan.ullColumn << '-' << finding.valueSpan.ullEndColumn << ' ' << finding.strRule
                  << ' ' << survey.getLine( finding.span.ullLine );
            vecFound.push_back( place.str() );
        }
        return vecFound;
    };
    const std::vector<std::string> vecExpected = find( "\xEF\xBB\xBF" + strText );
    EXPECT_THAT( vecExpected,
                 testing::Contains( "4:2-17 13-16 invalid-value \tversion = '2.4'><?pi <a>?><![CDATA[<b>]]>" ) );
    EXPECT_THAT( vecExpected,
                 testing::Contains( "4:37-40 0-0 unexpected-text \tversion = '2.4'><?pi <a>?><![CDATA[<b>]]>" ) );
    EXPECT_THAT( vecExpected, testing::Contains( "5:19-21 0-0 unknown-element <!-- \u260e --><boards><x" ) );
    std::string strUtf16 = "\xFF\xFE";
    for ( std::size_t u = 0; u < strText.size(); ++u ) { // of the characters here, one or three bytes in UTF-8
        const auto c = static_cast<unsigned char>( strText[u] );
        const auto next = [&]( std::size_t in_u ) { return static_cast<unsigned char>( strText[in_u] ) & 0x3FU; };
        unsigned int uCode = c;
        if ( c >= 0xE0 ) {
            uCode = ( c & 0x0FU ) << 12U | next( u + 1 ) << 6U | next( u + 2 );
            u += 2;
        } else if ( c >= 0xC0 ) {
            uCode = ( c & 0x1FU ) << 6U | next( u + 1 );
            ++u;
        }
        strUtf16 += static_cast<char>( uCode & 0xFFU );
        strUtf16 += static_cast<char>( uCode >> 8U );
    }
    EXPECT_EQ( find( strUtf16 ), vecExpected );
}

// The parser stops behind most of these mistakes, at times lines later. The places are those of the mistake and of what
// belongs to it.
TEST( Survey, SaysWhatMakesAFileIllFormedAndWhere ) {
    using namespace std::string_literals;
    for ( const auto& [strText, strPlaces, strWords] : std::vector<std::tuple<std::string, std::string, std::string>>{
              { "<a>\n<b c='A & B'/></a>", "2:9", "write &amp;" },
              { "<a>\n<b c='&d;'/></a>", "2:7", "there is no entity &d;" },
              { "<a>\n<b>&#27;</b></a>", "2:4", "XML forbids" },
              { "<a>\n]]></a>", "2:1", "write ]]&gt;" },
              { "<a>\n<b c=\"1\"\n\n<d e='2'/></a>", "2:8", "end it with >" },
              { "<a>\n<b c='1/>\n<d e='2'/></a>", "2:6", "attribute c has no closing quote: end it with '" },
              { "<a>\n<b c='1\"/>\n<d/></a>", "2:6", "no closing quote" },
              { "<a>\n<b c='<d>'/></a>", "2:6", "&lt;" },
              { "<a>\n<b c='1\n d='2'/></a>", "2:6", "attribute c has no closing quote: write it in front of d" },
              { "<a>\n<b c=1/></a>", "2:6", "must begin with a quote" },
              { "<a>\n<b c 'd'/></a>", "2:4", "no = stands" },
              { "<a>\n<b c d='1'/></a>", "2:4", "attribute c has no value" },
              { "<a>\n<b c='1'd='2'/></a>", "2:9", "a blank must stand in front of attribute d" },
              { "<a>\n<b c=''1'/></a>", "2:8", "remove one of the two quotes" },
              { "<a>\n<b c='1''/></a>", "2:9", "write &quot;" },
              { "<a>\n<b c='1', d='2'/></a>", "2:9", "the character , can't" },
              { "<a>\n<b\u00A0c='1'/></a>", "2:3", "the character U+00A0 can't" },
              { "<a>\n<b c='1'\\></a>", "2:9", "write / if it ends the tag" },
              { "<a>\n<b c='1'/\n</a>", "2:9", "write />" },
              { "<a>\n<b <!-- c -->/></a>", "2:4", "move it out of the tag" },
              { "<a>\n<b\nc='1'\nc='2'/></a>", "4:1 3:1", "attribute c stands twice" },
              { "<a>\n<b:c/></a>", "2:", "the prefix b" },
              { "<a>\n<xi:include/></a>", "2:", "draws in no other file" },
              { "<a>\n<!-- b\n<c/>\n<!-- d -->\n</a>", "2:1 4:1", "the comment has no end" },
              { "<a>\n<!-- b ->\n</a>", "2:1", "the comment has no end" },
              { "<a>\n<!-- b -- c --></a>", "2:8 2:1", "write only one" },
              { "<a>\n<!- b -->\n</a>", "2:1", "begin it with <!--" },
              { "<a>\n<-- b -->\n</a>", "2:1", "begin it with <!--" },
              { "<a>\n<<<<<<< b\n</a>", "2:1", "settle the conflict" },
              { "<a>\n<b>\n</a>", "2:1 3:1", "end its tag with />, or write </b>" },
              { "<a>\n<b/>\n</b></a>", "3:1 2:3", "no element b is open" },
              { "<a>\n<b></c></a>", "2:4 2:1", "no element c is open here" },
              { "<a>\n<boar></boars></a>", "2:7 2:1", "write </boar>, or correct the name in the start tag" },
              { "<a>\n <b>\n  <c/>\n  <d/>\n <e/>\n</a>", "2:2 5:2", "write </b>" },
              { "<a>\n <b>\n <c/>\n</a>", "2:2 3:2", "end its tag with />" },
              { "<a>\n <b>\n <b>\n </a>", "3:2 2:2", "write </b> here" },
              { "<a>\n <z/>\n  <c/>\n  <d/>\n </b>\n</a>", "3:3 5:2", "a tag <b ...> is missing in front of this one" },
              { "<a>\n<b/>\n <c/>\n</b></a>", "2:3 4:1", "/> ends the element b in front of its content: write >" },
              { "<a>\n<\\b></a>", "2:1", "write </ if" },
              { "<a>\n<b c='1' 'd'/></a>", "2:10", "no name stands in front of this value" },
              { "<a>\n<b c\u200bd='1'/></a>", "2:5", "the character U+200B can't stand here" },
              { "<a>\nb c='d'>\n<e/>\n</b></a>", "2:1 4:1", "a < is missing in front of b: write <b" },
              { "<a>\n<b>\n/b>\n</a>", "3:1 2:1", "a < is missing in front of /b: write </b>" },
              { "<a>\n<b>\nb></a>", "3:1 2:1", "the characters </ are missing in front of b: write </b>" },
              { "<a>\n<b/>\n/a>", "3:1 1:1", "a < is missing in front of /a" },
              { "<a>\n<b></b\n</a>", "2:6", "end it with >" },
              { "<a>\n<b></ b></a>", "2:4", "write </b>" },
              { "<a>\n<b>\n<c d=", "3:5 2:1",
                "in the value of attribute d, inside /a/b: write what is missing, at least </b></a>" },
              { "<a><!-- -->\n\n", "1:11 1:1", "the file ends here, inside /a" },
              { "<?x?>\n<?y >\n<a/>", "2:1", "the instruction <?y has no end" },
              { "<?xml-model >\n<a/>", "1:1", "the instruction <?xml-model has no end" },
              { "<x-model ?>\n<a/>", "1:1 1:10", "write <?x-model" },
              { "<?xml version='1.0'>\n<a/>", "1:20", "end it with ?>" },
              { "<?xml version=1.0?>\n<a/>", "1:15", "must begin with a quote" },
              { "<?xml version='2.0'?>\n<a/>", "1:16", "there is no XML version 2.0" },
              { "<?xml encoding='UTF-8'?><a/>", "1:1", "begin with a version" },
              { "<?xml version='1.0' encoding='UTF-16'?><a/>", "1:31", "the file isn't in UTF-16" },
              { "<?XML version='1.0'?><a/>", "1:1", "small letters" },
              { "<a/>\n<?xml version='1.0'?>", "2:1", "only at the very beginning" },
              { "<?xml version='1.0' encoding='US-ASCII'?>\n<a b='\u00E4'/>", "2:7",
                "the bytes 0xC3 0xA4 aren't US-ASCII" },
              { "<a b='\xE4'/>", "1:7", "the byte 0xE4 isn't UTF-8" },
              { "<a>\n\0</a>"s, "2:1", "the character U+0000" },
              { "<!DOCTYPE a [\n<!ENTITY b 'c'>]><a/>", "2:1", "remove the declaration" },
              { "<!DOCTYPE a [\n<!ATTLIST a b CDATA 'c'>]><a/>", "2:1", "remove the declaration" },
              { "<a>\n</a>\n<b/>", "3", "the file's only element" },
              { "", "1", "the file is empty" } } ) {
        SCOPED_TRACE( strText );
        const SurveyResult result = survey( strText );
        expectOne( result, strPlaces.substr( 0, strPlaces.find( ':' ) ), "ill-formed", strWords );
        const Finding& finding = result.vecMistakes[0];
        std::string strFound = std::to_string( finding.span.ullLine ) + ":" + std::to_string( finding.span.ullColumn );
        for ( const Finding::Related& related : finding.vecRelated )
            strFound += " " + std::to_string( related.span.ullLine ) + ":" + std::to_string( related.span.ullColumn );
        EXPECT_THAT( strFound, testing::StartsWith( strPlaces ) );
        EXPECT_EQ( finding.vecRelated.size(), strPlaces.find( ' ' ) == std::string::npos ? 0U : 1U );
    }
}

TEST( Survey, StopsCountingWhereTheParserGivesUp ) {
    const SurveyResult result = survey( "<pstnConfig>\n<boards a='1' b=>\n</pstnConfig" );
    expectOne( result, "2", "ill-formed", "" );
    EXPECT_EQ( survey( readFile( COMPLETE ), "/no/such/schema.rng" ).vecMistakes.size(), 1U );
}

} // namespace Velquin::Pstn::Test
