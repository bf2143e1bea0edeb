#include "ConfigTest.h"
#include "Serializers.h"

// The root of call control, channel groups and the ranges in them.

namespace Velquin::Pstn::Test {

namespace {

std::vector<std::string> getOverlaps( std::vector<std::string> in_vecRanges ) {
    for ( std::string& strRange : in_vecRanges )
        strRange =
            "ERROR ChannelGroupConfig: Add B-Channel range [" + strRange +
            "] of b1(B)di1(I) to channelGroup \"g\". One more channel of this range are already contained in this "
            "group. Please edit your PSTN configuration to fix this problem.  Make sure to add any channel only "
            "once in a given channel group.";
    return in_vecRanges;
}

/// An interface of a new board, both with names, kept alive by the board.
struct Span {
    explicit Span( unsigned int in_uBoardId, unsigned int in_uId = 1 ) {
        hBoard->setId( in_uBoardId );
        hBoard->setDisplayName( "B" );
        pInterface->setId( in_uId );
        pInterface->setDisplayName( "I" );
        pInterface->setBoardConfig( hBoard.get() );
        hBoard->addDigitalInterfaceConfig( pInterface );
    }
    BChannelRangeConfig* newRange( unsigned int in_uFirst, unsigned int in_uLast ) const {
        return newRangeOf( *pInterface, in_uFirst, in_uLast );
    }
    static BChannelRangeConfig* newRangeOf( const InterfaceConfig& in_interface, unsigned int in_uFirst,
                                            unsigned int in_uLast ) {
        auto* const pRange = new BChannelRangeConfig();
        pRange->setFirstChannel( in_uFirst );
        pRange->setLastChannel( in_uLast );
        pRange->setInterfaceConfig( &in_interface );
        return pRange;
    }

