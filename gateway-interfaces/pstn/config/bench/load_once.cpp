// Loads a configuration once: load_once FILE SCHEMA [--log-content|--memory|--native]
// Run it under callgrind with --toggle-collect=runLoad. --log-content turns the log of the file's content on, at INFO.
// --memory loads once to warm up, loads again, and prints the heap bytes of the model. --native lets libxml2 itself
// build the document.
// Exit code 0: loaded; 1: not loaded; 2: the command line is wrong.

#include <iostream>
#include <string_view>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "QuietLog.h"
#include "document/DocumentBuilder.h"
#include "loading/XmlConfig.h"
#include "survey/Survey.h"

using namespace Velquin::Pstn;

namespace {

std::size_t getHeapBytes() {
#ifdef __GLIBC__
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#else
    return 0;
#endif
}

} // namespace

/// Loads and releases.
extern "C" bool runLoad( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLogContent,
                         bool in_bPrintMemory ) {
    const std::size_t uBefore = in_bPrintMemory ? getHeapBytes() : 0;
    XmlConfig config;
    const bool bLoaded = config.load( in_szConfigFile, in_szSchemaFile, in_bLogContent );
    if ( in_bPrintMemory )
        std::cout << getHeapBytes() - uBefore << '\n';
    return bLoaded;
}

/// Surveys and releases.
extern "C" bool runSurvey( const char* in_szConfigFile, const char* in_szSchemaFile ) {
    Survey survey;
    return survey.run( in_szConfigFile, in_szSchemaFile );
}

int main( int argc, char** argv ) {
    const std::string_view strMode = argc == 4 ? argv[3] : "";
    const bool bLogContent = strMode == "--log-content";
    const bool bMemory = strMode == "--memory";
    const bool bNative = strMode == "--native";
    const bool bSurvey = strMode == "--survey";
    if ( argc < 3 || argc > 4 || ( argc == 4 && !bLogContent && !bMemory && !bNative && !bSurvey ) ) {
        std::cerr << "usage: load_once FILE SCHEMA [--log-content|--memory|--native|--survey]\n";
        return 2;
    }
    if ( bNative && !setDocumentBuilder( DocumentBuilder::NATIVE ) )
        return 2;
    const QuietLog log( bLogContent ? log4cplus::INFO_LOG_LEVEL : log4cplus::WARN_LOG_LEVEL );
    if ( bSurvey )
        return runSurvey( argv[1], argv[2] ) ? 0 : 1;
    if ( bMemory && !runLoad( argv[1], argv[2], false, false ) )
        return 1;
    return runLoad( argv[1], argv[2], bLogContent, bMemory ) ? 0 : 1;
}
