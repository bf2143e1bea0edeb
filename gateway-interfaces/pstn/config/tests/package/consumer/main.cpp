#include <velquin/pstn/PstnConfig.h>

// consumer FILE SCHEMA: 0 when the file loads and has digital boards
int main( int argc, char** argv ) {
    Velquin::Pstn::XmlConfig config;
    return argc == 3 && config.load( argv[1], argv[2], false ) && !config.getDigitalBoardsConfig().empty() ? 0 : 1;
}
