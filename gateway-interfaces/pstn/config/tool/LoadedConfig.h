#pragma once

#include <memory>
#include <string>

#include <velquin/pstn/loading/XmlConfig.h>

#include "Command.h"

/// Loads a file, or standard input if its name is "-", for a verb that shows the model. When the gateway would not load
/// it, or not all of it, prints to standard error what is wrong.
/// @param out_eExitCode that of the verb when the file can't be loaded
/// @return null when the file can't be loaded
/// @throws std::runtime_error when standard input can't be read
std::unique_ptr<Velquin::Pstn::XmlConfig> loadConfig( const std::string& in_strFile, const std::string& in_strSchema,
                                                      ExitCode& out_eExitCode );
