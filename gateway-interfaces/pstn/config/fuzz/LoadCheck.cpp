#include "LoadCheck.h"

#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "ErrorCount.h"
#include "FuzzTarget.h"
#include "ModelDescription.h"
#include "QuietLog.h"
#include "TemporaryFile.h"
#include "document/DocumentBuilder.h"
#include "hardware/InterfaceKind.h"
#include "loading/XmlConfig.h"
#include "survey/Survey.h"

namespace Velquin::Pstn::Fuzz {

namespace {

std::string write( const XmlConfig& in_config ) {
    const ErrorCount errors;
    std::ostringstream stream;
    stream << in_config;
    require( stream.good() == ( errors.get() == 0 ), "what can't be written is told" );
    return stream.str();
}

/// Lets libxml2 build the documents while it lives, and then blocks again, where they work.
class NativeDocuments {
public:
    NativeDocuments() noexcept { setDocumentBuilder( DocumentBuilder::NATIVE ); }
    NativeDocuments( const NativeDocuments& ) = delete;
    NativeDocuments& operator=( const NativeDocuments& ) = delete;
    ~NativeDocuments() { setDocumentBuilder( DocumentBuilder::BLOCKS ); }
};

template <class TKind>
void readBoards( const XmlConfig& in_config ) {
    for ( const auto& [uBoardId, hBoard] : TKind::getBoards( in_config ) ) {
        require( hBoard->getId() == uBoardId, "a board stands under its identifier" );
        typename TKind::Interfaces vecInterfaces;
        require( TKind::getInterfaces( *hBoard, vecInterfaces ), "a board hands out its interfaces" );
        for ( const auto& hInterface : vecInterfaces ) {
            require( hInterface->getBoardConfig().get() == hBoard.get(), "an interface knows its board" );
            const std::string strShort = hInterface->getUniqueId( true );
            require( strShort.starts_with( "b" + std::to_string( uBoardId ) ), "an identifier begins with the board" );
            require( strShort.size() <= std::string( hInterface->getUniqueId( false ) ).size(),
                     "the long identifier is the longer one" );
        }
    }
}

/// The part of a model that is written.
Json describeWritten( const XmlConfig& in_config ) {
    Json model = describeBoards( in_config );
    for ( Json& section : model ) {
        for ( Json& board : section ) {
            for ( Json& interface : board["interfaces"] ) {
                interface.erase( "primaryClockReference" );
                interface.erase( "defaults" );
            }
            board.erase( "primaryClockReference" );
        }
    }
    return model;
}

/// A survey has the verdict of the load and, of a file that loads, the same model, though another builder makes its
/// document.
void checkSurvey( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLoads,
                  const XmlConfig& in_config ) {
    Survey survey;
    {
        const FindingWatch noCount( []( const Finding& ) {} );
        const NativeDocuments documents;
        require( survey.run( in_szConfigFile, in_szSchemaFile ) == in_bLoads, "a survey has the verdict of the load" );
    }
    bool bMistake = false;
    for ( const Finding& finding : survey.getFindings() ) {
        require( finding.bEcho || !finding.strRule.empty(), "a mistake breaks a rule" );
        require( !describeFinding( finding ).empty(), "a finding says something" );
        bMistake = bMistake || ( !finding.bEcho && finding.nLevel >= Logger::ERROR_LEVEL );
    }
    require( in_bLoads || bMistake, "a file that doesn't load has a mistake" );
    require( !in_bLoads || describeModel( survey.getConfig() ) == describeModel( in_config ),
             "a survey reads the model of a load" );
}

} // namespace

void checkLoad( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bTalkative ) {
    static const QuietLog s_log( in_bTalkative ? log4cplus::TRACE_LOG_LEVEL : log4cplus::WARN_LOG_LEVEL );
    XmlConfig config;
    {
        const ErrorCount errors;
        const bool bLoaded = config.load( in_szConfigFile, in_szSchemaFile, in_bTalkative );
        checkSurvey( in_szConfigFile, in_szSchemaFile, bLoaded, config );
        require( bLoaded == ( errors.getThoseThatEndALoad() == 0 ),
                 "a load fails when, and only when, it reports an error" );
        if ( !bLoaded )
            return;
        const unsigned int uErrors = errors.get();
        readBoards<AnalogKind>( config );
        readBoards<DigitalKind>( config );
        require( !config.getCallControlConfig().isNull(), "what was loaded has call control" );
        require( !describeModel( config ).empty(), "a model can be described" );
        std::set<std::string> setToneSets;
        require( config.getToneSets( setToneSets ), "the tone sets can be listed" );
        require( errors.get() == uErrors, "a loaded model is read without an error" );
    }
    const std::string strWritten = write( config );
    if ( strWritten.empty() )
        return; // a virtual board is not written
    static const TemporaryFile s_written( "written.xml" );
    s_written.write( strWritten );
    // The written document has no call control: this load fails, but the boards are in place.
    XmlConfig again;
    require( !again.load( s_written.getPath(), PSTN_FUZZ_ANY_SCHEMA, false ), "boards alone are no configuration" );
    require( write( again ) == strWritten, "boards are written as they are read back" );
    require( describeWritten( again ) == describeWritten( config ), "and are the same" );
}

} // namespace Velquin::Pstn::Fuzz
