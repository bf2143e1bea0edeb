#pragma once

namespace Velquin::Pstn::Fuzz {

/// Loads a configuration as a gateway does, holds the verdict against the findings, reads the model, and writes and
/// reads its boards back.
/// @param in_bTalkative whether all that can be logged is composed, the file's content too
void checkLoad( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bTalkative );

} // namespace Velquin::Pstn::Fuzz
