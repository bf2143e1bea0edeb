#include <limits>
#include <random>

#include "Serializers.h"
#include "SurveyRun.h"

// Boards are written as they were read; nothing else is written. What libxml2 lacks the memory for stands elsewhere.

namespace Velquin::Pstn::Test {

namespace {

class WritableConfig : public XmlConfig {
public:
    using XmlConfig::writeXML;
};

std::string write( const XmlConfig& in_config ) {
    std::ostringstream stream;
    stream << in_config;
    return stream.str();
}

template <class TBoard, class TInterface>
BoardConfig* newBoard() {
    auto* const pBoard = new TBoard();
    if constexpr ( std::is_base_of_v<AnalogBoardConfig, TBoard> )
        EXPECT_TRUE( pBoard->addAnalogInterfaceConfig( new TInterface() ) );
    else
        EXPECT_TRUE( pBoard->addDigitalInterfaceConfig( new TInterface() ) );
    return pBoard;
}

/// A case in which a configuration with one board isn't written.
Case unwritable( const char* in_szName, BoardConfig* ( *in_newBoard )(), const std::vector<std::string>& in_vecLines ) {
    const auto tryToWrite = [in_newBoard] {
        XmlConfig config;
        EXPECT_TRUE( config.addBoardConfig( in_newBoard() ) );
        std::ostringstream stream;
        EXPECT_TRUE( ( stream << config ).fail() );
        EXPECT_EQ( stream.str(), "" );
    };
    return { in_szName, tryToWrite, in_vecLines };
}

/// What a serializer's write takes, as an object that can be made.
template <class TConfig>
struct Some : TConfig {};
template <class TOwner, class TConfig>
bool callWrite( bool ( TOwner::*in_write )( xmlNode*, const TConfig& ),
                std::type_identity_t<TOwner>&& in_xmlSerializer ) {
    return ( in_xmlSerializer.*in_write )( nullptr, Some<TConfig>() );
}

/// A case of serializers that don't write.
template <class... TXmlSerializers>
Case notWritten( const char* in_szName ) {
    return { in_szName, [] { EXPECT_FALSE( ( callWrite( &TXmlSerializers::write, TXmlSerializers() ) || ... ) ); },
             notImplemented( { TXmlSerializers::getMemAccountName()... } ) };
}

const std::vector<Case> CALLS{
    notWritten<ProviderConfigXmlSerializer, TirvanaProviderConfigXmlSerializer, TirvanaThreadGroupConfigXmlSerializer,
               TirvanaDigitalVirtualBoardConfigXmlSerializer>( "HardwareNotWritten" ),
    notWritten<InterfacePhysicalConfigXmlSerializer, DigitalInterfacePhysicalConfigXmlSerializer,
               AnalogInterfacePhysicalConfigXmlSerializer, TirvanaDigitalInterfacePhysicalConfigXmlSerializer,
               TirvanaAnalogInterfacePhysicalConfigXmlSerializer, DChannelConfigXmlSerializer>( "PhysicalNotWritten" ),
    notWritten<AudioConfigXmlSerializer, TirvanaAudioConfigXmlSerializer, EchoCancellationConfigXmlSerializer,
               HardwareEchoCancellationConfigXmlSerializer, AcousticEchoCancellationConfigXmlSerializer,
               HardwareAcousticEchoCancellationConfigXmlSerializer, LevelControlConfigXmlSerializer,
               HardwareLevelControlConfigXmlSerializer, BackgroundNoiseAttenuationConfigXmlSerializer,
               HardwareBackgroundNoiseAttenuationConfigXmlSerializer, DtmfRemovalConfigXmlSerializer,
               HardwareDtmfRemovalConfigXmlSerializer>( "AudioNotWritten" ),
    notWritten<CallControlConfigXmlSerializer, ChannelGroupConfigXmlSerializer, IsdnConfigXmlSerializer,
               IsdnFasConfigXmlSerializer, IsdnNFasConfigXmlSerializer, IsdnNfasGroupMemberConfigXmlSerializer>(
        "CallControlNotWritten" ),
    { "PartsNotWritten",
      [] {
          EXPECT_FALSE(
              TirvanaDigitalVirtualInterfaceConfigXmlSerializer().write( nullptr, DigitalInterfaceConfig() ) ||
              IsdnCommonConfigXmlSerializer().write( nullptr, IsdnFasConfig() ) );
      },
      notImplemented( { "TirvanaDigitalVirtualInterfaceConfigXmlSerializer", "IsdnCommonConfigXmlSerializer" } ) },
    { "AnalogNotWritten",
      [] {
          EXPECT_FALSE(
              AnalogCallControlConfigXmlSerializer().write( nullptr, AnalogCallControlConfig() ) ||
              AnalogCallControlCommonConfigXmlSerializer().write( nullptr, AnalogFxoConfig() ) ||
              AnalogFxoConfigXmlSerializer().write( nullptr, AnalogFxoConfig() ) ||
              AnalogFxsConfigXmlSerializer().write( nullptr, AnalogFxsConfig() ) ||
              AnalogDisconnectSupervisionConfigXmlSerializer().write( nullptr, AnalogDisconnectSupervisionConfig() ) );
      },
      assertions(
          "AnalogCallControlConfigXmlSerializer: Not implemented : AnalogCallControlConfigXmlSerializer::write; "
          "AnalogCallControlCommonConfigXmlSerializer: Not implemented : "
          "AnalogCallControlCommonConfigXmlSerializer::write; AnalogFxoConfigXmlSerializer: Not implemented : "
          "AnalogFxoConfigXmlSerializer::write; AnalogFxsConfigXmlSerializer: Not implemented : "
          "AnalogFxsConfigXmlSerializer::write; AnalogDisconnectSupervisionConfigXmlSerializer: Not implemented : "
          "AnalogDisconnectSupervisionConfigXmlSerializer::write" ) },
    { "ProviderNotReadWithoutClass",
      [] {
          XmlConfig config;
          EXPECT_EQ( ProviderConfigXmlSerializer().read( nullptr, config ), nullptr );
      },
      { "ERROR ProviderConfigXmlSerializer: Not implemented : ProviderConfigXmlSerializer::read" } },
    { "WritingWithoutParent",
      [] {
          EXPECT_FALSE(
              WritableConfig().writeXML( nullptr ) ||
              TirvanaDigitalBoardConfigXmlSerializer().write( nullptr, TirvanaDigitalBoardConfig() ) ||
              TirvanaAnalogBoardConfigXmlSerializer().write( nullptr, TirvanaAnalogBoardConfig() ) ||
              TirvanaDigitalInterfaceConfigXmlSerializer().write( nullptr, TirvanaDigitalInterfaceConfig() ) ||
              TirvanaAnalogInterfaceConfigXmlSerializer().write( nullptr, TirvanaAnalogInterfaceConfig() ) ||
              BoardConfigXmlSerializer().write( nullptr, BoardConfig() ) ||
              InterfaceConfigXmlSerializer().write( nullptr, DigitalInterfaceConfig() ) );
      },
      { "ERROR XmlConfig: Can not create root element.",
        "ERROR TirvanaDigitalBoardConfigXmlSerializer: Can not add digital boards XML element.",
        "ERROR TirvanaAnalogBoardConfigXmlSerializer: Can not add analog boards XML element.",
        "ERROR TirvanaDigitalInterfaceConfigXmlSerializer: Can not add interface XML element.",
        "ERROR TirvanaAnalogInterfaceConfigXmlSerializer: Can not add interface XML element.",
        "ERROR BoardConfigXmlSerializer: Failed to add ID to board XML element.",
        "ERROR InterfaceConfigXmlSerializer: Failed to add ID to board XML element." } },
    { "WritingOfTheWrongClass",
      [] {
          EXPECT_FALSE( TirvanaDigitalBoardConfigXmlSerializer().write( nullptr, AnalogBoardConfig() ) );
          EXPECT_FALSE( TirvanaAnalogBoardConfigXmlSerializer().write( nullptr, DigitalBoardConfig() ) );
          EXPECT_FALSE( AnalogInterfaceConfigXmlSerializer().write( nullptr, DigitalInterfaceConfig() ) );
      },
      assertions( "TirvanaDigitalBoardConfigXmlSerializer: !pDigitalBoardConfig.isNull(); "
                  "TirvanaAnalogBoardConfigXmlSerializer: pAnalogBoardConfig; AnalogInterfaceConfigXmlSerializer: "
                  "!pIfConfig.isNull()" ) },
    unwritable( "WritingOfDigitalBoardFails", &newBoard<TirvanaDigitalBoardConfig, DigitalInterfaceConfig>,
                { assertions( "TirvanaDigitalInterfaceConfigXmlSerializer: !pDigitalIfConfig.isNull()" )[0],
                  "ERROR TirvanaDigitalBoardConfigXmlSerializer: failed to serialize interface",
                  "ERROR XmlConfig: Can not add digital boards elements." } ),
    unwritable( "WritingOfAnalogBoardFails", &newBoard<TirvanaAnalogBoardConfig, AnalogInterfaceConfig>,
                { assertions( "TirvanaAnalogInterfaceConfigXmlSerializer: !pIfConfig.isNull()" )[0],
                  "ERROR TirvanaAnalogBoardConfigXmlSerializer: failed to serialize interface",
                  "ERROR XmlConfig: Can not add analog boards elements." } ),
    unwritable( "WritingOfVirtualBoardFails", &newBoard<TirvanaDigitalVirtualBoardConfig, DigitalInterfaceConfig>,
                { notImplemented( { "TirvanaDigitalVirtualBoardConfigXmlSerializer" } )[0],
                  "ERROR XmlConfig: Can not add digital boards elements." } ),
    { "WritingOfNullFails",
      [] {
          XmlConfig config;
          const_cast<Config::DigitalBoardConfigs&>( config.getDigitalBoardsConfig() )[1] = nullptr;
          EXPECT_EQ( write( config ), "" );
      },
      assertions( "XmlConfig: !hBoardCfg.isNull()" ) },
};

} // namespace

PSTN_CASES( WritingCalls, CALLS );

TEST( Writing, BoardsAreWrittenAsTheyWereRead ) {
    // Without the virtual board, which isn't written. The boards and their interfaces stand in the wrong order.
    const TestDocument document( std::vector<Edit>{ { "/tirvanaVirtualDigitalBoard", "-" },
                                                    { R"(<interfaceRef boardID="3"/>)", "" },
                                                    { "/fasConfig[2]/applyTo/interfaceRef[2]", "-" },
                                                    { "model=\"TVD-2\"", "model=\"&lt;&quot;\xc3\xa9&amp;'\"" },
                                                    { "/tirvanaAnalogBoard/interface", "ID=\"3\"" } } );
    XmlConfig config;
    loadValid( config, document );
    const std::string strWritten = write( config );
    EXPECT_EQ( strWritten, R"(<?xml version="1.0" encoding="UTF-8"?>
<pstnConfig version="2.3">
  <boards>
    <tirvanaDigitalBoard ID="1" displayName="E1 card" model="&lt;&quot;)"
                           "\xc3\xa9"
                           R"(&amp;'" pciSlot="3" pciBus="0">
      <interface ID="1" displayName="E1-A" tirpipe="0"/>
      <interface ID="2" displayName="E1-B" tirpipe="1"/>
    </tirvanaDigitalBoard>
    <tirvanaDigitalBoard ID="2" displayName="T1 card" model="TVD-3">
      <interface ID="1" displayName="T1-A" tirpipe="2"/>
      <interface ID="2" displayName="T1-B" tirpipe="3"/>
      <interface ID="3" displayName="T1-C" tirpipe="4"/>
    </tirvanaDigitalBoard>
    <tirvanaAnalogBoard ID="1" displayName="Lines" model="TVA-4" tirpipe="10">
      <interface ID="2" displayName="Line-B" type="FXO" phoneNumber="" callerName="" tirpipeInterface="2"/>
      <interface ID="3" displayName="Line-A" type="FXO" phoneNumber="" callerName="" tirpipeInterface="1"/>
    </tirvanaAnalogBoard>
    <tirvanaAnalogBoard ID="2" displayName="Phones" model="TVA-4" tirpipe="11">
      <interface ID="1" displayName="Phone-A" type="FXS" phoneNumber="100" callerName="Reception" tirpipeInterface="1"/>
    </tirvanaAnalogBoard>
  </boards>
</pstnConfig>
)" );
    // What was written takes the place of the boards and makes a valid file, which is written in the same way.
    const std::string strEnd = "</boards>";
    const std::size_t uBoards = strWritten.find( "  <boards>" );
    const std::size_t uOld = document.getText().find( "  <boards>" );
    std::string strSecond = document.getText();
    strSecond.replace( uOld, strSecond.find( strEnd ) - uOld, strWritten, uBoards,
                       strWritten.find( strEnd ) - uBoards );
    XmlConfig second;
    loadValid( second, TestDocument( strSecond ) );
    EXPECT_EQ( write( second ), strWritten );
    EXPECT_EQ( write( XmlConfig( second ) ), strWritten ) << "a copy";
}

// Boards that a program makes, with all that their setters take.
TEST( Writing, BoardsThatAProgramMakesAreReadBack ) {
    std::mt19937 random( 1 ); // the same boards each time, on each system
    const auto choose = [&random]( const auto& in_aThings ) { return in_aThings[random() % std::size( in_aThings )]; };
    static const char* const TEXTS[] = { "", "a", " a  b ", "<&>\"'", "\n\t\r", "]]>", "\u260e \U0001F4DE", "&amp;" };
    static const char* const NAMES[] = { "Line", "a b", "0 1", "A" };
    static constexpr unsigned long long SLOTS[] = { 0, 31, std::numeric_limits<unsigned long long>::max() };
    constexpr unsigned int GREATEST = std::numeric_limits<unsigned int>::max();
    const auto setBoard = [&]( BoardConfig& out_board, unsigned int in_uId ) {
        out_board.setId( in_uId );
        EXPECT_TRUE( out_board.setDisplayName( choose( NAMES ) ) && out_board.setModel( choose( TEXTS ) ) );
        if ( random() % 2 == 0 )
            out_board.setPCISlot( choose( SLOTS ) );
        if ( random() % 2 == 0 )
            out_board.setPCIBus( choose( SLOTS ) );
    };
    XmlConfig made;
    unsigned int uTirpipe = GREATEST;
    for ( unsigned int uBoard = 0; uBoard < 60; ++uBoard ) {
        UniqueObjPtr<TirvanaDigitalBoardConfig> pDigital( new TirvanaDigitalBoardConfig() );
        UniqueObjPtr<TirvanaAnalogBoardConfig> pAnalog( new TirvanaAnalogBoardConfig() );
        setBoard( *pDigital, uBoard % 7 == 0 ? GREATEST - uBoard : uBoard );
        setBoard( *pAnalog, uBoard );
        pAnalog->setTirpipe( --uTirpipe );
        for ( unsigned int uInterface = uBoard % 4; uInterface > 0; --uInterface ) {
            UniqueObjPtr<TirvanaDigitalInterfaceConfig> pSpan( new TirvanaDigitalInterfaceConfig() );
            pSpan->setId( uInterface );
            pSpan->setTirpipe( --uTirpipe );
            EXPECT_TRUE( pSpan->setDisplayName( choose( NAMES ) ) && pSpan->setBoardConfig( pDigital.get() ) );
            EXPECT_TRUE( pDigital->addDigitalInterfaceConfig( pSpan.release() ) );
            UniqueObjPtr<TirvanaAnalogInterfaceConfig> pPort( new TirvanaAnalogInterfaceConfig() );
            pPort->setId( GREATEST - uInterface );
            pPort->setTirpipeInterface( GREATEST - uInterface );
            EXPECT_TRUE( pPort->setDisplayName( choose( NAMES ) ) && pPort->setBoardConfig( pAnalog.get() ) );
            if ( random() % 2 == 0 ) {
                pPort->setMediaType( AnalogInterfaceConfig::MediaType::FXS );
                EXPECT_TRUE( pPort->setPhoneNumber( choose( TEXTS ) ) && pPort->setCallerName( choose( TEXTS ) ) );
            }
            EXPECT_TRUE( pAnalog->addAnalogInterfaceConfig( pPort.release() ) );
        }
        EXPECT_TRUE( made.addBoardConfig( pDigital.release() ) && made.addBoardConfig( pAnalog.release() ) );
    }
    // They lack physical configurations and call control: only a survey reads them all the same.
    const TemporaryFile file( write( made ) );
    const Velquin::Test::LogCapture quiet( Logger::ERROR_LEVEL );
    Survey survey;
    EXPECT_FALSE( survey.run( file.getPath().c_str(), ANY_SCHEMA.c_str() ) );
    EXPECT_EQ( describeLines( survey.getConfig() ), describeLines( made ) );
    EXPECT_EQ( write( survey.getConfig() ), write( made ) );
}

TEST( Writing, EmptyConfigurationsHaveEmptyBoards ) {
    EXPECT_EQ( write( XmlConfig() ), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<pstnConfig version=\"2.3\">\n"
                                     "  <boards/>\n</pstnConfig>\n" );
}

TEST( Writing, BoardsWithoutInterfacesAreToldAtDebug ) {
    XmlConfig config;
    EXPECT_TRUE( config.addBoardConfig( new TirvanaDigitalBoardConfig() ) &&
                 config.addBoardConfig( new TirvanaAnalogBoardConfig() ) );
    const Velquin::Test::LogCapture log( Logger::DEBUG_LEVEL );
    EXPECT_NE( write( config ), "" );
    ASSERT_EQ( log.getRecords().size(), 4U );
    EXPECT_EQ( log.getRecords()[1].strMessage, "no Tirvana digital interface to add for board 0" );
    EXPECT_EQ( log.getRecords()[3].strMessage, "no Tirvana analog interface to configure for board 0" );
}

} // namespace Velquin::Pstn::Test
