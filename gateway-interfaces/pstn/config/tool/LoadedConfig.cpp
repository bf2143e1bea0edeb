#include "LoadedConfig.h"

#include <iostream>

#include "ToolLog.h"
#include "check/TextReport.h"

std::unique_ptr<Velquin::Pstn::XmlConfig> loadConfig( const std::string& in_strFile, const std::string& in_strSchema,
                                                      ExitCode& out_eExitCode ) {
    setUpLog( "OFF" );
    CheckedFile loaded;
    loaded.strFile = in_strFile;
    auto pConfig = std::make_unique<Velquin::Pstn::XmlConfig>();
    bool bLoads = false;
    {
        const Velquin::FindingWatch watch(
            [&loaded]( const Velquin::Finding& in_finding ) { loaded.add( in_finding ); } );
        bLoads = pConfig->load( in_strFile.c_str(), in_strSchema.c_str(), false );
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
    const CheckedFile checked = checkFile( in_strFile, { in_strSchema } );
    report.add( checked );
    out_eExitCode = checked.eVerdict == Verdict::UNCHECKED ? EXIT_NOT_CHECKED : EXIT_INVALID;
    return nullptr;
}
