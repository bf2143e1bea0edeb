// Measures what a load and its parts cost, beside the floor on the same document; and what lookups, handles and writing
// cost.
//
//     load_benchmark --benchmark_filter='/trunks/4096$'
//
// Names: Load, Floor, Parse, Validate, ReadBoards, ReadPhysicalConfigs, ReadCallControl, Release, Write of
// shape/interfaces; Load and Floor of list/members as well; CompileSchema; Lookup and the copies of handles by
// threads. Write of "mixed" has E1 spans instead of the virtual ones. "interfaces" among the counters is their number.

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>

#include "ConfigGenerator.h"
#include "Floor.h"
#include "QuietLog.h"
#include "callcontrol/CallControlConfigXmlSerializer.h"
#include "document/LibXml2.h"
#include "document/XmlDocumentReader.h"
#include "hardware/BoardConfigXmlSerializer.h"
#include "hardware/ProviderConfigXmlSerializer.h"
#include "loading/XmlConfig.h"
#include "physical/InterfacePhysicalConfigXmlSerializer.h"

using namespace Velquin;
using namespace Velquin::Pstn;

namespace {

constexpr unsigned int SIZES[] = { 128, 1024, 4096, 16384, 65536 };
constexpr unsigned int LIST_SIZES[] = { 1000, 4000, 16000, 64000 };
constexpr const char* SHAPES[] = { "trunks", "carrier", "mixed" };
constexpr const char* SCHEMA = PSTN_BENCH_SCHEMA;

using Clock = std::chrono::steady_clock;

double getSecondsSince( Clock::time_point in_start ) {
    return std::chrono::duration<double>( Clock::now() - in_start ).count();
}

/// The documents of the benchmarks. Each is generated at its first use and removed at the end.
class Documents {
public:
    struct Document {
        std::string strPath;
        unsigned long long ullInterfaces;
    };

    Documents() {
        std::string strFolder = ( std::filesystem::temp_directory_path() / "pstn-config-bench-XXXXXX" ).string();
        if ( !mkdtemp( strFolder.data() ) )
            throw std::runtime_error( "can't make " + strFolder );
        m_folder = strFolder;
    }
    Documents( const Documents& ) = delete;
    Documents& operator=( const Documents& ) = delete;
    ~Documents() {
        std::error_code ignored;
        std::filesystem::remove_all( m_folder, ignored );
    }

