// Writes a valid configuration of any size and shape: generate_config --help

#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <limits>
#include <map>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include "ConfigGenerator.h"

using namespace Velquin::Pstn;

namespace {

constexpr int EXIT_NOT_WRITTEN = 1;
constexpr int EXIT_USAGE = 2;

/// A count on the command line. It must not be negative.
CLI::Option* addCount( CLI::App& inout_app, const char* in_szName, std::optional<unsigned int>& out_uCount,
                       const char* in_szHelp ) {
    return inout_app.add_option( in_szName, out_uCount, in_szHelp )
        ->check( CLI::Range( 0U, std::numeric_limits<unsigned int>::max() ) )
        ->type_name( "N" );
}

int run( int in_nArguments, char** in_aszArguments ) {
    CLI::App app( "Writes a valid PSTN configuration of any size and shape." );

    std::string strShape;
    std::string strOutput;
    unsigned int uInterfaces = 1024;
    auto* const pShape = app.add_option( "--shape", strShape, "Start from a named shape: trunks, carrier or mixed" )
                             ->check( CLI::IsMember( { "trunks", "carrier", "mixed" } ) )
                             ->type_name( "NAME" );
    app.add_option( "--interfaces", uInterfaces, "Interfaces of the named shape, at least (default 1024)" )
        ->needs( pShape )
        ->check( CLI::Range( 0U, 1U << 30 ) )
        ->type_name( "N" );

    std::optional<unsigned int> uAnalogBoards, uPorts, uDigitalBoards, uSpans, uVirtualBoards, uVirtualSpans,
        uNfasGroups;
    addCount( app, "--analog-boards", uAnalogBoards, "Analog boards, FXO and FXS in turn" );
    addCount( app, "--ports", uPorts, "Ports of an analog board" );
    addCount( app, "--digital-boards", uDigitalBoards, "Digital boards, those of the NFAS groups not counted" );
    addCount( app, "--spans", uSpans, "Spans of a digital board" );
    addCount( app, "--virtual-boards", uVirtualBoards, "Virtual boards, linked in pairs: an even number" );
    addCount( app, "--virtual-spans", uVirtualSpans, "Spans of a virtual board" );
    addCount( app, "--nfas-groups", uNfasGroups, "NFAS groups, each over all spans of a T1 board of its own" );
    std::optional<ConfigShape::Fas> eFas;
    app.add_option( "--fas", eFas, "FAS groups: per-span, per-board or none" )
        ->transform( CLI::CheckedTransformer( std::map<std::string, ConfigShape::Fas>{
            { "per-span", ConfigShape::Fas::PER_SPAN },
            { "per-board", ConfigShape::Fas::PER_BOARD },
            { "none", ConfigShape::Fas::NONE },
        } ) )
        ->type_name( "HOW" );
    std::optional<ConfigShape::References> eReferences;
    app.add_option( "--references", eReferences, "How groups name a board's interfaces: per-interface or per-board" )
        ->transform( CLI::CheckedTransformer( std::map<std::string, ConfigShape::References>{
            { "per-interface", ConfigShape::References::PER_INTERFACE },
            { "per-board", ConfigShape::References::PER_BOARD },
        } ) )
        ->type_name( "HOW" );
    bool bE1 = false;
    bool bT1 = false;
    auto* const pE1 = app.add_flag( "--e1", bE1, "Digital and virtual spans are E1 (default)" );
    app.add_flag( "--t1", bT1, "Digital and virtual spans are T1" )->excludes( pE1 );
    app.add_option( "-o,--output", strOutput, "File to write (default: standard output)" )->type_name( "FILE" );

    try {
        app.parse( in_nArguments, in_aszArguments );
    } catch ( const CLI::ParseError& error ) {
        return app.exit( error ) == 0 ? EXIT_SUCCESS : EXIT_USAGE;
    }

    ConfigShape shape = strShape.empty() ? ConfigShape{} : getNamedShape( strShape, uInterfaces );
    shape.uAnalogBoards = uAnalogBoards.value_or( shape.uAnalogBoards );
    shape.uPorts = uPorts.value_or( shape.uPorts );
    shape.uDigitalBoards = uDigitalBoards.value_or( shape.uDigitalBoards );
    shape.uSpans = uSpans.value_or( shape.uSpans );
    shape.uVirtualBoards = uVirtualBoards.value_or( shape.uVirtualBoards );
    shape.uVirtualSpans = uVirtualSpans.value_or( shape.uVirtualSpans );
    shape.uNfasGroups = uNfasGroups.value_or( shape.uNfasGroups );
    shape.eFas = eFas.value_or( shape.eFas );
    shape.eReferences = eReferences.value_or( shape.eReferences );
    if ( bE1 || bT1 )
        shape.eLine = bT1 ? ConfigShape::Line::T1 : ConfigShape::Line::E1;
    if ( const std::string strFault = shape.getFault(); !strFault.empty() ) {
        std::cerr << "generate_config: " << strFault << '\n';
        return EXIT_USAGE;
    }

    std::ofstream file;
    if ( !strOutput.empty() )
        file.open( strOutput, std::ios::binary | std::ios::trunc );
    std::ostream& stream = strOutput.empty() ? std::cout : file;
    if ( stream )
        generateConfig( shape, stream );
    stream.flush();
    if ( stream )
        return EXIT_SUCCESS;
    std::cerr << "generate_config: can't write " << ( strOutput.empty() ? "standard output" : strOutput ) << '\n';
    return EXIT_NOT_WRITTEN;
}

} // namespace

int main( int argc, char** argv ) {
    try {
        std::ios::sync_with_stdio( false );
        return run( argc, argv );
    } catch ( const std::exception& error ) {
        std::cerr << "generate_config: " << error.what() << '\n';
        return EXIT_NOT_WRITTEN;
    }
}
