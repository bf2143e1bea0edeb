#include "LoadedConfig.h"

#include <iostream>

#include "ToolLog.h"
#include "check/TextReport.h"

std::unique_ptr<Velquin::Pstn::XmlConfig> loadConfig( const std::string& in_strFile, const std::string& in_strSchema,
                                                      ExitCode& out_eExitCode ) {
    setUpLog( "OFF" );
    const InputFile input( in_strFile );
    auto pConfig = std::make_unique<Velquin::Pstn::XmlConfig>();
    bool bFindings = false;
    bool bLoads = false;
    {
        const Velquin::FindingWatch watch( [&bFindings]( const Velquin::Finding& ) { bFindings = true; } );
        bLoads = pConfig->load( input.getPath().c_str(), in_strSchema.c_str(), false );
    }
    if ( bLoads && !bFindings )
        return pConfig;
    // A load ends at the first fault, and says little of it. A check tells all.
    const CheckedFile checked = checkFile( input, { in_strSchema } );
    TextReport( std::cerr ).add( checked );
    if ( bLoads )
        return pConfig;
    out_eExitCode = checked.eVerdict == Verdict::UNCHECKED ? EXIT_NOT_CHECKED : EXIT_INVALID;
    return nullptr;
}
