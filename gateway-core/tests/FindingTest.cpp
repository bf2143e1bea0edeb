#include "LogCapture.h"

#include <functional>
#include <stdexcept>
#include <utility>

#include <gmock/gmock.h>

#include <velquin/Assertion.h>
#include <velquin/Fallible.h>
#include <velquin/Finding.h>
#include <velquin/Logger.h>
#include <velquin/TraceScope.h>

namespace Velquin::Test {
namespace {

using testing::ElementsAre;
using Record = LogCapture::Record;

const Logger s_logger( "test" );

struct Place : FindingPlace {
    explicit Place( const char* in_szPath ) : szPath( in_szPath ) {}
    void locate( Finding& inout_finding ) const override {
        ++nAsked;
        inout_finding.strElementPath = szPath;
    }
    const char* szPath;
    mutable int nAsked = 0;
};

/// Findings as "line:path logger text".
struct Findings {
    std::vector<std::string> vecTexts;
    FindingWatch watch{ [this]( const Finding& f ) {
        vecTexts.push_back( std::to_string( f.ullLine ) + ':' + f.strElementPath + ' ' + f.strLogger + ' ' +
                            f.strText );
    } };
};

TEST( Finding, StaysOnOneLine ) {
    const LogCapture log;
    const Findings findings;
    VELQUIN_REPORT_ERROR( s_logger, "value=a\nERROR b\x7f\u00e9" );
    EXPECT_THAT( log.getRecords(), ElementsAre( Record{ 40000, "test", "value=a?ERROR b?\u00e9" } ) );
    EXPECT_THAT( findings.vecTexts, ElementsAre( "0: test value=a?ERROR b?\u00e9" ) );
}

TEST( Logger, KeepsTheLineBreaksOfLiteralsOnly ) {
    const LogCapture log;
    VELQUIN_LOG_DEBUG( s_logger, "one\n" << std::string( "a\nb" ) << '\n' << 2 );
    EXPECT_THAT( log.getRecords(), ElementsAre( Record{ 10000, "test", "one\na?b?2" } ) );
}

TEST( Logger, NothingIsComposedBelowTheLevel ) {
    bool bComposed = false;
    for ( const int nLevel : { Logger::TRACE_LEVEL, Logger::WARNING_LEVEL } ) {
        const LogCapture log( nLevel );
        EXPECT_EQ( s_logger.getLogLevel(), nLevel );
        {
            VELQUIN_TRACE_SCOPE( s_logger, "Op" );
            VELQUIN_LOG( s_logger, Logger::INFO_LEVEL, "in" << ( bComposed = true ) );
            s_logger.log( Logger::DEBUG_LEVEL, "debug", __FILE__, __LINE__ );
        }
        EXPECT_EQ( bComposed, nLevel == 0 );
        if ( std::exchange( bComposed, false ) )
            EXPECT_THAT( log.getRecords(),
                         ElementsAre( Record{ 0, "test", "ENTER Op" }, Record{ 20000, "test", "in1" },
                                      Record{ 10000, "test", "debug" }, Record{ 0, "test", "EXIT Op" } ) );
        else
            EXPECT_THAT( log.getRecords(), ElementsAre() );
    }
}

// A level holds for the loggers below it that have none of their own.
TEST( Logger, InheritsItsLevel ) {
    const LogCapture log( Logger::ERROR_LEVEL );
    const Logger outer( "test.levels" );
    const Logger inner( "test.levels.Reader.Part" );
    EXPECT_TRUE( inner.isEnabledFor( Logger::ERROR_LEVEL ) && !inner.isEnabledFor( Logger::WARNING_LEVEL ) );
    log4cplus::Logger::getInstance( LOG4CPLUS_TEXT( "test.levels" ) ).setLogLevel( Logger::DEBUG_LEVEL );
    EXPECT_TRUE( inner.isEnabledFor( Logger::DEBUG_LEVEL ) && !inner.isEnabledFor( Logger::TRACE_LEVEL ) );
    log4cplus::Logger::getInstance( LOG4CPLUS_TEXT( "test.levels.Reader" ) ).setLogLevel( Logger::WARNING_LEVEL );
    EXPECT_TRUE( outer.isEnabledFor( Logger::DEBUG_LEVEL ) && !inner.isEnabledFor( Logger::DEBUG_LEVEL ) );
    EXPECT_FALSE( s_logger.isEnabledFor( Logger::WARNING_LEVEL ) );
}

TEST( Assertion, TellsExpressionFileAndLine ) {
    const LogCapture log;
    Findings findings;
    const bool bReady = false;
    EXPECT_TRUE( VELQUIN_ASSERT( !bReady ) );
    const std::string strLine = std::to_string( __LINE__ + 1 );
    EXPECT_FALSE( VELQUIN_ASSERT( bReady ) );
    for ( const char* szFile : { "/a.b/c/XmlConfig.cpp", "c:\\a.b\\XmlConfig.cpp", "XmlConfig" } )
        EXPECT_FALSE( Assertion( false, "!pX.isNull()", szFile, 12 ) );
    Fallible<unsigned int> slot;
    EXPECT_EQ( slot.get(), 0u );
    slot.set( 3 );
    EXPECT_EQ( slot.get(), 3u );
    std::vector<std::string> vecExpected( 5, "0: marovane.core.Assertion Assertion failed: " );
    vecExpected[0] += "bReady, file FindingTest, line " + strLine;
    for ( std::size_t n = 1; n <= 3; ++n )
        vecExpected[n] += "!pX.isNull(), file XmlConfig, line 12";
    vecExpected[4] += "isSet(), file Fallible, line ";
    ASSERT_EQ( findings.vecTexts.size(), 5u );
    findings.vecTexts[4].resize( vecExpected[4].size() );
    EXPECT_EQ( findings.vecTexts, vecExpected );
    EXPECT_EQ( log.getRecords( 40000 ).size(), 5u );
}

TEST( Finding, TheInnermostPlaceIsAskedForWhatIsUnknown ) {
    const LogCapture log;
    const Findings findings;
    const Place outer( "/outer" );
    {
        const Place inner( "/inner" );
        VELQUIN_REPORT_WARNING( s_logger, "nested" );
        VELQUIN_REPORT_WARNING( s_logger, "again" );
        Finding known;
        known.strFile = known.strElementPath = known.strText = "known";
        known.ullLine = 3;
        reportFinding( s_logger, known, __FILE__, __LINE__ );
        EXPECT_EQ( inner.nAsked, 2 );
    }
    EXPECT_EQ( outer.nAsked, 0 );
    VELQUIN_REPORT_ERROR( s_logger, "alone" );
    EXPECT_THAT( findings.vecTexts, ElementsAre( "0:/inner test nested", "0:/inner test again", "3:known test known",
                                                 "0:/outer test alone" ) );
    EXPECT_THAT( log.getRecords(), ElementsAre( Record{ 30000, "test", "nested" }, Record{ 30000, "test", "again" },
                                                Record{ 40000, "test", "known" }, Record{ 40000, "test", "alone" } ) );
}

TEST( Finding, WatchesNestAndHearWhatIsNotLogged ) {
    const LogCapture log( log4cplus::OFF_LOG_LEVEL );
    const Findings outer;
    {
        const FindingWatch inner( []( const Finding& in_finding ) {
            VELQUIN_REPORT_ERROR( s_logger, "heard " << in_finding.strText );
            throw std::runtime_error( "callback" );
        } );
        VELQUIN_REPORT_ERROR( s_logger, "one" );
        VELQUIN_REPORT_ERROR( s_logger, "two" );
    }
    VELQUIN_REPORT_ERROR( s_logger, "three" );
    EXPECT_THAT( outer.vecTexts, ElementsAre( "0: test heard one", "0: test heard two", "0: test three" ) );
    EXPECT_THAT( log.getRecords(), ElementsAre() );
}

TEST( Finding, HasWordsForPeople ) {
    using Kind = Finding::Kind;
    struct Case {
        Kind eKind;
        const char* szAttribute;
        const char* szValue;
        const char* szHint;
        const char* szText;
        const char* szWords;
    };
    for ( const Case& c : {
              Case{ Kind::MISSING_ATTRIBUTE, "ID", "", "the value must be a number.", "x",
                    "missing attribute \"ID\": the value must be a number" },
              Case{ Kind::MISSING_ATTRIBUTE, "ID, model and tirpipe", "", "", "x",
                    "missing attributes \"ID\", \"model\" and \"tirpipe\"" },
              Case{ Kind::MISSING_ELEMENT, "audio and applyTo", "", "", "x",
                    "missing elements \"audio\" and \"applyTo\"" },
              Case{ Kind::MISSING_ELEMENT, "digitalE1 or digitalT1", "", "", "x",
                    "missing element \"digitalE1\" or \"digitalT1\"" },
              Case{ Kind::INVALID_VALUE, "ID", "a\x1b[2Jb", "Write 1. ", "x", "ID=\"a?[2Jb\": write 1" },
              Case{ Kind::INVALID_VALUE, "ID", "", "", "x", "ID=\"\"" },
              Case{ Kind::UNKNOWN_ATTRIBUTE, "a", "", "did you mean \"b\"?", "x",
                    "unknown attribute \"a\": did you mean \"b\"?" },
              Case{ Kind::UNKNOWN_ELEMENT, "a", "", "", "x", "unexpected element \"a\"" },
              Case{ Kind::OTHER, "a", "b", "", "No room left. ", "no room left" },
              Case{ Kind::OTHER, "", "", "", "NFAS group is full", "NFAS group is full" },
              Case{ Kind::UNREADABLE_FILE, "", "", "", "", "" },
          } ) {
        Finding finding;
        finding.eKind = c.eKind;
        finding.strAttribute = c.szAttribute;
        finding.strValue = c.szValue;
        finding.strHint = c.szHint;
        finding.strText = c.szText;
        EXPECT_EQ( describeFinding( finding ), c.szWords );
        finding.strMessage = "The message";
        if ( c.eKind == Kind::OTHER ) {
            EXPECT_EQ( describeFinding( finding ), "the message" ) << "goes before the log line";
        }
    }
}

bool load( const std::function<void()>& in_throwing ) try {
    in_throwing();
    return true;
}
VELQUIN_CATCH_AND_RETURN( s_logger, false )

TEST( Finding, ExceptionsBecomeFindings ) {
    const LogCapture log;
    const Findings findings;
    EXPECT_FALSE( load( [] { throw std::bad_alloc(); } ) );
    EXPECT_FALSE( load( [] { throw std::runtime_error( "no room" ); } ) );
    EXPECT_FALSE( load( [] { throw 5; } ) );
    EXPECT_EQ( log.getRecords( 40000 ).size(), 3u );
    EXPECT_THAT( findings.vecTexts, ElementsAre( "0: test out of memory in load", "0: test load failed: no room",
                                                 "0: test load failed" ) );
}

} // namespace
} // namespace Velquin::Test
