#pragma once

#include <vector>

#include "hardware/Config.h"
#include "hardware/TirvanaAnalogInterfaceConfig.h"
#include "hardware/TirvanaDigitalInterfaceConfig.h"

namespace Velquin::Pstn {

/// What differs between analog and digital, for code that serves both.
struct AnalogKind {
    using Board = AnalogBoardConfig;
    using Interface = AnalogInterfaceConfig;
    using TirvanaInterface = TirvanaAnalogInterfaceConfig;
    using Interfaces = std::vector<TSHandle<Interface>>;

    static constexpr const char* NAME = "analog";

    static const Config::AnalogBoardConfigs& getBoards( const Config& in_config ) {
        return in_config.getAnalogBoardsConfig();
    }
    static TSHandle<Board> getBoard( const Config& in_config, unsigned int in_uId ) {
        return in_config.getAnalogBoardConfig( in_uId );
    }
    static TSHandle<Interface> getInterface( const Board& in_board, unsigned int in_uId ) {
        return in_board.getAnalogInterfaceConfig( in_uId );
    }
    static bool getInterfaces( const Board& in_board, Interfaces& out_vecInterfaces ) {
        return in_board.getAnalogInterfacesConfig( out_vecInterfaces );
    }
    static bool addInterface( Board& inout_board, Interface* in_pInterface ) {
        return inout_board.addAnalogInterfaceConfig( in_pInterface );
    }
};

struct DigitalKind {
    using Board = DigitalBoardConfig;
    using Interface = DigitalInterfaceConfig;
    using TirvanaInterface = TirvanaDigitalInterfaceConfig;
    using Interfaces = std::vector<TSHandle<Interface>>;

    static constexpr const char* NAME = "digital";

    static const Config::DigitalBoardConfigs& getBoards( const Config& in_config ) {
        return in_config.getDigitalBoardsConfig();
    }
    static TSHandle<Board> getBoard( const Config& in_config, unsigned int in_uId ) {
        return in_config.getDigitalBoardConfig( in_uId );
    }
    static TSHandle<Interface> getInterface( const Board& in_board, unsigned int in_uId ) {
        return in_board.getDigitalInterfaceConfig( in_uId );
    }
    static bool getInterfaces( const Board& in_board, Interfaces& out_vecInterfaces ) {
        return in_board.getDigitalInterfacesConfig( out_vecInterfaces );
    }
    static bool addInterface( Board& inout_board, Interface* in_pInterface ) {
        return inout_board.addDigitalInterfaceConfig( in_pInterface );
    }
};

} // namespace Velquin::Pstn
