#include "LoadedConfig.h"

#include <iostream>
#include <utility>

#include "ToolLog.h"
#include "check/TextReport.h"

std::unique_ptr<Velquin::Pstn::XmlConfig> loadConfig( const std::string& in_strFile, const std::string& in_strSchema,
                                                      ExitCode& out_eExitCode ) {
    setUpLog( "OFF" );
    const InputFile input( in_strFile );
    CheckedFile loaded;
    loaded.strFile = input.getName();
    auto pConfig = std::make_unique<Velquin::Pstn::XmlConfig>();
    bool bLoads = false;
    {
        const Velquin::FindingWatch watch( [&]( Velquin::Finding in_finding ) {
            input.rename( in_finding );
            loaded.add( std::move( in_finding ) );
        } );
        bLoads = pConfig->load( input.getPath().c_str(), in_strSchema.c_str(), false );
    }
    if ( loaded.vecFindings.empty() )
        return pConfig;
    TextReport report( std::cerr );
    if ( bLoads ) {
        loaded.eVerdict = loaded.counts.uErrors > 0 ? Verdict::PARTIAL : Verdict::VALID;
        report.add( loaded );
        return pConfig;
    }
    // A load ends at the first fault. A check tells them all.
    const CheckedFile checked = checkFile( input, { in_strSchema } );
    report.add( checked );
    out_eExitCode = checked.eVerdict == Verdict::UNCHECKED ? EXIT_NOT_CHECKED : EXIT_INVALID;
    return nullptr;
}
