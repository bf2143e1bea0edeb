#include "ConfigTest.h"
#include "Serializers.h"

// ISDN call control: FAS and NFAS groups.

namespace Velquin::Pstn::Test {

namespace {

/// A reader that makes objects of the wrong class, or none.
template <class TXmlSerializer, class TConfig>
class Making : public TXmlSerializer {
    IsdnCommonConfig* newIsdnCommonConfig() override { return makeSome<TConfig>(); }
};

const std::vector<Case> CALLS{
    { "IsdnRefusesNull",
      [] {
          EXPECT_FALSE( IsdnConfig().addFasConfig( nullptr ) );
          EXPECT_FALSE( IsdnConfig().addNfasConfig( nullptr ) );
          EXPECT_FALSE( IsdnConfig().hasIsdnCallControlConfig( nullptr ) );
          EXPECT_FALSE( IsdnFasConfig().addApplyToDigitalInterface( nullptr ) );
          EXPECT_FALSE( IsdnFasConfig().isAppliedToInterface( nullptr ) );
          TSHandle<IsdnNfasGroupMemberConfig> hMember;
          EXPECT_FALSE( IsdnNfasConfig().addMemberInterface( hMember ) );
          EXPECT_FALSE( IsdnNfasConfig().isAppliedToInterface( nullptr ) );
          hMember = TSHandle<IsdnNfasGroupMemberConfig>( new IsdnNfasGroupMemberConfig() );
          EXPECT_FALSE( IsdnNfasConfig().addMemberInterface( hMember ) ) << "a member without interface";
          EXPECT_FALSE( hMember->setInterfaceMember( nullptr ) );
      },
      assertions(
          "IsdnConfig: !pFasConfig.isNull(), !pNFasConfig.isNull(), in_szUniqueId != nullptr; IsdnFasConfig: "
          "!in_hDigitalInterface.isNull(), in_szUniqueId != nullptr; IsdnNfasConfig: !in_hNfasGroupMember.isNull(), "
          "in_szUniqueId != nullptr, !in_hNfasGroupMember->getInterfaceConfig().isNull(); IsdnNfasGroupMemberConfig: "
          "!in_hInterfaceConfig.isNull()" ) },
    { "IsdnReadersOfOtherClass",
      [] {
          XmlConfig config;
          TSHandle<CallControlConfig> hCallControl( new CallControlConfig() );
          const Element root( "<fasConfig ID=\"1\" termination=\"TERMINAL\" switchVariant=\"NI2\" "
                              "BChannelNegotiation=\"PREFERRED\"/>" );
          xmlNode* const pElement = root.get();
          EXPECT_FALSE( IsdnCommonConfigXmlSerializer().read( hCallControl, pElement, config ) );
          EXPECT_FALSE( ( Making<IsdnFasConfigXmlSerializer, void>().read( hCallControl, pElement, config ) ) );
          EXPECT_FALSE(
              ( Making<IsdnFasConfigXmlSerializer, IsdnNfasConfig>().read( hCallControl, pElement, config ) ) );
          EXPECT_FALSE(
              ( Making<IsdnNFasConfigXmlSerializer, IsdnFasConfig>().read( hCallControl, pElement, config ) ) );
          EXPECT_TRUE(
              IsdnNfasGroupMemberConfigXmlSerializer().read( hCallControl, nullptr, pElement, config ).isNull() );
      },
      assertions(
          "IsdnCommonConfigXmlSerializer: !pIsdnCommonConfig.isNull(), !pIsdnCommonConfig.isNull(); "
          "IsdnFasConfigXmlSerializer: !pCommonConfig.isNull(), !pFasConfig.isNull(); IsdnNFasConfigXmlSerializer: "
          "!pNFasConfig.isNull(); IsdnNfasGroupMemberConfigXmlSerializer: in_pNfasConfig" ) },
    { "IsdnReadersWithoutRoot",
      [] {
          XmlConfig config;
          TSHandle<CallControlConfig> hNull;
          IsdnNfasConfig group;
          EXPECT_FALSE( IsdnFasConfigXmlSerializer().read( hNull, nullptr, config ) ||
                        IsdnNFasConfigXmlSerializer().read( hNull, nullptr, config ) );
          EXPECT_TRUE( IsdnNfasGroupMemberConfigXmlSerializer().read( hNull, &group, nullptr, config ).isNull() );
      },
      assertions( "IsdnFasConfigXmlSerializer: !in_hCallControlConfig.isNull(); IsdnNFasConfigXmlSerializer: "
                  "!in_hCallControlConfig.isNull(); IsdnNfasGroupMemberConfigXmlSerializer: "
                  "!in_hCallControlConfig.isNull()" ) },
    { "NfasGroupAsksItsMembersWhatIdentifierTheyHave",
      [] {
          XmlConfig config;
          loadValid( config );
          IsdnNfasConfig group = *config.getCallControlConfig()->getIsdnConfig()->getNfasConfigs().at( 1 );
          group.getMemberInterfaces().begin()->second->setNfasInterfaceID( 9 );
          TSHandle<IsdnNfasGroupMemberConfig> hMember( new IsdnNfasGroupMemberConfig() );
          hMember->setDChannelMode( IsdnNfasGroupMemberConfig::DChannelMode::BACKUP );
          EXPECT_TRUE( hMember->setInterfaceMember( config.getDigitalInterfaceConfig( 1, 1 ) ) );
          hMember->setNfasInterfaceID( 9 );
          EXPECT_FALSE( group.addMemberInterface( hMember ) );
          hMember->setNfasInterfaceID( 0 );
          EXPECT_TRUE( group.addMemberInterface( hMember ) ) << "nobody has it any more";
      },
      { "ERROR IsdnNfasConfig: failed to insert the interface b1(E1 card)di1(E1-A) in NFAS group 1 because the "
        "NfasInterfaceID=9 is already used by interface b2(T1 card)di1(T1-A)" } },
};

} // namespace

PSTN_CASES( IsdnCases, readCases( "isdn.cases" ) );
PSTN_CASES( IsdnCalls, CALLS );

TEST( Isdn, KnowsTheSpansThatItIsAppliedTo ) {
    XmlConfig config;
    loadValid( config );
    const IsdnConfig& isdn = *config.getCallControlConfig()->getIsdnConfig();
    for ( const char* const szId : { "b1(E1 card)di2(E1-B)", "b2(T1 card)di3(T1-C)", "b3(Virtual)di1(V-A)" } )
        EXPECT_TRUE( isdn.hasIsdnCallControlConfig( szId ) ) << szId;
    for ( const char* const szId : { "b1di2", "b1(E1 card)di2(E1-C)", "" } )
        EXPECT_FALSE( isdn.hasIsdnCallControlConfig( szId ) ) << szId;
    EXPECT_FALSE( IsdnNfasConfig().hasPrimaryDChannel() );
}

TEST( Isdn, TellsAtDebugWhatItAdds ) {
    const TemporaryFile file(
        TestDocument().edit( { "/fasConfig[2]", "inbandProgressTonesIndicator=\"ALERTING\"" } ).getText() );
    const Velquin::Test::LogCapture log( Logger::DEBUG_LEVEL );
    XmlConfig config;
    EXPECT_TRUE( config.load( file.getPath().c_str(), SCHEMA, false ) );
    std::string strMessages;
    for ( const auto& record : log.getRecords() ) {
        if ( record.strLogger.find( "Isdn" ) != std::string::npos )
            strMessages += record.strMessage + "\n";
    }
    EXPECT_EQ( strMessages, "m_eInbandProgressTonesIndicator = PROGRESS (DEFAULT)\n"
                            "adding interface=b2(T1 card)di1(T1-A) to ISDN NFAS group nfasInterfaceID=0\n"
                            "associated interface= b2(T1 card)di1(T1-A) with ISDN Nfas config 1\n"
                            "adding interface=b2(T1 card)di2(T1-B) to ISDN NFAS group nfasInterfaceID=1\n"
                            "associated interface= b2(T1 card)di2(T1-B) with ISDN Nfas config 1\n"
                            "adding interface=b2(T1 card)di3(T1-C) to ISDN NFAS group nfasInterfaceID=2\n"
                            "associated interface= b2(T1 card)di3(T1-C) with ISDN Nfas config 1\n"
                            "adding new NFas config: 1\n"
                            "m_eInbandProgressTonesIndicator = BOTH\n"
                            "adding interface=b1(E1 card)di1(E1-A) to ISDN config ID=1\n"
                            "adding new Fas config: 1\n"
                            "m_eInbandProgressTonesIndicator = ALERTING\n"
                            "adding interface=b1(E1 card)di2(E1-B) to ISDN config ID=2\n"
                            "adding interface=b3(Virtual)di1(V-A) to ISDN config ID=2\n"
                            "adding new Fas config: 2\n" );
}

} // namespace Velquin::Pstn::Test
