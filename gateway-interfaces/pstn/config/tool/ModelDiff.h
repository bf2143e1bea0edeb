#pragma once

#include <ostream>

#include "description/ModelDescription.h"

/// What changes for the gateway from one description to another, as a list of changes; docs/show-json.md says what they
/// are made of. The order of entries means nothing.
Velquin::Pstn::Json diffModels( const Velquin::Pstn::Json& in_old, const Velquin::Pstn::Json& in_new );

/// Prints the changes for people.
void printChanges( std::ostream& out_stream, const Velquin::Pstn::Json& in_changes );
