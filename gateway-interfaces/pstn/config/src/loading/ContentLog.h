#pragma once

#include <velquin/Logger.h>

namespace Velquin::Pstn {

/// Logs a file at INFO, and numbers its lines from 1. False, after an ERROR line, when it can't be opened.
bool logContent( const char* in_szConfigFile, const Logger& in_logger );

} // namespace Velquin::Pstn
