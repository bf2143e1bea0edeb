#include "LoadedConfig.h"

#include <iostream>

#include "FindingPrinter.h"
#include "ToolLog.h"

std::unique_ptr<Velquin::Pstn::XmlConfig> loadConfig( const std::string& in_strFile, const std::string& in_strSchema,
                                                      ExitCode& out_eExitCode ) {
    setUpLog( "OFF" );
    FindingPrinter printer( std::cerr, in_strFile );
    const Velquin::FindingWatch watch(
        [&printer]( const Velquin::Finding& in_finding ) { printer.print( in_finding ); } );
    auto pConfig = std::make_unique<Velquin::Pstn::XmlConfig>();
    if ( pConfig->load( in_strFile.c_str(), in_strSchema.c_str(), false ) )
        return pConfig;
    out_eExitCode = printer.isUnreadable() || printer.concerns( in_strSchema ) ? EXIT_NOT_CHECKED : EXIT_INVALID;
    return nullptr;
}
