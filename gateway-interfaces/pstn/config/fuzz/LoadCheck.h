#pragma once

namespace Velquin::Pstn::Fuzz {

/// Loads a configuration as a gateway does, compares the verdict with the findings, reads the model, writes its boards
/// and reads them back.
/// @param in_bTalkative whether the load logs everything, even the file's content
void checkLoad( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bTalkative );

} // namespace Velquin::Pstn::Fuzz