    const Document& get( const ConfigShape& in_shape, const std::string& in_strName, unsigned int in_uSize ) {
        const std::string strFile =
            in_strName + "-" + std::to_string( in_uSize ) + ( in_shape.uVirtualBoards > 0 ? "-virtual.xml" : ".xml" );
        Document& document = m_mapDocuments[strFile];
        if ( document.strPath.empty() ) {
            const std::string strPath = ( m_folder / strFile ).string();
            std::ofstream stream( strPath, std::ios::binary );
            generateConfig( in_shape, stream );
            if ( !stream.flush() )
                throw std::runtime_error( "can't write " + strPath );
            document = { strPath, in_shape.getInterfaces() };
        }
        return document;
    }

private:
    std::filesystem::path m_folder;
    std::map<std::string, Document> m_mapDocuments;
};

Documents& getDocuments() {
    static Documents s_documents;
    return s_documents;
}

/// Documents with one long list each. The number of its members grows.
ConfigShape getListShape( const std::string& in_strList, unsigned int in_uMembers ) {
    ConfigShape shape;
    if ( in_strList == "spans" || in_strList == "fas-references" ) {
        shape.uDigitalBoards = 1;
        shape.uSpans = in_uMembers;
        if ( in_strList == "fas-references" )
            shape.eFas = ConfigShape::Fas::PER_BOARD;
    } else if ( in_strList == "digital-boards" ) {
        shape.uDigitalBoards = in_uMembers;
        shape.uSpans = 1;
    } else if ( in_strList == "nfas-members" ) {
        shape.uNfasGroups = 1;
        shape.uSpans = in_uMembers;
    } else if ( in_strList == "nfas-groups" ) {
        shape.uNfasGroups = in_uMembers;
        shape.uSpans = 1;
    } else if ( in_strList == "ports" ) {
        shape.uAnalogBoards = 1;
        shape.uPorts = in_uMembers;
    } else if ( in_strList == "analog-boards" ) {
        shape.uAnalogBoards = in_uMembers;
        shape.uPorts = 1;
    } else if ( in_strList == "virtual-spans" ) {
        shape.uVirtualBoards = 2;
        shape.uVirtualSpans = in_uMembers / 2;
    } else {
        throw std::invalid_argument( in_strList );
    }
    return shape;
}

constexpr const char* LISTS[] = { "spans",       "fas-references", "digital-boards", "nfas-members",
                                  "nfas-groups", "ports",          "analog-boards",  "virtual-spans" };

void setInterfaces( benchmark::State& inout_state, const Documents::Document& in_document ) {
    inout_state.counters["interfaces"] = static_cast<double>( in_document.ullInterfaces );
    inout_state.SetItemsProcessed( inout_state.iterations() * static_cast<std::int64_t>( in_document.ullInterfaces ) );
}

/// A benchmark that is short beside its preparation need not fill the usual time.
constexpr double MIN_SECONDS_OF_PART = 0.05;

/// A benchmark of one document.
using Measure = void ( * )( benchmark::State& inout_state, const Documents::Document& in_document );

void measureLoad( benchmark::State& inout_state, const Documents::Document& in_document ) {
    for ( [[maybe_unused]] auto _ : inout_state ) {
        XmlConfig config;
        if ( !config.load( in_document.strPath.c_str(), SCHEMA, false ) )
            inout_state.SkipWithError( "not loaded" );
    }
}

void measureFloor( benchmark::State& inout_state, const Documents::Document& in_document ) {
    for ( [[maybe_unused]] auto _ : inout_state ) {
        if ( !runFloor( in_document.strPath.c_str(), SCHEMA, 0 ) )
            inout_state.SkipWithError( "not valid" );
    }
}

XmlDocumentPtr parse( const Documents::Document& in_document ) {
    static const Logger logger( "load_benchmark" );
    return readXmlDocument( in_document.strPath.c_str(), logger );
}

void measureParse( benchmark::State& inout_state, const Documents::Document& in_document ) {
    for ( [[maybe_unused]] auto _ : inout_state )
        benchmark::DoNotOptimize( parse( in_document ).get() );
}

XmlRelaxNGPtr compileSchema() {
    const XmlRelaxNGParserCtxtPtr pContext( xmlRelaxNGNewParserCtxt( SCHEMA ) );
    return XmlRelaxNGPtr( xmlRelaxNGParse( pContext.get() ) );
}

void measureSchema( benchmark::State& inout_state ) {
    for ( [[maybe_unused]] auto _ : inout_state )
        benchmark::DoNotOptimize( compileSchema().get() );
}

void measureValidation( benchmark::State& inout_state, const Documents::Document& in_document ) {
    const XmlDocumentPtr pDocument = parse( in_document );
    const XmlRelaxNGPtr pSchema = compileSchema();
    for ( [[maybe_unused]] auto _ : inout_state ) {
        const XmlRelaxNGValidCtxtPtr pContext( xmlRelaxNGNewValidCtxt( pSchema.get() ) );
        if ( xmlRelaxNGValidateDoc( pContext.get(), pDocument->get() ) != 0 )
            inout_state.SkipWithError( "not valid" );
    }
}

/// Reads the sections of a document one by one, with the serializers that a load uses. A section needs the ones before
/// it.
enum class Section { PROVIDERS, BOARDS, PHYSICAL_CONFIGS, CALL_CONTROL };

bool readSection( Section in_eSection, const XmlDocument& in_document, XmlConfig& inout_config ) {
    constexpr const char* NAMES[] = { "providers", "boards", "physicalInterfaceConfigs", "callControl" };
    const XmlSerializerObjectFactory& factory = inout_config.getXmlSerializerObjectFactory();
    xmlNode* pSection = xmlFirstElementChild( in_document.getRoot() );
    while ( pSection && std::string_view( fromXml( pSection->name ) ) != NAMES[static_cast<int>( in_eSection )] )
        pSection = xmlNextElementSibling( pSection );
    if ( !pSection )
        return false;
    if ( in_eSection == Section::CALL_CONTROL ) {
        TSHandle<CallControlConfig> hCallControl = CallControlConfigXmlSerializer().read( pSection, inout_config );
        return !hCallControl.isNull() && inout_config.setCallControlConfig( hCallControl );
    }
    for ( xmlNode* pEntry = xmlFirstElementChild( pSection ); pEntry; pEntry = xmlNextElementSibling( pEntry ) ) {
        const char* const szName = fromXml( pEntry->name );
        bool bRead = false;
        if ( in_eSection == Section::PROVIDERS ) {
            const TSHandle<ProviderConfigXmlSerializer> hSerializer( factory.newProviderConfigXmlSerializer( szName ) );
            bRead = inout_config.addProviderConfig( hSerializer->read( pEntry, inout_config ) );
        } else if ( in_eSection == Section::BOARDS ) {
            const TSHandle<BoardConfigXmlSerializer> hSerializer( factory.newBoardConfigXmlSerializer( szName ) );
            bRead = inout_config.addBoardConfig( hSerializer->read( pEntry, inout_config ) );
        } else {
            const TSHandle<InterfacePhysicalConfigXmlSerializer> hSerializer(
                factory.newInterfacePhysicalConfigXmlSerializer( szName ) );
            bRead = !hSerializer->read( pEntry, inout_config ).isNull();
        }
        if ( !bRead )
            return false;
    }
    return true;
}

template <Section eMeasured>
void measureSection( benchmark::State& inout_state, const Documents::Document& in_document ) {
    const XmlDocumentPtr pDocument = parse( in_document );
    for ( [[maybe_unused]] auto _ : inout_state ) {
        XmlConfig config;
        bool bRead = true;
        for ( int nSection = 0; nSection < static_cast<int>( eMeasured ); ++nSection )
            bRead = bRead && readSection( static_cast<Section>( nSection ), *pDocument, config );
        const auto start = Clock::now();
        bRead = bRead && readSection( eMeasured, *pDocument, config );
        inout_state.SetIterationTime( getSecondsSince( start ) );
        if ( !bRead )
            inout_state.SkipWithError( "not read" );
    }
}

void measureRelease( benchmark::State& inout_state, const Documents::Document& in_document ) {
    for ( [[maybe_unused]] auto _ : inout_state ) {
        auto pConfig = std::make_unique<XmlConfig>();
        if ( !pConfig->load( in_document.strPath.c_str(), SCHEMA, false ) )
            inout_state.SkipWithError( "not loaded" );
        const auto start = Clock::now();
        pConfig.reset();
        inout_state.SetIterationTime( getSecondsSince( start ) );
    }
}

void measureWrite( benchmark::State& inout_state, const Documents::Document& in_document ) {
    XmlConfig config;
    if ( !config.load( in_document.strPath.c_str(), SCHEMA, false ) )
        inout_state.SkipWithError( "not loaded" );
    for ( [[maybe_unused]] auto _ : inout_state ) {
        std::ostringstream stream;
        stream << config;
        if ( !stream )
            inout_state.SkipWithError( "not written" );
    }
}

/// The model that threads read: 4,096 spans. The first thread that asks loads it.
const XmlConfig& getSharedModel() {
    static const XmlConfig& s_config = []() -> const XmlConfig& {
        static XmlConfig s_loaded;
        const auto& document = getDocuments().get( getNamedShape( "trunks", 4096 ), "trunks", 4096 );
        if ( !s_loaded.load( document.strPath.c_str(), SCHEMA, false ) )
            throw std::runtime_error( "not loaded: " + document.strPath );
        return s_loaded;
    }();
    return s_config;
}

/// Each thread looks up span after span, from a start of its own.
void measureLookup( benchmark::State& inout_state ) {
    const XmlConfig& config = getSharedModel();
    auto uNext = static_cast<unsigned int>( inout_state.thread_index() ) * 997;
    for ( [[maybe_unused]] auto _ : inout_state ) {
        uNext = ( uNext + 17 ) % 4096;
        benchmark::DoNotOptimize( config.getDigitalInterfaceConfig( uNext / 16 + 1, uNext % 16 + 1 ).get() );
    }
    inout_state.SetItemsProcessed( inout_state.iterations() );
}

/// Copies and releases a handle of the span with that number.
void copyHandle( benchmark::State& inout_state, unsigned int in_uSpan ) {
    const auto hSpan = getSharedModel().getDigitalInterfaceConfig( 1, in_uSpan );
    for ( [[maybe_unused]] auto _ : inout_state ) {
        const TSHandle<DigitalInterfaceConfig> hCopy( hSpan );
        benchmark::DoNotOptimize( hCopy.get() );
    }
    inout_state.SetItemsProcessed( inout_state.iterations() );
}

void measureCopyOfOne( benchmark::State& inout_state ) {
    copyHandle( inout_state, 1 );
}

void measureCopyOfOwn( benchmark::State& inout_state ) {
    copyHandle( inout_state, static_cast<unsigned int>( inout_state.thread_index() ) + 1 );
}

benchmark::internal::Benchmark* addBenchmark( const std::string& in_strMeasure, const std::string& in_strDocument,
                                              unsigned int in_uSize, Measure in_measure,
                                              ConfigShape ( *in_getShape )( const std::string&, unsigned int ) ) {
    const std::string strName = in_strMeasure + "/" + in_strDocument + "/" + std::to_string( in_uSize );
    return benchmark::RegisterBenchmark( strName.c_str(),
                                         [=]( benchmark::State& inout_state ) {
                                             const auto& document = getDocuments().get(
                                                 in_getShape( in_strDocument, in_uSize ), in_strDocument, in_uSize );
                                             in_measure( inout_state, document );
                                             setInterfaces( inout_state, document );
                                         } )
        ->Unit( benchmark::kMillisecond );
}

ConfigShape getShape( const std::string& in_strName, unsigned int in_uInterfaces ) {
    return getNamedShape( in_strName, in_uInterfaces );
}

/// A configuration doesn't write virtual boards.
ConfigShape getWritableShape( const std::string& in_strName, unsigned int in_uInterfaces ) {
    ConfigShape shape = getNamedShape( in_strName, in_uInterfaces );
    shape.uDigitalBoards += shape.uVirtualBoards / 2;
    shape.uVirtualBoards = 0;
    return shape;
}

void addBenchmarks() {
    for ( const char* const szShape : SHAPES ) {
        for ( const unsigned int uSize : SIZES ) {
            addBenchmark( "Load", szShape, uSize, &measureLoad, &getShape );
            addBenchmark( "Floor", szShape, uSize, &measureFloor, &getShape );
            addBenchmark( "Parse", szShape, uSize, &measureParse, &getShape );
            addBenchmark( "Validate", szShape, uSize, &measureValidation, &getShape );
            addBenchmark( "ReadBoards", szShape, uSize, &measureSection<Section::BOARDS>, &getShape )
                ->UseManualTime()
                ->MinTime( MIN_SECONDS_OF_PART );
            addBenchmark( "ReadPhysicalConfigs", szShape, uSize, &measureSection<Section::PHYSICAL_CONFIGS>, &getShape )
                ->UseManualTime()
                ->MinTime( MIN_SECONDS_OF_PART );
            addBenchmark( "ReadCallControl", szShape, uSize, &measureSection<Section::CALL_CONTROL>, &getShape )
                ->UseManualTime()
                ->MinTime( MIN_SECONDS_OF_PART );
            addBenchmark( "Release", szShape, uSize, &measureRelease, &getShape )
                ->UseManualTime()
                ->MinTime( MIN_SECONDS_OF_PART );
            addBenchmark( "Write", szShape, uSize, &measureWrite, &getWritableShape );
        }
    }
    for ( const char* const szList : LISTS ) {
        for ( const unsigned int uSize : LIST_SIZES ) {
            addBenchmark( "Load", szList, uSize, &measureLoad, &getListShape );
            addBenchmark( "Floor", szList, uSize, &measureFloor, &getListShape );
        }
    }
    benchmark::RegisterBenchmark( "CompileSchema", &measureSchema )->Unit( benchmark::kMillisecond );
    benchmark::RegisterBenchmark( "Lookup", &measureLookup )->ThreadRange( 1, 8 )->UseRealTime();
    benchmark::RegisterBenchmark( "CopyOneHandle", &measureCopyOfOne )->ThreadRange( 1, 8 )->UseRealTime();
    benchmark::RegisterBenchmark( "CopyOwnHandle", &measureCopyOfOwn )->ThreadRange( 1, 8 )->UseRealTime();
}

} // namespace

int main( int argc, char** argv ) {
    const QuietLog log( log4cplus::WARN_LOG_LEVEL );
    benchmark::Initialize( &argc, argv );
    if ( benchmark::ReportUnrecognizedArguments( argc, argv ) )
        return 2;
    addBenchmarks();
    try {
        benchmark::RunSpecifiedBenchmarks();
    } catch ( const std::exception& error ) {
        std::cerr << "load_benchmark: " << error.what() << '\n';
        return 1;
    }
    benchmark::Shutdown();
    return 0;
}
