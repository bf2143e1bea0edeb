#include "ConfigTest.h"
#include "Serializers.h"

// Providers, boards, interfaces: what their readers and containers refuse, and what they keep.

namespace Velquin::Pstn::Test {

namespace {

/// Identifiers of what a vector of handles holds, in its order.
template <class TContainer>
std::string getIds( const TContainer& in_container ) {
    std::string strIds;
    for ( const auto& one : in_container )
        strIds += std::to_string( one->getId() ) + " ";
    return strIds;
}

// ---- What no document provokes

template <class T>
T* newNamed( unsigned int in_uId, const char* in_szName ) {
    auto* const pNew = new T();
    pNew->setId( in_uId );
    EXPECT_TRUE( pNew->setDisplayName( in_szName ) );
    return pNew;
}

/// Reads with a serializer that makes objects of another class, or none.
template <class TXmlSerializer, class TMade>
void readBoardOfOtherClass() {
    struct Making : TXmlSerializer {
        BoardConfig* newBoardConfig() override { return makeSome<TMade>(); }
    };
    XmlConfig config;
    const Element element( R"(<board ID="1" displayName="B" model="" tirpipe="1"/>)" );
    EXPECT_FALSE( Making().read( element.get(), config ) );
}
template <class TXmlSerializer, class TMade>
void readInterfaceOfOtherClass() {
    struct Making : TXmlSerializer {
        InterfaceConfig* newInterfaceConfig() override { return makeSome<TMade>(); }
    };
    XmlConfig config;
    const Element element( R"(<interface ID="1" displayName="I" type="FXO"/>)" );
    EXPECT_FALSE( Making().read( element.get(), config, BoardConfig() ) );
}

const std::vector<Case> CALLS{
    { "ConfigRefusesNull",
      [] {
          Config config;
          EXPECT_TRUE( config.getCallControlConfig().isNull() );
          auto* const pCallControl = new CallControlConfig();
          EXPECT_TRUE( config.setCallControlConfig( pCallControl ) );
          TSHandle<CallControlConfig> hNull;
          EXPECT_FALSE( config.addProviderConfig( nullptr ) || config.addBoardConfig( nullptr ) ||
                        config.addAnalogBoardConfig( nullptr ) || config.addDigitalBoardConfig( nullptr ) );
          EXPECT_FALSE( config.setCallControlConfig( hNull.get() ) || config.setCallControlConfig( hNull ) );
          EXPECT_TRUE( config.getProviderConfig( nullptr ).isNull() );
          EXPECT_EQ( config.getCallControlConfig().get(), pCallControl ) << "what was there is gone";
      },
      assertions(
          "Config: in_pNewProviderConfig, in_pNewBoardConfig, in_pNewAnalogBoardConfig, in_pNewDigitalBoardConfig, "
          "!pCallControlConfig.isNull(), !in_hCallControlConfig.isNull(), in_szName != nullptr" ) },
    { "ConfigKeepsFirstBoardOfAnId",
      [] {
          Config config;
          EXPECT_TRUE( config.addBoardConfig( newNamed<DigitalBoardConfig>( 9, "Ninth" ) ) );
          EXPECT_TRUE( config.addBoardConfig( newNamed<DigitalBoardConfig>( 1, "First" ) ) );
          EXPECT_TRUE( config.addBoardConfig( newNamed<AnalogBoardConfig>( 1, "First" ) ) ) << "another kind";
          EXPECT_FALSE( config.addBoardConfig( newNamed<TirvanaDigitalBoardConfig>( 1, "Second" ) ) );
          EXPECT_FALSE( config.addAnalogBoardConfig( newNamed<AnalogBoardConfig>( 1, "Second" ) ) );
          EXPECT_FALSE( config.addBoardConfig( newNamed<BoardConfig>( 5, "Odd" ) ) );
          EXPECT_EQ( config.getDigitalBoardsConfig().size(), 2U );
          EXPECT_EQ( config.getDigitalBoardsConfig().rbegin()->first, 9U ) << "they ascend";
          EXPECT_STREQ( config.getDigitalBoardConfig( 1 )->getDisplayName(), "First" );
          EXPECT_STREQ( config.getAnalogBoardConfig( 1 )->getDisplayName(), "First" );
      },
      { "ERROR Config: failed to add new digital board: 1<Second>",
        "ERROR Config: failed to add new analog board: 1<Second>",
        "ERROR Config: failed to add new board, which is neither analog nor digital: 5<Odd>" } },
    { "ConfigFindsNothing",
      [] {
          Config config;
          EXPECT_TRUE( config.addBoardConfig( newNamed<DigitalBoardConfig>( 1, "D" ) ) );
          EXPECT_TRUE( config.addBoardConfig( newNamed<AnalogBoardConfig>( 1, "A" ) ) );
          EXPECT_TRUE( config.getProviderConfig( "Tirvana" ).isNull() );
          EXPECT_TRUE( config.getAnalogInterfaceConfig( 8, 1 ).isNull() &&
                       config.getAnalogInterfaceConfig( 1, 9 ).isNull() );
          EXPECT_TRUE( config.getDigitalInterfaceConfig( 8, 1 ).isNull() &&
                       config.getDigitalInterfaceConfig( 1, 9 ).isNull() );
      },
      { "ERROR Config: failed to get provider: Tirvana", "ERROR Config: failed to get analog board: 8",
        "ERROR AnalogBoardConfig: failed to get analog interface: 9", "ERROR Config: failed to get digital board: 8",
        "ERROR DigitalBoardConfig: failed to get digital interface: 9" } },
    { "HardwareRefusesNull",
      [] {
          Config config;
          const_cast<Config::AnalogBoardConfigs&>( config.getAnalogBoardsConfig() )[1] = nullptr;
          std::set<std::string> setToneSets;
          EXPECT_FALSE( config.getToneSets( setToneSets ) );
          AnalogBoardConfig analogBoard;
          DigitalBoardConfig digitalBoard;
          EXPECT_FALSE( analogBoard.addAnalogInterfaceConfig( nullptr ) ||
                        digitalBoard.addDigitalInterfaceConfig( nullptr ) );
          std::vector<TSHandle<AnalogInterfaceConfig>> vecPorts( 1 );
          std::vector<TSHandle<DigitalInterfaceConfig>> vecSpans( 1 );
          EXPECT_FALSE( analogBoard.getAnalogInterfacesConfig( vecPorts ) ||
                        digitalBoard.getDigitalInterfacesConfig( vecSpans ) );
          EXPECT_FALSE( analogBoard.setDisplayName( nullptr ) || analogBoard.setModel( nullptr ) );
          AnalogInterfaceConfig port;
          DigitalInterfaceConfig span;
          EXPECT_FALSE( port.setBoardConfig( nullptr ) || port.setPhysicalConfig( nullptr ) ||
                        span.setPhysicalConfig( nullptr ) );
          EXPECT_STREQ( span.getUniqueId( true ), "" );
      },
      assertions(
          "Config: !hBoardConfig.isNull(); AnalogBoardConfig: in_pNewAnalogInterfaceConfig; DigitalBoardConfig: "
          "in_pNewDigitalInterfaceConfig; AnalogBoardConfig: out_vecAnalogInterfaceConfig.empty(); DigitalBoardConfig: "
          "out_vecDigitalInterfaceConfig.empty(); DisplayName: in_szName != nullptr; Text: in_szText != nullptr; "
          "InterfaceConfig: !in_pBoardConfig.isNull(); AnalogInterfaceConfig: !in_hPhysicalConfig.isNull(); "
          "DigitalInterfaceConfig: !in_hPhysicalConfig.isNull(); InterfaceConfig: !getBoardConfig().isNull()" ) },
    { "InterfaceWithoutPhysicalConfig",
      [] {
          const TSHandle<BoardConfig> hBoard( newNamed<BoardConfig>( 1, "Span board" ) );
          const TSHandle<DigitalInterfaceConfig> hSpan( newNamed<DigitalInterfaceConfig>( 2, "Trunk-A" ) );
          EXPECT_TRUE( hSpan->setBoardConfig( hBoard.get() ) );
          EXPECT_FALSE( hSpan->hasDChannel() );
      },
      { "WARN DigitalInterfaceConfig: digital interface \"b1(Span board)di2(Trunk-A)\" has no physical "
        "configuration" } },
    { "HardwareOfOtherClass",
      [] {
          readBoardOfOtherClass<BoardConfigXmlSerializer, void>();
          readBoardOfOtherClass<AnalogBoardConfigXmlSerializer, DigitalBoardConfig>();
          readBoardOfOtherClass<DigitalBoardConfigXmlSerializer, AnalogBoardConfig>();
          readBoardOfOtherClass<TirvanaAnalogBoardConfigXmlSerializer, AnalogBoardConfig>();
          readBoardOfOtherClass<TirvanaDigitalBoardConfigXmlSerializer, DigitalBoardConfig>();
          readBoardOfOtherClass<TirvanaDigitalVirtualBoardConfigXmlSerializer, DigitalBoardConfig>();
          readInterfaceOfOtherClass<InterfaceConfigXmlSerializer, void>();
          readInterfaceOfOtherClass<DigitalInterfaceConfigXmlSerializer, AnalogInterfaceConfig>();
          readInterfaceOfOtherClass<AnalogInterfaceConfigXmlSerializer, DigitalInterfaceConfig>();
          readInterfaceOfOtherClass<TirvanaDigitalInterfaceConfigXmlSerializer, DigitalInterfaceConfig>();
          readInterfaceOfOtherClass<TirvanaDigitalVirtualInterfaceConfigXmlSerializer, DigitalInterfaceConfig>();
          readInterfaceOfOtherClass<TirvanaAnalogInterfaceConfigXmlSerializer, AnalogInterfaceConfig>();
      },
      assertions( "BoardConfigXmlSerializer: !pBoardConfig.isNull(); AnalogBoardConfigXmlSerializer: "
                  "!pAnalogBoardConfig.isNull(); DigitalBoardConfigXmlSerializer: !pDigitalBoardConfig.isNull(); "
                  "TirvanaAnalogBoardConfigXmlSerializer: !pTirvanaAnalogBoardConfig.isNull(); "
                  "TirvanaDigitalBoardConfigXmlSerializer: !pTirvanaDigitalBoardConfig.isNull(); "
                  "TirvanaDigitalVirtualBoardConfigXmlSerializer: !pVirtualBoardConfig.isNull(); "
                  "InterfaceConfigXmlSerializer: !pInterfaceConfig.isNull(); DigitalInterfaceConfigXmlSerializer: "
                  "!pDigitalInterfaceConfig.isNull(); AnalogInterfaceConfigXmlSerializer: "
                  "!pAnalogInterfaceConfig.isNull(); TirvanaDigitalInterfaceConfigXmlSerializer: "
                  "!pTirvanaDigitalInterfaceConfig.isNull(); TirvanaDigitalVirtualInterfaceConfigXmlSerializer: "
                  "!pTirvanaDigitalVirtualInterfaceConfig.isNull(); TirvanaAnalogInterfaceConfigXmlSerializer: "
                  "!pTirvanaAnalogInterfaceConfig.isNull()" ) },
};

} // namespace

PSTN_CASES( HardwareCases, readCases( "hardware.cases" ) );
PSTN_CASES( HardwareCalls, CALLS );

TEST( Hardware, InterfacesComeOutInOrder ) {
    XmlConfig config;
    loadValid( config );
    const auto hBoard = config.getDigitalBoardConfig( 2 );
    std::vector<TSHandle<DigitalInterfaceConfig>> vecSpans;
    ASSERT_TRUE( hBoard->getDigitalInterfacesConfig( vecSpans ) );
    EXPECT_EQ( vecSpans[0]->getBoardConfig().get(), hBoard.get() );
    vecSpans[0]->setId( 9 ); // the order follows
    vecSpans.clear();
    ASSERT_TRUE( hBoard->getDigitalInterfacesConfig( vecSpans ) );
    EXPECT_EQ( getIds( vecSpans ), "2 3 9 " );

    AnalogBoardConfig board;
    for ( const unsigned int uId : { 3U, 1U, 2U } )
        EXPECT_TRUE( board.addAnalogInterfaceConfig( newNamed<AnalogInterfaceConfig>( uId, "" ) ) );
    std::vector<TSHandle<AnalogInterfaceConfig>> vecPorts;
    ASSERT_TRUE( board.getAnalogInterfacesConfig( vecPorts ) );
    EXPECT_EQ( getIds( vecPorts ), "1 2 3 " );
}

TEST( Hardware, ListsTheToneSetsOfAllInterfaces ) {
    XmlConfig config;
    loadValid( config );
    std::set<std::string> setToneSets{ "OTHER" };
    EXPECT_TRUE( config.getToneSets( setToneSets ) );
    EXPECT_EQ( setToneSets, ( std::set<std::string>{ "AMERICA", "ANALOG", "EUROPE", "OTHER" } ) );
    XmlConfig unapplied; // a load that ends in front of the physical configurations leaves the boards
    EXPECT_FALSE( loadText( unapplied, TestDocument().edit( { "/audio", "-toneSetName" } ).getText() ).bValid );
    EXPECT_TRUE( unapplied.getToneSets( setToneSets ) );
}

TEST( Hardware, DisplayNamesAreCheckedAsAWhole ) {
    BoardConfig board;
    DigitalInterfaceConfig span;
    for ( const char* const szName : { "Span 1_a-b", "", "-", "0" } )
        EXPECT_TRUE( board.setDisplayName( szName ) && span.setDisplayName( szName ) ) << szName;
    for ( const char* const szName : { "Span#1", "a\n", "a\tb", "\xc3\xa9", "a.b", "#" } )
        EXPECT_FALSE( board.setDisplayName( szName ) || span.setDisplayName( szName ) ) << szName;
    EXPECT_STREQ( board.getDisplayName(), "0" ) << "the old name is gone";
    EXPECT_STREQ( span.getDisplayName(), "0" ) << "the old name is gone";
}

TEST( Hardware, TellsItsStepsAtDebug ) {
    const Velquin::Test::LogCapture log( Logger::DEBUG_LEVEL );
    Config config;
    auto* const pProvider = new TirvanaProviderConfig();
    EXPECT_TRUE( pProvider->setId( "tirvana" ) && config.addProviderConfig( pProvider ) );
    auto* const pAnalogBoard = newNamed<AnalogBoardConfig>( 3, "Main" );
    auto* const pDigitalBoard = newNamed<DigitalBoardConfig>( 4, "Span" );
    EXPECT_TRUE( pAnalogBoard->addAnalogInterfaceConfig( newNamed<AnalogInterfaceConfig>( 5, "P" ) ) );
    EXPECT_TRUE( pDigitalBoard->addDigitalInterfaceConfig( newNamed<DigitalInterfaceConfig>( 6, "S" ) ) );
    EXPECT_TRUE( config.addBoardConfig( pAnalogBoard ) && config.addBoardConfig( pDigitalBoard ) );
    EXPECT_EQ( config.getProviderConfig( "tirvana" ).get(), pProvider );
    EXPECT_FALSE( config.getAnalogInterfaceConfig( 3, 5 ).isNull() ||
                  config.getDigitalInterfaceConfig( 4, 6 ).isNull() );
    std::set<std::string> setToneSets;
    EXPECT_TRUE( config.getToneSets( setToneSets ) );
    std::vector<std::string> vecMessages;
    for ( const auto& record : log.getRecords() )
        vecMessages.push_back( record.strMessage );
    EXPECT_EQ( join( vecMessages ),
               join( { "adding new provider: tirvana", "adding new analog interface: 5<P>",
                       "adding new digital interface: 6<S>", "adding new analog board: 3<Main>",
                       "adding new digital board: 4<Span>", "getting provider: tirvana",
                       "getting analog interface board=3 interface=5", "getting analog board: 3",
                       "getting analog interface: 5", "getting digital interface board=4 interface=6",
                       "getting digital board: 4", "getting digital interface: 6", "getting all digital interfaces",
                       "no Tirvana digital interface to configure for board 4", "getting all analog interfaces",
                       "no Tirvana analog interface to configure for board 3" } ) );
}

// A program may have parsed a document in its own way.
TEST( Readers, ExpandTheEntitiesOfAnAttribute ) {
    const Element element( "<!DOCTYPE t [<!ENTITY n 'MAL'>]><t count='1' priority='NOR&n;'/>" );
    XmlConfig config;
    const TSHandle<TirvanaThreadGroupConfig> hThreads(
        TirvanaThreadGroupConfigXmlSerializer().read( element.get(), config ) );
    ASSERT_FALSE( hThreads.isNull() );
    EXPECT_EQ( hThreads->getThreadsPriority().getCode(), Priority::NORMAL );
}

// What nodes leave to programs is theirs in a document of their own.
TEST( Readers, LeaveToTheCallerWhatIsTheCallers ) {
    const Element element( "<!-- of the caller -->\n<board displayName='B' model='M'/>" );
    int nOwn = 0;
    element.get()->_private = element.get()->psvi = &nOwn;
    XmlConfig config;
    TirvanaDigitalBoardConfigXmlSerializer xmlSerializer;
    {
        const Velquin::Test::LogCapture log( Logger::ERROR_LEVEL );
        EXPECT_EQ( xmlSerializer.read( element.get(), config ), nullptr );
        EXPECT_NE( log.getRecords().at( 0 ).strMessage.find( " at line 2. " ), std::string::npos );
    }
    xmlNewProp( element.get(), BAD_CAST "ID", BAD_CAST "7" );
    const TSHandle<BoardConfig> hBoard( xmlSerializer.read( element.get(), config ) );
    EXPECT_FALSE( hBoard.isNull() );
    EXPECT_EQ( element.get()->psvi, &nOwn );
}

} // namespace Velquin::Pstn::Test
