#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "description/ModelDescription.h"

// A description of a model as a person reads it.

/// A value on one line: keywords and plain words as they are, other texts in quotes, null as "none", the elements of a
/// list between blanks.
std::string toWords( const Velquin::Pstn::Json& in_value );

/// An object of a section, "digital board 1 "E1 card"".
std::string toTitle( const std::string& in_strSection, const std::string& in_strId,
                     const Velquin::Pstn::Json& in_object );

/// Prints rows in columns. A column without content is left out.
/// @param in_vecRows the first is the heading; all have as many cells
void printTable( std::ostream& out_stream, const std::vector<std::vector<std::string>>& in_vecRows );

/// Prints the whole model, at most 96 columns wide unless a single value or a table is wider.
void printModel( std::ostream& out_stream, const Velquin::Pstn::Json& in_model );
