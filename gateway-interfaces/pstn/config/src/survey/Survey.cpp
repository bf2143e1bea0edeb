#include "survey/Survey.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include <velquin/Assertion.h>
#include <velquin/XML.h>

#include "document/Element.h"
#include "document/ElementPaths.h"
#include "document/SourceText.h"
#include "reading/EntryListener.h"
#include "survey/Echoes.h"
#include "survey/Elements.h"
#include "survey/FindingDetails.h"
#include "survey/MissingParts.h"
#include "survey/SurveyAdvice.h"
#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

namespace {

constexpr std::size_t MAX_LOCATED = 5000;

class SurveyLog {
    VELQUIN_LOGGER();
};

VELQUIN_LOGGER_IMPL( SurveyLog, "marovane.pstn.config.Survey" );

/// What happens while a survey's load goes on.
class Reading : public EntryListener {
public:
    Reading( const XmlConfig& in_config, SurveyRecord& out_record ) noexcept
        : m_config( in_config ), m_record( out_record ) {}

    /// The encoding that the document declares; null when it declares none, or there is no document.
    const char* getEncoding() const noexcept { return m_bEncoding ? m_strEncoding.c_str() : nullptr; }

    /// Settles the findings about a file that can't be read, or is ill-formed: what the parser says behind its first
    /// error follows from it.
    void endWithoutDocument();

private:
    /// Decides, of the findings from that one on, which are mistakes and which only follow from them: what has no rule
    /// follows from what has one.
    void settle( std::size_t in_uBegin );
    void beginDocument( const xmlNode* in_pRoot ) override;
    bool beginEntry( const xmlNode* in_pEntry ) override;
    bool endEntry( const xmlNode* in_pEntry, bool in_bTaken ) override;
    bool passOver() override;
    void endDocument() override;

    void findElements();