    TSHandle<DigitalBoardConfig> hBoard{ new DigitalBoardConfig() };
    DigitalInterfaceConfig* pInterface = new DigitalInterfaceConfig();
};

const std::vector<Case> CALLS{
    { "CallControlRefusesNull",
      [] {
          CallControlConfig config;
          ASSERT_TRUE( config.setIsdnConfig( new IsdnConfig() ) );
          ASSERT_TRUE( config.setAnalogConfig( new AnalogCallControlConfig() ) );
          EXPECT_FALSE( config.addChannelGroupConfig( nullptr ) );
          EXPECT_FALSE( config.setIsdnConfig( nullptr ) );
          EXPECT_FALSE( config.setAnalogConfig( nullptr ) );
          EXPECT_TRUE( config.getChannelGroupConfig( nullptr ).isNull() );
          EXPECT_FALSE( config.getIsdnConfig().isNull() ) << "what was there is gone";
          EXPECT_FALSE( config.getAnalogConfig().isNull() ) << "what was there is gone";
          EXPECT_TRUE( config.getChannelGroupsConfig().empty() );
      },
      assertions( "CallControlConfig: in_pNewChannelGroupConfig, !pIsdnConfig.isNull(), !pAnalogConfig.isNull(), "
                  "in_szId != nullptr" ) },
    { "CallControlKeepsFirstGroupOfAnId",
      [] {
          CallControlConfig config;
          auto* const pFirst = new ChannelGroupConfig();
          auto* const pSecond = new ChannelGroupConfig();
          pFirst->setId( "x" );
          pSecond->setId( "x" );
          EXPECT_TRUE( config.addChannelGroupConfig( pFirst ) );
          EXPECT_FALSE( config.addChannelGroupConfig( pSecond ) );
          EXPECT_EQ( config.getChannelGroupConfig( "x" ).get(), pFirst );
          EXPECT_TRUE( config.getChannelGroupConfig( "X" ).isNull() );
      },
      { "ERROR CallControlConfig: failed to all new channel group: x",
        "ERROR CallControlConfig: failed to get channel group: X" } },
    { "ChannelGroupRefusesNull",
      [] {
          ChannelGroupConfig group;
          group.setId( "old" );
          EXPECT_FALSE( group.setId( nullptr ) );
          EXPECT_STREQ( group.getId(), "old" );
          EXPECT_FALSE( group.addBChannelRangeConfig( nullptr ) );
          EXPECT_FALSE( group.addBChannelRangeConfig( new BChannelRangeConfig() ) );
          EXPECT_TRUE( group.getBChannelRangeConfig().empty() );
      },
      assertions( "Text: in_szText != nullptr; ChannelGroupConfig: in_pNewBChannelRangeConfig, "
                  "!hNewBChannelRangeConfig->getInterfaceConfig().isNull()" ) },
    { "BChannelRangeRefusesNull",
      [] {
          const Span span( 1 );
          const IsdnCommonConfig isdn;
          const AnalogFxoConfig fxo;
          const AnalogFxsConfig fxs;
          const TSHandle<BChannelRangeConfig> hRange( span.newRange( 1, 2 ) );
          EXPECT_TRUE( hRange->setIsdnCommonConfig( &isdn ) && hRange->setFxoConfig( &fxo ) &&
                       hRange->setFxsConfig( &fxs ) );
          EXPECT_FALSE( hRange->setInterfaceConfig( nullptr ) );
          EXPECT_FALSE( hRange->setIsdnCommonConfig( nullptr ) );
          EXPECT_FALSE( hRange->setFxoConfig( nullptr ) );
          EXPECT_FALSE( hRange->setFxsConfig( nullptr ) );
          EXPECT_EQ( hRange->getInterfaceConfig().get(), span.pInterface );
          EXPECT_EQ( hRange->getIsdnCommonConfig().get(), &isdn );
          EXPECT_EQ( hRange->getFxoConfig().get(), &fxo );
          EXPECT_EQ( hRange->getFxsConfig().get(), &fxs );
      },
      assertions( "BChannelRangeConfig: !in_pInterfaceConfig.isNull(), !in_pIsdnCommonConfig.isNull(), "
                  "!in_pFxoConfig.isNull(), !in_pFxsConfig.isNull()" ) },
    { "BChannelRangeOverlap",
      [] {
          const Span span( 1 );
          ChannelGroupConfig group;
          group.setId( "g" );
          EXPECT_TRUE( group.addBChannelRangeConfig( span.newRange( 5, 15 ) ) );
          EXPECT_FALSE( group.addBChannelRangeConfig( span.newRange( 15, 20 ) ) ) << "the last channel is shared";
          EXPECT_FALSE( group.addBChannelRangeConfig( span.newRange( 1, 5 ) ) ) << "the first channel is shared";
          EXPECT_FALSE( group.addBChannelRangeConfig( span.newRange( 7, 7 ) ) ) << "lies within";
          EXPECT_TRUE( group.addBChannelRangeConfig( span.newRange( 16, 31 ) ) ) << "adjacent";
          EXPECT_FALSE( group.addBChannelRangeConfig( span.newRange( 1, 31 ) ) ) << "lies around both";
          EXPECT_FALSE( group.addBChannelRangeConfig( span.newRange( 20, 10 ) ) ) << "swapped";
          EXPECT_TRUE( group.addBChannelRangeConfig( span.newRange( 40, 35 ) ) ) << "swapped";
          EXPECT_FALSE( group.addBChannelRangeConfig( span.newRange( 40, 35 ) ) ) << "the same again";
          EXPECT_EQ( group.getBChannelRangeConfig().size(), 3U );
          ChannelGroupConfig other;
          EXPECT_TRUE( other.addBChannelRangeConfig( span.newRange( 15, 20 ) ) ) << "other groups don't matter";
      },
      getOverlaps( { "15..20", "1..5", "7..7", "1..31", "20..10", "40..35" } ) },
};

/// "interface first..last" for each range, in the group's order.
std::string describeRanges( const ChannelGroupConfig& in_group ) {
    std::string strText;
    for ( const auto& hRange : in_group.getBChannelRangeConfig() ) {
        strText.append( hRange->getInterfaceConfig()->getUniqueId( true ) )
            .append( " " + std::to_string( hRange->getFirstChannel() ) )
            .append( ".." + std::to_string( hRange->getLastChannel() ) + ", " );
    }
    return strText;
}

} // namespace

PSTN_CASES( CallControlCases, readCases( "callcontrol.cases" ) );
PSTN_CASES( CallControlCalls, CALLS );

// Catches a comparison of identifiers as text ("10" before "2"), and an order by channel before interface.
TEST( ChannelGroup, OrdersRangesByBoardThenInterfaceThenChannel ) {
    const Span b10i1( 10 );
    const Span b2i10( 2, 10 );
    const Span b2i9( 2, 9 );
    ChannelGroupConfig group;
    EXPECT_TRUE( group.addBChannelRangeConfig( b10i1.newRange( 1, 1 ) ) );
    EXPECT_TRUE( group.addBChannelRangeConfig( b2i10.newRange( 2, 15 ) ) );
    EXPECT_TRUE( group.addBChannelRangeConfig( b2i9.newRange( 17, 31 ) ) );
    EXPECT_TRUE( group.addBChannelRangeConfig( b2i9.newRange( 3, 15 ) ) );
    AnalogInterfaceConfig port;
    port.setId( 9 );
    port.setBoardConfig( b2i9.hBoard.get() );
    EXPECT_TRUE( group.addBChannelRangeConfig( Span::newRangeOf( port, 5, 5 ) ) ) << "the kind tells them apart";
    EXPECT_EQ( describeRanges( group ), "b2ai9 5..5, b2di9 3..15, b2di9 17..31, b2di10 2..15, b10di1 1..1, " );
}

// Catches a root that demands a group, or a section beside the groups.
TEST( CallControl, TakesAnEmptyListOfGroupsAlone ) {
    XmlConfig config;
    loadValid( config, TestDocument( "<pstnConfig version=\"2.3\"><callControl><channelGroups/></callControl>"
                                     "</pstnConfig>" ) );
    const auto hCallControl = config.getCallControlConfig();
    ASSERT_FALSE( hCallControl.isNull() );
    EXPECT_TRUE( hCallControl->getChannelGroupsConfig().empty() );
    EXPECT_TRUE( hCallControl->getIsdnConfig().isNull() );
    EXPECT_TRUE( hCallControl->getAnalogConfig().isNull() );
}

} // namespace Velquin::Pstn::Test
