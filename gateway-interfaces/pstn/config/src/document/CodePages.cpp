#include "document/CodePages.h"

#if defined( _WIN32 )

#include <algorithm>
#include <cstddef>
#include <mutex>

#include <libxml/encoding.h>
#include <windows.h>

namespace Velquin::Pstn {

namespace {

// What an input function of libxml2 returns, unless it is the number of bytes written
constexpr int NO_ROOM = -1;
constexpr int NOT_CONVERTIBLE = -2;

/// Converts one character of a code page.
/// @return its UTF-16 code; 0 when the code page doesn't define it
/// The system gives a control character (C1) or the end of the private area to what a code page leaves undefined; iconv
/// refuses these bytes, and so do we. No character of these code pages is beyond the first plane.
wchar_t toUtf16( UINT in_uCodePage, const unsigned char* in_pCharacter, int in_nBytes ) {
    wchar_t aCodes[2];
    const int nCodes = MultiByteToWideChar( in_uCodePage, MB_ERR_INVALID_CHARS,
                                            reinterpret_cast<const char*>( in_pCharacter ), in_nBytes, aCodes, 2 );
    const bool bUndefined =
        nCodes != 1 || ( aCodes[0] >= 0x80 && aCodes[0] < 0xA0 ) || ( aCodes[0] >= 0xF880 && aCodes[0] < 0xF900 );
    return bUndefined ? L'\0' : aCodes[0];
}

/// What an encoding makes of a character of its code page; 0 when it hasn't the character.
using Refinement = wchar_t ( * )( const unsigned char* in_pCharacter, int in_nBytes, wchar_t in_cCode );

wchar_t keep( const unsigned char*, int, wchar_t in_cCode ) {
    return in_cCode;
}

/// Without the private area, which most code pages have around what their standards define.
wchar_t omitPrivate( const unsigned char*, int, wchar_t in_cCode ) {
    return in_cCode >= 0xE000 && in_cCode < 0xF900 ? L'\0' : in_cCode;
}

/// A code of the code page, and what iconv has in its place
using Mark = wchar_t[2];

template <std::size_t COUNT>
wchar_t replace( const Mark ( &in_aMarks )[COUNT], wchar_t in_cCode ) {
    for ( const Mark& mark : in_aMarks ) {
        if ( in_cCode == mark[0] )
            return mark[1];
    }
    return in_cCode;
}

/// Shift_JIS as iconv has it: JIS X 0201 and 0208. The code page differs in a few marks, and has more characters.
wchar_t refineShiftJis( const unsigned char* in_pCharacter, int, wchar_t in_cCode ) {
    constexpr Mark MARKS[] = { { 0x5C, 0xA5 },     { 0x7E, 0x203E }, { 0x2225, 0x2016 }, { 0xFF0D, 0x2212 },
                               { 0xFF5E, 0x301C }, { 0xFFE0, 0xA2 }, { 0xFFE1, 0xA3 },   { 0xFFE2, 0xAC } };
    return *in_pCharacter == 0x87 || *in_pCharacter >= 0xED ? L'\0' : replace( MARKS, in_cCode );
}

/// EUC-KR: only rows and columns of the standard, not what the code page has around them.
wchar_t refineEucKr( const unsigned char* in_pCharacter, int in_nBytes, wchar_t in_cCode ) {
    const bool bAscii = *in_pCharacter < 0x80;
    const bool bStandard = in_nBytes == 2 && in_pCharacter[0] >= 0xA1 && in_pCharacter[1] >= 0xA1;
    return bAscii || bStandard ? omitPrivate( in_pCharacter, in_nBytes, in_cCode ) : L'\0';
}

/// GB2312: the same, and without what the code page has in gaps of the standard's rows 2, 6 and 8.
wchar_t refineGb2312( const unsigned char* in_pCharacter, int in_nBytes, wchar_t in_cCode ) {
    constexpr unsigned char GAPS[][3] = { { 0xA2, 0xA1, 0xAA }, { 0xA6, 0xE0, 0xF5 }, { 0xA8, 0xBB, 0xC0 } };
    for ( const auto& gap : GAPS ) {
        if ( in_nBytes == 2 && in_pCharacter[0] == gap[0] && in_pCharacter[1] >= gap[1] && in_pCharacter[1] <= gap[2] )
            return L'\0';
    }
    constexpr Mark MARKS[] = { { 0xB7, 0x30FB }, { 0x2014, 0x2015 } };
    return replace( MARKS, refineEucKr( in_pCharacter, in_nBytes, in_cCode ) );
}

/// windows-1255 without a rare vowel point, which iconv lacks.
wchar_t refine1255( const unsigned char* in_pCharacter, int in_nBytes, wchar_t in_cCode ) {
    return *in_pCharacter == 0xCA ? L'\0' : omitPrivate( in_pCharacter, in_nBytes, in_cCode );
}

/// Of the private area, iconv has the three rows of a common extension.
wchar_t refineBig5( const unsigned char* in_pCharacter, int in_nBytes, wchar_t in_cCode ) {
    const bool bExtension = *in_pCharacter >= 0xC6 && *in_pCharacter <= 0xC8;
    return bExtension ? in_cCode : omitPrivate( in_pCharacter, in_nBytes, in_cCode );
}

wchar_t refineKoi8U( const unsigned char*, int, wchar_t in_cCode ) {
    constexpr Mark MARKS[] = { { 0x45E, 0x255D }, { 0x40E, 0x256C } };
    return replace( MARKS, in_cCode );
}

/// Appends the character in UTF-8, if there is room.
/// @return number of bytes; 0 when there is no room
int appendUtf8( wchar_t in_cCode, unsigned char* out_pText, int in_nRoom ) {
    const auto uCode = static_cast<unsigned int>( in_cCode );
    const int nBytes = uCode < 0x80 ? 1 : uCode < 0x800 ? 2 : 3;
    if ( nBytes > in_nRoom )
        return 0;
    constexpr unsigned int FIRST[] = { 0x00, 0xC0, 0xE0 };
    for ( int n = nBytes - 1, nShift = 0; n >= 0; --n, nShift += 6 )
        out_pText[n] = static_cast<unsigned char>( n > 0 ? 0x80U | ( ( uCode >> nShift ) & 0x3FU )
                                                         : FIRST[nBytes - 1] | ( uCode >> nShift ) );
    return nBytes;
}

/// An input function of libxml2. A character that the end of the input cuts in two waits for its second half.
template <UINT CODE_PAGE, Refinement REFINE = omitPrivate>
int convert( unsigned char* out_pText, int* inout_pRoom, const unsigned char* in_pBytes, int* inout_pBytes ) {
    int nRead = 0;
    int nWritten = 0;
    int nResult = 0;
    while ( nResult == 0 && nRead < *inout_pBytes ) {
        const unsigned char* const p = in_pBytes + nRead;
        const int nBytes = *p >= 0x80 && IsDBCSLeadByteEx( CODE_PAGE, *p ) ? 2 : 1;
        if ( nRead + nBytes > *inout_pBytes )
            break;
        const wchar_t cCode =
            REFINE( p, nBytes, *p < 0x80 ? static_cast<wchar_t>( *p ) : toUtf16( CODE_PAGE, p, nBytes ) );
        const int nAppended = appendUtf8( cCode, out_pText + nWritten, *inout_pRoom - nWritten );
        if ( cCode == 0 && *p >= 0x80 ) {
            nResult = NOT_CONVERTIBLE;
        } else if ( nAppended == 0 ) {
            nResult = NO_ROOM;
        } else {
            nRead += nBytes;
            nWritten += nAppended;
        }
    }
    *inout_pBytes = nRead;
    *inout_pRoom = nWritten;
    return nResult == 0 ? nWritten : nResult;
}

struct CodePage {
    const char* szName;
    xmlCharEncodingInputFunc pConvert;
    const char* aszAliases[2];
};

// libxml2's table has room for 50, and holds 22 of its own.
constexpr CodePage CODE_PAGES[] = {
    { "windows-874", &convert<874>, { "CP874" } },
    { "windows-1250", &convert<1250>, { "CP1250" } },
    { "windows-1251", &convert<1251>, { "CP1251" } },
    { "windows-1252", &convert<1252>, { "CP1252" } },
    { "windows-1253", &convert<1253>, { "CP1253" } },
    { "windows-1254", &convert<1254>, { "CP1254" } },
    { "windows-1255", &convert<1255, refine1255>, { "CP1255" } },
    { "windows-1256", &convert<1256>, { "CP1256" } },
    { "windows-1257", &convert<1257>, { "CP1257" } },
    { "windows-1258", &convert<1258>, { "CP1258" } },
    { "Shift_JIS", &convert<932, refineShiftJis>, { "SJIS", "MS_KANJI" } },
    { "windows-31J", &convert<932, keep>, { "CP932" } },
    { "GBK", &convert<936>, { "CP936" } },
    { "GB2312", &convert<936, refineGb2312>, {} },
    { "EUC-KR", &convert<949, refineEucKr>, {} },
    { "UHC", &convert<949>, { "CP949" } },
    { "Big5", &convert<950, refineBig5>, { "CP950" } },
    { "KOI8-R", &convert<20866>, {} },
    { "KOI8-U", &convert<21866, refineKoi8U>, {} },
};

bool isKnown( const char* in_szName ) {
    xmlCharEncodingHandler* const pHandler = xmlFindCharEncodingHandler( in_szName );
    if ( pHandler )
        xmlCharEncCloseFunc( pHandler );
    return pHandler != nullptr;
}

} // namespace

void registerCodePages() {
    static std::mutex s_mutex;
    const std::lock_guard lock( s_mutex );
    // Not once for ever: closing libxml2 empties its table.
    if ( std::all_of( std::begin( CODE_PAGES ), std::end( CODE_PAGES ),
                      []( const CodePage& in_page ) { return isKnown( in_page.szName ); } ) )
        return;
    for ( const CodePage& page : CODE_PAGES ) {
        if ( !isKnown( page.szName ) )
            xmlNewCharEncodingHandler( page.szName, page.pConvert, nullptr ); // libxml2 owns it
        for ( const char* const szAlias : page.aszAliases ) {
            if ( szAlias && !isKnown( szAlias ) )
                xmlAddEncodingAlias( page.szName, szAlias );
        }
    }
}

} // namespace Velquin::Pstn

#else

void Velquin::Pstn::registerCodePages() {}

#endif
