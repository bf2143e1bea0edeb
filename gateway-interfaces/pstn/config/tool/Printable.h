#pragma once

#include <string>
#include <string_view>

/// The UTF-8 text with a question mark for each character that a terminal or browser obeys instead of showing it:
/// controls, line separators, and marks that turn the direction of writing. A tab becomes blanks. What nobody would
/// see, or tell from a blank, is named: <U+00A0>.
std::string printable( std::string_view in_strText );

/// A printable text as content or attribute value of XML and HTML.
std::string escapeMarkup( std::string_view in_strText );

/// The first characters of a printable UTF-8 text, with "…" for the rest if there is one. Not more than that many.
std::string shorten( const std::string& in_strText, std::size_t in_uCharacters );
