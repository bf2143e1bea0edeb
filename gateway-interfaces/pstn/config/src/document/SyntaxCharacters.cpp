#include "document/SyntaxCharacters.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>

namespace Velquin::Pstn {

namespace {

/// A character in UTF-8. No bytes when the text begins with none.
struct Character {
    std::uint32_t uCode = 0;
    std::size_t uBytes = 0;
};

Character readCharacter( std::string_view in_strText ) {
    const auto get = [in_strText]( std::size_t in_u ) {
        return in_u < in_strText.size() ? static_cast<unsigned char>( in_strText[in_u] ) : 0U;
    };
    const unsigned int uFirst = get( 0 );
    if ( uFirst < 0x80 )
        return { uFirst, in_strText.empty() ? 0U : 1U };
    const std::size_t uBytes = uFirst < 0xC2 ? 0 : uFirst < 0xE0 ? 2 : uFirst < 0xF0 ? 3 : uFirst < 0xF5 ? 4 : 0;
    std::uint32_t uCode = uBytes == 0 ? 0 : uFirst & ( 0x7FU >> uBytes );
    for ( std::size_t u = 1; u < uBytes; ++u ) {
        if ( ( get( u ) & 0xC0U ) != 0x80 )
            return {};
        uCode = uCode << 6U | ( get( u ) & 0x3FU );
    }
    return { uCode, uBytes };
}

bool isXmlCharacter( std::uint32_t in_uCode ) {
    return in_uCode == '\t' || in_uCode == '\n' || in_uCode == '\r' || ( in_uCode >= 0x20 && in_uCode < 0xD800 ) ||
           ( in_uCode >= 0xE000 && in_uCode < 0xFFFE ) || ( in_uCode >= 0x10000 && in_uCode < 0x110000 );
}

/// Of the characters beyond ASCII, those are told that somebody writes by mistake: blanks and quotes of other kinds.
bool isNameCharacter( std::uint32_t in_uCode, bool in_bFirst ) {
    if ( in_uCode >= 0x80 )
        return in_uCode != 0xA0 && in_uCode != 0x3000 && ( in_uCode < 0x2000 || in_uCode >= 0x2070 );
    const bool bLetter = ( in_uCode | 0x20U ) >= 'a' && ( in_uCode | 0x20U ) <= 'z';
    return bLetter || in_uCode == '_' || in_uCode == ':' ||
           ( !in_bFirst && ( ( in_uCode >= '0' && in_uCode <= '9' ) || in_uCode == '-' || in_uCode == '.' ) );
}

std::string format( const char* in_szFormat, unsigned int in_uValue ) {
    char szText[32];
    std::snprintf( szText, sizeof( szText ), in_szFormat, in_uValue );
    return szText;
}

/// The bytes that a text begins with and that aren't in its encoding.
SyntaxFinding describeBytes( const IllFormedText& in_text, std::string_view in_strRest, bool in_bDeclared ) {
    constexpr std::size_t MAX_BYTES = 4;
    const Character character = readCharacter( in_strRest );
    const std::string_view strBytes = in_strRest.substr( 0, std::max<std::size_t>( character.uBytes, 1 ) );
    std::string strList;
    for ( const char c : strBytes.substr( 0, MAX_BYTES ) )
        strList += format( " 0x%02X", static_cast<unsigned char>( c ) );
    const std::string strMessage =
        strBytes.size() == 1 ? "the byte" + strList + " isn't " : "the bytes" + strList + " aren't ";
    if ( !in_bDeclared )
        return { strBytes, strMessage + "UTF-8", "save the file in UTF-8, or name its encoding in the first line" };
    return { strBytes, strMessage + std::string( in_text.strEncoding ) + ", which the file says it is in",
             character.uBytes > 1 ? "write encoding=\"UTF-8\" in the first line"
                                  : "name the encoding that the file is in" };
}

} // namespace

std::string joinTexts( std::initializer_list<std::string_view> in_listParts ) {
    std::string strText;
    for ( const std::string_view strPart : in_listParts )
        strText += strPart;
    return strText;
}

std::string_view readName( std::string_view in_strText ) {
    std::size_t u = 0;
    for ( ;; ) {
        const Character character = readCharacter( in_strText.substr( u ) );
        if ( character.uBytes == 0 || !isNameCharacter( character.uCode, u == 0 ) )
            return in_strText.substr( 0, u );
        u += character.uBytes;
    }
}

std::string nameCharacter( std::string_view in_strText ) {
    const std::uint32_t uCode = readCharacter( in_strText ).uCode;
    return uCode > 0x20 && uCode < 0x7F ? std::string( 1, static_cast<char>( uCode ) ) : format( "U+%04X", uCode );
}

std::optional<SyntaxFinding> findStrangeCharacter( const IllFormedText& in_text ) {
    for ( std::size_t u = 0; u < in_text.strText.size(); ) {
        const std::string_view strRest = in_text.strText.substr( u );
        const Character character = readCharacter( strRest );
        if ( character.uBytes == 0 || u == in_text.uConverted )
            return describeBytes( in_text, strRest, u >= in_text.uConverted );
        if ( !isXmlCharacter( character.uCode ) )
            return SyntaxFinding{ strRest.substr( 0, character.uBytes ),
                                  "the file holds the character " + format( "U+%04X", character.uCode ) +
                                      ", which XML forbids",
                                  "remove it" };
        u += character.uBytes;
    }
    return std::nullopt;
}

std::optional<SyntaxFinding> findWrongReference( std::string_view in_strText ) {
    for ( std::size_t u = in_strText.find( '&' ); u != std::string_view::npos; u = in_strText.find( '&', u + 1 ) ) {
        const std::string_view strRest = in_strText.substr( u + 1 );
        const std::string strWrite = "write &amp; for the character itself";
        std::size_t uEnd = 0;
        if ( strRest.starts_with( '#' ) ) {
            const bool bHex = strRest.starts_with( "#x" );
            const char* const szBegin = strRest.data() + ( bHex ? 2 : 1 );
            std::uint32_t uCode = 0;
            const auto result = std::from_chars( szBegin, strRest.data() + strRest.size(), uCode, bHex ? 16 : 10 );
            uEnd = static_cast<std::size_t>( result.ptr - strRest.data() );
            const std::string_view strPlace = in_strText.substr( u, uEnd + 2 );
            if ( result.ptr == szBegin )
                return SyntaxFinding{ strPlace, "a number must follow the characters &#", strWrite };
            if ( result.ec != std::errc() || !isXmlCharacter( uCode ) )
                return SyntaxFinding{ strPlace,
                                      "XML forbids the character that &" + std::string( strRest.substr( 0, uEnd ) ) +
                                          "; stands for",
                                      "remove it" };
        } else {
            const std::string_view strName = readName( strRest );
            uEnd = strName.size();
            if ( strName.empty() )
                return SyntaxFinding{ in_strText.substr( u, 1 ), "a name must follow the character &", strWrite };
            const bool bKnown =
                strName == "amp" || strName == "lt" || strName == "gt" || strName == "quot" || strName == "apos";
            if ( !bKnown && strRest.substr( uEnd ).starts_with( ';' ) )
                return SyntaxFinding{ in_strText.substr( u, uEnd + 2 ),
                                      "there is no entity &" + std::string( strName ) + ";",
                                      "write the text itself; only &amp;, &lt;, &gt;, &quot; and &apos; have names" };
        }
        if ( !strRest.substr( uEnd ).starts_with( ';' ) )
            return SyntaxFinding{ in_strText.substr( u, uEnd + 1 ), "a ; must end what the character & begins",
                                  strWrite };
    }
    return std::nullopt;
}

std::size_t findEndOfDocumentType( std::string_view in_strText, std::size_t in_uBegin ) {
    bool bSubset = false;
    for ( std::size_t u = in_uBegin + 2; u < in_strText.size(); ++u ) {
        const char c = in_strText[u];
        const std::string_view strRest = in_strText.substr( u );
        const std::string_view strEnd = c == '"' || c == '\''           ? strRest.substr( 0, 1 )
                                        : strRest.starts_with( "<!--" ) ? "-->"
                                        : strRest.starts_with( "<?" )   ? "?>"
                                                                        : "";
        if ( !strEnd.empty() ) {
            u = in_strText.find( strEnd, u + 1 );
            if ( u == std::string_view::npos )
                break;
            u += strEnd.size() - 1;
        } else if ( c == '[' || c == ']' ) {
            bSubset = c == '[';
        } else if ( c == '>' && !bSubset ) {
            return u + 1;
        }
    }
    return in_strText.size();
}

} // namespace Velquin::Pstn
