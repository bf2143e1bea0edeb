#include "document/SyntaxFaults.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace Velquin::Pstn {

namespace {

struct SyntaxFault {
    std::string_view strLibXml2; ///< a part of libxml2's message, the same in all its versions
    std::string_view strMessage; ///< {1} and {2} are the names that the message has
    std::string_view strHint;
    SyntaxPlace place{};
    bool bOpened = false; ///< whether the number in the message is the line of a start tag
};

constexpr std::string_view ROOT_HINT = "a configuration is an element pstnConfig";
constexpr std::string_view ENCODING = "a character isn't UTF-8, or isn't in the encoding that the first line names";
constexpr std::string_view ENCODING_HINT = "save the file in UTF-8, or name its encoding in the first line";
constexpr std::string_view CONTROL = "the file holds a control character, which XML forbids";
constexpr std::string_view CONTROL_HINT = "remove it";

constexpr SyntaxPlace REPORTED{ SyntaxPlace::How::REPORTED };

constexpr SyntaxFault FAULTS[] = {
    { "EntityRef: no name", "a name must follow the character &", "write &amp; for the character itself" },
    { "EntityRef: expecting ';'", "a ; must end what the character & begins", "write &amp; for the character itself" },
    { "' not defined", "there is no entity &{1};",
      "write the text itself; only &amp;, &lt;, &gt;, &quot; and &apos; have names" },
    { "tartTag: invalid element name", "a name must follow the character <", "write &lt; for the character itself" },
    { "Unescaped '<' not allowed in attributes values", "the value has no closing quote, or holds the character <",
      "write the quote, or &lt; for the character" },
    { "AttValue: ' expected", "the value has no closing quote", "write it" },
    { "AttValue: \" or ' expected", "the value of an attribute must begin with a quote", "write name=\"value\"" },
    { "error parsing attribute name", "the start tag has no end, or no name of an attribute stands here",
      "end the tag with > or />" },
    { "Couldn't find end of Start Tag", "the start tag of {1} has no end", "end it with > or />" },
    { "Specification mandates value for attribute", "attribute {1} has no value", "write {1}=\"value\"" },
    { "Failed to parse QName", "a colon follows the name {1}", "write = between the name and the value" },
    { "attributes construct error", "no attribute can begin here",
      "look for a quote that is missing or stands twice, or write a blank in front of the attribute" },
    { "redefined", "attribute {1} stands twice in the tag", "remove one of them" },
    { "Opening and ending tag mismatch",
      "</{2}> can't end the element {1}",
      "write </{1}>, or look for an end tag that is missing or stands twice",
      {},
      true },
    { "Premature end of data in tag",
      "the file ends inside the element {1}",
      "write what is missing, at least </{1}>",
      {},
      true },
    { "expected '>'", "the end tag has no end", "end it with >" },
    { "Double hyphen within comment", "the comment has no end, or -- stands in it", "end it with -->" },
    { "Comment not terminated", "the comment has no end", "end it with -->" },
    { "CData section not finished", "the CDATA section has no end", "end it with ]]>" },
    { "XML declaration allowed only at the start",
      "an XML declaration (<?xml ...?>) may stand only at the very beginning", "remove it, or what stands before it" },
    { "Extra content at the end of the document", "something follows the end of the file's only element",
      "remove it, or the end tag that stands too early" },
    { "Input is not proper UTF-8", ENCODING, ENCODING_HINT, { SyntaxPlace::How::ANYWHERE } },
    { "Invalid bytes in character encoding", ENCODING, ENCODING_HINT, { SyntaxPlace::How::ANYWHERE } },
    { "nsupported encoding", "the encoding {1} isn't known", "save the file in UTF-8, and name that in the first line",
      REPORTED },
    { "labelled UTF-16 but has UTF-8 content", "the file isn't in UTF-16, which the first line names",
      "write the encoding that it is in, for instance UTF-8" },
    { "nsupported version", "this version of XML isn't known", "write version=\"1.0\"" },
    { "alformed declaration expecting version", "the XML declaration doesn't begin with a version",
      "write <?xml version=\"1.0\" in front of the rest" },
    { "tring not started", "a value in the XML declaration must begin with a quote", "write version=\"1.0\"" },
    { "tring not closed", "a value in the XML declaration has no closing quote", "write it" },
    { "'?>' expected", "the XML declaration has no end", "end it with ?>" },
    { "lank needed here", "a blank is missing in the XML declaration, or it has no end",
      "write it, or end it with ?>" },
    { "nvalid PI name", "an instruction can't have this name", "write <?xml, in small letters" },
    { "never end", "an instruction (<? ...) has no end", "end it with ?>" },
    { "nvalid xmlChar value", "XML forbids the character that the number stands for", "remove it" },
    { "out of allowed range", CONTROL, CONTROL_HINT },
    { "NUL character", CONTROL, CONTROL_HINT },
    { "Sequence ']]>' not allowed", "the characters ]]> end no CDATA section here", "write ]]&gt;" },
    { "Entity declarations are not allowed",
      "",
      "",
      { SyntaxPlace::How::DECLARATION, "<!ENTITY",
        "remove the declaration, and write the text where the entity stands" } },
    { "Default values of attributes",
      "",
      "",
      { SyntaxPlace::How::DECLARATION, "<!ATTLIST",
        "remove the declaration, and write the attribute where it is wanted" } },
    { "invalid character in attribute value", CONTROL, CONTROL_HINT },
    { "PCDATA invalid Char value", CONTROL, CONTROL_HINT },
    { "on include is not defined", "nobody reads the element {1}:include",
      "remove it: a configuration draws in no other file", REPORTED },
    { "amespace prefix", "the prefix {1} has no namespace", "leave it out", REPORTED },
    { "Document is empty", "the file is empty", ROOT_HINT },
    { "Start tag expected, '<' not found", "the file isn't XML", ROOT_HINT },
};

const SyntaxFault* findFault( std::string_view in_strText ) {
    const auto* const pFault =
        std::find_if( std::begin( FAULTS ), std::end( FAULTS ), [&]( const SyntaxFault& in_fault ) {
            return in_strText.find( in_fault.strLibXml2 ) != std::string_view::npos;
        } );
    return pFault == std::end( FAULTS ) ? nullptr : pFault;
}

/// The text with the names; empty when it wants one that libxml2 doesn't hand over.
std::string fill( std::string_view in_strText, const xmlError& in_error ) {
    std::string strText( in_strText );
    for ( std::size_t u = strText.find( '{' ); u != std::string::npos; u = strText.find( '{', u ) ) {
        const char* const szName = strText[u + 1] == '1' ? in_error.str1 : in_error.str2;
        if ( !szName )
            return {};
        strText.replace( u, 3, szName );
        u += std::char_traits<char>::length( szName );
    }
    return strText;
}

} // namespace

void explainSyntaxFault( const xmlError& in_error, Finding& inout_finding ) {
    const SyntaxFault* const pFault = findFault( inout_finding.strMessage );
    const std::string strMessage = pFault ? fill( pFault->strMessage, in_error ) : std::string();
    if ( strMessage.empty() )
        return;
    inout_finding.strMessage = strMessage;
    inout_finding.strHint = fill( pFault->strHint, in_error );
    if ( pFault->bOpened && in_error.int1 > 0 ) {
        Finding::Related& related = inout_finding.vecRelated.emplace_back();
        related.strLabel = "opened here";
        related.strFile = inout_finding.strFile;
        related.ullLine = static_cast<unsigned long long>( in_error.int1 );
    }
}

SyntaxPlace getSyntaxPlace( std::string_view in_strText ) {
    const SyntaxFault* const pFault = findFault( in_strText );
    return pFault ? pFault->place : REPORTED;
}

} // namespace Velquin::Pstn
