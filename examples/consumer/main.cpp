// Loads a configuration, and prints what is wrong with it or which digital spans it has: consumer FILE

#include <iostream>

#include <log4cplus/configurator.h>
#include <log4cplus/initializer.h>

#include <velquin/Finding.h>
#include <velquin/pstn/PstnConfig.h>

using namespace Velquin;
using namespace Velquin::Pstn;

int main( int argc, char** argv ) {
    if ( argc != 2 ) {
        std::cerr << "usage: consumer FILE\n";
        return 2;
    }
    // The program sets up the log. Here, only what ends a program would go to the console: the findings are printed.
    const log4cplus::Initializer log;
    log4cplus::BasicConfigurator::doConfigure();
    log4cplus::Logger::getRoot().setLogLevel( log4cplus::FATAL_LOG_LEVEL );

    const FindingWatch watch( []( const Finding& in_finding ) {
        if ( in_finding.nLevel >= Logger::WARNING_LEVEL )
            std::cout << in_finding.strFile << ':' << in_finding.ullLine << ": " << describeFinding( in_finding )
                      << '\n';
    } );
    XmlConfig config;
    if ( !config.load( argv[1], PSTN_SCHEMA, false ) )
        return 1;
    for ( const auto& [uBoardId, hBoard] : config.getDigitalBoardsConfig() ) {
        std::vector<TSHandle<DigitalInterfaceConfig>> vecSpans;
        if ( !hBoard->getDigitalInterfacesConfig( vecSpans ) )
            return 1;
        for ( const auto& hSpan : vecSpans ) {
            const auto& physical = *hSpan->getPhysicalConfig();
            std::cout << hSpan->getUniqueId( false ) << ": "
                      << ( physical.getMediaType() == DigitalInterfacePhysicalConfig::MediaType::E1 ? "E1" : "T1" );
            if ( physical.hasDChannel() )
                std::cout << ", D-channel " << physical.getDChannelConfig()->getDChannelIndex();
            std::cout << '\n';
        }
    }
    return 0;
}
