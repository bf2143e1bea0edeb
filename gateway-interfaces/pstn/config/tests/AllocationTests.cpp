#include <cstring>
#include <filesystem>

#include <velquin/MemAccount.h>

#include "ConfigTest.h"

// Memory that ends: every allocation of a load and of a write fails once. The load then says false and why, or it is
// the load that it would have been; nothing crashes, nothing leaks (the sanitizers watch).

namespace Velquin::Pstn::Test {

namespace {

enum class Allocator { LIBXML2, NEW };

/// Whose allocation fails, and which, counted down from the moment when it is set; 0 when none does.
thread_local Allocator t_eFailing = Allocator::NEW;
thread_local unsigned long t_uFailing = 0;

bool isFailing( Allocator in_eAllocator ) {
    return t_uFailing > 0 && in_eAllocator == t_eFailing && --t_uFailing == 0;
}

constexpr unsigned long NONE_FAILS = 1UL << 30;

/// How many allocations the operation makes.
unsigned long countAllocations( Allocator in_eAllocator, const std::function<void()>& in_operation ) {
    t_eFailing = in_eAllocator;
    t_uFailing = NONE_FAILS;
    in_operation();
    return NONE_FAILS - std::exchange( t_uFailing, 0 );
}

void* failingMalloc( std::size_t in_uBytes ) {
    return isFailing( Allocator::LIBXML2 ) ? nullptr : std::malloc( in_uBytes );
}

void* failingRealloc( void* in_pBlock, std::size_t in_uBytes ) {
    return isFailing( Allocator::LIBXML2 ) ? nullptr : std::realloc( in_pBlock, in_uBytes );
}

char* failingStrdup( const char* in_szText ) {
    return isFailing( Allocator::LIBXML2 ) ? nullptr : strdup( in_szText );
}

/// Lets libxml2's allocations fail.
class FailingLibXml2 {
public:
    FailingLibXml2() {
        // What libxml2 makes once and keeps, it makes without a check.
        xmlInitParser();
        xmlRelaxNGInitTypes();
        xmlMemGet( &m_free, &m_malloc, &m_realloc, &m_strdup );
        xmlMemSetup( &std::free, &failingMalloc, &failingRealloc, &failingStrdup );
    }
    ~FailingLibXml2() { xmlMemSetup( m_free, m_malloc, m_realloc, m_strdup ); }

private:
    xmlFreeFunc m_free = nullptr;
    xmlMallocFunc m_malloc = nullptr;
    xmlReallocFunc m_realloc = nullptr;
    xmlStrdupFunc m_strdup = nullptr;
};

/// Runs the operation once for every allocation of it, with that one failing, and gathers what is logged.
/// @param in_operation yields whether it succeeded
/// @param in_isAccepted whether an operation may succeed that logged these lines though an allocation failed
/// @return the texts, without loggers
std::set<std::string> failEachAllocation(
    Allocator in_eAllocator, const std::function<bool()>& in_operation, unsigned long in_uFirst = 1,
    unsigned long in_uLast = NONE_FAILS,
    const std::function<bool( const std::string& )>& in_isAccepted = []( const std::string& ) { return true; } ) {
    std::set<std::string> setTexts;
    for ( unsigned long u = in_uFirst; u < in_uLast; ++u ) {
        bool bSucceeded = false;
        bool bAllSucceeded = false;
        const std::vector<std::string> vecLines = captureLines( [&] {
            t_eFailing = in_eAllocator;
            t_uFailing = u;
            bSucceeded = in_operation();
            bAllSucceeded = t_uFailing > 0;
            t_uFailing = 0;
        } );
        EXPECT_TRUE( bSucceeded || !vecLines.empty() ) << "silent when allocation " << u << " fails";
        for ( const std::string& strLine : vecLines )
            setTexts.insert( strLine.substr( strLine.find( ": " ) + 2 ) );
        if ( bAllSucceeded )
            break;
        EXPECT_TRUE( !bSucceeded || in_isAccepted( join( vecLines ) ) )
            << "succeeds when allocation " << u << " fails:\n"
            << join( vecLines );
    }
    return setTexts;
}

bool holds( const std::set<std::string>& in_setTexts, const std::string& in_strPart ) {
    return std::any_of( in_setTexts.begin(), in_setTexts.end(),
                        [&]( const std::string& in_strText ) { return in_strText.starts_with( in_strPart ); } );
}

struct Document {
    std::string strName;
    std::string strText;
    std::string strSchema;
};

/// The examples, the complete document, and some thirty wrong ones: the first case of each file and every twelfth.
std::vector<Document> getDocuments() {
    std::vector<Document> vecDocuments{ { "complete.xml", TestDocument().getText(), ANY_SCHEMA } };
    for ( const auto& entry : std::filesystem::directory_iterator( EXAMPLES_FOLDER ) ) {
        if ( entry.path().extension() == ".xml" )
            vecDocuments.push_back(
                { entry.path().filename().string(), readFile( entry.path().string() ), ANY_SCHEMA } );
    }
    for ( const auto& entry : std::filesystem::directory_iterator( DATA_FOLDER + "/cases" ) ) {
        if ( entry.path().extension() != ".cases" )
            continue;
        std::vector<Case> vecCases = readCases( entry.path().filename().string() );
        std::erase_if( vecCases, []( const Case& in_case ) { return in_case.bValid; } );
        for ( std::size_t u = 0; u < vecCases.size(); u += 12 )
            vecDocuments.push_back(
                { vecCases[u].strName, TestDocument( vecCases[u].vecEdits ).getText(), vecCases[u].strSchema } );
    }
    return vecDocuments;
}

/// How many objects of each class there are.
std::string describeModel() {
    std::string strModel;
    for ( const MemAccount::Figures& figures : MemAccount::list() )
        strModel += figures.strName + " " + std::to_string( figures.ullObjects ) + "\n";
    return strModel;
}

} // namespace

TEST( AllocationFailures, OfLibxml2EndALoadWell ) {
    const FailingLibXml2 failing;
    std::set<std::string> setTexts;
    for ( const Document& document : getDocuments() ) {
        SCOPED_TRACE( document.strName );
        const TemporaryFile file( document.strText );
        std::string strModel; // as it is when no allocation fails
        const auto loadFile = [&strModel]( const std::string& in_strFile ) {
            XmlConfig config;
            if ( !config.load( in_strFile.c_str(), ANY_SCHEMA.c_str(), false ) )
                return false;
            strModel = strModel.empty() ? describeModel() : strModel;
            EXPECT_EQ( describeModel(), strModel );
            return true;
        };
        // libxml2 2.9.14 crashes by itself when memory ends in its RelaxNG code: what fails comes between compiling
        // the schema and validating. A load without a document ends where that begins, one of an ill-formed document
        // where it ends.
        const auto countLoad = [&]( const std::string& in_strFile ) {
            return countAllocations( Allocator::LIBXML2, [&] { captureLines( [&] { loadFile( in_strFile ); } ); } );
        };
        countLoad( file.getPath() );                    // libxml2 makes some things at first use
        constexpr unsigned long ERROR_ALLOCATIONS = 32; // more than the error of the ill-formed document takes
        const TemporaryFile illFormed( document.strText + "<" );
        const unsigned long uFirst = countLoad( "/no/such/file" );
        const unsigned long uLast = countLoad( illFormed.getPath() ) - ERROR_ALLOCATIONS;
        setTexts.merge( failEachAllocation(
            Allocator::LIBXML2, [&] { return loadFile( file.getPath() ); }, uFirst, uLast,
            []( const std::string& in_strLines ) { return in_strLines.empty(); } ) ); // a hash table may stay small
    }
    for ( const char* const szText :
          { "failed to create a XML validation context to validate file ", "failed to parse XML file " } )
        EXPECT_TRUE( holds( setTexts, szText ) ) << szText;
}

TEST( AllocationFailures, OfLibxml2EndAWriteWell ) {
    XmlConfig config;
    loadValid( config, TestDocument( std::vector<Edit>{ { "/tirvanaVirtualDigitalBoard/interface",
                                                          "-peerVirtualInterfaceID -peerVirtualBoardID tirpipe=\"5\"" },
                                                        { "/tirvanaVirtualDigitalBoard", "<tirvanaDigitalBoard" } } ) );
    std::ostringstream expected;
    expected << config;

    const FailingLibXml2 failing;
    const auto setTexts = failEachAllocation( Allocator::LIBXML2, [&] {
        std::ostringstream stream;
        stream << config;
        EXPECT_EQ( stream.str(), stream ? expected.str() : "" );
        return static_cast<bool>( stream );
    } );
    for ( const char* const szText :
          { "Can not create root element.", "Can not add \"boards\" XML element.",
            "Can not add digital boards XML element.", "Can not add digital boards elements.",
            "Can not add analog boards XML element.", "Can not add analog boards elements.",
            "Can not add interface XML element.", "failed to serialize interface",
            "Failed to add ID to board XML element.", "Failed to add displayName to board XML element.",
            "Failed to add model to board XML element.", "Failed to add pciSlot to board XML element.",
            "Failed to add pciBus to board XML element.", "Failed to add tirpipe to board XML element.",
            "Failed to add tirpipeInterface to board XML element.", "Failed to add type to board XML element.",
            "Failed to add phoneNumber to board XML element.", "Failed to add callerName to board XML element." } )
        EXPECT_TRUE( holds( setTexts, szText ) ) << szText;
}

} // namespace Velquin::Pstn::Test

