#include "LoadedConfig.h"

#include <iostream>
#include <utility>

#include "ToolLog.h"
#include "check/TextReport.h"

std::unique_ptr<Velquin::Pstn::XmlConfig> loadConfig( const std::string& in_strFile, const std::string& in_strSchema,
                                                      ExitCode& out_eExitCode ) {
    setUpLog( "OFF" );
    const FileArgument input( in_strFile );
    bool bFindings = false;
    const auto load = [&] {
        auto pConfig = std::make_unique<Velquin::Pstn::XmlConfig>();
        const Velquin::FindingWatch watch( [&bFindings]( const Velquin::Finding& ) { bFindings = true; } );
        const bool bLoads = pConfig->load( input.getPath().c_str(), in_strSchema.c_str(), false );
        return bLoads ? std::move( pConfig ) : nullptr;
    };
    auto pConfig = load();
    if ( !bFindings )
        return pConfig;
    // A load ends at the first fault, and says little of it. A check tells all. The two models don't stand at once: the
    // memory accounts would have the peak of both.
    const bool bLoads = pConfig != nullptr;
    pConfig.reset();
    const CheckedFile checked = checkFile( input, { in_strSchema } );
    TextReport( std::cerr ).add( checked );
    if ( bLoads )
        return load();
    out_eExitCode = checked.eVerdict == Verdict::UNCHECKED ? EXIT_NOT_CHECKED : EXIT_INVALID;
    return nullptr;
}
