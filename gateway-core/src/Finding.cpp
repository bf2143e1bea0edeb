#include <velquin/Finding.h>

#include <cctype>
#include <new>
#include <string_view>
#include <utility>

namespace Velquin {

namespace {

thread_local const FindingPlace* t_pPlace = nullptr;
thread_local FindingWatch* t_pWatch = nullptr;

std::string describeCurrentException( const char* in_szOperation ) {
    try {
        throw;
    } catch ( const std::bad_alloc& ) {
        return std::string( "out of memory in " ) + in_szOperation;
    } catch ( const std::exception& exception ) {
        return std::string( in_szOperation ) + " failed: " + exception.what();
    } catch ( ... ) {
        return std::string( in_szOperation ) + " failed";
    }
}

/// The text as a part of a sentence: without blanks and a point at its end, and without a capital at its beginning
/// unless that is a name.
std::string toClause( const std::string& in_strText ) {
    std::string strText = in_strText.substr( 0, in_strText.find_last_not_of( " ." ) + 1 );
    if ( strText.size() > 1 && std::islower( static_cast<unsigned char>( strText[1] ) ) )
        strText[0] = static_cast<char>( std::tolower( static_cast<unsigned char>( strText[0] ) ) );
    return strText;
}

std::string quote( const std::string& in_strText ) {
    return "\"" + in_strText + "\"";
}

/// The name, or each of several, in quotes: `"a" or "b"`.
std::string quoteNames( std::string in_strNames ) {
    for ( const std::string strSeparator : { " or ", " and ", ", " } ) {
        const std::string strQuoted = "\"" + strSeparator + "\"";
        for ( std::size_t u = in_strNames.find( strSeparator ); u != std::string::npos;
              u = in_strNames.find( strSeparator, u + strQuoted.size() ) )
            in_strNames.replace( u, strSeparator.size(), strQuoted );
    }
    return quote( in_strNames );
}

/// That one or several are missing: "a", "a or b", "a and b", "a, b and c".
std::string describeMissing( const char* in_szWhat, const std::string& in_strNames ) {
    const bool bSeveral = in_strNames.find( " and " ) != std::string::npos;
    return std::string( "missing " ) + in_szWhat + ( bSeveral ? "s " : " " ) + quoteNames( in_strNames );
}

/// What is wrong, without what would be right.
std::string describeFault( const Finding& in_finding ) {
    switch ( in_finding.eKind ) {
    case Finding::Kind::MISSING_ATTRIBUTE:
        return describeMissing( "attribute", in_finding.strAttribute );
    case Finding::Kind::MISSING_ELEMENT:
        return describeMissing( "element", in_finding.strAttribute );
    case Finding::Kind::INVALID_VALUE:
        return in_finding.strAttribute + "=" + quote( in_finding.strValue );
    case Finding::Kind::UNKNOWN_ATTRIBUTE:
        return "unknown attribute " + quote( in_finding.strAttribute );
    case Finding::Kind::UNKNOWN_ELEMENT:
        return "unexpected element " + quote( in_finding.strAttribute );
    case Finding::Kind::OTHER:
    case Finding::Kind::UNREADABLE_FILE:
        break;
    }
    return toClause( in_finding.strMessage.empty() ? in_finding.strText : in_finding.strMessage );
}

} // namespace

std::string describeFinding( const Finding& in_finding ) {
    std::string strText = describeFault( in_finding );
    if ( !in_finding.strHint.empty() )
        strText += ": " + toClause( in_finding.strHint );
    makePrintable( strText );
    return strText;
}

FindingPlace::FindingPlace() noexcept : m_pOuter( std::exchange( t_pPlace, this ) ) {}

FindingPlace::~FindingPlace() {
    t_pPlace = m_pOuter;
}

const FindingPlace* FindingPlace::getCurrent() noexcept {
    return t_pPlace;
}

FindingWatch::FindingWatch( Callback in_callback )
    : m_callback( std::move( in_callback ) ), m_pOuter( std::exchange( t_pWatch, this ) ) {}

FindingWatch::~FindingWatch() {
    t_pWatch = m_pOuter;
}

void reportFinding( const Logger& in_logger, Finding in_finding, const char* in_szFile, int in_nLine ) noexcept {
    makePrintable( in_finding.strText );
    in_logger.log( in_finding.nLevel, in_finding.strText, in_szFile, in_nLine );
    FindingWatch* const pWatch = t_pWatch;
    if ( !pWatch )
        return;
    const FindingPlace* const pPlace = t_pPlace;
    try {
        in_finding.strLogger = in_logger.getName();
        if ( pPlace &&
             ( in_finding.strFile.empty() || in_finding.ullLine == 0 || in_finding.strElementPath.empty() ) ) {
            // A finding that a place itself reports gets no place: that would never end.
            t_pPlace = nullptr;
            pPlace->locate( in_finding );
        }
    } catch ( ... ) {
        // Report the finding even when its place is unknown.
    }
    t_pPlace = pPlace;
    // What the callback reports goes to the next watch: else the callback could call itself without end.
    t_pWatch = pWatch->m_pOuter;
    try {
        pWatch->m_callback( in_finding );
    } catch ( ... ) {
        // A fault of the watching program must not become a fault of the operation that it watches.
    }
    t_pWatch = pWatch;
}

void reportFinding( const Logger& in_logger, int in_nLevel, std::string in_strText, const char* in_szFile,
                    int in_nLine ) noexcept {
    Finding finding;
    finding.nLevel = in_nLevel;
    finding.strText = std::move( in_strText );
    reportFinding( in_logger, std::move( finding ), in_szFile, in_nLine );
}

void reportFinding( const Logger& in_logger, Fault in_fault, std::string in_strText, const char* in_szFile,
                    int in_nLine ) noexcept {
    Finding finding;
    try {
        finding.strRule = in_fault.szRule;
        finding.strAttribute = in_fault.szAttribute;
    } catch ( ... ) {
        // Report the finding even when its rule is unknown.
    }
    if ( !finding.strAttribute.empty() )
        finding.eKind = in_fault.eKind;
    finding.strValue = std::move( in_fault.strValue );
    finding.strHint = std::move( in_fault.strHint );
    finding.strText = std::move( in_strText );
    reportFinding( in_logger, std::move( finding ), in_szFile, in_nLine );
}

void reportCurrentException( const Logger& in_logger, const char* in_szOperation, const char* in_szFile,
                             int in_nLine ) noexcept {
    std::string strText;
    try {
        strText = describeCurrentException( in_szOperation );
    } catch ( ... ) {
        strText = "out of memory"; // short enough to need no memory
    }
    reportFinding( in_logger, Fault{ "internal" }, std::move( strText ), in_szFile, in_nLine );
}

} // namespace Velquin
