#include <filesystem>

#include <velquin/ParameterInfoDB.h>
#include <velquin/UniqueObjPtr.h>

#include "ConfigTest.h"
#include "Serializers.h"

// The loader: what it does with files and schemas that are not what they should be, its lines, its sections, its
// copies.

namespace Velquin::Pstn::Test {

namespace {

const std::string MINIMAL =
    "<pstnConfig version=\"2.3\">\n<callControl><channelGroups/></callControl>\n</pstnConfig>\n";

} // namespace

PSTN_CASES( LoadingCases, readCases( "loading.cases" ) );

TEST( Loader, TakesAbsentAndEmptySectionsAsEmpty ) {
    for ( const char* const szSections : { "", "<providers/><boards/><physicalInterfaceConfigs/>" } ) {
        XmlConfig config;
        TestDocument document( MINIMAL );
        loadValid( config, document.edit( { "2.3\">", "2.3\">" + std::string( szSections ) } ) );
        EXPECT_TRUE( config.getDigitalBoardsConfig().empty() );
        EXPECT_FALSE( config.getCallControlConfig().isNull() );
    }
}

TEST( Loader, FindsSectionsWhateverTheirOrder ) {
    XmlConfig config;
    loadValid( config, TestDocument( std::vector<Edit>{ { "/callControl", "*/providers" }, { "/providers", "-" } } ),
               ANY_SCHEMA );
    EXPECT_FALSE( config.getProviderConfig( "tirvana" ).isNull() );
}

// ---- Schemas that can't be used

TEST( Loader, RefusesSchemasThatAreNone ) {
    const std::string strGrammar = "<grammar xmlns=\"http://relaxng.org/ns/structure/1.0\">\n";
    for ( const auto& [strContent, strCause] :
          { std::pair<std::string, std::string>( "<grammar", "{libxml2} in file {file} at line 1." ),
            { "", "Can't read, No such file or directory in file {file}." },
            { "<other/>", "{libxml2} in file {file}." },
            { strGrammar + "<start><element name=\"a\"/></start></grammar>", "{libxml2} in file {file} at line 2." },
            { strGrammar + "<start><externalRef href=\"x.rng\"/></start></grammar>",
              "The schema must stand in one file: element externalRef declared in file {file} at line 2." },
            { strGrammar + "<include href=\"http://127.0.0.1/x.rng\"/></grammar>",
              "The schema must stand in one file: element include declared in file {file} at line 2." } } ) {
        const TemporaryFile schema( strContent );
        if ( strContent.empty() )
            std::filesystem::remove( schema.getPath() );
        XmlConfig config;
        testing::internal::CaptureStderr();
        const LoadResult result = load( config, COMPLETE, schema.getPath() );
        EXPECT_EQ( testing::internal::GetCapturedStderr(), "" );
        EXPECT_FALSE( result.bValid );
        std::vector<std::string> vecExpected{
            "ERROR XmlConfig: " + TestDocument( "" ).expand( strCause, schema.getPath() ),
            "ERROR XmlConfig: Failed to parse RelaxNG schema file " + schema.getPath() };
        takeWordsOfLibXml2( vecExpected, result.vecLines );
        EXPECT_EQ( join( result.vecLines ), join( vecExpected ) );
    }
}

TEST( Loader, GivesNoAdviceFromASchemaThatItCantFollow ) {
    const std::string strBegin = "<grammar xmlns=\"http://relaxng.org/ns/structure/1.0\">\n"
                                 "<start><element name=\"a\"><ref name=\"b\"/><optional><attribute name=\"o\"/>"
                                 "</optional></element></start><define name=\"b\">";
    const std::string strAttribute = "<attribute name=\"c\"><value>1</value></attribute>";
    std::string strDoubling = strAttribute;
    for ( int n = 0; n < 15; ++n ) {
        const std::string strRef = "<ref name=\"d" + std::to_string( n ) + "\"/>";
        strDoubling += strRef + strRef + "</define><define name=\"d" + std::to_string( n ) + "\"><empty/>";
    }
    for ( const std::string& strDefinition :
          { strDoubling, strAttribute + "<optional><attribute><name>e</name></attribute></optional>",
            strAttribute + "<optional><element><anyName/><empty/></element></optional>",
            strAttribute + "</define><div><define name=\"e\"><empty/></define></div><define name=\"f\"><empty/>",
            strAttribute + "</define><define name=\"b\" combine=\"choice\"><attribute name=\"e\"/>" } ) {
        const TemporaryFile schema( strBegin + strDefinition + "</define></grammar>" );
        // libxml2 hands over no element when an optional attribute is there.
        for ( const char* const szDocument : { "<a c='2'/>", "<a o=''/>" } ) {
            XmlConfig config;
            EXPECT_THAT( loadText( config, szDocument, schema.getPath() ).vecLines,
                         testing::ElementsAre( testing::HasSubstr( ": Element a failed to validate " ),
                                               testing::HasSubstr( ": failed to validate PSTN " ) ) )
                << strDefinition;
        }
    }
}

TEST( Loader, AdvisesByTheSchemaThatItIsGiven ) {
    const TemporaryFile schema( R"(<grammar xmlns="http://relaxng.org/ns/structure/1.0"
        datatypeLibrary="http://www.w3.org/2001/XMLSchema-datatypes"><start><element name="a"><choice>
        <group><attribute name="kind"><value>fax</value></attribute><attribute name="page"/><optional><group>
        <choice><attribute name="cover"/><attribute name="sheet"/></choice></group></optional></group>
        <group><attribute name="kind"><value>call</value></attribute>
        <attribute name="number"><data type="unsignedLong"><param name="maxInclusive">9</param></data></attribute>
        </group><group><attribute name="kind"><value>text</value></attribute><attribute name="read"><choice>
        <value>maybe</value><data type="boolean"/></choice></attribute></group><x:old xmlns:x="urn:x"><attribute
        name="old"/></x:old></choice><x:attribute xmlns:x="urn:x" name="old"/></element></start></grammar>)" );
    const auto getAdvice = [&]( const char* in_szDocument ) {
        XmlConfig config;
        const auto vecLines = loadText( config, in_szDocument, schema.getPath() ).vecLines;
        return vecLines.at( vecLines.size() - 2 ); // before the verdict
    };
    // What the other kind requires isn't missing.
    EXPECT_THAT( getAdvice( "<a kind='call'/>" ), testing::HasSubstr( "Missing attribute [/a/number]" ) );
    EXPECT_THAT( getAdvice( "<a kind='call' number='x'/>" ), testing::HasSubstr( "/a/number=x]" ) );
    // Any page will do.
    EXPECT_THAT( getAdvice( "<a kind='fox' page='1'/>" ), testing::HasSubstr( "/a/kind=fox]" ) );
    EXPECT_THAT( getAdvice( "<a kind='fox'/>" ), testing::HasSubstr( "Valid values are fax, call and text." ) );
    EXPECT_THAT( getAdvice( "<a page='1'/>" ), testing::HasSubstr( "Missing attribute [/a/kind]" ) );
    EXPECT_THAT( getAdvice( "<a kind='text' read='x'/>" ), testing::HasSubstr( "The value must be of type boolean." ) );
    EXPECT_THAT( getAdvice( "<b/>" ), testing::HasSubstr( " at line 1." ) ); // none for a root that fits nothing
    EXPECT_THAT( getAdvice( "<a kind='call' number='12' more=''/>" ), testing::HasSubstr( "/a/more=]" ) );
    EXPECT_THAT( getAdvice( "<a kind='call' number='1' old=''/>" ), testing::HasSubstr( "/a/old=]" ) ); // an annotation
}

TEST( Loader, HasNoNameForAnyChild ) {
    const TemporaryFile schema( R"(<grammar xmlns="http://relaxng.org/ns/structure/1.0"><start><element name="a">
        <element name="b"><empty/></element><element><anyName/><empty/></element></element></start></grammar>)" );
    XmlConfig config;
    const auto vecLines = loadText( config, "<a><b/></a>", schema.getPath() ).vecLines;
    EXPECT_THAT( vecLines,
                 testing::ElementsAre( testing::HasSubstr( ": Expecting an element, got nothing in file " ),
                                       testing::HasSubstr( ": Element a failed to validate content in file " ),
                                       testing::HasSubstr( ": failed to validate PSTN " ) ) );
}

// libxml2 remembers the attributes that a schema calls identifiers.
TEST( Loader, TakesASchemaWithIdentifiers ) {
    const TemporaryFile schema( R"(<grammar xmlns="http://relaxng.org/ns/structure/1.0"
        datatypeLibrary="http://www.w3.org/2001/XMLSchema-datatypes"><start><ref name="any"/></start><define name="any">
        <element><anyName/><interleave><optional><attribute name="model"><data type="ID"/></attribute></optional>
        <zeroOrMore><attribute><anyName><except><name>model</name></except></anyName></attribute></zeroOrMore>
        </interleave><zeroOrMore><choice><text/><ref name="any"/></choice></zeroOrMore></element></define></grammar>)" );
    XmlConfig config;
    loadValid( config, TestDocument().edit( { "/tirvanaAnalogBoard[2]", "model=\"TVA-5\"" } ), schema.getPath() );
}

// ---- Lines

TEST( Loader, NamesTheTrueLineInLongFiles ) {
    const std::string strPadding( 200000, '\n' );
    // The tag goes over two lines: it is the second, where it ends, that counts.
    const Edit pad{ "<interface ID=\"2\" displayName=\"T1-B\"",
                    strPadding + "<interface ID=\"2\"\ndisplayName=\"T1-B\"" };
    const std::string strSpan = "displayName=\"T1-B\"";
    for ( const auto& [strSchema, edit, strTag] : std::vector<std::tuple<std::string, Edit, std::string>>{
              { ANY_SCHEMA, { "T1-B\" tirpipe=\"3\"", "T1-B\"" }, strSpan },           // a reader
              { ANY_SCHEMA, { "File=\"YES\"", "File=\"yes\"" }, "File=\"yes\"" },      // a keyword's assertion
              { SCHEMA, { "T1-B\" tirpipe=\"3\"", "T1-B\"" }, strSpan },               // validation
              { SCHEMA, { "T1-B\" tirpipe=\"3\"", "T1-B\" tirpipe=\"2\"" }, strSpan }, // cross-check
              { SCHEMA, { "</callControl>", "" }, "</pstnConfig>" } } ) {              // parser
        const TestDocument document( std::vector<Edit>{ pad, edit } );
        const TemporaryFile file( document.getText() );
        std::vector<Finding> vecFindings;
        const FindingWatch watch( [&]( const Finding& in_finding ) { vecFindings.push_back( in_finding ); } );
        XmlConfig config;
        EXPECT_FALSE( load( config, file.getPath(), strSchema ).bValid );
        ASSERT_FALSE( vecFindings.empty() );
        EXPECT_EQ( vecFindings[0].strFile, file.getPath() );
        EXPECT_EQ( vecFindings[0].ullLine, document.getLine( strTag ) ) << vecFindings[0].strText;
        EXPECT_GT( vecFindings[0].ullLine, 200000U );
    }
}

// ---- What surrounds a load

TEST( Loader, ReadsItsPathsFromParameters ) {
    GlobalConfig& parameters = GlobalConfig::getInstance();
    XmlConfig config;
    const auto loadByParameters = [&] {
        return join( captureLines( [&] { EXPECT_FALSE( config.load( parameters, false ) ); } ) );
    };
    EXPECT_EQ( loadByParameters(), join( { "ERROR XmlConfig: Can't find global configuration parameter: "
                                           "marovane.pstn.config.file." } ) );
    parameters.setString( "marovane.pstn.config.file", COMPLETE.c_str() );
    EXPECT_EQ( loadByParameters(), join( { "ERROR XmlConfig: Can't find global configuration parameter: "
                                           "marovane.pstn.config.schemaFile." } ) );
    parameters.setString( "marovane.pstn.config.schemaFile", SCHEMA );
    EXPECT_TRUE( config.load( parameters, false ) );
    parameters.remove( "marovane.pstn.config.file" );
    parameters.remove( "marovane.pstn.config.schemaFile" );
}

TEST( Loader, DeclaresItsParameters ) {
    EXPECT_TRUE( PSTNConfig::addParametersToDB() );
    EXPECT_TRUE( PSTNConfig::addParametersToDB() );
    const auto vecParameters = ParameterInfoDB::getNonConstInstance().getParameters();
    ASSERT_EQ( vecParameters.size(), 2U );
    EXPECT_EQ( vecParameters[0].strName, "marovane.pstn.config.file" );
    EXPECT_EQ( vecParameters[0].strDescription, "Configuration file for PSTN modules of the Gateway." );
    EXPECT_EQ( vecParameters[1].strName, "marovane.pstn.config.schemaFile" );
    EXPECT_EQ( vecParameters[1].strDescription, "Schema file that validates the PSTN configuration of the Gateway." );
    EXPECT_EQ( vecParameters[1].nKind, 1 );
    EXPECT_FALSE( vecParameters[1].bRequired || vecParameters[1].bReadOnly || vecParameters[1].bHidden );
}

TEST( Loader, LogsItsStepsAndTheContent ) {
    const TemporaryFile file( "<pstnConfig version=\"2.3\">\n<!--" + std::string( 2050, 'x' ) +
                              "-->\n<callControl><channelGroups/></callControl></pstnConfig>" );
    const std::string& strFile = file.getPath();
    const std::string strSchema = SCHEMA;
    const Velquin::Test::LogCapture log( Logger::DEBUG_LEVEL );
    XmlConfig config;
    EXPECT_TRUE( config.load( strFile.c_str(), SCHEMA, true ) );
    std::vector<std::string> vecMessages;
    for ( const auto& record : log.getRecords() )
        vecMessages.push_back( record.strMessage );
    EXPECT_EQ( join( vecMessages ),
               join( { "PSTN configuration: " + strFile + "\n     1: <pstnConfig version=\"2.3\">\n     2: <!--" +
                           std::string( 2043, 'x' ) + "\n     2: " + std::string( 7, 'x' ) +
                           "-->\n     3: <callControl><channelGroups/></callControl></pstnConfig>\n",
                       "loading PSTN configuration \nPSTN Configuration XML file: " + strFile +
                           "\nRelaxNG schema file: " + strSchema,
                       "Validating Relax-NG file (" + strSchema + ")...", "Creating RelaxNG parser context...",
                       "Compiling RelaxNG schema file " + strSchema + "..." } ) );
}

TEST( Loader, LogsNoContentBelowItsLevel ) {
    const Velquin::Test::LogCapture log( Logger::WARNING_LEVEL );
    XmlConfig config;
    EXPECT_TRUE( config.load( COMPLETE.c_str(), SCHEMA, true ) );
    EXPECT_FALSE( config.load( nullptr, SCHEMA, false ) || config.load( SCHEMA, nullptr, false ) );
    EXPECT_EQ( log.getRecords().size(), 2U ) << "assertions about the file and the schema";
}

TEST( Loader, LeavesTheProgramsLibxml2Alone ) {
    int nErrors = 0;
    const xmlStructuredErrorFunc countErrors = []( void* out_pCount, auto* ) { // const in later versions
        ++*static_cast<int*>( out_pCount );
    };
    xmlSetStructuredErrorFunc( &nErrors, countErrors );
    XmlConfig config;
    for ( const std::string& strContent : { MINIMAL, std::string( "<a" ) } ) {
        loadText( config, strContent, SCHEMA );
        EXPECT_EQ( xmlStructuredError, countErrors );
        EXPECT_EQ( xmlStructuredErrorContext, &nErrors );
        EXPECT_EQ( XML::getOpenCount(), 0U );
    }
    EXPECT_EQ( nErrors, 0 );
    xmlSetStructuredErrorFunc( nullptr, nullptr );
}

TEST( Loader, FillsTheCopyThatLoads ) {
    auto pFirst = std::make_unique<XmlConfig>();
    XmlConfig copy( *pFirst );
    XmlConfig assigned;
    assigned = *pFirst;
    pFirst.reset(); // the shared part must not reach for it
    loadValid( copy, TestDocument() );
    EXPECT_EQ( copy.getDigitalBoardsConfig().size(), 3U );
    EXPECT_TRUE( assigned.getDigitalBoardsConfig().empty() );
    EXPECT_EQ( &copy.getXmlSerializerObjectFactory(), &assigned.getXmlSerializerObjectFactory() );
    assigned = copy;
    EXPECT_EQ( assigned.getDigitalBoardConfig( 1 ).get(), copy.getDigitalBoardConfig( 1 ).get() );
}

// ---- Factory

namespace {

const std::vector<Case> FACTORY_CASES{
    { "ClassesUnknown",
      [] {
          const XmlSerializerObjectFactory factory;
          DigitalBoardConfig board;
          EXPECT_FALSE( factory.newEchoCancellationConfigXmlSerializer( "hardware" ) ||
                        factory.newAcousticEchoCancellationConfigXmlSerializer( "hardware" ) ||
                        factory.newLevelControlConfigXmlSerializer( "hardware" ) ||
                        factory.newBackgroundNoiseAttenuationConfigXmlSerializer( "hardware" ) ||
                        factory.newDtmfRemovalConfigXmlSerializer( "hardware" ) ||
                        factory.newBoardConfigXmlSerializer( board ) );
      },
      { "ERROR XmlSerializerObjectFactory: unkown echo cancellation config type: hardware",
        "ERROR XmlSerializerObjectFactory: unkown acoustic echo cancellation config type: hardware",
        "ERROR XmlSerializerObjectFactory: unkown level control config type: hardware",
        "ERROR XmlSerializerObjectFactory: unkown background noise attenuation config type: hardware",
        "ERROR XmlSerializerObjectFactory: unkown DTMF removal config type: hardware",
        "ERROR XmlSerializerObjectFactory: unkown board config type: " } },
    { "VirtualBoardWritten",
      [] {
          TirvanaDigitalVirtualBoardConfig board;
          const UniqueObjPtr pXmlSerializer( XmlSerializerObjectFactory().newBoardConfigXmlSerializer( board ) );
          ASSERT_NE( dynamic_cast<TirvanaDigitalVirtualBoardConfigXmlSerializer*>( pXmlSerializer.get() ), nullptr );
          EXPECT_FALSE( pXmlSerializer->write( nullptr, board ) );
      },
      notImplemented( { "TirvanaDigitalVirtualBoardConfigXmlSerializer" } ) },
};

} // namespace

PSTN_CASES( FactoryCases, FACTORY_CASES );

} // namespace Velquin::Pstn::Test
