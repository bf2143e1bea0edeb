#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reading/XmlNodeFwd.h"

namespace Velquin::Pstn {

// What a survey asks of the elements around a finding.

/// The attribute's value; empty when it is absent.
std::string getValue( const xmlNode* in_pElement, const char* in_szAttribute );

/// The attribute's leading number; nothing when it has none.
std::optional<unsigned int> getNumber( const xmlNode* in_pElement, const char* in_szAttribute );

/// Whether both texts name one thing: the same number, or the same text.
bool isSameIdentifier( std::string_view in_strX, std::string_view in_strY );

bool isNamed( const xmlNode* in_pElement, std::string_view in_strName );

/// Whether the first stands in the second, or is it.
bool isWithin( const xmlNode* in_pElement, const xmlNode* in_pAncestor );

/// The elements from the section (a child of the root) down to the element.
std::vector<const xmlNode*> getChain( const xmlNode* in_pElement );

/// The element and all elements in it, in document order.
std::vector<const xmlNode*> getTree( const xmlNode* in_pElement );

std::vector<const xmlNode*> getChildren( const xmlNode* in_pElement );

/// The boards of one kind.
std::vector<const xmlNode*> getBoards( const xmlNode* in_pRoot, bool in_bAnalog );

/// The first element with that ID; null when there is none.
const xmlNode* findById( const std::vector<const xmlNode*>& in_vecElements, std::string_view in_strId );

/// Whether the element names a board, or should: a reference of `applyTo`, a member of a group.
bool isReference( const xmlNode* in_pElement );
/// Whether it is a reference to all lines of a board.
bool isWholeBoard( const xmlNode* in_pElement );

/// The reference that puts channels into a group: the element, or for a range the one in which it stands.
const xmlNode* getReference( const xmlNode* in_pElement );

/// Whether two references mean one interface, or one of them a board and the other one of its interfaces.
bool meanOneLine( const xmlNode* in_pX, const xmlNode* in_pY );

/// Whether two ranges or, for analog lines, two references put one channel into one group.
bool shareChannel( const xmlNode* in_pX, const xmlNode* in_pY );

/// Whether a range shares a channel with another one of a reference.
bool sharesChannelWith( const xmlNode* in_pRange, const xmlNode* in_pReference );

/// The same for the range's own reference. An analog line's reference has no ranges.
bool sharesChannelWithin( const xmlNode* in_pRange );

/// Whether the element is about analog lines: stands in an element with a name of that kind, which may be misspelt.
bool isAnalog( const xmlNode* in_pElement );

} // namespace Velquin::Pstn