    const ElementPaths m_paths;
    const XmlConfig& m_config;
    SurveyRecord& m_record;
    struct OpenEntry {
        std::size_t uFindings; ///< their number when the entry was begun
        bool bFaulty = false;  ///< whether an attribute was passed over
    };
    std::vector<OpenEntry> m_vecEntries;
    std::set<const xmlNode*> m_setOddlyNamed; ///< elements with an attribute that the schema doesn't know
    std::set<const xmlNode*> m_setUnknown;    ///< elements with a name that says nothing where they stand
    std::map<const xmlNode*, unsigned long long> m_mapMisplaced; ///< by its parent, the first child in a wrong place
    std::size_t m_uLocated = 0; ///< how many findings have their elements; in a reading, those of parser and schema
    bool m_bEncoding = false;
    std::string m_strEncoding;
};

void Reading::endWithoutDocument() {
    bool bIllFormed = false;
    for ( SurveyedFinding& item : m_record.vecFindings ) {
        item.finding.bEcho = bIllFormed && item.is( Rules::ILL_FORMED );
        bIllFormed = bIllFormed || ( item.is( Rules::ILL_FORMED ) && item.finding.nLevel >= Logger::ERROR_LEVEL );
    }
    settle( 0 );
}

void Reading::beginDocument( const xmlNode* in_pRoot ) {
    m_record.pRoot = in_pRoot;
    if ( const char* const szEncoding = getElementEncoding( in_pRoot ) ) {
        m_bEncoding = true;
        m_strEncoding = szEncoding;
    }
    settle( 0 );
    findElements();
    for ( const SurveyedFinding& item : m_record.vecFindings ) {
        if ( item.is( Rules::UNKNOWN_ATTRIBUTE ) )
            m_setOddlyNamed.insert( item.pElement );
        else if ( !item.isUnread() )
            continue;
        else if ( !item.finding.vecRelated.empty() )
            m_mapMisplaced.try_emplace( getParentElement( item.pElement ), item.finding.ullElement );
        else if ( !hasNamespace( item.pElement ) ) // readers don't ask for prefixes
            m_setUnknown.insert( item.pElement );
    }
}

/// A reference whose interfaceID has a wrong name would be taken for one to the whole board, and an entry of an unknown
/// name, or a misplaced one, or one behind that, for what belongs in its place.
bool Reading::beginEntry( const xmlNode* in_pEntry ) {
    m_vecEntries.push_back( { m_record.vecFindings.size() } );
    const auto itMisplaced = m_mapMisplaced.find( getParentElement( in_pEntry ) );
    const bool bMisplaced = itMisplaced != m_mapMisplaced.end() && itMisplaced->second <= getElementNumber( in_pEntry );
    return !bMisplaced && !m_setUnknown.contains( in_pEntry ) &&
           !( m_setOddlyNamed.contains( in_pEntry ) && isReference( in_pEntry ) &&
              !getValue( in_pEntry, "boardID" ).empty() && getValue( in_pEntry, "interfaceID" ).empty() );
}

bool Reading::endEntry( const xmlNode* in_pEntry, bool in_bTaken ) {
    const OpenEntry entry = m_vecEntries.back();
    m_vecEntries.pop_back();
    settle( entry.uFindings );
    if ( !in_bTaken )
        m_record.vecLost.push_back( in_pEntry );
    else if ( entry.bFaulty )
        m_record.vecFaulty.push_back( in_pEntry );
    return in_bTaken && !entry.bFaulty;
}

bool Reading::passOver() {
    if ( m_vecEntries.empty() )
        return false;
    m_vecEntries.back().bFaulty = true;
    return true;
}

void Reading::endDocument() {
    settle( 0 );
    if ( !m_record.vecFindings.empty() ) {
        std::for_each( m_record.vecFindings.begin() + static_cast<std::ptrdiff_t>( m_uLocated ),
                       m_record.vecFindings.end(), []( SurveyedFinding& out_item ) { out_item.bOfReader = true; } );
        findElements();
        markEchoes( m_record );
        addDetails( m_record );
    }
    addAdvice( m_config, m_record );
    joinMissingParts( m_record );
}

void Reading::settle( std::size_t in_uBegin ) {
    const auto itBegin = m_record.vecFindings.begin() + static_cast<std::ptrdiff_t>( in_uBegin );
    bool bCause = std::any_of( itBegin, m_record.vecFindings.end(),
                               []( const SurveyedFinding& in_item ) { return !in_item.finding.strRule.empty(); } );
    for ( auto it = itBegin; it != m_record.vecFindings.end(); ++it ) {
        Finding& finding = it->finding;
        if ( !finding.strRule.empty() || finding.bEcho )
            continue;
        finding.bEcho = bCause;
        if ( !bCause )
            finding.strRule = Rules::INTERNAL;
        bCause = true;
    }
}

/// Finds the elements of the new findings by their numbers.
void Reading::findElements() {
    if ( m_uLocated == m_record.vecFindings.size() )
        return;
    const std::vector<const xmlNode*> vecElements = getTree( m_record.pRoot );
    for ( ; m_uLocated < m_record.vecFindings.size(); ++m_uLocated ) {
        SurveyedFinding& item = m_record.vecFindings[m_uLocated];
        const unsigned long long ullElement = item.finding.ullElement;
        if ( ullElement == 0 || ullElement > vecElements.size() ||
             item.finding.strFile != getElementFile( m_record.pRoot ) )
            continue;
        item.pElement = vecElements[ullElement - 1];
        if ( item.isUnread() )
            m_record.vecLost.push_back( item.pElement );
        if ( item.is( Rules::UNEXPECTED_TEXT ) ) // it may be what remains of a child
            m_record.vecFaulty.push_back( item.pElement );
    }
}

} // namespace

class VELQUIN_PSTN_CONFIG_HIDDEN Survey::Impl {
public:
    bool run( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLogContent );

    XmlConfig m_config;
    SourceText m_text;
    std::vector<Finding> m_vecFindings;

private:
    void locate( const std::string& in_strFile );
    void explain( const std::string& in_strFile );
    void sort( const std::string& in_strFile );
};

