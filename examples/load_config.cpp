// Loads a configuration and prints its digital spans: load_config FILE SCHEMA

#include <iostream>

#include <log4cplus/configurator.h>
#include <log4cplus/initializer.h>

#include <velquin/pstn/PstnConfig.h>

using namespace Velquin;
using namespace Velquin::Pstn;

int main( int argc, char** argv ) {
    if ( argc != 3 ) {
        std::cerr << "usage: load_config FILE SCHEMA\n";
        return 2;
    }
    // The program sets up the log. Here, WARNING and above goes to the console.
    const log4cplus::Initializer log;
    log4cplus::BasicConfigurator::doConfigure();
    log4cplus::Logger::getRoot().setLogLevel( log4cplus::WARN_LOG_LEVEL );

    XmlConfig config;
    if ( !config.load( argv[1], argv[2], false ) )
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