#if defined( __has_feature )
#if __has_feature( thread_sanitizer )
#define MEMORY_IS_THE_SANITIZERS // whose operator new can't be replaced
#endif
#endif
#if !defined( MEMORY_IS_THE_SANITIZERS ) && !defined( _WIN32 ) // see cmake/not-on-windows.txt

void* operator new( std::size_t in_uBytes, const std::nothrow_t& ) noexcept {
    return Velquin::Pstn::Test::isFailing( Velquin::Pstn::Test::Allocator::NEW )
               ? nullptr
               : std::malloc( in_uBytes ? in_uBytes : 1 );
}
void* operator new( std::size_t in_uBytes ) {
    if ( void* const pBlock = operator new( in_uBytes, std::nothrow ) )
        return pBlock;
    throw std::bad_alloc();
}
void operator delete( void* in_pBlock ) noexcept {
    std::free( in_pBlock );
}
void operator delete( void* in_pBlock, std::size_t ) noexcept {
    std::free( in_pBlock );
}

namespace Velquin::Pstn::Test {

TEST( AllocationFailures, OfTheLibraryEndALoadWell ) {
    std::set<std::string> setTexts;
    for ( const Document& document : getDocuments() ) {
        SCOPED_TRACE( document.strName );
        const TemporaryFile file( document.strText );
        const auto loadFile = [&] {
            bool bLoaded = false;
            try {
                XmlConfig config; // a constructor may throw
                EXPECT_NO_THROW( bLoaded = config.load( file.getPath().c_str(), document.strSchema.c_str(), false ) );
            } catch ( const std::bad_alloc& ) {
                reportCurrentException( XmlConfig::getLogger(), "the constructor", __FILE__, __LINE__ );
            }
            return bLoaded;
        };
        captureLines( [&] { loadFile(); } ); // makes the loggers; without memory for one, its first line is lost
        // An analog trunk whose disconnect supervision can't be read does without.
        setTexts.merge(
            failEachAllocation( Allocator::NEW, loadFile, 1, NONE_FAILS, []( const std::string& in_strLines ) {
                return in_strLines.find( "AnalogDisconnect" ) != std::string::npos;
            } ) );
    }
    for ( const char* const szText : { "out of memory in ", "Assertion failed: !hCallControlConfig.isNull()",
                                       "Assertion failed: !pAudioConfigXmlSerializer.isNull()",
                                       "Assertion failed: !pLevelControlConfig.isNull()" } )
        EXPECT_TRUE( holds( setTexts, szText ) ) << szText;
    EXPECT_TRUE( setTexts.contains( "failed to add new analog board: 1" ) );
}

} // namespace Velquin::Pstn::Test

#endif