bool Survey::Impl::run( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLogContent ) {
    const XML::LibraryScope library;
    SurveyRecord record;
    bool bLoads = false;
    Reading reading( m_config, record );
    {
        const FindingWatch watch( [&record]( const Finding& in_finding ) {
            if ( record.vecFindings.size() < SurveyRecord::MAX_FINDINGS )
                record.vecFindings.push_back( { in_finding } );
        } );
        bLoads = m_config.load( in_szConfigFile, in_szSchemaFile, in_bLogContent );
    }
    if ( !record.pRoot ) // else they were settled while the document stood
        reading.endWithoutDocument();
    if ( record.vecFindings.empty() )
        return bLoads;
    for ( SurveyedFinding& item : record.vecFindings )
        m_vecFindings.push_back( std::move( item.finding ) );
    m_text.read( in_szConfigFile, reading.getEncoding() );
    if ( record.pRoot )
        locate( in_szConfigFile );
    else
        explain( in_szConfigFile );
    sort( in_szConfigFile );
    return bLoads;
}

/// Sets the spans of the findings about the file, and of the places that belong to them.
void Survey::Impl::locate( const std::string& in_strFile ) {
    std::vector<SourceText::Place> vecPlaces;
    for ( Finding& finding : m_vecFindings ) {
        if ( vecPlaces.size() >= MAX_LOCATED )
            break;
        if ( finding.strFile != in_strFile || finding.ullElement == 0 )
            continue;
        vecPlaces.push_back( { finding.ullElement, finding.strAttribute, &finding.span, &finding.valueSpan,
                               finding.strRule == Rules::UNEXPECTED_TEXT } );
        for ( Finding::Related& related : finding.vecRelated )
            vecPlaces.push_back( { related.ullElement, related.strAttribute, &related.span, nullptr } );
    }
    m_text.locate( std::move( vecPlaces ) );
}

/// Of an ill-formed file: the parser stops behind the mistake, and says what a parser expects.
void Survey::Impl::explain( const std::string& in_strFile ) {
    for ( Finding& finding : m_vecFindings ) {
        if ( !finding.bEcho && finding.strRule == Rules::ILL_FORMED && finding.nLevel >= Logger::ERROR_LEVEL &&
             finding.strFile == in_strFile )
            m_text.explain( finding );
    }
}

void Survey::Impl::sort( const std::string& in_strFile ) {
    const auto getKey = [&in_strFile]( const Finding& in_finding ) {
        const bool bLocated = in_finding.span.ullLine != 0;
        return std::tuple( in_finding.strFile == in_strFile, bLocated ? in_finding.span.ullLine : in_finding.ullLine,
                           in_finding.span.ullColumn, in_finding.bEcho );
    };
    std::stable_sort(
        m_vecFindings.begin(), m_vecFindings.end(),
        [&getKey]( const Finding& in_x, const Finding& in_y ) { return getKey( in_x ) < getKey( in_y ); } );
}

Survey::Survey() : m_pImpl( std::make_unique<Impl>() ) {}

Survey::~Survey() = default;

bool Survey::run( const char* in_szConfigFile, const char* in_szSchemaFile, bool in_bLogContent ) try {
    return VELQUIN_ASSERT( in_szConfigFile != nullptr ) && VELQUIN_ASSERT( in_szSchemaFile != nullptr ) &&
           m_pImpl->run( in_szConfigFile, in_szSchemaFile, in_bLogContent );
}
VELQUIN_CATCH_AND_RETURN( SurveyLog::getLogger(), false )

const std::vector<Finding>& Survey::getFindings() const noexcept {
    return m_pImpl->m_vecFindings;
}

const XmlConfig& Survey::getConfig() const noexcept {
    return m_pImpl->m_config;
}

std::string_view Survey::getLine( unsigned long long in_ullLine ) const noexcept {
    return m_pImpl->m_text.getLine( in_ullLine );
}

} // namespace Velquin::Pstn
