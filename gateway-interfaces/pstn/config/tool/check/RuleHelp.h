#pragma once

#include <ostream>
#include <string>

#include <velquin/pstn/survey/Rules.h>

/// `unknown rule "x"`, and which one may be meant.
std::string describeUnknownRule( const std::string& in_strName );

/// "error", "warning" or "note".
const char* getSeverityName( Velquin::Pstn::Severity in_eSeverity );

/// Prints name, severity and title of each rule.
void listRules( std::ostream& inout_stream );

/// Prints what a rule means, why it hurts and what to do.
/// @param in_uWidth columns
void explainRule( std::ostream& inout_stream, const Velquin::Pstn::Rule& in_rule, std::size_t in_uWidth );
